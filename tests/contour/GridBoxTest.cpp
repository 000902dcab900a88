#include "ContFixture.h"

#include <cmath>
#include <limits>

using namespace ORV;

namespace {

constexpr float none = Const::MISS;
const Point unit[4] = {{0, 1}, {1, 1}, {0, 0}, {1, 0}};

GridBox makeBox(const float (&values)[4], float tweak = Const::MISS) {
    GridBox box;
    box.setTweak(tweak);
    box.set(Domain("xy:0:0,0.5,0.5,2,2,1,1"), values, unit);
    return box;
}

TEST(GridBox, FindsWhereALevelCrosses) {
    const struct {
        const char* what;
        float values[4];
        float level;
        int sides; // number crossed
        int cross[4];
        float t[4]; // where, in the order of cross
    } rows[] = {
        {"upper left corner", {10, 0, 0, 0}, 4, 2, {0, 3}, {0.6f, 0.4f}},
        {"lower right corner", {0, 0, 0, 10}, 4, 2, {1, 2}, {0.6f, 0.4f}},
        {"left to right", {10, 20, 0, 0}, 5, 2, {1, 3}, {0.25f, 0.5f}},
        {"top to bottom", {0, 20, 0, 10}, 5, 2, {0, 2}, {0.25f, 0.5f}},
        {"saddle", {10, 0, 0, 10}, 4, 4, {0, 1, 2, 3}, {0.6f, 0.6f, 0.4f, 0.4f}},
        {"below", {1, 2, 3, 4}, 0.5f, 0, {}, {}},
        {"above", {1, 2, 3, 4}, 4.5f, 0, {}, {}},
        {"missing corner", {10, 0, none, 0}, 4, 0, {}, {}},
        {"no number at a corner", {10, 0, NAN, 0}, 4, 0, {}, {}},
        {"infinite corner", {10, 0, INFINITY, 0}, 4, 0, {}, {}},
        {"the widest values", {3e38f, -3e38f, -3e38f, -3e38f}, 0, 2, {0, 3}, {0.5f, 0.5f}},
    };
    for (const auto& row : rows) {
        GridBox box = makeBox(row.values, 0.001f);
        ASSERT_EQ(box.setLevel(row.level), row.sides) << row.what;
        for (int n = 0; n < row.sides; n++) {
            EXPECT_EQ(box.getCross(n), row.cross[n]) << row.what;
            EXPECT_FLOAT_EQ(box.getSide(row.cross[n]), row.t[n]) << row.what;
        }
    }
}

// Without a tweak, as on a flat grid, corners stay on the level.
TEST(GridBox, SettlesCornersThatStayOnTheLevel) {
    const struct {
        const char* what;
        float values[4];
        int sides;
        int cross[2];
        float codes[4];
    } rows[] = {
        {"touched at a corner", {0, -1, -2, -3}, 2, {0, 3}, {0, -3, -2, 1}},
        {"through two corners", {0, 3, -3, 0}, 2, {1, 3}, {-1, 0, -1, 1}},
        {"flat on the level", {0, 0, 0, 0}, 0, {-1, -1}, {-4, -4, -4, -4}},
        {"a side on it", {0, 0, 5, 5}, 2, {1, 3}, {-4, 1, -5, 1}},
        {"two sides on it", {0, 0, 0, 5}, 0, {-1, -1}, {-4, -1, -1, -4}},
        {"corner beside a crossing", {0, 5, 1, -5}, 2, {1, 2}, {-1, 0.5f, 1 / 6.0f, 1}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        GridBox box = makeBox(row.values, 0);
        EXPECT_EQ(box.setLevel(0), row.sides);
        EXPECT_EQ(box.getCross(0), row.cross[0]);
        EXPECT_EQ(box.getCross(1), row.cross[1]);
        for (int s = 0; s < 4; s++)
            EXPECT_EQ(box.getSide(s), row.codes[s]) << "side " << s;
    }
}

TEST(GridBox, CellOverTheEdgeOfTheWorldIsPutTogetherOnTheRight) {
    Grid grid;
    grid.setDomain(Domain("latlon:0:180,0,180,3,2,10,10")); // 170, 180 and 190 east
    grid.allocData();
    GridBox box;
    box.set(grid, Domain("latlon:0:0,0,0,37,19,10,10"), 0, 0);
    EXPECT_EQ(box.getSpan(), 0);
    EXPECT_FLOAT_EQ(box.getPoint(1).x, 180);
    box.set(grid, Domain("latlon:0:0,0,0,37,19,10,10"), 1, 0);
    EXPECT_EQ(box.getSpan(), 1);
    EXPECT_FLOAT_EQ(box.getPoint(0).x, 180);
    EXPECT_FLOAT_EQ(box.getPoint(1).x, 190);
    EXPECT_FLOAT_EQ(box.getPoint(3).x, 190);

    box.set(grid, Domain("merc:0:0,0,0,37,19,10,10"), 1, 0);
    EXPECT_EQ(box.getSpan(), 1);
    EXPECT_NEAR(box.getPoint(1).x, 190 / 360.0 * Domain::OFFSET_MERC, 1e-3);

    // On the ellipse each corner moves by the width of the world at its own height.
    box.set(grid, Domain("moll:0:0,0,0,101,51,3,3"), 1, 0);
    EXPECT_EQ(box.getSpan(), 1);
    for (const int right : {1, 3}) {
        const Point corner = box.getPoint(right);
        EXPECT_NEAR(corner.x / (190 / 90.0 * std::sqrt(63.7122 * 63.7122 - corner.y * corner.y)), 1,
                    1e-4);
    }

    // A coarse cell about the middle of the map is wide, but not torn.
    grid.setDomain(Domain("latlon:0:0,0,0,2,2,100,50"));
    grid.allocData();
    box.set(grid, Domain("latlon:0:0,0,0,37,19,10,10"), 0, 0);
    EXPECT_EQ(box.getSpan(), 0);
}

} // namespace
