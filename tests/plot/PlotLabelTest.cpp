#include "LogoText.h"
#include "PlotFixture.h"
#include "Table.h"
using namespace ORV;

namespace {

class PlotLabelTest : public PlotTest {
protected:
    /// A map as wide as high, in NDC x 0.27 to 0.73 and y 0.02 to 0.48, with texts by the device.
    void openMap(const char* param = "") {
        open(param);
        plot.graph.hfont = 1;
        plot.setPanel(Domain("xy,0,0,11,11,1,1"));
        device->take();
    }
    std::string texts() const {
        std::string all;
        for (const std::string& call : device->calls)
            if (call.rfind("text ", 0) == 0)
                all += call.substr(5) + "\n";
        return all;
    }
};

TEST_F(PlotLabelTest, EscapesNameDateHoursAndSource) {
    plot.date.set(2007, 1, 12, 18, 5, 0);
    plot.setDataSource("sao");
    plot.fore_hour = 12;
    for (const Row& row : readTable("plot/escapes_name_date_hours_and_source.txt")) {
        char out[100];
        plot.formatLabel(row.text("label"), out, sizeof out);
        EXPECT_STREQ(out, row.text("text")) << row.text("label");
    }
    char narrow[5] = "xxxx";
    plot.formatLabel("%d %b %y", narrow, sizeof narrow);
    EXPECT_STREQ(narrow, "12 J");

    plot.date.init();
    plot.fore_hour = Const::MISS;
    char out[100];
    plot.formatLabel("%d%F%f%D", out, sizeof out);
    EXPECT_STREQ(out, "XX") << "a day unknown shows as everywhere, the rest is empty";
    plot.fore_hour = 0;
    plot.formatLabel("%F", out, sizeof out);
    EXPECT_STREQ(out, "analysis");
}

// The margins are 0.02 high: two lines of 0.01 each. The inset is 1% of the width of 0.46.
TEST_F(PlotLabelTest, LinesStackFromTheView) {
    openMap();
    plot.addLabel("ul", "one");
    plot.addLabel("ur", "date");
    plot.done();
    plot.addLabel("ul", "two");
    plot.addLabel("lc", "low two");
    plot.done();
    plot.drawLabels();
    EXPECT_EQ(texts(), "274.6,20.0 one\n725.4,20.0 date\n274.6,10.0 two\n500.0,480.0 low two\n");
    EXPECT_NEAR(plot.graph.text_height, 0.0075, 1e-6);
    EXPECT_EQ(plot.graph.getTran(), 1);
    plot.num_labels = plot.num_lines = 0;
    device->take();
    plot.setDrawing("-text_ul");
    plot.addLabel("ll", "low one");
    plot.addLabel("elsewhere", "counts as ul");
    plot.done();
    plot.done();
    plot.drawLabels();
    EXPECT_EQ(texts(), "274.6,490.0 low one\n");
}

TEST_F(PlotLabelTest, InsideThePictureTheLastLineTouchesTheEdge) {
    openMap("full_lab");
    plot.setPanel(Rect(0, 0, 1, 1), Domain("xy,0,0,11,11,1,1")); // 0.25 to 0.75, the full height
    for (const char* text : {"one", "two"}) {
        plot.addLabel("uc", text);
        plot.done();
    }
    device->take();
    plot.drawLabels();
    EXPECT_EQ(texts(), "500.0,15.0 one\n500.0,0.0 two\n"); // lines of 3% of the height
}

TEST_F(PlotLabelTest, LabelOfTheUserHasItsPositionAlone) {
    openMap();
    Orv::putResrc("label", "ur:Title,No colon");
    plot.addLabel("ur", "date");
    plot.addLabel("ul", "data");
    plot.addLabel("ll", "kept");
    plot.done();
    plot.drawLabels();
    EXPECT_EQ(texts(), "274.6,480.0 kept\n725.4,20.0 Title\n274.6,20.0 No colon\n");
    EXPECT_FLOAT_EQ(plot.graph.text_height, 0.75f * 0.03f * 0.46f) << "at most 3% of the view";
}

TEST_F(PlotLabelTest, BorderIsDrawnAroundTheView) {
    openMap();
    plot.drawBorder();
    EXPECT_EQ(device->count("line 1 270.0,480.0 730.0,480.0 730.0,20.0 270.0,20.0 270.0,480.0"), 1);
    EXPECT_EQ(plot.graph.getTran(), 1);
    device->take();
    plot.setDrawing("data");
    EXPECT_FALSE(plot.drawBorder());
    EXPECT_EQ(device->take(), "");
}

TEST_F(PlotLabelTest, BarShowsTheCellsOfTheRange) {
    openMap();
    ColorFill steps(plot.colors, "0:red,10:blue,20:green");
    const struct {
        const char* what;
        Range range;
        const char* labels;
    } rows[] = {
        {"all", {}, "0 10 20 "},
        {"two of them", {5, 12}, "0 10 "},
        {"below the table", {-50, 5}, "0 "},
    };
    for (const auto& row : rows) {
        plot.setBar(steps, row.range);
        device->take();
        plot.drawLabels();
        std::string labels;
        std::istringstream in(texts());
        for (std::string at, label; in >> at >> label;)
            labels += label + " ";
        EXPECT_EQ(labels, row.labels) << row.what;
        EXPECT_EQ(device->count("fill 3"), device->count("text ")) << row.what;
    }

    // Cells of 10 units from 1000 on: two of them up to 1020, from x 0.2838 to 0.5 in NDC.
    ColorFill cycle(plot.colors, "red,blue:la=a_b");
    cycle.setInterval(10);
    cycle.setBase(0);
    plot.setBar(cycle, {1000, 1020});
    device->take();
    plot.drawBar();
    EXPECT_EQ(device->count("fill 3"), 2);
    EXPECT_NE(texts().find("283.8,500.0 1000\n"), std::string::npos) << texts();
    EXPECT_NE(texts().find(" a b\n"), std::string::npos) << "an entry's own label";

    // The strip is the margin of 0.02: its upper half less 15% holds the cells.
    EXPECT_EQ(device->count("fill 3 283.8,491.5 283.8,483.0 391.9,483.0 391.9,491.5"), 1);
    device->take();
    plot.setBarLocate("ur");
    plot.drawBar();
    EXPECT_EQ(device->count("fill 3"), 0);
}

TEST_F(PlotLabelTest, BarSurvivesFillsAndRangesOfAllKinds) {
    openMap();
    const float none = Const::MISS;
    for (const char* text : {"0:red,10:blue", "red,blue", ""})
        for (const Range range : {Range{none, 5}, Range{5, none}, Range{1e30f, -1e30f},
                                  Range{-1e30f, 1e30f}, Range{0, 0}})
            for (const float interval : {none, 0.0f, 1e-20f, -3.0f}) {
                ColorFill fill;
                if (*text)
                    fill.set(plot.colors, text);
                fill.setInterval(interval);
                plot.setBar(fill, range);
                device->take();
                plot.drawBar();
                EXPECT_LE(device->count("fill 3"), 4096);
            }
}

} // namespace
