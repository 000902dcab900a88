// The device itself, on a server of the test's own.
#include "ORV/XWindow.h"

#include "ORV/Points.h"

#include "XFixture.h"
#include <X11/Xlib.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <set>

using namespace ORV;

namespace {
constexpr int line_context = 1, mark_context = 2, fill_context = 3, text_context = 4;

class Recorder : public Listener {
public:
    std::vector<std::string> events;
    std::function<void(const std::string& type)> act;

    void callback(const char* type, const char* data, const void*) override {
        events.push_back(std::string(type) + (data ? std::string(" ") + data : ""));
        if (act)
            act(type);
    }
    int count(const std::string& event) const {
        int n = 0;
        for (const std::string& e : events)
            n += e.rfind(event, 0) == 0;
        return n;
    }
};

class XWindowTest : public XFixture {
protected:
    void SetUp() override {
        XFixture::SetUp();
        window.setSize(200, 100);
    }
    void TearDown() override {
        window.close();
        XFixture::TearDown();
    }

    // The picture that is drawn into, as pixels that differ from the background.
    std::set<std::pair<int, int>> drawn(XWindow& from) {
        std::vector<XWindow::Pixel> pixels;
        EXPECT_EQ(from.readPixels(pixels), 1);
        std::set<std::pair<int, int>> found;
        for (std::size_t i = 0; i < pixels.size(); i++)
            if (pixels[i] != from.back_pixel)
                found.emplace(int(i) % from.width, int(i) / from.width);
        return found;
    }
    std::set<std::pair<int, int>> takeDrawn() {
        const auto found = drawn(window);
        window.clear();
        return found;
    }

    static Points box(float x1, float y1, float x2, float y2) {
        Points points;
        for (const auto& [x, y] : {std::pair{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}, {x1, y1}})
            points.add(Point(x, y));
        return points;
    }

    // Makes frames with a red box in the column of their number.
    void makeFrames(int n) {
        for (int i = 0; i < n; i++) {
            window.newFrame();
            window.setFrame(XWindow::LAST_FRAME);
            window.setColor(fill_context, 0xff0000);
            Points area = box(10.0f * i, 10, 10.0f * i + 5, 20);
            window.drawFill(fill_context, area);
        }
    }
    // The number of the frame that the window on the screen shows, -1 for an empty one.
    int shownBox() {
        const Picture picture = look(window.window);
        for (int i = 0; i * 10 + 2 < picture.width; i++)
            if (picture.at(i * 10 + 2, 15) == 0xff0000)
                return i;
        return -1;
    }
    long residentKilobytes(int pid) {
        std::ifstream file("/proc/" + std::to_string(pid) + "/statm");
        long all = 0, resident = 0;
        file >> all >> resident;
        return resident * 4;
    }

    XWindow window;
};
} // namespace

TEST_F(XWindowTest, LinesAndFillsCoverTheirPixelsWithinTheClipArea) {
    ASSERT_EQ(window.open(), 1);
    EXPECT_EQ(drawn(window).size(), 0u);
    window.drawLine(line_context, 2.4f, 3.6f, 6.4f, 3.6f);
    EXPECT_EQ(takeDrawn(), (std::set<std::pair<int, int>>{{2, 4}, {3, 4}, {4, 4}, {5, 4}, {6, 4}}));

    Points area = box(10, 10, 19, 14);
    window.drawFill(fill_context, area);
    EXPECT_EQ(takeDrawn().size(), 50u) << "10 by 5 with its edges";

    window.setClip(12, 11, 13, 40);
    window.drawFill(fill_context, area);
    EXPECT_EQ(takeDrawn().size(), 8u) << "2 by 4 inside the area";
    const Rect clip = window.getClip();
    EXPECT_EQ(clip.xmin, 12);
    EXPECT_EQ(clip.xmax, 13);
    EXPECT_EQ(clip.ymax, 40);
    window.setClip(0, 0, 199, 99);

    window.setLineWidth(mark_context, 3);
    window.drawLine(mark_context, 50, 20, 59, 20);
    EXPECT_GE(takeDrawn().size(), 27u);
    window.drawFill(fill_context, area);
    Rect hole(18, 20, 12, 12); // corners in any order
    window.clearRect(hole);
    EXPECT_EQ(takeDrawn().size(), 50u - 7 * 3);

    // Far away, as a zoomed map is.
    window.drawLine(line_context, -30000, 50, 30000, 50);
    EXPECT_EQ(takeDrawn().size(), 200u);
    window.drawLine(line_context, -1e30f, 50, NAN, 50);
}

