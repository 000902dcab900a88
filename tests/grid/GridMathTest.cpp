#include "ORV/GridMath.h"

#include "ORV/Grids.h"
#include "ORV/Orv.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

using namespace ORV;

namespace {

constexpr float miss = Const::MISS;
constexpr float inf = std::numeric_limits<float>::infinity();

Grid makeGrid(int nx, const std::vector<float>& values, const char* name = "",
              const char* units = "", const char* level = "") {
    Grid grid(nx, static_cast<int>(values.size()) / nx);
    grid.setData(values.data());
    grid.setLevel(level);
    GridMath::setInfo(grid, name, units);
    return grid;
}

Grid makeRow(const std::vector<float>& values, const char* name = "", const char* units = "") {
    return makeGrid(static_cast<int>(values.size()), values, name, units, "850mb");
}

Grids list(const std::vector<Grid>& operands) {
    Grids grids;
    for (const Grid& grid : operands)
        grids.addGrid(grid);
    return grids;
}

std::vector<float> valuesOf(const Grid& grid) {
    const float* data = grid.data;
    return std::vector<float>(data, data + grid.data.size());
}

class Database : public testing::Test {
public:
    Database() { Orv::setDatabasePath(ORV_DATA); }
    ~Database() override { Orv::setDatabasePath(nullptr); }
};

// Operands of two points, as a plot list could name them.
class GridFunctions : public Database {
public:
    const Grid temp = makeRow({20, miss}, "temp", "C");
    const Grid rhum = makeRow({50, 50}, "rhum", "%");
    const Grid dewp = makeRow({10, 10}, "dewp", "C");
    const Grid u = makeRow({3, 3}, "uwnd", "knt");
    const Grid v = makeRow({-4, -4}, "vwnd", "knt");
    const Grid cold = makeRow({-10, miss}, "temp", "C");
    const Grid wind = makeRow({36, 36}, "wspd", "km/h");
    const Grid dir = makeRow({30, 30}, "wdir", "deg");
    const Grid spd = makeRow({10, 10}, "wspd", "knt");
    const Grid a = makeRow({-7.5f, 1}, "hght", "m");
    const Grid b = makeRow({2, miss}, "hght", "m");
};

} // namespace

