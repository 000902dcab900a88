#include "ORV/Figure.h"

#include "ORV/Drawing.h"

#include "PlotFixture.h"

#include <ctime>
#include <set>

using namespace ORV;

namespace {

/// A drawing of hourly files, of which some may be absent, that tells what it is asked.
class FakeDrawing : public Drawing {
public:
    std::string log;
    std::set<long> absent; // hours since the base date without a file
    int loop = 1;
    int frames = 1;
    int sync = 0;
    Date base{2007, 1, 12, 18, 0, 0};
    Date selected;
    int drawn = 0;
    std::string panels; // in which it was drawn
    std::vector<float> map_left;

    int init() override { return 1; }
    int getDomain(Domain&) override { return 1; }
    int setFile() override { return 1; }
    int setInput(const char*) override { return 1; }
    int setNameConv(const char*) override { return 1; }
    int setFilename() override { return note("settings"); }
    int setFilename(const char* text) override { return note(std::string("text=") + text); }
    int setFilename(Date&) override { return 1; }
    int setFilename(Date& date, const char*) override {
        note(clock(date));
        const long hours = (date - base) / 3600;
        selected.set(date.getSeconds() - (date.getSeconds() % 3600));
        return absent.count(hours) == 0;
    }
    int setForeTime(const char* fore) override { return note(std::string("fore=") + fore); }
    int setParam(const char*) override { return 1; }
    int getDate(Date& date) override {
        date = selected;
        return 1;
    }
    int getLoopType() override { return loop; }
    int getInitDate(Date& date) override {
        date = base;
        return 1;
    }
    int getDateOffset() override { return 3600; }
    int getNumFrames() override { return frames; }
    int getSync() override { return sync; }
    int draw(Plot& plot) override {
        drawn++;
        panels += std::to_string(plot.cur_panel);
        map_left.push_back(plot.graph.getViewport(1).xmin);
        return note("draw");
    }
    int print() override { return 1; }

    std::string take() {
        std::string all;
        std::swap(all, log);
        return all;
    }

private:
    static std::string clock(const Date& date) {
        String text;
        date.toText("%H:%M", text);
        return text.get();
    }
    int note(const std::string& what) {
        log += what + " ";
        return 1;
    }
};

class FigureTest : public SettingsTest {
protected:
    FigureTest() { Orv::setMessageLevel("warn"); }

    Figure figure;
    FakeDrawing drawing;
    RecordingDevice* device = record(figure.plot.graph);

