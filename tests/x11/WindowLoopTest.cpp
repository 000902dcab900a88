// Loops over hours, and hours that arrive while the window is open, on the real tool.
#include "XFixture.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <map>

using namespace ORV;

namespace {
using Marks = std::vector<std::pair<double, double>>;

class WindowLoop : public XFixture {
protected:
    // One mark an hour, each further east.
    void writeThreeHours() {
        writeHour(noon - 2 * hour, {"KDEN"});
        writeHour(noon - hour, {"KLIT"});
        writeHour(noon, {"KATL"});
    }

    std::unique_ptr<Process> startLoop(std::vector<std::string> options = {}) {
        options.insert(options.end(), {"-pd", "us", "-nh", "3", "-de", "w,show_num"});
        return startTool(options);
    }

    bool waitShown(unsigned long window, int frame) {
        return eventually([&] { return getShown(window) == frame; });
    }

    unsigned long waitForLoop() {
        const unsigned long window = findWindow();
        EXPECT_TRUE(eventually([&] { return getShown(window) == 2; }));
        return window;
    }

    // Stops the loop and sets the third frame.
    void stopAt(unsigned long window, int frame) {
        press(window, 300, 300, "click 2");
        pause(0.4);
        for (int i = 0; i < 3 && getShown(window) != frame; i++) {
            const int before = getShown(window);
            press(window, 300, 300, "click 3");
            eventually([&] { return getShown(window) != before; });
        }
        ASSERT_EQ(getShown(window), frame);
    }
};
} // namespace

TEST_F(WindowLoop, FramesComeInTheOrderOfTimeAndTheLastOneStays) {
    writeThreeHours();
    const auto tool = startLoop();
    const unsigned long window = waitForLoop();

    // Watches two rounds: how long each frame stays, and where its mark is.
    using Clock = std::chrono::steady_clock;
    std::vector<std::pair<int, double>> stays;
    std::map<int, Marks> marks;
    int shown = getShown(window);
    auto since = Clock::now();
    ASSERT_TRUE(eventually([&] {
        if (const int now_shown = getShown(window); now_shown != shown) {
            stays.emplace_back(shown, std::chrono::duration<double>(Clock::now() - since).count());
            shown = now_shown;
            since = Clock::now();
            pause(0.05);
            marks[shown] = look(window).findMarks();
        }
        return stays.size() > 7;
    }));
    std::map<int, double> longest, shortest;
    for (std::size_t i = 1; i < stays.size(); i++) {
        EXPECT_EQ(stays[i].first, (stays[i - 1].first + 1) % 3);
        const auto [frame, secs] = stays[i];
        longest[frame] = std::max(longest[frame], secs);
        shortest[frame] = shortest.count(frame) ? std::min(shortest[frame], secs) : secs;
    }
    for (const int frame : {0, 1}) {
        EXPECT_GT(shortest[frame], 0.4);
        EXPECT_LT(shortest[frame], 0.75);
    }
    EXPECT_GT(shortest[2], 0.85);
    EXPECT_LT(shortest[2], 1.4);

    for (const int frame : {0, 1, 2})
        ASSERT_EQ(marks[frame].size(), 1u);
    EXPECT_LT(marks[0][0].first, marks[1][0].first);
    EXPECT_LT(marks[1][0].first, marks[2][0].first);
}

TEST_F(WindowLoop, ButtonsAndKeysStepStopDeleteAndChangeTheSpeed) {
    writeThreeHours();
    const auto tool = startLoop();
    const unsigned long window = waitForLoop();
    stopAt(window, 2);
    const Picture last = look(window);
    pause(1.3);
    EXPECT_EQ(getShown(window), 2) << "goes on after the stop";

    press(window, 300, 300, "click 3"); // round to the first
    ASSERT_TRUE(waitShown(window, 0));
    press(window, 300, 300, "key alt+bracketright");
    ASSERT_TRUE(waitShown(window, 1));
    press(window, 300, 300, "click 1");
    ASSERT_TRUE(waitShown(window, 0));
    press(window, 300, 300, "key alt+bracketleft"); // and back to the last
    ASSERT_TRUE(waitShown(window, 2));
    EXPECT_TRUE(eventually([&] { return look(window) == last; }));

    press(window, 300, 300, "key alt+d"); // deletes the last: the second is the last now
    ASSERT_TRUE(waitShown(window, 1));
    press(window, 300, 300, "click 3");
    ASSERT_TRUE(waitShown(window, 0)) << "two frames are left";

    // Five steps slower: each frame but the last stays a second.
    press(window, 300, 300, "key alt+l");
    ASSERT_TRUE(waitShown(window, 1));
    for (int i = 0; i < 5; i++)
        press(window, 300, 300, "click 1");
    ASSERT_TRUE(waitShown(window, 0));
    pause(0.75);
    EXPECT_EQ(getShown(window), 0);
    ASSERT_TRUE(waitShown(window, 1));

    press(window, 300, 300, "key alt+l");
    pause(0.3);
    press(window, 300, 300, "key alt+d");
    press(window, 300, 300, "key alt+d");
    EXPECT_TRUE(eventually([&] {
        const Picture empty = look(window);
        return empty.count([&](unsigned p) { return p != empty.pixels[0]; }) == 0;
    })) << "the window is empty after its last frame";
    press(window, 300, 300, "key Return");
    EXPECT_EQ(tool->wait(), 0) << tool->getText();
}

TEST_F(WindowLoop, ANewHourComesInByItself) {
    const long now = std::time(nullptr) / hour * hour;
    writeHour(now - 2 * hour, {"KDEN"});
    writeHour(now - hour, {"KDEN"});
    const auto tool = startTool({"-pd", "us", "-pa", "ref=2"}, {});
    const unsigned long window = waitForMarks(1);
    const Picture before = look(window);
    pause(2.5);
    EXPECT_TRUE(look(window) == before) << "nothing new has come";
    writeHour(now, {"KDEN", "KLIT", "KMSP"});
    EXPECT_TRUE(eventually([&] { return look(window).findMarks().size() == 3; }))
        << tool->getText();
}

TEST_F(WindowLoop, ANewHourJoinsTheLoopAndTheOldestLeaves) {
    const long now = std::time(nullptr) / hour * hour;
    writeHour(now - 2 * hour, {"KDEN"});
    writeHour(now - hour, {"KDEN", "KLIT"});
    const auto tool = startTool({"-pd", "us", "-nh", "2", "-de", "w,show_num", "-pa", "ref=2"}, {});
    const unsigned long window = findWindow();
    ASSERT_TRUE(waitShown(window, 1));
    writeHour(now, {"KDEN", "KLIT", "KMSP"});
    std::map<int, std::size_t> marks;
    EXPECT_TRUE(eventually([&] {
        marks[getShown(window)] = look(window).findMarks().size();
        return marks[0] == 2 && marks[1] == 3;
    })) << marks[0]
        << " and " << marks[1];
    for (int i = 0; i < 30; i++) { // no third frame has come
        EXPECT_LT(getShown(window), 2);
        pause(0.1);
    }
}