// Thermodynamics: Bolton 1980 for moisture and adiabats, the psychrometer equation for the wet
// bulb, the tables of both wind-chill indexes; so to the accuracy of those formulas.
TEST_F(GridFunctions, EachNameGivesItsVariableUnitsAndValue) {
    const struct {
        const char* name;
        std::vector<Grid> operands;
        const char* abbr;
        const char* units;
        float value;
        float tolerance;
    } cases[] = {
        {"valid", {Grid(), a}, "hght", "m", -7.5f, 0},
        {"add", {a, b}, "add", "", -5.5f, 0},
        {"sum", {a, b, b}, "sum", "m", -3.5f, 0},
        {"avg", {a, b, b, b}, "avg", "m", -0.375f, 0},
        {"sub", {a, b}, "diff", "m", -9.5f, 0},
        {"mul", {a, b}, "mult", "", -15, 0},
        {"div", {a, b}, "div", "", -3.75f, 0},
        {"mod", {a, b}, "mod", "", -1.5f, 0},
        {"pow", {b, a}, "pow", "", 0.0055242717f, 1e-8f},
        {"sqrt", {rhum}, "sqrt", "", 7.0710678f, 1e-6f},
        {"abs", {a}, "abs", "", 7.5f, 0},
        {"inv", {makeRow({4, 0})}, "inv", "", -4, 0},
        {"log", {rhum}, "log", "", 3.9120230f, 1e-6f},
        {"log10", {rhum}, "log10", "", 1.6989700f, 1e-6f},
        {"exp", {b}, "exp", "", 7.3890561f, 1e-6f},
        {"max", {a, b}, "max", "", 2, 0},
        {"min", {a, b}, "min", "", -7.5f, 0},
        {"thick", {a, b}, "thick", "m", -9.5f, 0},
        {"dewp", {temp, rhum}, "dewp", "K", 282.42f, 0.1f},
        {"rhum", {temp, dewp}, "rhum", "%", 52.51f, 0.1f},
        {"wetblb", {temp, rhum}, "wetblb", "K", 286.57f, 0.2f},
        {"wchill", {cold, wind}, "wchill", "K", 243.559f, 0.01f},
        {"wchill2", {cold, wind}, "wchill2", "K", 252.85f, 0.05f},
        {"wchill2",
         {cold, makeRow({6, 6}, "uwnd", "m/s"), makeRow({-8, 8}, "vwnd", "m/s")},
         "wchill2",
         "K",
         252.85f,
         0.05f},
        {"heat", {temp, rhum}, "heat", "K", 289.15f, 0.01f},
        {"mixrat", {temp, rhum}, "mrat", "g/kg", 8.67f, 0.03f},
        {"mrat", {temp, rhum}, "mrat", "g/kg", 8.67f, 0.03f},
        {"shum", {temp, rhum}, "shum", "gm/kg", 8.55f, 0.03f},
        {"theta", {temp}, "theta", "K", 307.08f, 0.05f},
        {"thetav", {temp, rhum}, "thetav", "K", 308.70f, 0.05f},
        {"vtemp", {temp, rhum}, "vtemp", "K", 294.70f, 0.02f},
        {"thetae", {temp, rhum}, "thetae", "K", 333.6f, 1},
        {"spd", {u, v}, "wspd", "knt", 5, 0},
        {"wspd", {u, v}, "wspd", "knt", 5, 0},
        {"mag", {u, v}, "wspd", "knt", 5, 0},
        {"dir", {u, v}, "wdir", "knt", 323.1301f, 1e-4f},
        {"wdir", {u, v}, "wdir", "knt", 323.1301f, 1e-4f},
        {"ewdir", {u, v}, "wdir", "knt", 323.1301f, 1e-4f},
        {"uwnd", {dir, spd}, "uwnd", "deg", -5, 1e-6f},
        {"uwndg", {dir, spd}, "uwnd", "deg", -5, 1e-6f},
        {"vwnd", {dir, spd}, "vwnd", "deg", -8.660254f, 1e-5f},
        {"vwndg", {dir, spd}, "vwnd", "deg", -8.660254f, 1e-5f},
        {"show",
         {makeRow({16, miss}, "temp", "C"), makeRow({70, 1}, "rhum"),
          makeRow({-12, 1}, "temp", "C")},
         "show",
         "dC",
         -1.3f,
         0.4f},
        {"show",
         {makeRow({30, miss}, "temp", "C"), makeRow({5, 1}, "rhum"), makeRow({-5, 1}, "temp", "C")},
         "show",
         "dC",
         268.15f - 260.44f,
         0.05f},
    };
    for (const auto& c : cases) {
        Grid out;
        const Grids operands = list(c.operands);
        EXPECT_EQ(GridMath::process(c.name, out, operands), 1) << c.name;
        ASSERT_EQ(out.data.size(), 2) << c.name;
        EXPECT_STREQ(out.getVar().abbr, c.abbr) << c.name;
        EXPECT_STREQ(out.getUnits(), c.units) << c.name;
        EXPECT_NEAR(out.getValue(0, 0), c.value, c.tolerance) << c.name;
        for (int i = 0; i < operands.num; i++)
            EXPECT_EQ(valuesOf(operands.grd[i]), valuesOf(c.operands[i])) << c.name << " changed";
    }
}