    void start(const char* param = "") {
        ASSERT_TRUE(figure.open(param));
        figure.startPlot(Domain("latlon:0:0,0,0,181,91,2,2"));
        figure.addDrawing(drawing);
        device->take();
    }
};

TEST_F(FigureTest, FramesWithoutDataAreLeftOut) {
    drawing.frames = 4;
    drawing.absent = {-2};
    start();
    figure.endPlot();
    EXPECT_EQ(drawing.drawn, 3);
    EXPECT_EQ(device->getNumFrames(), 3);

    // A redraw shows the same frames, also when there is just one of them.
    drawing.absent = {-3, -2, -1};
    figure.callback("Redraw", "800:600", nullptr);
    EXPECT_EQ(device->getNumFrames(), 1);
    figure.callback("KeyPress", "r-Alt:1:1", nullptr);
    EXPECT_EQ(device->getNumFrames(), 1);
    EXPECT_EQ(drawing.drawn, 5);
}

TEST_F(FigureTest, SyncDrawingSetsTheTimeBase) {
    FakeDrawing leader;
    leader.sync = 1;
    leader.frames = 2;
    leader.base.set(2007, 1, 13, 6, 0, 0);
    drawing.frames = 7;
    start();
    figure.addDrawing(leader);
    figure.endPlot();
    EXPECT_EQ(leader.take(), "settings 05:00 05:00 draw 06:00 06:00 draw ");
    EXPECT_EQ(drawing.take(), "05:00 draw 06:00 draw ");
}

TEST_F(FigureTest, CurrentIsADateOrAnAge) {
    const long now = std::time(nullptr);
    const struct {
        const char* text;
        long seconds; // behind now, or the time itself
    } rows[] = {
        {"200701121800", 1168624800},
        {"#20070112_18", 1168624800},
        {"6", 6 * 3600},
        {"1d06:30", 30 * 3600 + 1800},
        {"1:30", 5400},
        {"cu", 0},
        {"2d3", 51 * 3600},
    };
    for (const auto& row : rows) {
        Orv::putResrc("current", row.text);
        Figure other;
        other.endPlot();
        const long expected = row.seconds > 1000000000 ? row.seconds : now - row.seconds;
        EXPECT_NEAR(double(other.date.getSeconds()), double(expected), 5) << row.text;
    }
    Orv::putResrc("current", "la-1");
    start();
    figure.endPlot();
    EXPECT_EQ(figure.date.getSeconds(), drawing.base.getSeconds()) << "the drawing knows";
}

TEST_F(FigureTest, PanelsOfTheQueueAreRebuiltInEveryFrame) {
    drawing.frames = 2;
    start();
    figure.addPanel("2x1+1+0");
    figure.addDrawing(drawing);
    figure.endPlot();
    EXPECT_EQ(drawing.panels, "0101");
    EXPECT_EQ(drawing.map_left[0], drawing.map_left[2]);
    EXPECT_EQ(drawing.map_left[1], drawing.map_left[3]);
    EXPECT_GE(drawing.map_left[1], 0.5f);
}

// The map fills 800 by 460 pixels of the middle... its pixel scale follows from the view.
TEST_F(FigureTest, ZoomPanAndBack) {
    start();
    figure.endPlot();
    const auto pixel = [&](float lon, float lat) {
        const GTran& map = figure.plot.graph.tran[1];
        char text[40];
        std::snprintf(text, sizeof text, "%.0f:%.0f", map.windowToDeviceX(lon),
                      map.windowToDeviceY(lat));
        return std::string(text);
    };
    drawing.take();
    figure.callback("KeyPress", ("z-Alt:" + pixel(45, 30)).c_str(), nullptr);
    EXPECT_NEAR(figure.plot.getDomCLon(), 45, 0.3);
    EXPECT_NEAR(figure.plot.getDomCLat(), 30, 0.3);
    EXPECT_FLOAT_EQ(figure.plot.getDomDx(), 1);
    EXPECT_EQ(drawing.take(), "18:00 draw ");
    figure.callback("KeyPress", ("p-Alt:" + pixel(10, 20)).c_str(), nullptr);
    EXPECT_NEAR(figure.plot.getDomCLon(), 10, 0.3);
    EXPECT_FLOAT_EQ(figure.plot.getDomDx(), 1);
    figure.callback("KeyPress", ("Z-Alt-Shft:" + pixel(10, 20)).c_str(), nullptr);
    EXPECT_FLOAT_EQ(figure.plot.getDomDx(), 2);
    figure.callback("KeyPress", "u-Alt:1:1", nullptr);
    EXPECT_FLOAT_EQ(figure.plot.getDomCLon(), 0);
    drawing.take();
    for (const char* key : {"z-Alt", "z-Alt:", "Z-Alt-Shft", "p-Alt:99999:99999", "x", ""})
        figure.callback("KeyPress", key, nullptr);
    EXPECT_EQ(drawing.take(), "");
}

TEST_F(FigureTest, IdleBringsInNewData) {
    start("refresh=60");
    figure.endPlot();
    drawing.take();
    const time_t now = std::time(nullptr);
    figure.last_refresh = now;
    figure.callback("Idle", nullptr, nullptr);
    EXPECT_EQ(drawing.take(), "") << "not yet";

    figure.last_refresh = now - 61;
    figure.callback("Idle", nullptr, nullptr);
    EXPECT_EQ(drawing.drawn, 2);
    EXPECT_EQ(figure.last_refresh, now - 1);
    EXPECT_NEAR(double(figure.date.getSeconds()), double(now), 5);

    figure.last_refresh = now - 61;
    figure.callback("Idle", nullptr, nullptr);
    EXPECT_EQ(drawing.drawn, 2) << "the same file again";
}

} // namespace
