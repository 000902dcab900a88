#include "GraphFixture.h"
#include "Table.h"
using namespace ORV;

using GraphDraw = GraphFixture;

namespace {
Points segment(float x1, float y1, float x2, float y2) {
    Points points;
    points.add(x1, y1);
    points.add(x2, y2);
    return points;
}
} // namespace

TEST_F(GraphDraw, SendsOnlyWhatMayTouchTheWindow) {
    openInPixels();
    EXPECT_EQ(graph.drawLine(segment(-50, -50, -10, 600)), 0);
    EXPECT_EQ(graph.drawLine(segment(1001, 0, 2000, 0)), 0);
    Points one;
    one.add(5, 5);
    EXPECT_EQ(graph.drawLine(one), 0);
    EXPECT_EQ(graph.drawFill(segment(0, 501, 9, 502)), 0);
    EXPECT_EQ(device->take(), "");
    EXPECT_EQ(graph.drawLine(segment(-50, -50, 5000, 600)), 1);
    EXPECT_EQ(graph.drawLine(segment(1000, 500, 2000, 900)), 1); // at the corner
    EXPECT_EQ(device->count("line 1"), 2);
    graph.setWindow(Rect(1000, 500, 0, 0)); // axes that run the other way are no empty window
    Rect reversed;
    reversed.setu(1000, 500, 0, 0);
    graph.setWindow(reversed);
    EXPECT_EQ(graph.drawLine(segment(10, 10, 20, 20)), 1);
}

TEST_F(GraphDraw, DrawsTheShapesOfMarks) {
    openInPixels();
    graph.setMarkSize(10);
    for (const Row& c : readTable("graphics/draws_the_shapes_of_marks.txt")) {
        graph.setMarkType(c.integer("type"));
        graph.drawMark(100, 100);
        EXPECT_EQ(device->take(), c.text("calls")) << "mark " << c.integer("type");
    }
    graph.setDropShadow(2);
    graph.setMarkType(8);
    graph.drawMark(100, 100);
    EXPECT_EQ(device->take(), "color 2 1\nline 2 100.0,400.0 100.5,399.5\n"
                              "line 2 101.0,401.0 101.5,400.5\ncolor 2 1\n"
                              "line 2 100.0,400.0 100.5,399.5\n");
}

TEST_F(GraphDraw, PlacesSymbolsByTheTextAlignment) {
    openInPixels();
    // "+BLSN"'s neighbour SQ is one open polyline between (0.1, 0.98) and (0.5, 0.02).
    const struct {
        int h, v;
        float left, foot; // of the unit square
    } cases[] = {
        {1, 4, 100, 100}, {2, 3, 90, 90}, {3, 1, 80, 80}, {3, 2, 80, 80}, {0, 0, 100, 100}};
    for (const auto& c : cases) {
        graph.setTextAlign(c.h, c.v);
        EXPECT_EQ(graph.drawSymbol(100, 100, "FG", 20), 1);
        EXPECT_EQ(device->count("line 1"), 3);
        float x = 0, y = 0;
        ASSERT_EQ(std::sscanf(device->calls[0].c_str(), "line 1 %f,%f", &x, &y), 2);
        EXPECT_GE(x, c.left);
        EXPECT_LT(x, c.left + 10);
        EXPECT_LE(500 - y, c.foot + 20);
        EXPECT_GT(500 - y, c.foot + 10) << "the upper of the three lines of fog";
        device->calls.clear();
    }
    EXPECT_EQ(graph.drawSymbol(100, 100, "nothing", 20), 0);
    EXPECT_EQ(graph.drawSymbol(100, 100, nullptr, 20), 0);
}
