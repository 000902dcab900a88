// The keys that look around in a chart, on the real tool.
#include "XFixture.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

using namespace ORV;

namespace {
class WindowKeys : public XFixture {
protected:
    class Position {
    public:
        float lat = -999, lon = -999, x = -1, y = -1;
    };

    // Presses the key of a position query, and reads the answer.
    Position query(Process& tool, unsigned long window, double x, double y) {
        const auto find = [&] { return tool.getText().rfind("Lat: "); };
        const std::size_t before = find();
        press(window, x, y, "key alt+v");
        EXPECT_TRUE(eventually([&] { return find() != before && tool.getText().back() == '\n'; }));
        const std::string text = tool.getText();
        const std::string answer = text.substr(std::min(find(), text.size()));
        Position at;
        float plot_x, plot_y, grid_x, grid_y;
        const int read =
            std::sscanf(answer.c_str(), "Lat: %f Lon: %f XY: %f %f Grid: %f %f Pixel: %f %f",
                        &at.lat, &at.lon, &plot_x, &plot_y, &grid_x, &grid_y, &at.x, &at.y);
        EXPECT_EQ(read, 8) << answer;
        return at;
    }

    void expectCentred(const Picture& picture, const std::pair<double, double>& mark) {
        EXPECT_NEAR(mark.first, (picture.width - 1) / 2.0, 2);
        EXPECT_NEAR(mark.second, (picture.height - 1) / 2.0, 2);
    }
};

double distance(const std::vector<std::pair<double, double>>& marks) {
    if (marks.size() != 2)
        return 0;
    return std::hypot(marks[1].first - marks[0].first, marks[1].second - marks[0].second);
}

// Denver and Little Rock, of the airport directory.
constexpr float den_lat = 39.85f, den_lon = -104.66f, lit_lat = 34.73f, lit_lon = -92.23f;
} // namespace

TEST_F(WindowKeys, APositionQueryTellsWhereTheStationsMarksAre) {
    writeHour(noon, {"KDEN", "KLIT"});
    const auto tool = startTool({"-pd", "latl:39:-98:10:14", "-la", "none"});
    const unsigned long window = waitForMarks(2);
    const auto marks = look(window).findMarks();
    ASSERT_EQ(marks.size(), 2u);

    const Position den = query(*tool, window, marks[0].first, marks[0].second);
    EXPECT_NEAR(den.lat, den_lat, 0.1);
    EXPECT_NEAR(den.lon, den_lon, 0.1);
    EXPECT_EQ(den.x, std::lround(marks[0].first));
    EXPECT_EQ(den.y, std::lround(marks[0].second));
    const Position lit = query(*tool, window, marks[1].first, marks[1].second);
    EXPECT_NEAR(lit.lat, lit_lat, 0.1);
    EXPECT_NEAR(lit.lon, lit_lon, 0.1);

    // Degrees are even on this map, so the two marks tell the scale for any other place.
    const Position other = query(*tool, window, 600, 100);
    const double per_x = (lit_lon - den_lon) / (marks[1].first - marks[0].first);
    const double per_y = (lit_lat - den_lat) / (marks[1].second - marks[0].second);
    EXPECT_NEAR(other.lon, den_lon + (600 - marks[0].first) * per_x, 0.15);
    EXPECT_NEAR(other.lat, den_lat + (100 - marks[0].second) * per_y, 0.4);

    press(window, 300, 300, "key Return");
    EXPECT_EQ(tool->wait(), 0) << tool->getText();
}

TEST_F(WindowKeys, ZoomAndPanCentreThePointerAndBackRestoresThePicture) {
    writeHour(noon, {"KDEN", "KLIT"});
    const auto tool = startTool({"-pd", "us", "-me", "print"});
    const unsigned long window = waitForMarks(2);
    const Picture first = look(window);
    const auto start = first.findMarks();
    ASSERT_EQ(start.size(), 2u);

    // Denver is 1260 km from Little Rock, so both stay on a map of half the size of the US.
    Picture picture = first;
    auto marks = start;
    const auto go = [&](int mark, const char* key, double scale) {
        const Picture before = picture;
        press(window, marks[mark].first, marks[mark].second, key);
        ASSERT_TRUE(eventually([&] { return !(look(window) == before); }));
        pause(0.5);
        picture = look(window);
        marks = picture.findMarks();
        ASSERT_EQ(marks.size(), 2u) << key;
        expectCentred(picture, marks[mark]);
        EXPECT_NEAR(distance(marks), scale * distance(start), 3) << key;
    };
    go(0, "key alt+z", 2);
    const Position den = query(*tool, window, marks[0].first, marks[0].second);
    EXPECT_NEAR(den.lat, den_lat, 0.1);
    EXPECT_NEAR(den.lon, den_lon, 0.1);
    go(1, "key alt+p", 2);
    go(1, "key alt+shift+z", 1);

    press(window, 300, 300, "key alt+u");
    EXPECT_TRUE(eventually([&] { return look(window) == first; }));
}

TEST_F(WindowKeys, AResizedWindowShowsTheWholeChartAgain) {
    writeHour(noon, {"KDEN", "KLIT"});
    const auto tool = startTool({"-pd", "us"});
    const unsigned long window = waitForMarks(2);
    const double small = distance(look(window).findMarks());

    const auto frameOf = [](const Picture& picture) { // columns of the border's upright lines
        std::pair<int, int> sides{-1, -1};
        for (int x = 0; x < picture.width; x++) {
            int black = 0;
            for (int y = 0; y < picture.height; y++)
                black += isBlack(picture.at(x, y));
            if (black > picture.height / 2)
                sides = {sides.first < 0 ? x : sides.first, x};
        }
        return sides;
    };
    run("xdotool windowsize " + std::to_string(window) + " 900 700");
    ASSERT_TRUE(eventually([&] {
        const Picture picture = look(window);
        return picture.width == 900 && frameOf(picture).second > 890;
    }));
    pause(0.5);
    const Picture picture = look(window);
    EXPECT_EQ(picture.height, 700);
    const auto marks = picture.findMarks();
    ASSERT_EQ(marks.size(), 2u);
    EXPECT_NEAR(distance(marks), small * 900 / 640, 3);
    const Position lit = query(*tool, window, marks[1].first, marks[1].second);
    EXPECT_NEAR(lit.lat, lit_lat, 0.1);
    EXPECT_NEAR(lit.lon, lit_lon, 0.1);
}

TEST_F(WindowKeys, ARedrawReadsTheHourAgain) {
    writeHour(noon, {"KDEN"});
    const auto tool = startTool({"-pd", "us"});
    const unsigned long window = waitForMarks(1);
    writeHour(noon, {"KDEN", "KLIT", "KMSP"});
    press(window, 300, 300, "key alt+r");
    EXPECT_TRUE(eventually([&] { return look(window).findMarks().size() == 3; }));
}
