#include "ORV/GridMath.h"
#include "ORV/Grids.h"
#include "ORV/Orv.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

using namespace ORV;

namespace {

constexpr float miss = Const::MISS;
constexpr int nx = 5, ny = 4, points = nx * ny;

constexpr float wind_u[] = {3, 7, 12, 9, 4, 5, 11, 14, 6, -2, 8, 10, 3, -5, -9, 2, -4, -7, -3, 1};
constexpr float wind_v[] = {-6, -2, 5, 8, 3, 1, 4, 9, 7, -1, 6, 2, -3, -8, -4, 10, 5, 0, -2, 6};
constexpr float scalar[] = {271, 273, 278, 276, 274, 274, 279, 281, 277, 272,
                            280, 284, 279, 275, 273, 285, 283, 281, 280, 278};
constexpr float height[] = {5520, 5531, 5544, 5550, 5548, 5562, 5570, 5579, 5588, 5593,
                            5601, 5612, 5618, 5622, 5630, 5640, 5647, 5650, 5661, 5668};

const Domain lat_lon("ll,40,-100,5,4,2,1.5");
const Domain polar("ps:90:-100,40,-100,5,4,0.8,0.5");

Grid makeField(const Domain& domain, const float* values, const char* name, const char* units) {
    Grid grid;
    grid.setDomain(domain);
    grid.setData(values);
    GridMath::setInfo(grid, name, units);
    return grid;
}

Grid makeLine(const std::vector<float>& values, bool column = false) {
    const int n = static_cast<int>(values.size());
    Grid grid(column ? 1 : n, column ? n : 1);
    grid.setData(values.data());
    return grid;
}

// Some of u, v, s and z.
Grids collect(const Domain& domain, const std::string& names) {
    Grids grids;
    for (const char name : names)
        grids.addGrid(name == 'u'   ? makeField(domain, wind_u, "uwnd", "m/s")
                      : name == 'v' ? makeField(domain, wind_v, "vwnd", "m/s")
                      : name == 's' ? makeField(domain, scalar, "temp", "K")
                                    : makeField(domain, height, "hght", "m"));
    return grids;
}

class GridDerivatives : public testing::Test {
public:
    GridDerivatives() { Orv::setDatabasePath(ORV_DATA); }
    ~GridDerivatives() override { Orv::setDatabasePath(nullptr); }
};

} // namespace

TEST_F(GridDerivatives, AgreeWithArraysOnBothKindsOfDomain) {
    for (const Row& c : readTable("grid/derivatives.txt")) {
        SCOPED_TRACE(std::string(c.text("name")) + " " + c.text("operands"));
        Grid out;
        const Domain& domain = *c.text("domain") == 'l' ? lat_lon : polar;
        EXPECT_EQ(GridMath::process(c.text("name"), out, collect(domain, c.text("operands"))), 1);
        ASSERT_EQ(out.data.size(), points);
        EXPECT_STREQ(out.getVar().abbr, c.text("name"));
        EXPECT_STREQ(out.getUnits(), c.text("units"));
        const std::vector<float> values = c.numbers("values");
        for (int k = 0; k < points; k++)
            EXPECT_NEAR(out.data[k], values[k], 1e-4f * std::max(1.0f, std::fabs(values[k])))
                << "at " << k % nx << "," << k / nx;
    }
}

