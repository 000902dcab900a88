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

class Derivative {
public:
    const char* name;
    const char* operands;
    const char* units;
    float values[points];
};

// Made with numpy: gradient (one-sided at the edges) and diff of the arrays above, over the lengths
// of 2 degrees of longitude at 42.25 N and so on, and of 1.5 degrees of latitude.
constexpr Derivative on_lat_lon[] = {
    {"dx", "s", "10^-5 K/m", {1.2149,   2.1261,  0.91121, -1.2149,  -1.2149,  2.9678, 2.0775,
                              -0.59356, -2.671,  -2.9678, 2.3226,   -0.29033, -2.613, -1.742,
                              -1.1613,  -1.1374, -1.1374, -0.85304, -0.85304, -1.1374}},
    {"dy", "s", "10^-5 K/m", {-1.7986,  -3.5973, -1.7986, -0.59955, 1.1991,  -2.698, -3.2975,
                              -0.29977, 0.29977, 0.29977, -3.2975,  -1.1991, 0,      -0.89932,
                              -1.7986,  -2.9977, 0.59955, -1.1991,  -2.9977, -2.9977}},
    {"lapl", "s", "10^-5 K/m", {2.1854,  0.7476,   -4.3804, -1.0784, 1.0784,  0.02143, -1.4164,
                                -3.9112, -1.4307,  0.72606, -3.394,  -5.1913, 1.775,   3.1905,
                                2.1122,  -0.35946, -2.1567, 1.7612,  2.1928,  1.1144}},
    {"conv", "uv", "10^-5 /s", {1.767,    0.86367,   1.7907, 1.8303, 0.63916, 0.035922, -1.4719,
                                -0.91429, -0.047896, 2.6501, 1.5366, 1.7514,  1.657,    0.78601,
                                4.4211,   5.8104,    4.3578, 1.5143, 1.3225,  3.7207}},
    {"conv", "uvs", "10^-5 K/s", {478.84,  235.78,  497.82, 505.17, 175.13, 9.8427, -410.67,
                                  -256.92, -13.267, 720.82, 430.26, 497.41, 462.3,  216.15,
                                  1207,    1656,    1233.2, 425.52, 370.3,  1034.4}},
    {"adv", "uvs", "10^-5 K/s", {-14.437, -22.078, -1.9413, 15.731,  1.2625,  -12.141, -9.662,
                                 11.008,  13.928,  -5.6358, 1.2039,  5.3015,  7.8389,  -15.905,
                                 -17.646, 32.252,  -7.5473, -5.9713, -8.5546, 19.124}},
    {"rvort", "uv", "10^-5 /s", {3.629,   5.7393,  4.2364,  -2.4061, -6.6346, 3.2795,  3.2736,
                                 -1.8076, -7.1646, -8.6455, -3.222,  -7.1096, -9.1986, -2.9883,
                                 3.222,   -6.4408, -11.237, -7.9859, 2.9052,  10.545}},
    {"def1", "uv", "10^-5 /s", {6.6267,   6.3309,  3.0057,   -3.0294, -5.4355, 7.1586,  3.8701,
                                -3.8821,  -9.5449, -6.8469,  3.8593,  -1.1519, -7.0529, -6.1819,
                                -0.22423, -1.014,  -0.76048, 2.083,   5.8721,  8.2702}},
    {"def2", "uv", "10^-5 /s", {-1.2308, -0.9429,  -1.8383, -1.1912, -0.55993, -0.28181, -1.4749,
                                -3.5883, -1.229,   0.85142, 1.4233,  -1.8836,  -3.3919,  -2.4076,
                                -1.4233, -0.75381, -5.5502, -4.005,  -0.50699, 1.4459}},
    {"avort", "uv", "10^-5 /s", {13.435, 15.545, 14.042,  7.3997,  3.1712, 12.799,   12.793,
                                 7.7122, 2.3552, 0.87431, 6.0054,  2.1178, 0.028817, 6.2391,
                                 12.449, 2.4878, -2.3086, 0.94267, 11.834, 19.474}},
    {"ugeos", "z", "m/s", {25.166, 23.369, 20.972, 22.769, 26.964, 24.996, 24.996,
                           22.836, 22.219, 25.305, 24.833, 24.515, 22.605, 23.242,
                           23.878, 25.664, 23.032, 21.058, 25.664, 25.006}},
    {"vgeos", "z", "m/s", {6.6782, 7.2853, 5.7676, 1.2142, -1.2142, 4.8882, 5.1937,
                           5.4992, 4.2772, 3.0551, 6.7837, 5.2419,  3.0835, 3.7002,
                           4.9336, 4.3694, 3.121,  4.3694, 5.6178,  4.3694}},
};

