#include "VectFixture.h"

#include <cmath>
#include <limits>
#include <map>
#include <random>

using namespace ORV;

namespace {

class StreamlineTest : public VectTest {
protected:
    StreamlineTest() { vect.setType("strm"); }

    /// How many steps begin in each box of half a grid length.
    std::map<std::pair<int, int>, int> boxes() {
        std::map<std::pair<int, int>, int> counts;
        for (const Shape& step : steps())
            counts[{std::floor(2 * step[0].x), std::floor(2 * step[0].y)}]++;
        return counts;
    }
    /// How many lines cross a column of the plot.
    int crossings(double x) {
        int n = 0;
        for (const Shape& step : steps())
            n += step[0].x < x && step[1].x >= x;
        return n;
    }
};

// A vortex that draws the air to the circle of radius 3 around (10, 10).
Point eddy(const Point& at) {
    const double x = at.x - 10, y = at.y - 10, radius = std::hypot(x, y);
    const double inward = radius > 0 ? (radius - 3) / radius : 0;
    return Point(-y - inward * x, x - inward * y);
}

} // namespace

TEST_F(StreamlineTest, FollowsAUniformWindFromEdgeToEdge) {
    showWind(plain(21, 21), [](const Point&) { return Point(2, 1); });
    vect.draw(plot, u, v);
    const auto pieces = steps();
    ASSERT_GT(pieces.size(), 200u);
    for (const Shape& piece : pieces) {
        EXPECT_NEAR(length(piece), 0.25, 0.01);
        EXPECT_NEAR(std::atan2(piece[1].y - piece[0].y, piece[1].x - piece[0].x), std::atan2(1, 2),
                    0.01);
    }
    // Each step goes on where the last one ended, or begins a line at a grid point.
    for (size_t i = 1; i < pieces.size(); i++) {
        const Point& at = pieces[i][0];
        const Point& end = pieces[i - 1][1];
        const bool goes_on = std::hypot(at.x - end.x, at.y - end.y) < 0.01;
        const bool seed = std::hypot(at.x - std::round(at.x), at.y - std::round(at.y)) < 0.01;
        EXPECT_TRUE(goes_on || seed) << at.x << " " << at.y;
    }
    EXPECT_EQ(vect.num, nullptr);
    EXPECT_EQ(vect.numsize, 0);
}

TEST_F(StreamlineTest, DensityAndSkipsSetTheSpacing) {
    showWind(plain(31, 31), [](const Point&) { return Point(3, 1.3f); });
    const auto drawn = [&](const char* param) {
        device->take();
        vect.setParam(param);
        vect.draw(plot, u, v);
        return steps().size();
    };
    const size_t one = drawn("de=1"), two = drawn("de=2"), four = drawn("de=4");
    EXPECT_GT(two, 1.2 * one);
    EXPECT_GT(four, 1.2 * two);
    // With a quarter of the lines in each direction the boxes are that much wider, too.
    const size_t sparse = drawn("de=0,sk=4");
    EXPECT_EQ(vect.density, 1);
    EXPECT_LT(sparse, one / 2);
    EXPECT_GT(sparse, one / 8);
    const int lines_across = crossings(15.1);
    EXPECT_GE(lines_across, 6);
    EXPECT_LE(lines_across, 14);
}

TEST_F(StreamlineTest, EddiesEnd) {
    showWind(plain(21, 21), eddy);
    vect.drawStreamline(plot, u, v, 13, 10, 1e9f);
    const auto pieces = steps();
    EXPECT_GT(pieces.size(), 70u); // once around, counterclockwise
    EXPECT_LT(pieces.size(), 100u);
    for (const Shape& piece : pieces)
        EXPECT_NEAR(std::hypot(piece[0].x - 10, piece[0].y - 10), 3, 0.15);
    EXPECT_GT(pieces[0][1].y, pieces[0][0].y);
}

