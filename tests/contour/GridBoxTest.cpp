#include "ContFixture.h"

#include <cmath>

using namespace ORV;

namespace {

GridBox makeBox(const std::vector<float>& v, float tweak) {
    const float values[4] = {v[0], v[1], v[2], v[3]};
    const Point unit[4] = {{0, 1}, {1, 1}, {0, 0}, {1, 0}};
    GridBox box;
    box.setTweak(tweak);
    box.set(Domain("xy:0:0,0.5,0.5,2,2,1,1"), values, unit);
    return box;
}

TEST(GridBox, FindsWhereALevelCrosses) {
    for (const Row& row : readTable("contour/crossings.txt")) {
        SCOPED_TRACE(row.text("what"));
        GridBox box = makeBox(row.numbers("values"), 0.001f);
        const std::vector<float> sides = row.numbers("sides"), places = row.numbers("places");
        ASSERT_EQ(box.setLevel(row.number("level")), static_cast<int>(sides.size()));
        for (std::size_t n = 0; n < sides.size(); n++) {
            EXPECT_EQ(box.getCross(n), sides[n]);
            EXPECT_FLOAT_EQ(box.getSide(sides[n]), places[n]);
        }
    }
}

// Without a tweak, as on a flat grid, corners stay on the level.
TEST(GridBox, SettlesCornersThatStayOnTheLevel) {
    for (const Row& row : readTable("contour/level_corners.txt")) {
        SCOPED_TRACE(row.text("what"));
        GridBox box = makeBox(row.numbers("values"), 0);
        EXPECT_EQ(box.setLevel(0), row.integer("sides"));
        for (int n = 0; n < 2; n++)
            EXPECT_EQ(box.getCross(n), row.numbers("cross")[n]);
        for (int s = 0; s < 4; s++)
            EXPECT_FLOAT_EQ(box.getSide(s), row.numbers("codes")[s]) << "side " << s;
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
