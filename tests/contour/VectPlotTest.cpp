#include "ORV/VectPlot.h"

#include "VectFixture.h"

#include <cmath>

using namespace ORV;

TEST_F(VectTest, ArrowsAreAsLongAsTheirShareOfTheGreatestSpeed) {
    showWind(plain(5, 3), [](const Point& at) {
        return at.x < 2 ? Point(3, 4) : Point(-6, 8); // speeds 5 and 10
    });
    ASSERT_EQ(vect.draw(plot, u, v), 1);
    EXPECT_EQ(vect.max, 10);
    auto arrows = shafts();
    ASSERT_EQ(arrows.size(), 15u);
    // Row 0 is the top one.
    EXPECT_NEAR(arrows[0][0].x, 0, 1e-3);
    EXPECT_NEAR(arrows[0][0].y, 2, 1e-3);
    EXPECT_NEAR(arrows[0][1].x, 0.3, 1e-3);
    EXPECT_NEAR(arrows[0][1].y, 2.4, 1e-3);
    EXPECT_NEAR(arrows[2][1].x, 2 - 0.6, 1e-3);
    EXPECT_NEAR(arrows[2][1].y, 2.8, 1e-3);

    device->take();
    vect.setScale(2);
    vect.setMagnitude(5);
    vect.draw(plot, u, v);
    EXPECT_NEAR(length(shafts()[0]), 2, 1e-3);
    EXPECT_NEAR(length(shafts().back()), 4, 1e-3);

    for (const float none : {Const::MISS * 1.0f, 0.0f, -3.0f}) {
        device->take();
        vect.setScale(none);
        vect.setMagnitude(none);
        vect.draw(plot, u, v);
        EXPECT_NEAR(length(shafts()[2]), 1, 1e-3) << none;
    }
}

// The direction of an arrow on the map is that from a place to one a little downwind of it.
TEST_F(VectTest, EarthWindsPointDownwindOnTheMap) {
    struct Row {
        const char* domain;
        Point wind;
    };
    const Row rows[] = {
        {"st:90:-100,90,-100,9,9,8,8", {0, -10}},
        {"st:-90:0,-90,0,9,9,8,8", {7, 7}},
        {"lamb:40:-100:30:60,40,-100,9,7,5,5", {9, 1}},
        {"ll:0:180,0,180,9,7,20,20", {0, 5}},
    };
    for (const Row& row : rows) {
        makeWind("ll:0:0,0,0,37,17,10,10", [&](const Point&) { return row.wind; });
        showWide(row.domain);
        vect.uvgrid = 1;
        vect.draw(plot, u, v);
        const Domain& map = plot.getDomain();
        int compared = 0;
        for (const Shape& arrow : shafts()) {
            EarthPoint from;
            Point ahead;
            map.tran(arrow[0], from);
            if (std::fabs(from.lat) > 75 || length(arrow) < 0.5)
                continue;
            const float dir = std::atan2(row.wind.x, row.wind.y) * Const::RDC;
            ASSERT_TRUE(map.offset(arrow[0], dir, 20, ahead));
            const double expected = std::atan2(ahead.y - arrow[0].y, ahead.x - arrow[0].x);
            const double drawn = std::atan2(arrow[1].y - arrow[0].y, arrow[1].x - arrow[0].x);
            EXPECT_NEAR(std::remainder(drawn - expected, 2 * Const::PI), 0, 0.02)
                << row.domain << " " << from.lat << " " << from.lon;
            compared++;
        }
        EXPECT_GT(compared, 15) << row.domain;
    }
}

TEST_F(VectTest, GridWindsKeepToTheGridOnItsOwnPlot) {
    makeWind("st:90:-100,90,-100,9,9,8,8", [](const Point&) { return Point(3, 4); });
    showWide("st:90:-100,90,-100,9,9,8,8");
    vect.draw(plot, u, v);
    for (const Shape& arrow : shafts()) {
        EXPECT_NEAR(arrow[1].x - arrow[0].x, 4.8, 0.01);
        EXPECT_NEAR(arrow[1].y - arrow[0].y, 6.4, 0.01);
    }
}

// A west wind of 10: the staff points west, and the barb to the side of the pole.
TEST_F(VectTest, BarbsStandTowardLowPressureOnBothHemispheres) {
    showWind("ll:0:0,0,0,5,4,10,10", [](const Point&) { return Point(10, 0.001f); });
    vect.setType("barb");
    vect.setInterval(2);
    vect.draw(plot, u, v);
    const auto strokes = lines();
    ASSERT_EQ(strokes.size(), 40u); // a full barb and the staff of each
    for (size_t i = 0; i < strokes.size(); i += 2) {
        const double lat = strokes[i + 1][0].y;
        EXPECT_NEAR(strokes[i + 1][1].x, strokes[i + 1][0].x - 10, 0.01);
        EXPECT_NEAR(strokes[i][1].y - lat, lat > 0 ? 5 : -5, 0.01) << lat;
    }
}

TEST_F(VectTest, TheReferenceArrowIsThatOfTheGreatestSpeed) {
    open();
    plot.setPanel(Rect(0.1f, 0.1f, 0.9f, 0.4f), Domain(plain(9, 5).c_str()));
    makeWind(plain(9, 5).c_str(), [](const Point&) { return Point(6, 8); });
    vect.setMagnitude(20);
    vect.draw(plot, u, v);
    device->take();
    const int tran = plot.graph.getTran();
    EXPECT_EQ(vect.drawVect(plot, "ul"), 1);
    EXPECT_TRUE(device->take().empty());
    EXPECT_EQ(vect.drawVect(plot, "lr"), 1);
    EXPECT_EQ(plot.graph.getTran(), tran);

    // Half a grid length, as 10 is of 20.
    const Rect view = plot.graph.getViewport(1);
    const Rect window = plot.graph.getWindow(1);
    const double unit = (view.xmax - view.xmin) / (window.xmax - window.xmin);
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    for (const std::string& call : device->calls)
        if (std::sscanf(call.c_str(), "line 1 %f,%f %f,%f", &x1, &y1, &x2, &y2) == 4)
            break;
    EXPECT_NEAR((x2 - x1) / 20000, 0.5 * unit, 1e-4);
    EXPECT_NEAR(x2 / 20000, view.xmax - 0.01, 1e-4);
    EXPECT_NEAR(y1, y2, 0.2);
    EXPECT_GT(y1 / 20000, 0.5 - view.ymin); // below the view; the device counts downward
}
