#include "PlotFixture.h"
#include "Table.h"

using namespace ORV;

namespace {

TEST(PlotPanelText, CellsAndFractions) {
    GeomBox box;
    for (const Row& row : readTable("plot/panels.txt")) {
        SCOPED_TRACE(row.text("text"));
        EXPECT_EQ(Plot::decodePanelStr(Rect(0, 0, 1, 0.5f), row.text("text"), box),
                  row.integer("result"));
        EXPECT_FLOAT_EQ(box.x, row.number("x"));
        EXPECT_FLOAT_EQ(box.y, row.number("y"));
        EXPECT_FLOAT_EQ(box.width, row.number("width"));
        EXPECT_FLOAT_EQ(box.height, row.number("height"));
    }
    EXPECT_EQ(Plot::decodePanelStr(Rect(0, 0, 1, 0.5f), nullptr, box), 0);
}

void expectRect(const Rect& rect, float xmin, float ymin, float xmax, float ymax) {
    EXPECT_NEAR(rect.xmin, xmin, 1e-5);
    EXPECT_NEAR(rect.ymin, ymin, 1e-5);
    EXPECT_NEAR(rect.xmax, xmax, 1e-5);
    EXPECT_NEAR(rect.ymax, ymax, 1e-5);
}

TEST_F(PlotTest, MapLeavesMarginsUnlessThePictureIsFull) {
    open();
    // As wide as high: 92% of a surface of 1 by 0.5, in the middle.
    plot.setPanel(Domain("xy,0,0,11,11,1,1"));
    expectRect(plot.graph.getViewport(1), 0.27f, 0.02f, 0.73f, 0.48f);
    expectRect(plot.graph.getWindow(1), -5, -5, 5, 5);
    EXPECT_EQ(device->calls.back(), "clip 270.0 20.0 730.0 480.0");
    // The next domain takes the same view.
    plot.setPanel(Domain("xy,0,0,5,11,1,1"));
    expectRect(plot.graph.getViewport(1), 0.27f, 0.02f, 0.73f, 0.48f);
    expectRect(plot.graph.getWindow(1), -2, -5, 2, 5);

    plot.setFull(1);
    plot.setPanel(Rect(0, 0.04f, 1, 0.96f), Domain("xy,0,0,11,11,1,1"));
    expectRect(plot.graph.getViewport(1), 0.25f, 0, 0.75f, 0.5f);
}

// The pixel that shows a plot coordinate must lead back to it, in every panel.
TEST_F(PlotTest, PointerFindsThePanelAndThePlaceInIt) {
    open();
    plot.setPanel(Domain("xy,0,0,11,11,1,1"));
    for (const char* text : {"2x2+0+0", "2x2+1+1", "3x1+2+0", "0.3x0.9+0.05+0.1"}) {
        plot.newPanel(text);
        const GTran& map = plot.graph.tran[1];
        float wx, wy;
        EXPECT_TRUE(plot.tranPlotWindow(map.windowToDeviceX(3), map.windowToDeviceY(-4), wx, wy));
        EXPECT_NEAR(wx, 3, 1e-3) << text;
        EXPECT_NEAR(wy, -4, 1e-3) << text;
    }
    float wx, wy;
    EXPECT_FALSE(plot.tranPlotWindow(-100, -100, wx, wy));
    EXPECT_FLOAT_EQ(wx, -0.1f);
    EXPECT_FLOAT_EQ(wy, 0.6f);
}

TEST_F(PlotTest, NewPanelFinishesTheOneBeforeAndStartsClean) {
    open();
    plot.graph.hfont = 1;
    plot.setPanel(Domain("xy,0,0,11,11,1,1"));
    plot.addLabel("ul", "First");
    plot.done();
    plot.fore_hour = 12;
    device->take();
    plot.newPanel("2x1+1+0");
    EXPECT_EQ(device->count("text "), 1);
    EXPECT_EQ(plot.num_labels + plot.num_lines, 0);
    EXPECT_EQ(plot.fore_hour, Const::MISS);
    // Half the surface, 4% of its height left at both ends, the map 0.46 high in the middle of it.
    expectRect(plot.graph.getViewport(0), 0.5f, 0, 1, 0.5f);
    expectRect(plot.graph.getViewport(1), 0.52f, 0.02f, 0.98f, 0.48f);
    expectRect(plot.graph.getWindow(1), -5, -5, 5, 5);
    EXPECT_EQ(plot.graph.getTran(), 1);

    // A text that can't be read fills the surface.
    plot.newPanel("huge");
    expectRect(plot.graph.getViewport(0), 0, 0, 1, 0.5f);
}

TEST_F(PlotTest, NextFrameBeginsOnTheWholeSurfaceAgain) {
    open();
    plot.setPanel(Domain("xy,0,0,11,11,1,1"));
    plot.newPanel("2x2+1+1");
    plot.newFrame();
    EXPECT_EQ(plot.num_panels, 1);
    EXPECT_EQ(plot.cur_panel, 0);
    expectRect(plot.graph.getViewport(0), 0, 0, 1, 0.5f);
    expectRect(plot.graph.getViewport(1), 0.27f, 0.02f, 0.73f, 0.48f);
    expectRect(plot.graph.getWindow(1), -5, -5, 5, 5);
}

} // namespace
