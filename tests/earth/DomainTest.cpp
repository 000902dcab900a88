#include "ORV/Domain.h"

#include "ORV/DomainTool.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <cmath>

using namespace ORV;

namespace {
Domain domainOf(const char* text) {
    Domain domain;
    EXPECT_EQ(DomainTool::decode(domain, text), 1) << text;
    return domain;
}

Point imageOf(const Domain& domain, float lat, float lon) {
    Point plot;
    domain.tran(EarthPoint(lat, lon), plot);
    return plot;
}

constexpr const char* plains = "ps:90:-100,40,-95,61,41,0.8,0.8";
} // namespace

TEST(Domain, WindowStandsAroundTheCentre) {
    const Domain domain = domainOf(plains);
    Point center;
    domain.tranCenter(center);
    EXPECT_FLOAT_EQ(domain.limits.xmax - center.x, 24);
    EXPECT_FLOAT_EQ(center.y - domain.limits.ymin, 16);
    EXPECT_FLOAT_EQ(domain.getVert(), 32);
    EXPECT_FLOAT_EQ(domain.getAspect(), 1.5f);
    // The same window upside down in dy.
    EXPECT_FLOAT_EQ(domainOf("ps:90:-100,40,-95,61,41,0.8,-0.8").getVert(), 32);
    // A window whose centre can't be seen isn't known.
    EXPECT_EQ(domainOf("ortho:40:-100,-40,80,61,41,1,1").limits.xmin, Const::MISS);
}

TEST(Domain, GridRunsDownFromTheUpperLeft) {
    const Domain domain = domainOf(plains);
    GridPoint corners[4];
    for (int i = 0; i < 4; i++)
        EXPECT_EQ(domain.tran(i, corners[i]), 1);
    EXPECT_NEAR(corners[0].gx, 0, 1e-4);
    EXPECT_NEAR(corners[0].gy, 0, 1e-4);
    EXPECT_NEAR(corners[1].gx, 60, 1e-4);
    EXPECT_NEAR(corners[2].gy, 40, 1e-4);
    EXPECT_NEAR(corners[3].gx, 60, 1e-4);
    GridPoint center;
    domain.tran(EarthPoint(40, -95), center);
    EXPECT_NEAR(center.gx, 30, 1e-4);
    EXPECT_NEAR(center.gy, 20, 1e-4);
    EarthPoint back;
    domain.tran(GridPoint(30, 20), back);
    EXPECT_NEAR(back.lat, 40, 1e-4);
    EXPECT_NEAR(back.lon, -95, 1e-4);
    Point none;
    EXPECT_EQ(domain.tran(5, none), 0);
    EXPECT_EQ(domain.tran(GridPoint(3, Const::MISS), none), 0);
    EXPECT_EQ(none.x, Const::MISS);
}

TEST(Domain, WorldGridTakesPointsFromBothSidesOfTheDateLine) {
    const Domain domain = domainOf("ll:0:180,0,180,73,37,5,5");
    GridPoint grid;
    domain.tran(Point(200, 0), grid); // 380 from the left edge
    EXPECT_FLOAT_EQ(grid.gx, 4);
    domain.tran(EarthPoint(0, -170), grid);
    EXPECT_FLOAT_EQ(grid.gx, 38);
}

TEST(Domain, TranslatesBetweenWindowsAndProjections) {
    const Domain a = domainOf(plains), b = domainOf("ps:90:-100,50,-80,31,31,1,1");
    const Domain c = domainOf("lamb:40:-95,40,-95,61,41,0.8,0.8");
    EXPECT_TRUE(Domain::compareProj(a, b));
    EXPECT_FALSE(Domain::compare(a, b));
    GridPoint in_b;
    // The same place on both grids, by way of the plot coordinates they share.
    EXPECT_EQ(Domain::translate(a, b, GridPoint(30, 20), in_b), 1);
    GridPoint expected;
    b.tran(EarthPoint(40, -95), expected);
    EXPECT_NEAR(in_b.gx, expected.gx, 1e-3);
    EXPECT_NEAR(in_b.gy, expected.gy, 1e-3);
    Point there;
    EXPECT_EQ(Domain::translate(a, c, imageOf(a, 45, -90), there), 1);
    EXPECT_NEAR(there.x, imageOf(c, 45, -90).x, 1e-4);
    // The centre of an azimuthal view is a place like any other.
    EXPECT_EQ(Domain::translate(domainOf("la:52:10,52,10"), a, Point(0, 0), there), 1);
    EXPECT_NEAR(there.x, imageOf(a, 52, 10).x, 1e-3);
}

TEST(Domain, TakesItsWindowFromTwoCorners) {
    Domain domain = domainOf("merc:0:0,0,0");
    EXPECT_EQ(domain.set(EarthPoint(60, -20), EarthPoint(30, 20), 81, 61), 1);
    EXPECT_NEAR(domain.limits.xmin, imageOf(domain, 60, -20).x, 1e-4);
    EXPECT_NEAR(domain.dx, 63.7122 * 40 * M_PI / 180 / 80, 1e-5);
    EXPECT_EQ(domain.set(EarthPoint(60, 0), EarthPoint(30, 20), 1, 61), 0);
}