TEST_F(StreamlineTest, LinesEndAtMissingValuesCalmsAndConvergence) {
    showWind(plain(21, 5), [](const Point& at) { return Point(at.x < 10.4 ? 5 : -5, 0); });
    const auto end = [&] {
        vect.drawStreamline(plot, u, v, 2, 2, 1000);
        const auto pieces = steps();
        device->take();
        return pieces.empty() ? 2.0 : static_cast<double>(pieces.back()[1].x);
    };
    EXPECT_NEAR(end(), 10.5, 0.3); // the winds meet
    u.setValue(8, 2, Const::MISS);
    EXPECT_NEAR(end(), 7.25, 0.26); // the cells around are gone
    u.setValue(8, 2, 5);
    v.setValue(8, 1, Const::MISS);
    EXPECT_NEAR(end(), 10.5, 0.3); // a row above is out of reach
    u.setValue(8, 2, std::numeric_limits<float>::infinity());
    EXPECT_NEAR(end(), 7.25, 0.26);
    u.setValue(8, 2, 0);
    u.setValue(7, 2, 0);
    EXPECT_NEAR(end(), 7, 0.26);
    u.setValue(2, 2, 0.0005f);
    EXPECT_EQ(end(), 2);
}

// A grid of the world that begins at 0, on a map with the date line in its middle, and the other
// way round.
TEST_F(StreamlineTest, LinesGoOnAroundTheWorld) {
    for (const char* map : {"ll:0:0,0,0,37,13,10,10", "ll:0:180,0,180,37,13,10,10"}) {
        makeWind("ll:0:180,0,180,37,13,10,10", [](const Point&) { return Point(10, 0); });
        show(map);
        vect.drawStreamline(plot, u, v, 30, 6, 72);
        int west = 0, east = 0;
        for (const Shape& piece : steps())
            (piece[0].x < 0 ? west : east)++;
        EXPECT_NEAR(west + east, 72, 2) << map; // one may be on both sides, or none
        EXPECT_GT(west, 20) << map;
        EXPECT_GT(east, 20) << map;
        EXPECT_LT(longest(lines()), 3) << map;
        device->take();
    }
}

TEST_F(StreamlineTest, CirclesThePoleOnAStereographicMap) {
    makeWind("ll:0:0,0,0,73,37,5,5", [](const Point&) { return Point(10, 0); });
    show("st:-90:0,-90,0,41,41,3,3");
    vect.uvgrid = 1;
    // Westerlies run along their parallel; steps are straight, so the line drifts outward.
    Grid east = u, north = v;
    for (int j = 0; j < u.ny; j++)
        for (int i = 0; i < u.nx; i++) {
            Point at;
            EarthPoint place;
            u.tran(GridPoint(i, j), place);
            plot.getDomain().tran(place, at);
            const float dir = plot.getDomain().adjustDir(270, at) * Const::DRC;
            east.setValue(i, j, -10 * std::sin(dir));
            north.setValue(i, j, -10 * std::cos(dir));
        }
    vect.drawStreamline(plot, east, north, 40, 30, 30); // 60 south
    const auto pieces = steps();
    ASSERT_EQ(pieces.size(), 30u);
    EarthPoint first, last;
    plot.getDomain().tran(pieces.front()[0], first);
    plot.getDomain().tran(pieces.back()[1], last);
    EXPECT_NEAR(first.lat, -60, 0.1);
    EXPECT_NEAR(last.lat, -60, 2);
    EXPECT_GT(std::remainder(last.lon - first.lon, 360), 20);
}

// Whatever the values and the settings, the work is bounded.
TEST_F(StreamlineTest, AnyFieldComesToAnEnd) {
    std::mt19937 random(7);
    const float odd[] = {
        0, 1e-4f, 1, -1, 1e30f, -1e30f, std::numeric_limits<float>::infinity(), Const::MISS};
    const char* params[] = {"sk=1",         "sk=2000000000", "de=2000000000,sc=1e30", "sc=-5",
                            "sa=-3,sc=1e9", "sc=0,sa=0",     "mag=0,ci=0,cb=1e30"};
    for (const char* size : {"1 1", "1 7", "7 1", "9 8"})
        for (const char* param : params) {
            const int nx = size[0] - '0', ny = size[2] - '0';
            showWind(plain(nx, ny),
                     [&](const Point&) { return Point(odd[random() % 8], odd[random() % 8]); });
            VectPlot each(param);
            for (const char* type : {"vect", "barb", "strm"}) {
                each.setType(type);
                EXPECT_EQ(each.draw(plot, u, v), 1);
            }
            device->take();
        }
    showWind(plain(15, 15), [](const Point& at) { return Point(7 - at.y, at.x - 7); });
    vect.setParam("de=2000000000,sc=1e30");
    vect.draw(plot, u, v);
    EXPECT_LT(lines().size(), 1000000u);
}
