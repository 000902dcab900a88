#include "ContFixture.h"

using namespace ORV;

namespace {

constexpr float none = Const::MISS;

// Texts come whole from the device, with the place of their middle.
class ContTextTest : public ContTest {
protected:
    ContPlot cont;

    /// The texts drawn, as "place:text" in plot coordinates, one behind the other.
    std::string texts() {
        std::string all;
        for (const std::string& call : device->calls) {
            float x, y;
            char words[100];
            if (std::sscanf(call.c_str(), "text %f,%f %99s", &x, &y, words) != 3)
                continue;
            Point point;
            plot.graph.tranPlotWindow(x, y, point.x, point.y);
            char item[200];
            std::snprintf(item, sizeof item, "%.2f,%.2f:%s ", point.x, point.y, words);
            all += item;
        }
        return all;
    }
    std::string drawLabels(Grid& grid, const char* params) {
        prepare(params);
        cont.drawLineLabels(plot, grid);
        return texts();
    }
    std::string drawExtrema(Grid& grid, const char* params) {
        prepare(params);
        cont.drawMaxMin(plot, grid);
        return texts();
    }
    std::string drawValues(Grid& grid, const char* params) {
        prepare("value");
        cont.setParam(params);
        cont.drawValues(plot, grid);
        return texts();
    }
    /// A ramp along the columns or the rows: 10 from point to point.
    Grid makeRamp(int nx, int ny, bool along_rows) {
        Grid grid = makeGrid(nx, ny, {});
        for (int j = 0; j < ny; j++)
            for (int i = 0; i < nx; i++)
                grid.setValue(i, j, 10.0f * static_cast<float>(along_rows ? i : ny - 1 - j));
        return grid;
    }

private:
    void prepare(const char* params) {
        plot.graph.hfont = 1;
        cont = ContPlot(params);
        cont.conlo = 5;
        cont.intrvl = 10;
        cont.num_cont = 20;
        device->take();
    }
};

TEST_F(ContTextTest, LabelsStandOnColumnsAndRowsOfCells) {
    // Levels 5, 15, 25, in the middles of the cells. Lines along the rows have their labels in each
    // skipx-th column, lines along the columns in each skipy-th row.
    Grid up = makeRamp(4, 4, false), across = makeRamp(4, 4, true);
    EXPECT_EQ(drawLabels(up, "lab=1:0"), "0.50,2.50:25 1.50,2.50:25 2.50,2.50:25 "
                                         "0.50,1.50:15 1.50,1.50:15 2.50,1.50:15 "
                                         "0.50,0.50:5 1.50,0.50:5 2.50,0.50:5 ");
    EXPECT_EQ(drawLabels(up, "lab=1:0:2:1"), "0.50,2.50:25 2.50,2.50:25 0.50,1.50:15 "
                                             "2.50,1.50:15 0.50,0.50:5 2.50,0.50:5 ");
    EXPECT_EQ(drawLabels(up, "lab=1:0:9:9"), "0.50,2.50:25 0.50,1.50:15 0.50,0.50:5 ");
    EXPECT_EQ(drawLabels(across, "lab=1:0:9:9"), "0.50,2.50:5 1.50,2.50:15 2.50,2.50:25 ");
    EXPECT_EQ(drawLabels(up, "lab=2:0:9:9"), "0.50,2.50:25 0.50,0.50:5 ") << "each second level";
    EXPECT_EQ(drawLabels(up, "lab=0:0"), "");
    EXPECT_EQ(drawLabels(up, "lab=1:0:0:-3").size(), drawLabels(up, "lab=1:0:1:1").size());
}

TEST_F(ContTextTest, MarksPointsAboveOrBelowAllAround) {
    for (const Row& row : readTable("contour/extrema.txt")) {
        Grid grid = makeGrid(5, 3, row.numbers("values"));
        EXPECT_EQ(drawExtrema(grid, row.text("params")), row.text("marks")) << row.text("what");
    }
}

TEST_F(ContTextTest, ValuesStandAtTheirPoints) {
    Grid grid = makeGrid(3, 2, {1, none, 1013.25f, -4.5f, 0.001234f, 120});
    EXPECT_EQ(drawValues(grid, ""), "0.00,1.00:1 2.00,1.00:1013 0.00,0.00:-4.5 "
                                    "1.00,0.00:0.00123 2.00,0.00:120 ");
    EXPECT_EQ(drawValues(grid, "fm=%.0f"), "0.00,1.00:1 2.00,1.00:1013 0.00,0.00:-4 "
                                           "1.00,0.00:0 2.00,0.00:120 ");
    for (const char* bad : {"fm=%s", "fm=%n", "fm=%f%f", "fm=x"}) {
        EXPECT_EQ(drawValues(grid, bad).substr(0, 11), "0.00,1.00:1") << bad;
        EXPECT_STREQ(cont.tform, "") << bad;
    }

    // With a fill of values a point has its color, or none and then no text.
    plot.graph.hfont = 1;
    cont = ContPlot("value");
    cont.setColorFill("0:#FF0000,100:#0000FF");
    device->take();
    cont.drawValues(plot, grid);
    EXPECT_EQ(texts(), "0.00,1.00:1 2.00,1.00:1013 1.00,0.00:0.00123 2.00,0.00:120 ");
    EXPECT_EQ(device->count("color 4 16711680"), 2);
    EXPECT_EQ(device->count("color 4 255"), 2);
}

TEST_F(ContTextTest, LabelsTellTitleDateAndRange) {
    Grid grid = makeGrid(2, 2, {3.14159f, 5, none, 1018.4f});
    grid.setInfo("Pressure (mb)");
    grid.setDatim("1200Z");
    grid.setDate(Date("2025-01-27T22"));
    grid.setForeTime("12hr");
    grid.setGenName("analysis");
    cont = ContPlot("ci=4");
    cont.drawLabels(plot, grid);
    ASSERT_EQ(plot.num_labels, 3);
    EXPECT_STREQ(plot.labels[0].text, "Pressure (mb)");
    EXPECT_STREQ(plot.labels[1].text, "1200Z");
    EXPECT_STREQ(plot.labels[2].text, "Int: 4 Lo: 3.14 Hi: 1018");
    EXPECT_EQ(plot.date.get(), Date("2025-01-27T22").get());
    EXPECT_EQ(plot.fore_hour, 12);
    EXPECT_STREQ(plot.source, "analysis");

    plot.clearLabels();
    grid.setGenName("another");
    cont.setInterval(none);
    cont.drawLabels(plot, grid);
    EXPECT_STREQ(plot.labels[2].text, "Lo: 3.14 Hi: 1018");
    EXPECT_STREQ(plot.source, "analysis") << "the first one stays";

    plot.clearLabels();
    grid.allocData();
    cont.drawLabels(plot, grid);
    EXPECT_EQ(plot.num_labels, 2) << "no range of an empty grid";
}

} // namespace
