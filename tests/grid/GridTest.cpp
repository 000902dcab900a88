#include "ORV/Grid.h"

#include "ORV/FloatArray.h"
#include "ORV/GridSpec.h"
#include "ORV/Range.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

using namespace ORV;

namespace {
constexpr float inf = std::numeric_limits<float>::infinity();

/// 3 columns, 2 rows: 0 10 20 above 100 200 400.
Grid makeGrid() {
    Grid grid(3, 2);
    const float values[] = {0, 10, 20, 100, 200, 400};
    grid.setData(values);
    return grid;
}

TEST(Grid, RowsRunFromTheTop) {
    Grid grid;
    grid.setDomain(Domain("ll,40,-100,3,3,10,5"));
    ASSERT_EQ(grid.setData(std::vector<float>(9).data()), 1);
    EXPECT_EQ(grid.setValue(2, 0, 7), 1);
    EXPECT_EQ(grid.data[2], 7);
    EXPECT_EQ(grid.getValue(EarthPoint(45, -90)), 7) << "the north-east corner";
    EXPECT_EQ(grid.getValue(EarthPoint(35, -90)), 0);
    EXPECT_EQ(grid.getValue(EarthPoint(46, -90)), Const::MISS);
    EXPECT_EQ(grid.getValue(Point(10, 45)), 7) << "from the central meridian";

    Point moved;
    EXPECT_EQ(grid.tran(Domain("me,0,0,9,9,1,1"), Point(0, 0), moved), 1);
    EXPECT_NEAR(moved.x, 100, 1e-4) << "degrees from the central meridian";
}

TEST(Grid, BilinearBetweenPoints) {
    const Grid grid = makeGrid();
    for (const Row& c : readTable("grid/between_points.txt"))
        EXPECT_FLOAT_EQ(grid.getValue(GridPoint(c.number("gx"), c.number("gy"))), c.number("value"))
            << c.text("what");
}

TEST(Grid, AnyMissingCornerMakesMissing) {
    Grid grid = makeGrid();
    grid.setValue(1, 1, Const::MISS);
    EXPECT_EQ(grid.getValue(GridPoint(0, 0)), Const::MISS) << "also with weight 0";
    EXPECT_EQ(grid.getValue(GridPoint(1.5F, 1)), Const::MISS);
    EXPECT_EQ(grid.getValue(GridPoint(2, 0.5F)), 210) << "the last column has its own neighbours";
    EXPECT_EQ(grid.getValue(GridPoint(2, 1)), 400);
    grid.setValue(2, 1, Const::MISS);
    EXPECT_EQ(grid.getValue(GridPoint(2, 1)), Const::MISS);

    grid = makeGrid();
    grid.setValue(1, 1, inf);
    EXPECT_EQ(grid.getValue(GridPoint(0.5F, 0.5F)), inf);
    EXPECT_EQ(grid.getValue(GridPoint(0, 0)), Const::MISS) << "0 times infinity is no number";
}

TEST(Grid, ValueGridIsConstant) {
    Grid grid(1, 1);
    grid.setValue(0, 0, 5);
    EXPECT_EQ(grid.getValue(3, 7), 5);
    EXPECT_EQ(grid.setValue(3, 7, 6), 0);
    EXPECT_EQ(grid.getValue(GridPoint(0, 0)), 5);
    EXPECT_EQ(grid.getValue(GridPoint(0, 0.5F)), Const::MISS);

    Grid line(1, 3);
    line.setValue(0, 1, 4);
    line.setValue(0, 2, 8);
    EXPECT_EQ(line.getValue(GridPoint(0, 1.5F)), 6);
    EXPECT_EQ(line.getValue(1, 1), Const::MISS);
}

TEST(Grid, NoDataForSizesThatHoldNone) {
    const struct {
        int nx, ny;
    } sizes[] = {{0, 5},
                 {5, -1},
                 {Const::MISS, Const::MISS},
                 {65536, 65536},
                 {std::numeric_limits<int>::max(), std::numeric_limits<int>::max()},
                 {std::numeric_limits<int>::min(), 1}};
    for (const auto& size : sizes) {
        const Grid grid(size.nx, size.ny);
        EXPECT_FALSE(grid.isData()) << size.nx << " by " << size.ny;
        EXPECT_EQ(grid.getValue(0, 0), Const::MISS);
        EXPECT_EQ(grid.getValue(GridPoint(0, 0)), Const::MISS);
        EXPECT_EQ(grid.getValid(), Const::MISS);
    }
    Grid grid;
    EXPECT_EQ(grid.setValue(0, 0, 1), 0);
    EXPECT_EQ(grid.scale(2), 0);
    EXPECT_EQ(grid.setData(FloatArray(), 0), 0);
}

} // namespace