TEST_F(GridFunctions, RefusedFunctionLeavesNothingThatCouldBeDrawn) {
    const Grid other = makeGrid(1, {1, 2}, "rhum", "%");
    const struct {
        const char* name;
        std::vector<Grid> operands;
        int known;
    } cases[] = {
        {"nothing", {a, b}, 0},
        {"-add", {a, b}, 0},
        {"", {a, b}, 0},
        {nullptr, {a, b}, 0},
        {"add", {a}, 1},
        {"add-label", {a, other}, 1},
        {"mul", {a, other}, 1},
        {"sum", {}, 1},
        {"sum", {Grid(), a}, 1},
        {"max", {a, other}, 1},
        {"sqrt", {makeRow({4})}, 1},
        {"dewp", {temp, other}, 1},
        {"wspd", {u, other}, 1},
        {"conv", {u}, 1},
        {"adv", {u, v}, 1},
        {"avort", {u}, 1},
        {"ugeos", {}, 1},
        {"valid", {Grid(), Grid()}, 1},
    };
    for (const auto& c : cases) {
        Grid out = a;
        EXPECT_EQ(GridMath::process(c.name, out, list(c.operands)), c.known)
            << (c.name ? c.name : "null");
        EXPECT_FALSE(out.isData()) << (c.name ? c.name : "null");
    }
}

TEST_F(GridFunctions, ConstantStandsForAField) {
    const Grid five = makeRow({5}), field = makeRow({1, miss, 3}, "temp", "C");
    Grid out;
    GridMath::process("sub", out, list({five, field}));
    EXPECT_EQ(valuesOf(out), (std::vector<float>{4, miss, 2}));
    GridMath::process("div", out, list({field, five}));
    EXPECT_EQ(valuesOf(out), (std::vector<float>{0.2f, miss, 0.6f}));
    GridMath::process("add", out, list({five, five}));
    EXPECT_TRUE(out.isValue());
    EXPECT_EQ(out.getValue(0, 0), 10);
    GridMath::process("max", out, list({field, makeRow({2})}));
    EXPECT_EQ(valuesOf(out), (std::vector<float>{2, 2, 3}));
    GridMath::interp(out, five, 0.25f, field);
    EXPECT_EQ(valuesOf(out), (std::vector<float>{4, miss, 4.5f}));

    GridMath::process("dewp", out, list({makeRow({20, 20}, "temp", "C"), makeRow({50})}));
    EXPECT_NEAR(out.getValue(1, 0), 282.42f, 0.1f) << "the same humidity everywhere";
    Grid grid = field;
    EXPECT_EQ(GridMath::add(grid, five), 0) << "not in place";
    EXPECT_EQ(valuesOf(grid), valuesOf(field));
}

TEST_F(GridFunctions, MissingAndUnboundedValues) {
    const Grid x = makeRow({miss, 6, -6, 0, inf, -inf, 3e38f, -2});
    const Grid y = makeRow({2, miss, 0, 0, inf, inf, 3e38f, 0.5f});
    const struct {
        const char* name;
        std::vector<float> values;
    } cases[] = {
        {"add", {miss, miss, -6, 0, inf, miss, inf, -1.5f}},
        {"sub", {miss, miss, -6, 0, miss, -inf, 0, -2.5f}},
        {"mul", {miss, miss, -0.0f, 0, inf, -inf, inf, -1}},
        {"div", {miss, miss, miss, miss, miss, miss, 1, -4}},
        {"mod", {miss, miss, miss, miss, miss, miss, 0, 0}},
        {"pow", {miss, miss, 1, 1, inf, inf, inf, miss}},
        {"sqrt", {miss, 2.4494898f, miss, 0, inf, miss, 1.7320508e19f, miss}},
        {"log", {miss, 1.7917595f, miss, -inf, inf, miss, 88.596848f, miss}},
        {"exp", {miss, 403.42880f, 0.0024787522f, 1, inf, 0, inf, 0.13533528f}},
        {"sum", {2, 6, -6, 0, inf, miss, inf, -1.5f}},
        {"avg", {1, 3, -3, 0, inf, miss, 3e38f, -0.75f}},
        {"max", {2, 6, 0, 0, inf, inf, 3e38f, 0.5f}},
        {"min", {2, 6, -6, 0, inf, -inf, 3e38f, -2}},
        {"wspd", {miss, miss, 6, 0, inf, inf, inf, 2.0615528f}},
        {"rvort", {miss, miss, 0, inf, inf, -inf, -inf, -3e38f}},
    };
    for (const auto& c : cases) {
        Grid out;
        GridMath::process(c.name, out, list({x, y}));
        ASSERT_EQ(out.data.size(), 8) << c.name;
        for (int i = 0; i < 8; i++)
            EXPECT_FLOAT_EQ(out.getValue(i, 0), c.values[i]) << c.name << " at " << i;
    }
}

