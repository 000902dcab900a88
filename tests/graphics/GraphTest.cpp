#include "ORV/Graph.h"

#include "ORV/Orv.h"

#include "GraphFixture.h"
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using namespace ORV;

using GraphTest = GraphFixture;

TEST(Transform, WindowYRunsUpwardOnEveryDevice) {
    const struct {
        Rect (*surface)();
        float upper, lower; // device y of the edges of the surface
        const char* what;
    } cases[] = {
        {[] {
             Rect r;
             r.setu(0, 576, 756, 0);
             return r;
         },
         576, 0, "a page, y upward"},
        {[] { return Rect(0, 0, 756, 576); }, 0, 576, "a window, y downward"},
    };
    for (const auto& c : cases) {
        GTran tran;
        tran.set(c.surface());
        EXPECT_FLOAT_EQ(tran.ndc.x2, 1) << c.what;
        EXPECT_FLOAT_EQ(tran.ndc.y2, 576.0f / 756) << c.what;
        EXPECT_FLOAT_EQ(tran.windowToDeviceY(tran.ndc.y2), c.upper) << c.what;
        EXPECT_NEAR(tran.windowToDeviceY(0), c.lower, 1e-3) << c.what;
        tran.setWindow(Rect(100, 200, 300, 300));
        EXPECT_FLOAT_EQ(tran.windowToDeviceY(300), c.upper) << c.what;
        EXPECT_FLOAT_EQ(tran.windowToDeviceX(200), 378) << c.what;
        EXPECT_NEAR(tran.deviceToWindowX(378), 200, 1e-3) << c.what;
        EXPECT_NEAR(tran.deviceToWindowY(tran.windowToDeviceY(240)), 240, 1e-3) << c.what;
    }
}

TEST(Transform, FarPointsAndNoNumbersStayWithinWhatADeviceTakes) {
    GTran tran;
    tran.set(Rect(0, 0, 1000, 500));
    EXPECT_EQ(tran.windowToDeviceX(1e30f), 30000);
    EXPECT_EQ(tran.windowToDeviceX(-1e30f), -30000);
    EXPECT_EQ(tran.windowToDeviceX(NAN), -30000);
    tran.setWindow(Rect(5, 5, 5, 5)); // no extent
    EXPECT_EQ(tran.windowToDeviceX(5), -30000);
    tran.set(Rect(0, 0, 0, 0));
    EXPECT_EQ(tran.windowToDeviceX(0.5f), 0);
}

TEST(Transform, WindowsOfTwoTransformsMeetOnTheSurface) {
    GTran a, b;
    a.set(Rect(0, 0, 100, 100));
    b.set(Rect(0, 0, 100, 100));
    a.setWindow(Rect(0, 0, 10, 10));
    b.setViewport(Rect(0.5f, 0, 1, 0.5f));
    b.setWindow(Rect(-1, -1, 1, 1));
    EXPECT_FLOAT_EQ(GTran::tranWindowX(a, b, 7.5f), 0);
    EXPECT_FLOAT_EQ(GTran::tranWindowY(a, b, 5), 1);
}

TEST_F(GraphTest, ClipsToTheViewportAlsoOnAPage) {
    open(true);
    graph.setViewport(1, Rect(0.1f, 0.1f, 0.4f, 0.2f));
    graph.activateTran(1);
    EXPECT_EQ(device->take(), "clip 100.0 100.0 400.0 200.0\n");
    EXPECT_EQ(graph.cur_tran, 1);
    open(false);
    graph.setViewport(1, Rect(0.1f, 0.1f, 0.4f, 0.2f));
    graph.activateTran(1);
    EXPECT_EQ(device->take(), "clip 100.0 300.0 400.0 400.0\n");
}

TEST_F(GraphTest, PlacesAViewportOfAnAspect) {
    open(); // ndc 1 by 0.5
    const struct {
        Rect limits;
        float aspect;
        int h, v;
        float x1, y1, x2, y2;
        const char* what;
    } cases[] = {
        {Rect(0, 0, 1, 0.5f), 1, 2, 2, 0.25f, 0, 0.75f, 0.5f, "square in the middle"},
        {Rect(0, 0, 1, 0.5f), 1, 1, 2, 0, 0, 0.5f, 0.5f, "left"},
        {Rect(0, 0, 1, 0.5f), 1, 3, 2, 0.5f, 0, 1, 0.5f, "right"},
        {Rect(0, 0, 1, 0.5f), 4, 2, 1, 0, 0, 1, 0.25f, "wide, at the foot"},
        {Rect(0, 0, 1, 0.5f), 4, 2, 3, 0, 0.25f, 1, 0.5f, "wide, at the top"},
        {Rect(0, 0, 1, 0.5f), 0, 2, 2, 0, 0, 1, 0.5f, "aspect of the limits"},
    };
    for (const auto& c : cases) {
        graph.setViewportAspect(c.limits, c.aspect, c.h, c.v);
        const Rect view = graph.getViewport();
        EXPECT_NEAR(view.xmin, c.x1, 1e-6) << c.what;
        EXPECT_NEAR(view.ymin, c.y1, 1e-6) << c.what;
        EXPECT_NEAR(view.xmax, c.x2, 1e-6) << c.what;
        EXPECT_NEAR(view.ymax, c.y2, 1e-6) << c.what;
    }
    Rect from_edges;
    from_edges.setu(-0.1f, -0.1f, -0.1f, -0.1f);
    graph.setViewportAspect(from_edges, 0);
    EXPECT_NEAR(graph.getViewport().xmin, 0.1f, 1e-6);
    EXPECT_NEAR(graph.getViewport().ymax, 0.4f, 1e-6);
}

TEST_F(GraphTest, TellsTheDeviceOnlyWhatChanges) {
    open();
    EXPECT_EQ(graph.setLineColor(graph.line_color), 0);
    EXPECT_EQ(graph.setLineColor(7), 1);
    EXPECT_EQ(graph.setLineColor(7), 0);
    graph.setTextWeight(2);
    graph.setMarkWeight(3);
    graph.setFillStyle(6);
    graph.setFillStyle(6);
    EXPECT_EQ(device->take(), "color 1 7\nwidth 4 2.0\nwidth 2 3.0\nfillstyle 3 6\n");
}

// The Return key of a window closes the graph from inside the window's own event loop.
TEST_F(GraphTest, ADeviceOutlivesItsOwnEventLoop) {
    class Closing : public RecordingDevice {
    public:
        Graph* owner = nullptr;
        bool* gone = nullptr;
        ~Closing() override { *gone = true; }
        int manage() override {
            owner->unmanage();
            owner->close();
            EXPECT_FALSE(*gone);
            return 1;
        }
    };
    bool gone = false;
    auto made = std::make_unique<Closing>();
    made->owner = &graph;
    made->gone = &gone;
    graph.setDevice(std::move(made), 1);
    ASSERT_EQ(graph.open(), 1);
    graph.manage();
    EXPECT_TRUE(gone);
    EXPECT_FALSE(graph.managed);
    EXPECT_EQ(graph.drawLine(0, 0, 1, 1), 0);
}