// The same for spacings of 80 and 50 km.
constexpr Derivative on_map[] = {
    {"dx", "s", "10^-5 K/m", {2.5, 4.375,  1.875,  -2.5,  -2.5, 6.25, 4.375, -1.25,  -5.625, -6.25,
                              5,   -0.625, -5.625, -3.75, -2.5, -2.5, -2.5,  -1.875, -1.875, -2.5}},
    {"dy", "s", "10^-5 K/m", {-6,  -12, -6, -2, 4,  -9,  -11, -1, 1,   1,
                              -11, -4,  0,  -3, -6, -10, 2,   -4, -10, -10}},
    {"lapl", "s", "10^-5 K/m", {16.688,  0.6875,  -30.938, -12,     12,      7.3125, -8.6875,
                                -29.375, -13.562, 10.438,  -18.062, -38.062, 17.562, 31.125,
                                19.125,  -4,      -24,     17.562,  26.438,  14.438}},
    {"conv", "uv", "10^-5 /s", {9,   6.375, 6.75,  3,    -1.75, 4.5,  -1.625, -4.875, -6, 3,
                                6.5, 4.125, 0.375, -1.5, 12,    15.5, 11.625, 5.375,  7,  15}},
    {"conv", "uvs", "10^-5 K/s", {2439,    1740.4, 1876.5, 828,    -479.5, 1233,   -453.38,
                                  -1369.9, -1662,  816,    1820,   1171.5, 104.62, -412.5,
                                  3276,    4417.5, 3289.9, 1510.4, 1960,   4170}},
    {"adv", "uvs", "10^-5 K/s", {-43.5, -54.625, 7.5,   38.5,    -2,      -22.25, -4.125,
                                 26.5,  26.75,   -11.5, 26,      14.25,   16.875, -42.75,
                                 -46.5, 105,     -20,   -13.125, -25.625, 62.5}},
    {"rvort", "uv", "10^-5 /s", {9,      14.875, 10.25,  -7.25,   -18.25,  8.75,   8,
                                 -7.125, -20.25, -23,    -8,      -20.625, -27.25, -9.625,
                                 8,      -18.25, -34.25, -24.375, 7.75,    30}},
    {"def1", "uv", "10^-5 /s", {19,      17.625, 9.25,  -7,    -14.25, 19.5,    9.625,
                                -11.125, -26,    -17,   11.5,  -2.125, -18.375, -16.5,
                                2,       0.5,    0.375, 6.625, 17,     25}},
    {"def2", "uv", "10^-5 /s", {-1,      1.125, -2.25,  -4.75,   -5.75,  1.25,   -2,
                                -10.875, -7.75, -3,     2,       -9.375, -14.75, -8.375,
                                -2,      -5.75, -21.75, -15.625, 0.25,   10}},
};

void expectValues(const Domain& domain, const Derivative& c) {
    Grid out;
    EXPECT_EQ(GridMath::process(c.name, out, collect(domain, c.operands)), 1);
    ASSERT_EQ(out.data.size(), points) << c.name;
    EXPECT_STREQ(out.getVar().abbr, c.name);
    EXPECT_STREQ(out.getUnits(), c.units) << c.name;
    for (int k = 0; k < points; k++)
        EXPECT_NEAR(out.data[k], c.values[k], 1e-4f * std::max(1.0f, std::fabs(c.values[k])))
            << c.name << " " << c.operands << " at " << k % nx << "," << k / nx;
}

class GridDerivatives : public testing::Test {
public:
    GridDerivatives() { Orv::setDatabasePath(ORV_DATA); }
    ~GridDerivatives() override { Orv::setDatabasePath(nullptr); }
};

} // namespace

TEST_F(GridDerivatives, AgreeWithArraysOnBothKindsOfDomain) {
    for (const Derivative& c : on_lat_lon)
        expectValues(lat_lon, c);
    for (const Derivative& c : on_map)
        expectValues(polar, c);
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
