#include "ORV/WindPlot.h"

#include "ORV/CloudPlot.h"

#include "StationPlot.h"

using namespace ORV;

namespace {

class WindPlotTest : public StationPlot {
protected:
    const Point middle{0.5f, 0.25f}; // 500, 250 on the device

    std::string drawBarb(float dir, float spd, float length = 0.1f, float start = 0) {
        Wind wind(dir, spd);
        WindPlot::drawBarb(plot, middle, wind, length, start);
        return device->take();
    }
};

} // namespace

TEST_F(WindPlotTest, BarbCountsTheSpeedToTheNearestFive) {
    struct Row {
        float speed;
        int pennants, strokes; // strokes with the staff
    };
    const Row rows[] = {{2, 0, 1},  {3, 0, 2},  {5, 0, 2},   {7, 0, 2},   {8, 0, 2},
                        {10, 0, 2}, {15, 0, 3}, {45, 0, 6},  {47, 0, 6},  {48, 1, 1},
                        {65, 1, 3}, {98, 2, 1}, {300, 6, 1}, {999, 6, 1}, {-65, 1, 3}};
    for (const Row& row : rows) {
        Wind wind(270, row.speed);
        EXPECT_EQ(WindPlot::drawBarb(plot, middle, wind, 0.1f, 0), 1);
        EXPECT_EQ(fills(), row.pennants) << row.speed;
        EXPECT_EQ(lines(), row.strokes) << row.speed;
        device->take();
    }
}

TEST_F(WindPlotTest, CalmAndMissingWindsDrawNothing) {
    for (const Wind& wind : {Wind(90, 0), Wind(90, Const::MISS), Wind(Const::MISS, 10)}) {
        Wind copy = wind;
        EXPECT_EQ(WindPlot::drawBarb(plot, middle, copy, 0.1f, 0), 0);
        EXPECT_EQ(WindPlot::drawVect(plot, middle, wind, 0.1f, 1), 0);
        EXPECT_EQ(WindPlot::drawTrack(plot, middle, wind, 0.1f, 1, 3, 1), 0);
    }
    EXPECT_EQ(device->take(), "");
}

// A north wind: the staff stands up from the station, 100 device units long, and the barbs point to
// the side of the lower pressure, east in the north and west in the south.
TEST_F(WindPlotTest, BarbsStandOnTheSideOfLowPressure) {
    EXPECT_EQ(drawBarb(0, 10), "line 1 500.0,150.0 550.0,138.0\nline 1 500.0,250.0 500.0,150.0\n");
    EXPECT_EQ(drawBarb(0, -10), "line 1 500.0,150.0 450.0,138.0\nline 1 500.0,250.0 500.0,150.0\n");
    // A lone half barb stands off the tip.
    EXPECT_EQ(drawBarb(0, 5), "line 1 500.0,162.0 525.0,156.0\nline 1 500.0,250.0 500.0,150.0\n");
    // A half barb behind a full one.
    EXPECT_EQ(drawBarb(0, 15), "line 1 500.0,150.0 550.0,138.0\n"
                               "line 1 500.0,162.0 525.0,156.0\n"
                               "line 1 500.0,250.0 500.0,150.0\n");
    // A west wind from the edge of a station circle.
    EXPECT_EQ(drawBarb(270, 2, 0.1f, 0.02f), "line 1 480.0,250.0 400.0,250.0\n");
    // A pennant takes the outer eighth of the staff, and a full barb follows behind it.
    EXPECT_EQ(drawBarb(0, 60), "fill 3 500.0,150.0 550.0,150.0 500.0,162.0 500.0,150.0\n"
                               "line 1 500.0,174.0 550.0,162.0\n"
                               "line 1 500.0,250.0 500.0,150.0\n");
}

TEST_F(WindPlotTest, ShadowedGlyphStandsAboveItsShadow) {
    plot.graph.setDropShadow(1);
    drawBarb(0, 10);
    EXPECT_EQ(plot.graph.drop_shadow, 1);
    Wind wind(0, 10);
    device->take();
    WindPlot::drawBarb(plot, middle, wind, 0.1f, 0);
    EXPECT_EQ(lines(), 6); // two strokes, each with its shadow, and then both again
}

TEST_F(WindPlotTest, ArrowPointsWhereTheWindBlows) {
    // 20 units from the west, 0.005 a unit: 100 device units to the right, the head 20 back and
    // aside.
    WindPlot::drawVect(plot, middle, Wind(270, 20), 0.005f, 1);
    EXPECT_EQ(device->take(), "line 1 500.0,250.0 600.0,250.0\n"
                              "line 1 600.0,250.0 580.0,270.0\n"
                              "line 1 600.0,250.0 580.0,230.0\n");
    // A fixed length, and the speed in strokes of text beyond the tip.
    WindPlot::drawVect(plot, middle, Wind(180, 40), 0.1f, -1);
    EXPECT_EQ(device->calls[0], "line 1 500.0,250.0 500.0,150.0");
    EXPECT_GT(device->count("line 4 "), 1);
}

TEST_F(WindPlotTest, TrackIsTickedByHoursAndParts) {
    // From the north: it goes down the page, 90 device units in three hours.
    WindPlot::drawTrack(plot, middle, Wind(0, 0.09f), 0.1f, 1, 3, 1);
    EXPECT_EQ(device->calls[0], "line 1 500.0,250.0 500.0,340.0");
    EXPECT_EQ(device->calls[1], "line 1 520.0,280.0 480.0,280.0"); // the first hour
    EXPECT_EQ(lines(), 1 + 2 + 3 + 2); // shaft, whole hours, half hours, head
}

TEST_F(WindPlotTest, CoversOfTheSky) {
    struct Row {
        const char* codes;
        int lines, fills; // lines with the circle
    };
    const Row rows[] = {{"0Cbosx", 1, 0}, {"1F", 2, 0}, {"2S", 1, 1}, {"3", 2, 1},
                        {"4", 1, 1},      {"5", 2, 1},  {"6B", 1, 1}, {"7", 1, 2},
                        {"8O", 1, 1},     {"9X", 3, 0}, {" M", 2, 0}};
    for (const Row& row : rows)
        for (const char* code = row.codes; *code; code++) {
            CloudPlot::draw(plot, middle, 0.02f, *code);
            EXPECT_EQ(lines(), row.lines) << *code;
            EXPECT_EQ(fills(), row.fills) << *code;
            device->take();
        }
    // Scattered fills the upper right quarter.
    CloudPlot::draw(plot, middle, 0.1f, 'S');
    EXPECT_EQ(device->calls.back(),
              "fill 3 600.0,250.0 586.6,200.0 550.0,163.4 500.0,150.0 500.0,250.0 600.0,250.0");
}

TEST(Wind, InterpolatesInTheLogarithmOfPressure) {
    Wind wind;
    // Halfway between 1000 and 500 mb in the logarithm is 707.1 mb: components (0,-10) and (-20,0).
    wind.interp(Wind(0, 10), Wind(90, 20), 1000, 500, 707.10678f);
    EXPECT_NEAR(wind.dir, 63.435, 0.01); // of (-10,-5)
    EXPECT_NEAR(wind.spd, 15, 0.01);
    EXPECT_EQ(wind.interp(Wind(Const::MISS, 10), Wind(90, 20), 1000, 500, 700), 1);
    EXPECT_EQ(wind.dir, 90);
    EXPECT_EQ(wind.interp(Wind(0, 10), Wind(90, 20), 0, 500, 700), 0);
    EXPECT_EQ(wind.dir, Const::MISS);
}