TEST_F(GridFunctions, MeanCountsGridsAndSumIgnoresGaps) {
    const Grid p = makeRow({1, 2, miss}, "prec", "mm"), q = makeRow({3, miss, miss}),
               r = makeRow({8, 7, miss});
    Grid out;
    GridMath::process("avg", out, list({p, q, r}));
    EXPECT_EQ(valuesOf(out), (std::vector<float>{4, 3, miss}));
    GridMath::process("sum", out, list({p, Grid(), q, r}));
    EXPECT_EQ(valuesOf(out), (std::vector<float>{12, 9, miss}));
    GridMath::process("sum", out, list({makeRow({-9998}), makeRow({-1}), makeRow({4})}));
    EXPECT_EQ(out.getValue(0, 0), -9995) << "the sum on the way is the missing value";
}

TEST_F(GridFunctions, VectorDifferenceTakesFourOperands) {
    Grid x = a, y = a;
    EXPECT_EQ(GridMath::process("vdiff-shear", x, y, list({u, v, v, u})), 1);
    EXPECT_EQ(valuesOf(x), (std::vector<float>{7, 7}));
    EXPECT_EQ(valuesOf(y), (std::vector<float>{-7, -7}));
    EXPECT_STREQ(x.getVar().abbr, "shear");
    EXPECT_STREQ(y.getUnits(), "knt");
    for (const char* name : {"vdiff", "grad", "add"}) {
        x = y = a;
        EXPECT_EQ(GridMath::process(name, x, y, list({u, v, v})), 0) << name;
        EXPECT_FALSE(x.isData() || y.isData()) << name;
    }
    EXPECT_TRUE(GridMath::isVectFunc("vdiff"));
    EXPECT_TRUE(GridMath::isVectFunc("grad-label"));
    EXPECT_FALSE(GridMath::isVectFunc("vdif"));
    EXPECT_FALSE(GridMath::isVectFunc("-grad"));
}

TEST_F(GridFunctions, WindsTurnWithTheGrid) {
    // The meridian 10 degrees east of the central one leans by 10 sin(40), 6.428 degrees.
    const Domain cone("lamb:40:-100:40:40,40,-90,1,2,1,1");
    const Domain plain("ll,40,-90,1,2,1,1");
    Grid east, north, out;
    east.setDomain(plain);
    north.setDomain(plain);
    east.setData(std::vector<float>{0, miss}.data());
    north.setData(std::vector<float>{-10, -10}.data());
    EXPECT_EQ(GridMath::adjustDir(east, north, plain, 0), 0) << "already there";
    EXPECT_EQ(GridMath::adjustDir(east, north, cone, 1), 1);
    EXPECT_NEAR(east.getValue(0, 0), 1.1196f, 2e-3f);
    EXPECT_NEAR(north.getValue(0, 0), -9.9371f, 2e-3f);
    EXPECT_EQ(north.getValue(0, 1), -10) << "missing beside it";

    east.setDomain(cone);
    north.setDomain(cone);
    EXPECT_EQ(GridMath::windDir(out, east, north, 1), 1);
    const float dir = out.getValue(0, 0);
    EXPECT_LT(std::fabs(std::remainder(dir, 360.0f)), 0.2f) << dir;
    EXPECT_EQ(GridMath::adjustDir(east, north, plain, 0), 1);
    EXPECT_NEAR(east.getValue(0, 0), 0, 0.05f);
    EXPECT_NEAR(north.getValue(0, 0), -10, 0.05f);
}