TEST_F(GridDerivatives, PolesAreMissingExceptInDy) {
    const Domain cap("ll,0,0,3,3,10,90"); // rows at 90, 0 and -90
    const float values[] = {1, 2, 4, 8, 16, 32, 5, 7, 9};
    const Grid field = makeField(cap, values, "uwnd", "m/s");
    Grids operands;
    for (int i = 0; i < 3; i++)
        operands.addGrid(field);
    for (const char* name : {"dx", "lapl", "conv", "adv", "rvort", "avort", "def1", "def2"}) {
        Grid out;
        GridMath::process(name, out, operands);
        ASSERT_TRUE(out.isData()) << name;
        for (int i = 0; i < 3; i++) {
            EXPECT_EQ(out.getValue(i, 0), miss) << name;
            EXPECT_NE(out.getValue(i, 1), miss) << name;
            EXPECT_EQ(out.getValue(i, 2), miss) << name;
        }
    }
    Grid out;
    GridMath::dy(out, field);
    const float rises[] = {-7, -14, -28, -2, -2.5f, -2.5f, 3, 9, 23};
    for (int k = 0; k < 9; k++)
        EXPECT_FLOAT_EQ(out.data[k], rises[k] / (90 * 1.11195f)) << k;
    GridMath::geosU(out, operands.grd[0]);
    EXPECT_TRUE(std::isinf(out.data[3])) << "no balance on the equator";
}

TEST_F(GridDerivatives, FallBackBesideMissingValues) {
    for (const Row& c : readTable("grid/fall_back_beside_missing_values.txt"))
        for (const bool column : {false, true}) {
            Grid out;
            const Grid line = makeLine(c.numbers("values"), column);
            column ? GridMath::dy(out, line) : GridMath::dx(out, line);
            for (std::size_t k = 0; k < c.numbers("slope").size(); k++)
                EXPECT_EQ(out.data[k], c.numbers("slope")[k] == miss || !column
                                           ? c.numbers("slope")[k]
                                           : -c.numbers("slope")[k])
                    << c.text("what") << (column ? " in a column at " : " in a row at ") << k;
        }
}

TEST_F(GridDerivatives, LaplacianTakesThreePointsThatItFinds) {
    // The same line in each of three rows, so that only one axis counts; then turned.
    for (const Row& c : readTable("grid/laplacian_takes_three_points_that_it_finds.txt"))
        for (const bool turned : {false, true}) {
            const int n = static_cast<int>(c.numbers("line").size());
            Grid grid(turned ? 3 : n, turned ? n : 3), out;
            for (int k = 0; k < n; k++)
                for (int row = 0; row < 3; row++)
                    grid.setValue(turned ? row : k, turned ? k : row, c.numbers("line")[k]);
            EXPECT_EQ(GridMath::laplacian(out, grid), 1);
            for (int k = 0; k < n; k++)
                EXPECT_EQ(turned ? out.getValue(1, k) : out.getValue(k, 1), c.numbers("bend")[k])
                    << c.text("what") << " at " << k << (turned ? " turned" : "");
        }
}

TEST_F(GridDerivatives, VorticityConvertsWindsToMetresPerSecond) {
    const Grids winds = collect(polar, "uv");
    Grid u = winds.grd[0], v = winds.grd[1], expected, out;
    GridMath::vorticity(expected, u, v);
    GridMath::units(v, "km/h");
    GridMath::vorticity(out, u, v);
    for (int k = 0; k < points; k++)
        EXPECT_NEAR(out.data[k], expected.data[k], 1e-3f) << k;
    EXPECT_STREQ(v.getUnits(), "m/s");
    EXPECT_NEAR(v.data[0], -6, 1e-5f);

    u.var.setUnits("furlongs"); // unknown units are taken as they are
    EXPECT_EQ(GridMath::vorticity(out, u, v), 1);
    EXPECT_NEAR(out.data[0], expected.data[0], 1e-3f);
}

TEST_F(GridDerivatives, RefuseUnlikeDomainsAndMissingSpacing) {
    const Grids here = collect(polar, "uv"), there = collect(lat_lon, "uv");
    Grid out = here.grd[0];
    EXPECT_EQ(GridMath::converge(out, here.grd[0], there.grd[1]), 0);
    EXPECT_EQ(out.data[0], wind_u[0]) << "as it was";
    EXPECT_EQ(GridMath::dx(out, Grid()), 0);
    EXPECT_FALSE(out.isData());

    Grid bare = makeLine({1, 2, 4});
    bare.domain.dx = bare.domain.dy = miss;
    EXPECT_EQ(GridMath::dx(out, bare), 1);
    EXPECT_EQ(out.getValid(), 0);
}
