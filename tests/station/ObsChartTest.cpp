#include "ORV/ObsChart.h"

#include "StationPlot.h"

using namespace ORV;

namespace {

constexpr const char* field = ORV_TEST_DATA "/station/field.cvt"; // 48 stations, 6 rows of 8

/// Draws plot lists of one small hour on a map of 100 km a unit around 40 N, 100 W.
class ObsChartTest : public StationPlot {
protected:
    ObsChartTest() {
        Orv::resrc.clear();
        Orv::setResrc("stat_prior", "9");
        Orv::setResrc("grid_domain", "ll,39.75,-100.75,8,6,1.5,1.5");
        setDomain("ll,39.75,-100.75,29,15,0.5,0.5");
    }

    /// Draws a list, and returns what it drew in a context: 1 lines, 2 marks, 4 text.
    std::string draw(const char* list, int context, bool map = false) {
        plot.clearLabels();
        device->take();
        ObsChart chart;
        chart.setMap(map);
        chart.setFilename((std::string("@") + field).c_str());
        chart.setVariable(list);
        result = chart.draw(plot);
        const std::string start = "line " + std::to_string(context) + " ";
        std::string all;
        for (const auto& call : device->calls)
            if (call.rfind(start, 0) == 0)
                all += call + "\n";
        return all;
    }

    int result = 0;
};

} // namespace

TEST_F(ObsChartTest, PlotsEveryStationOnceForEachItem) {
    draw("temp[C,mk=plus]", 2);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(device->count("line 2 "), 2 * 48); // two strokes a plus
    ASSERT_EQ(plot.num_labels, 2);
    EXPECT_STREQ(plot.labels[0].pos, "ul");
    EXPECT_STREQ(plot.labels[0].text, "Surface Temperature [C]");
    EXPECT_STREQ(plot.labels[1].pos, "ur");
    EXPECT_STREQ(plot.labels[1].text, "Analysis for 18Z 12 JAN 25");
    // A run of items has the labels of its last, a group those of its head alone.
    draw("temp[C,mk=plus],dewp[C,mk=x]", 2);
    EXPECT_EQ(device->count("line 2 "), 4 * 48);
    ASSERT_EQ(plot.num_labels, 2);
    EXPECT_STREQ(plot.labels[0].text, "Surface Dewpoint [C]");
    draw("{temp[C,mk=plus],dewp[C,mk=x]}", 2);
    EXPECT_EQ(device->count("line 2 "), 4 * 48);
    EXPECT_EQ(plot.num_labels, 2);
    // A list without items, and one of unknown words, draw no data.
    EXPECT_EQ(draw("", 4), "");
    EXPECT_EQ(draw("nosuchthing", 4), "");
}

TEST_F(ObsChartTest, MissingFileIsReportedAndDrawsNothing) {
    ObsChart chart;
    chart.setFilename("@/no/such/hour.cvt");
    chart.setVariable("temp");
    testing::internal::CaptureStdout();
    EXPECT_EQ(chart.draw(plot), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "ObsChart: Unable to open file: /no/such/hour.cvt\n");
    EXPECT_EQ(plot.num_labels, 0);
}

// A function of the analysed field that changes no value draws the very lines of the field, however
// deep it is nested and whatever stands before it in the list.
TEST_F(ObsChartTest, FunctionsReadTheirOwnOperands) {
    const std::string lines = draw("temp[C,ln]", 1);
    EXPECT_NE(lines, "");
    EXPECT_EQ(draw("mul(temp,#1)[C,ln]", 1), lines);
    EXPECT_EQ(draw("add(sub(dewp,dewp),temp)[C,ln]", 1), lines);
    EXPECT_EQ(draw("add(sub(sub(dewp,#0),dewp),sub(temp,#0))[C,ln]", 1), lines);
    EXPECT_NE(draw("dewp[C,ln]", 1), lines);
    // Behind another grid and a vector, which take slots of their own.
    const std::string winds = draw("<uwndg,vwndg>[m/s,vect]", 1);
    EXPECT_NE(winds, "");
    EXPECT_EQ(draw("<uwndg,vwndg>[m/s,vect],mul(temp,#1)[C,ln]", 1), winds + lines);
    EXPECT_EQ(draw("dewp[C,ln],temp[C,ln]", 1), draw("dewp[C,ln]", 1) + lines);
}

// The units of a vector hold for both of its components: 5 knots are a half barb, 2.6 m/s none.
TEST_F(ObsChartTest, BarbsCountInTheUnitsOfTheVector) {
    const std::string knots = draw("<uwndg,vwndg>[knt,barb]", 1);
    const std::string metres = draw("<uwndg,vwndg>[m/s,barb]", 1);
    EXPECT_EQ(draw("<uwndg[knt],vwndg[knt]>[,barb]", 1), knots);
    EXPECT_EQ(draw("<uwndg,vwndg>[,barb]", 1), metres);
    EXPECT_GT(knots.size(), metres.size());
}

TEST_F(ObsChartTest, PlotTypeTurnsQuantitiesIntoGrids) {
    const std::string lines = draw("temp[C,ln]", 1);
    Orv::setResrc("plot_type", "ln");
    EXPECT_EQ(draw("temp[C]", 1), lines);
    Orv::setResrc("plot_type", "none");
    EXPECT_EQ(draw("temp[C]", 1), "");
}

TEST_F(ObsChartTest, MapGoesUnderDataAndOverFills) {
    Orv::setResrc("map_file", "state_us.map[red]");
    Orv::setResrc("file_path", ORV_DATA);
    const std::string red = "color 1 " + std::to_string(plot.getColorValue("red"));
    const auto firstOf = [&](const std::string& start) {
        for (size_t i = 0; i < device->calls.size(); i++)
            if (device->calls[i].rfind(start, 0) == 0)
                return static_cast<int>(i);
        return -1;
    };
    draw("temp[C,mk=plus]", 1, true);
    EXPECT_GE(firstOf(red), 0);
    EXPECT_LT(firstOf(red), firstOf("line 2 "));
    draw("temp[C,cf]", 1, true);
    EXPECT_GT(firstOf(red), firstOf("fill 3 "));
    draw("temp[C,mk=plus]", 1, false);
    EXPECT_EQ(firstOf(red), -1);
    // Each panel has a map; the page behind panels has none.
    const auto maps = [&] { return device->count(red); };
    draw("panel[0.5x1],temp[C,mk=plus],panel[0.5x1+0.5],dewp[C,mk=plus]", 1, true);
    EXPECT_EQ(maps(), 2);
    draw("temp[C,mk=plus],panel[0.5x1+0.5],dewp[C,mk=plus]", 1, true);
    EXPECT_EQ(maps(), 2);
    // A map item of the list takes the place of the automatic map.
    draw("temp[C,mk=plus],map[mf=state_us.map[blue]]", 1, true);
    EXPECT_EQ(firstOf(red), -1);
    EXPECT_GT(firstOf("color 1 " + std::to_string(plot.getColorValue("blue"))), firstOf("line 2 "));
}
