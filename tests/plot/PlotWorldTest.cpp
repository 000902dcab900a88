#include "PlotFixture.h"

using namespace ORV;

namespace {

constexpr char world[] = "latlon:0:0,0,0,181,91,2,2"; // 2 degrees by 2
constexpr double earth = 63.7122;                     // radius, 100 km
constexpr double pi = 3.14159265358979;

std::string text(const std::vector<std::vector<Point>>& shapes) {
    std::string all;
    for (const auto& shape : shapes) {
        for (const Point& point : shape) {
            char pair[40];
            std::snprintf(pair, sizeof pair, "%.0f,%.0f ", point.x + 0.0, point.y + 0.0);
            all += pair;
        }
        all += "/ ";
    }
    return all;
}

EarthPoints through(const std::vector<EarthPoint>& places) {
    EarthPoints line;
    for (const EarthPoint& place : places)
        line.add(place);
    return line;
}

Points toPolygon(const std::vector<Point>& shape) {
    Points polygon;
    for (const Point& point : shape)
        polygon.add(point);
    if (polygon.num > 0)
        polygon.add(0);
    return polygon;
}

TEST_F(PlotTest, LinesOverTheDateLineShowOnBothSides) {
    const struct {
        const char* what;
        std::vector<EarthPoint> line;
        const char* drawn;
    } rows[] = {
        {"inside", {{0, 10}, {0, 40}}, "10,0 40,0 / "},
        {"to the east", {{0, 170}, {20, -170}}, "170,0 180,10 / -180,10 -170,20 / "},
        {"to the west", {{0, -160}, {0, 160}}, "-160,0 -180,0 / 180,0 160,0 / "},
        {"out and back",
         {{0, 170}, {10, -170}, {20, -170}, {30, 170}},
         "170,0 180,5 / 180,25 170,30 / -180,5 -170,10 -170,20 -180,25 / "},
        {"along the edge", {{0, 180}, {10, 180}, {20, 180}}, "180,0 180,10 180,20 / "},
    };
    for (const auto& row : rows) {
        show(world);
        plot.drawLine(through(row.line));
        EXPECT_EQ(text(lines()), row.drawn) << row.what;
    }
    show(world);
    plot.drawLine(EarthPoint(0, 170), EarthPoint(20, -170));
    EXPECT_EQ(text(lines()), "170,0 180,10 / -180,10 -170,20 / ");
}

TEST_F(PlotTest, NothingRunsAcrossAnyMap) {
    // Parallels, two turns of them, and meridians, and circles over a pole and the date line.
    const struct {
        const char* domain;
        double longest; // of a straight piece; steps are 5 degrees, 5.6 units at the equator
    } rows[] = {
        {world, 20}, // the circle around the pole takes steps of 18 degrees
        {"merc:0:0,0,0,81,61,5,5", 35},
        {"moll:0:0,0,0,101,51,3,3", 13}, // aslant near the edge
        {"ortho:40:-100,40,-100,61,61,2.2,2.2", 5.7},
        {"sat:0:-75,0,-75,61,61,2,2", 7},
        {"lambaz:0:0,0,0,91,91,3,3", 63},
        {"lamb:90:-100:30:60,60,-100,91,91,5,5", 30},
        {"albers:90:-100:30:60,60,-100,91,91,5,5", 30},
        {"lamb:-90:0:-30:-60,-60,0,91,91,5,5", 30},
        {"albers:-90:0:-30:-60,-60,0,91,91,5,5", 30},
    };
    for (const auto& row : rows) {
        show(row.domain);
        const float north = plot.getPLat() < 0 ? -1 : 1; // cones spread beyond the other pole
        for (int lat = -30; lat <= 80; lat += 5) {
            EarthPoints parallel;
            for (int lon = -180; lon <= 540; lon += 5)
                parallel.add(north * static_cast<float>(lat), static_cast<float>(lon));
            plot.drawLine(parallel);
        }
        for (int lon = -180; lon <= 180; lon += 5) {
            EarthPoints meridian;
            for (int lat = -30; lat <= 80; lat += 5)
                meridian.add(north * static_cast<float>(lat), static_cast<float>(lon));
            plot.drawLine(meridian);
        }
        for (const EarthPoint& center : {EarthPoint(north * 89, 20), EarthPoint(10, 178)})
            plot.drawCircle(center, 400);
        EXPECT_GT(lines().size(), 60u) << row.domain;
        EXPECT_LT(longest(lines()), row.longest) << row.domain;
    }
}

TEST_F(PlotTest, MollweideLinesStayInTheEllipse) {
    show("moll:0:0,0,0,101,51,3,3");
    EarthPoints line;
    for (int lat = 50; lat <= 80; lat += 2)
        line.add(static_cast<float>(lat), lat % 4 ? 165.0f : -165.0f);
    plot.drawLine(line);
    plot.drawFill(through({{50, 160}, {70, 160}, {70, -160}, {50, -160}, {50, 160}}));
    EXPECT_GE(lines().size(), 8u);
    EXPECT_EQ(fills().size(), 2u);
    for (const auto& shapes : {lines(), fills()})
        for (const Shape& shape : shapes)
            for (const Point& point : shape)
                EXPECT_LT(std::hypot(point.x / (2 * earth), point.y / earth), 1.01);
}

TEST_F(PlotTest, PolygonOverTheDateLineIsFilledOnBothSides) {
    show(world);
    plot.drawFill(through({{0, 170}, {10, 170}, {10, -170}, {0, -170}, {0, 170}}));
    EXPECT_EQ(text(fills()), "170,0 170,10 190,10 190,0 170,0 / "
                             "-190,0 -190,10 -170,10 -170,0 -190,0 / ");
}

TEST_F(PlotTest, RingAroundAPoleIsFilledUpToIt) {
    EarthPoints ring;
    for (int lon = 0; lon <= 360; lon += 5)
        ring.add(-70, static_cast<float>(lon));
    show(world);
    plot.drawFill(ring);
    for (const Shape& shape : fills())
        EXPECT_NEAR(area(shape), 360 * 20, 40);
    EXPECT_EQ(fills().size(), 2u);

    // An equal-area map, on which the earth, an ellipse of R by 2R, takes 2 pi R^2: the cap takes
    // the share of (1 - sin 70) / 2 that it has on the sphere.
    show("moll:0:0,0,0,101,51,3,3");
    plot.drawFill(ring);
    double sum = 0;
    for (const Shape& shape : fills())
        sum += area(shape);
    EXPECT_NEAR(sum, pi * earth * earth * (1 - std::sin(70 * pi / 180)), 8);
}

// What lies around the far pole must not paint the map that it surrounds.
TEST_F(PlotTest, PolygonAroundTheFarEndLeavesTheMap) {
    EarthPoints far_ring, near_ring;
    for (int lon = 0; lon < 360; lon += 5) {
        far_ring.add(-50, static_cast<float>(lon));
        near_ring.add(70, static_cast<float>(lon));
    }
    EarthPoints asia = through({{20, 60}, {60, 60}, {60, 100}, {20, 100}});
    const struct {
        const char* domain;
        double cap; // area of the ring around 70 north, on the plane of the map
        double error;
    } rows[] = {
        // r = 1.866 R tan 10; n = 0.7156 and rho = 33.0 (Snyder 1987). One step at the gap is lost.
        {"ps:90:-100,90,-100,61,61,3,3",
         pi * std::pow(1.866025 * earth * std::tan(10 * pi / 180), 2), 5},
        {"lamb:40:-100:30:60,60,-100,81,81,3,3", 0.7156 * pi * 33.0 * 33.0, 40},
        // An equal-area map gives the cap its area on the earth.
        {"lambaz:90:-100,90,-100,61,61,4,4", 2 * pi * earth * earth * (1 - std::sin(70 * pi / 180)),
         5},
        {"albers:40:-100:30:60,60,-100,81,81,3,3",
         2 * pi * earth * earth * (1 - std::sin(70 * pi / 180)), 30},
    };
    for (const auto& row : rows) {
        show(row.domain);
        const auto isFilled = [&](const EarthPoint& place, float up = 0) {
            Point point;
            plot.getDomain().tran(place, point);
            point.y += up;
            for (const Shape& shape : fills())
                if (toPolygon(shape).within(point))
                    return true;
            return false;
        };
        plot.drawFill(far_ring);
        EXPECT_FALSE(isFilled(EarthPoint(40, -105)) || isFilled(EarthPoint(65, -20))) << row.domain;
        device->take();
        plot.drawFill(near_ring);
        ASSERT_EQ(fills().size(), 1u) << row.domain;
        EXPECT_NEAR(area(fills()[0]), row.cap, row.error) << row.domain;

        // A polygon on both sides of the gap of a cone isn't filled over the gap.
        device->take();
        plot.drawFill(asia);
        EXPECT_FALSE(isFilled(EarthPoint(89.9f, 80), 20)) << row.domain;
    }
}

// What a hemisphere shows from space: half the disc, and the half ellipse of its edge.
TEST_F(PlotTest, PolygonBehindTheLimbIsFilledAlongIt) {
    show("ortho:30:0,30,0,61,61,2.2,2.2");
    EarthPoints equator;
    for (int lon = 0; lon <= 360; lon += 5)
        equator.add(0, static_cast<float>(lon));
    plot.drawFill(equator);
    ASSERT_EQ(fills().size(), 1u);
    EXPECT_NEAR(area(fills()[0]), pi * earth * earth / 2 * (1 + std::sin(30 * pi / 180)), 100);
    device->take();

    EXPECT_EQ(plot.drawFill(through({{-60, 170}, {-50, 170}, {-50, -170}, {-60, 170}})), 0);
    EXPECT_EQ(device->take(), "");

    // From a satellite the limb is 81.3 degrees away: its scan angle has the sine R / orbit.
    show("sat:0:0,0,0,61,61,2,2");
    plot.drawFill(equator);
    EarthPoints cap;
    for (int lon = -180; lon <= 180; lon += 5)
        cap.add(40, static_cast<float>(lon));
    device->take();
    plot.drawFill(cap);
    const std::vector<Shape> caps = fills();
    ASSERT_EQ(caps.size(), 1u);
    const double limb = std::tan(std::asin(earth / 421.64)) * 421.64;
    double top = 0;
    for (const Point& point : caps[0]) {
        EXPECT_LT(std::hypot(point.x, point.y), limb * 1.03);
        top = std::max<double>(top, point.y);
    }
    EXPECT_NEAR(top, limb, 0.3) << "up to the upper limb, though the pole is hidden";
}

} // namespace
