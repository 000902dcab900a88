#include "ORV/Points.h"

#include "ORV/EarthPoints.h"
#include "ORV/GridPoints.h"

#include <gtest/gtest.h>

#include <vector>

using namespace ORV;

namespace {
class XY {
public:
    float x, y;
};

Points makePoints(const std::vector<XY>& vertices) {
    Points points(0);
    for (const XY& v : vertices)
        points.add(v.x, v.y);
    return points;
}

const std::vector<XY> triangle = {{0, 0}, {4, 0}, {2, 4}, {0, 0}};
// A frame open to the right, like a C: the middle of its box is outside.
const std::vector<XY> letter_c = {{0, 0}, {6, 0}, {6, 2}, {2, 2}, {2, 6},
                                  {6, 6}, {6, 8}, {0, 8}, {0, 0}};
} // namespace

TEST(PointList, IndexesCountFromTheEndOnlyInGet) {
    Points points = makePoints({{1, 1}, {2, 2}, {3, 3}});
    Point p(9, 9, 9);
    EXPECT_EQ(points.get(-1, p), 1);
    EXPECT_EQ(p.x, 3);
    EXPECT_EQ(p.z, 9);
    EXPECT_EQ(points.get(-4, p), 0);
    EXPECT_EQ(points.get(3, p), 0);
    EXPECT_EQ(p.x, 3);
    EXPECT_EQ(points.get(7).x, Const::MISS);
    EXPECT_EQ(points.getX(-1), Const::MISS);
    EXPECT_EQ(points.set(-1, 0, 0), 0);
    EXPECT_EQ(points.add(3), 0);
    EXPECT_EQ(points.offset(3, 1, 1), 0);
    EXPECT_EQ(points.remove(-1), 0);
    EXPECT_EQ(points.num, 3);
}

TEST(Polygon, NeedsItsFirstPointAgain) {
    Points open = makePoints(triangle);
    open.num = 3;
    const Points closed = makePoints(triangle);
    EXPECT_TRUE(closed.within(Point(2, 1)));
    EXPECT_FALSE(open.within(Point(2, 1)));
    EXPECT_FALSE(closed.within(Point(0.2f, 1)));
    EXPECT_FALSE(closed.within(Point(2, 5)));
    EXPECT_FALSE(Points(3).within(Point(0, 0)));
}

TEST(Polygon, CountsAVertexOfTwoEdgesOnce) {
    const Points diamond = makePoints({{0, -2}, {2, 0}, {0, 2}, {-2, 0}, {0, -2}});
    EXPECT_TRUE(diamond.within(Point(0, 0)));
    EXPECT_FALSE(diamond.within(Point(3, 0)));
    EXPECT_FALSE(diamond.within(Point(-3, 0)));
}

TEST(Polygon, LatitudeIsUpward) {
    EarthPoints box;
    for (const XY& v : std::vector<XY>{{-110, 30}, {-90, 30}, {-90, 40}, {-110, 40}, {-110, 30}})
        box.add(v.y, v.x);
    EXPECT_TRUE(box.within(EarthPoint(35, -100)));
    EXPECT_FALSE(box.within(EarthPoint(45, -100)));
    const EarthRange range = box.getRange();
    EXPECT_EQ(range.min_lat, 30);
    EXPECT_EQ(range.max_lat, 40);
    EXPECT_EQ(range.min_lon, -110);
    EXPECT_EQ(range.max_lon, -90);
    EXPECT_EQ(EarthPoints().getRange().max_lat, Const::MISS);
}

TEST(Polygon, CenterLiesInside) {
    // Taller than wide: the middle line y = 4 crosses only the back of the C, from x = 0 to 2.
    Point center;
    EXPECT_EQ(makePoints(letter_c).getCenter(center), 1);
    EXPECT_EQ(center.y, 4);
    EXPECT_EQ(center.x, 1);

    // Turned on its back it is wider than tall, and x = 4 is the line.
    GridPoints turned(0);
    for (const XY& v : letter_c)
        turned.add(v.y, v.x);
    GridPoint grid_center;
    EXPECT_EQ(turned.getCenter(grid_center), 1);
    EXPECT_EQ(grid_center.gx, 4);
    EXPECT_EQ(grid_center.gy, 1);

    Points few = makePoints({{0, 0}, {1, 1}});
    EXPECT_EQ(few.getCenter(center), 0);
    EXPECT_EQ(center.x, Const::MISS);
}

TEST(GridPolygon, HoldsGridPointsShortOfItsFarSides) {
    GridPoints box(0);
    for (const XY& v :
         std::vector<XY>{{0.5f, 0.5f}, {3.5f, 0.5f}, {3.5f, 4}, {0.5f, 4}, {0.5f, 0.5f}})
        box.add(v.x, v.y);
    Rect bounds;
    EXPECT_EQ(box.getBoundingBox(bounds), 1);
    EXPECT_EQ(bounds.ymax, 4);
    GridPoints inside;
    EXPECT_EQ(box.getPointsWithin(inside), 1);
    // Columns 1 and 2 (3 is floor of 3.5), rows 1 to 3 (4 is the bound itself).
    ASSERT_EQ(inside.num, 6);
    EXPECT_EQ(inside.getGX(2), 1);
    EXPECT_EQ(inside.getGY(2), 3);
    EXPECT_EQ(inside.getGX(3), 2);
    EXPECT_EQ(GridPoints().getBoundingBox(bounds), 0);
    EXPECT_EQ(bounds.ymax, 4);
}