TEST_F(XWindowTest, DashesAndStipplesLeaveTheirGaps) {
    ASSERT_EQ(window.open(), 1);
    const struct {
        int style;
        std::size_t pixels; // of 72
    } lines[] = {{1, 72}, {2, 36}, {3, 24}, {5, 36}, {99, 72}, {-1, 72}};
    for (const auto& line : lines) {
        window.setLineStyle(line_context, line.style);
        window.drawLine(line_context, 10, 10, 81, 10);
        EXPECT_NEAR(double(takeDrawn().size()), double(line.pixels), 1) << line.style;
    }
    const struct {
        int style;
        std::size_t pixels; // of 64 by 64
    } fills[] = {{0, 4096}, {1, 2048}, {2, 1024},  {4, 1024},
                 {8, 2048}, {10, 0},   {19, 4096}, {77, 4096}};
    for (const auto& fill : fills) {
        window.setFillStyle(fill_context, fill.style);
        Points area = box(8, 8, 71, 71);
        window.drawFill(fill_context, area);
        EXPECT_EQ(takeDrawn().size(), fill.pixels) << fill.style;
    }
}

TEST_F(XWindowTest, TextStandsAtItsPointAndFontsAreMatchedInSize) {
    ASSERT_EQ(window.open(), 1);
    const auto extent = [&] {
        const auto pixels = takeDrawn();
        int x1 = 999, x2 = -1, y1 = 999, y2 = -1;
        for (const auto& [x, y] : pixels) {
            x1 = std::min(x1, x);
            x2 = std::max(x2, x);
            y1 = std::min(y1, y);
            y2 = std::max(y2, y);
        }
        return std::vector<int>{x1, x2, y1, y2};
    };
    Point point(100, 50);
    window.setTextAlign(1, 0);
    window.drawText(point, "HHHH");
    const auto left = extent();
    EXPECT_NEAR(left[0], 100, 1);
    EXPECT_NEAR(left[3], 49, 1) << "on the base line";
    window.setTextAlign(3, 0);
    window.drawText(point, "HHHH");
    EXPECT_NEAR(extent()[1], 99, 2);
    window.setTextAlign(2, 1);
    window.drawText(point, "HHHH");
    const auto centred = extent();
    EXPECT_NEAR((centred[0] + centred[1]) / 2, 100, 1);
    EXPECT_GE(centred[2], 50) << "hangs below";

    EXPECT_EQ(window.setFont("fixed"), 1);
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(window.setFont("-none-such-medium-r-normal--13-120-75-75-c-70-iso8859-1"), 0);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "Unable to load font\n");
}

