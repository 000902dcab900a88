#include "ORV/GridMath.h"

#include "ORV/Grids.h"
#include "ORV/Orv.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <sstream>
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
    GridFunctions() {
        for (const Row& row : readTable("grid/operands.txt")) {
            const std::string name = row.text("name");
            const std::vector<float> values = row.numbers("values");
            fields[name] = makeGrid(name == "other" ? 1 : static_cast<int>(values.size()), values,
                                    row.text("abbr"), row.text("units"), "850mb");
        }
    }
    // The fields named, "none" being an empty one.
    Grids named(const std::string& names) {
        Grids all;
        std::istringstream in(names);
        for (std::string name; in >> name;)
            all.addGrid(name == "none" ? Grid() : fields.at(name));
        return all;
    }
    std::map<std::string, Grid> fields;
};

} // namespace

TEST_F(GridFunctions, EachNameGivesItsVariableUnitsAndValue) {
    for (const Row& c : readTable("grid/functions.txt")) {
        SCOPED_TRACE(std::string(c.text("name")) + " " + c.text("operands"));
        Grid out;
        const Grids operands = named(c.text("operands")), before = operands;
        EXPECT_EQ(GridMath::process(c.text("name"), out, operands), 1);
        ASSERT_EQ(out.data.size(), 2);
        EXPECT_STREQ(out.getVar().abbr, c.text("abbr"));
        EXPECT_STREQ(out.getUnits(), c.text("units"));
        EXPECT_NEAR(out.getValue(0, 0), c.number("value"), c.real("tolerance"));
        for (int i = 0; i < operands.num; i++)
            EXPECT_EQ(valuesOf(operands.grd[i]), valuesOf(before.grd[i])) << "changed";
    }
}

TEST_F(GridFunctions, RefusedFunctionLeavesNothingThatCouldBeDrawn) {
    for (const Row& c : readTable("grid/refused.txt")) {
        Grid out = named("a").grd[0];
        EXPECT_EQ(GridMath::process(c.text("name"), out, named(c.text("operands"))),
                  c.integer("known"))
            << c.text("name");
        EXPECT_FALSE(out.isData()) << c.text("name");
    }
    Grid out;
    EXPECT_EQ(GridMath::process(nullptr, out, named("a b")), 0);
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
    for (const Row& c : readTable("grid/gaps.txt")) {
        Grid out;
        GridMath::process(c.text("name"), out, list({x, y}));
        ASSERT_EQ(out.data.size(), 8) << c.text("name");
        for (int i = 0; i < 8; i++)
            EXPECT_FLOAT_EQ(out.getValue(i, 0), c.numbers("values")[i]) << c.text("name") << i;
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
    const Grid a = fields["a"];
    Grid x = a, y = a;
    EXPECT_EQ(GridMath::process("vdiff-shear", x, y, named("u v v u")), 1);
    EXPECT_EQ(valuesOf(x), (std::vector<float>{7, 7}));
    EXPECT_EQ(valuesOf(y), (std::vector<float>{-7, -7}));
    EXPECT_STREQ(x.getVar().abbr, "shear");
    EXPECT_STREQ(y.getUnits(), "knt");
    for (const char* name : {"vdiff", "grad", "add"}) {
        x = y = a;
        EXPECT_EQ(GridMath::process(name, x, y, named("u v v")), 0) << name;
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