// The direction on the map of a short step on the earth, by finite difference.
TEST(Direction, FollowsTheMap) {
    for (const Row& turn : readTable("earth/turns.txt")) {
        const Domain domain = domainOf(turn.text("domain"));
        const Point from = imageOf(domain, turn.number("lat"), turn.number("lon"));
        for (float dir = 5; dir < 360; dir += 50) {
            Point to;
            ASSERT_EQ(domain.offset(from, dir, 10, to), 1);
            const double seen = std::atan2(to.x - from.x, to.y - from.y) * 180 / M_PI;
            const float adjusted = domain.adjustDir(dir, from);
            EXPECT_NEAR(std::remainder(adjusted - seen, 360), 0, 0.6)
                << turn.text("domain") << ' ' << dir;
            EXPECT_GE(adjusted, 0);
            EXPECT_LE(adjusted, 360);
            if (domain.proj != 10) {
                EXPECT_NEAR(std::remainder(domain.unadjustDir(adjusted, from) - dir, 360), 0, 1e-3);
            }
            if (domain.proj == 1) {
                EXPECT_NEAR(std::remainder(domain.direct(from, to) - dir, 360), 0, 0.6);
            }
        }
    }
}

TEST(Direction, StepsAreInKilometres) {
    EarthPoint place(60, 10);
    Domain::offsetLatLon(place, 90, 111.195f, place);
    EXPECT_NEAR(place.lat, 60, 1e-4);
    EXPECT_NEAR(place.lon, 12, 1e-4);
    Domain::offsetLatLon(place, 180, 111.195f, place);
    EXPECT_NEAR(place.lat, 59, 1e-4);
    place.lat = Const::MISS;
    Domain::offsetLatLon(place, 180, 100, place);
    EXPECT_EQ(place.lon, Const::MISS);
    EXPECT_NEAR(Domain::calcEarthDist(EarthPoint(0, 0), EarthPoint(0, 90)), 10007.9, 1);
    EXPECT_NEAR(domainOf("ps:90:0,60,0").getMapFactor(EarthPoint(60, 0)), 1, 1e-4);
    EXPECT_NEAR(domainOf("ps:-90:0,-60,0").getMapFactor(EarthPoint(-60, 0)), 1, 1e-4);
    EXPECT_NEAR(domainOf("merc:0:0,0,0").getMapFactor(EarthPoint(60, 0)), 2, 1e-5);
}

TEST(WorldEdge, LinesAreMadeWhole) {
    const Domain domain = domainOf("ll:0:0,0,0");
    Point a(170, 10), b(-170, 12);
    EXPECT_EQ(domain.wrapLine(a, b), 1);
    EXPECT_EQ(b.x, 190);
    EXPECT_EQ(domain.offsetLine(a, b, 1), 1);
    EXPECT_EQ(a.x, -190);
    EXPECT_EQ(b.x, -170);

    Points line(0);
    for (const float x : {-170.f, 175.f, 170.f, -175.f, -9999.f, 179.f})
        line.add(x, 0);
    EXPECT_EQ(domain.wrapLine(line), -1);
    EXPECT_EQ(line.getX(1), -185);
    EXPECT_EQ(line.getX(2), -190);
    EXPECT_EQ(line.getX(3), -175);
    EXPECT_EQ(line.getX(4), Const::MISS); // a gap stays one
    EXPECT_EQ(domain.offsetLine(line, -1), 1);
    EXPECT_EQ(line.getX(0), 190);
    EXPECT_EQ(line.getX(4), Const::MISS);
    EXPECT_EQ(domain.offsetLine(line, 0), 0);

    Point outside(190, 0);
    EXPECT_EQ(domain.adjust(outside), -1);
    EXPECT_EQ(outside.x, -170);
}

TEST(WorldEdge, WidthFollowsTheProjection) {
    for (const Row& edge : readTable("earth/edges.txt")) {
        const char* text = edge.text("domain");
        const Domain domain = domainOf(text);
        const float lat = edge.number("lat");
        Point a = imageOf(domain, lat, edge.number("east")),
              b = imageOf(domain, lat, edge.number("west"));
        const float before = std::abs(a.x - b.x);
        EXPECT_EQ(domain.wrapLine(a, b), edge.integer("side")) << text;
        if (edge.integer("side") != 0) {
            EXPECT_LT(std::abs(a.x - b.x), before * 0.1) << text;
        }
        // Two places on one side stay.
        Point c = imageOf(domain, lat, 20), d = imageOf(domain, lat, 30);
        EXPECT_EQ(domain.wrapLine(c, d), 0) << text;
    }
}