TEST_F(XWindowTest, FramesAreCopiedSteppedRoundAndDeleted) {
    ASSERT_EQ(window.open(), 1);
    EXPECT_EQ(window.incFrame(1), -1);
    EXPECT_EQ(window.setFrame(0), 0);
    makeFrames(4);
    EXPECT_EQ(window.getNumFrames(), 4);
    EXPECT_EQ(window.getFrame(), -1);
    EXPECT_EQ(shownBox(), -1) << "nothing is shown before it's asked for";
    for (const int expected : {0, 1, 2, 3, 0}) {
        window.incFrame(0);
        EXPECT_EQ(shownBox(), expected);
    }
    window.incFrame(-1);
    EXPECT_EQ(shownBox(), 3);
    EXPECT_EQ(window.deleteFrame(4), 0);
    EXPECT_EQ(window.deleteFrame(-1), 0);

    EXPECT_EQ(window.deleteFrame(3), 1); // the one shown, the last
    EXPECT_EQ(shownBox(), 2);
    EXPECT_EQ(window.getFrame(), 2);
    window.incFrame(1);
    EXPECT_EQ(window.deleteFrame(0), 1); // the one shown, the first
    EXPECT_EQ(shownBox(), 1);
    EXPECT_EQ(window.getFrame(), 0);
    window.clearFrame(XWindow::LAST_FRAME);
    window.displayFrame(1);
    EXPECT_EQ(shownBox(), -1);
    window.copyFrame(1, 0);
    window.displayFrame(1);
    EXPECT_EQ(shownBox(), 1);
    window.deleteFrame(0);
    window.deleteFrame(0);
    EXPECT_EQ(window.getNumFrames(), 0);
    EXPECT_EQ(window.getFrame(), -1);
    EXPECT_EQ(shownBox(), -1);
    EXPECT_EQ(window.target, window.pixmap);

    for (int i = 0; i < 128; i++)
        EXPECT_EQ(window.newFrame(-1), 1);
    EXPECT_EQ(window.newFrame(-1), 0) << "room for 128";
    EXPECT_EQ(window.newFrame(), 128);
}

TEST_F(XWindowTest, AStepOfALoopIsACopyAndRefreshesLeaveNothingBehind) {
    window.setSize(640, 512);
    ASSERT_EQ(window.open(), 1);
    makeFrames(24);
    window.incFrame(0);
    const unsigned long before = NextRequest(XWindow::display);
    for (int i = 0; i < 100; i++)
        window.incFrame(0);
    // Frame to picture, picture to window, and one to wait for both.
    EXPECT_LE(NextRequest(XWindow::display) - before, 300u);

    const auto refresh = [&](int times) {
        for (int i = 0; i < times; i++) {
            window.deleteFrame(0);
            window.newFrame(-1);
            window.setFrame(-1);
            window.update();
        }
    };
    refresh(50);
    const long server_was = residentKilobytes(server->pid), was = residentKilobytes(getpid());
    refresh(1000);
    EXPECT_EQ(window.getNumFrames(), 24);
    constexpr long frame_kilobytes = 640 * 512 * 4 / 1024;
    EXPECT_LT(residentKilobytes(server->pid) - server_was, 4 * frame_kilobytes);
    EXPECT_LT(residentKilobytes(getpid()) - was, 4 * frame_kilobytes);
}

TEST_F(XWindowTest, EventsComeAsTextsAndStormsAsOne) {
    ASSERT_EQ(window.open(), 1);
    Recorder recorder;
    ASSERT_EQ(window.addCallback("AnyEvent", &recorder, nullptr), 1);
    EXPECT_EQ(window.addCallback("NoSuchEvent", &recorder, nullptr), 0);
    window.checkEvent();
    recorder.events.clear();

    for (int i = 0; i < 5; i++)
        XClearArea(static_cast<Display*>(display), window.window, 0, 0, 10, 10, True);
    XSync(static_cast<Display*>(display), False);
    window.checkEvent();
    EXPECT_EQ(recorder.count("Expose"), 1);

    const auto wait = [&](const std::string& event) {
        return eventually(
            [&] {
                window.checkEvent();
                return recorder.count(event) > 0;
            },
            5);
    };
    press(window.window, 30, 40, "key z");
    EXPECT_TRUE(wait("KeyPress z:30:40"));
    press(window.window, 31, 41, "key alt+ctrl+bracketleft");
    EXPECT_TRUE(eventually([&] {
        window.checkEvent();
        return recorder.count("KeyPress") > 0 && recorder.events.back().find("KeyRelease") == 0;
    }));
    press(window.window, 32, 42, "key alt+shift+s");
    EXPECT_TRUE(wait("KeyPress S-Alt-Shft:32:42"));
    press(window.window, 33, 43, "keydown shift click 2 keyup shift");
    EXPECT_TRUE(wait("ButtonPress B2-P-Shft:33:43"));
    EXPECT_TRUE(wait("ButtonRelease B2-R-Shft"));
    press(window.window, 34, 44, "key Return");
    EXPECT_TRUE(wait("KeyPress Ret:34:44"));
    run("xdotool windowsize " + std::to_string(window.window) + " 260 120");
    EXPECT_TRUE(wait("Redraw 260:120"));
    EXPECT_EQ(recorder.count("Redraw"), 1);
    EXPECT_EQ(window.width, 260);
}

TEST_F(XWindowTest, AListenerMayCloseTheWindowAndTheOthersHearNoMore) {
    ASSERT_EQ(window.open(), 1);
    XWindow second;
    ASSERT_EQ(second.open(), 1);
    Recorder closer, after, other;
    closer.act = [&](const std::string&) { window.close(); };
    window.addCallback("AnyEvent", &closer, nullptr);
    window.addCallback("AnyEvent", &after, nullptr);
    second.addCallback("AnyEvent", &other, nullptr);
    XWindow::procCallback(window.window, XWindow::IDLE, "Idle", nullptr);
    EXPECT_EQ(closer.count("Idle"), 1);
    EXPECT_EQ(after.events.size(), 0u);
    EXPECT_EQ(XWindow::num_windows, 1);
    second.doCallback("QueryLoc", "1,2");
    EXPECT_EQ(other.count("QueryLoc 1,2"), 1) << "the other window keeps its listeners";
    second.close();
    EXPECT_EQ(XWindow::display, nullptr) << "closed with the last window";
    EXPECT_EQ(XWindow::callbackroot, nullptr);
}

TEST_F(XWindowTest, AnotherProgramDrawsIntoTheWindow) {
    writeHour(noon, {"KDEN", "KLIT"});
    window.setSize(640, 512);
    ASSERT_EQ(window.open(), 1);
    String text;
    window.getDevice(text);
    std::string device = text.get();
    ASSERT_EQ(device.back(), '\n');
    device.pop_back();
    EXPECT_EQ(device.find("d," + display_name + ",+"), 0u);

    {
        const auto tool = startTool({"-pd", "us", "-de", device});
        EXPECT_EQ(tool->wait(), 0) << tool->getText();
    }
    EXPECT_EQ(look(window.window).findMarks().size(), 2u) << "on the screen";
    window.clear();
    window.update();
    ASSERT_EQ(look(window.window).findMarks().size(), 0u);

    const auto tool =
        startTool({"-pd", "us", "-de", "w,wp=" + std::to_string(window.pixmap) + ":640x512:0"});
    EXPECT_EQ(tool->wait(), 0) << tool->getText();
    window.update(); // only the pixmap was drawn into
    EXPECT_EQ(look(window.window).findMarks().size(), 2u);
    char hex[40];
    std::snprintf(hex, sizeof hex, "w,wp=0x%lx:640x512:0", window.pixmap);
    const auto again = startTool({"-pd", "us", "-de", hex});
    EXPECT_EQ(again->wait(), 0) << again->getText();

    const auto nowhere = startTool({"-pd", "us", "-de", "w,wp=77:640x512:0"});
    EXPECT_EQ(nowhere->wait(), 4);
    EXPECT_NE(nowhere->getText().find("Window open: unable to open window\n"), std::string::npos);
}

TEST_F(XWindowTest, ErrorsOfTheServerAreToldAndCounted) {
    ASSERT_EQ(window.open(), 1);
    const int before = XWindow::num_errors;
    ::testing::internal::CaptureStderr();
    window.target = 1; // no drawable
    window.drawLine(line_context, 0, 0, 5, 5);
    window.update();
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "X11 error: BadDrawable (invalid Pixmap or Window parameter) in X_PolySegment\n");
    EXPECT_EQ(XWindow::num_errors, before + 1);
    window.target = window.pixmap;
}
