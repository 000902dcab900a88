#pragma once

#include "TempDir.h"
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ORV {

/// A program that a test has started. Its output, of both kinds, goes to a file. It is ended with
/// the object.
class Process {
public:
    using Settings = std::vector<std::pair<std::string, std::string>>;

    Process(const std::vector<std::string>& command, const std::string& directory,
            const std::string& output, const Settings& environment);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Waits for the end; the exit status, 128 and the signal, or -1 when it goes on.
    int wait(double seconds = 20);
    bool isRunning();
    void kill(int signal) const;
    /// All that it has written so far.
    std::string getText() const;

    int pid = -1;

private:
    std::string file;
    int status = -1;
    bool ended = false;
};

/// What a window shows, row 0 on top, as 0xRRGGBB.
class Picture {
public:
    int width = 0;
    int height = 0;
    std::vector<unsigned> pixels;

    unsigned at(int x, int y) const { return pixels[std::size_t(y) * std::size_t(width) + x]; }
    int count(const std::function<bool(unsigned)>& wanted) const;
    /// The middles of the red marks, from left to right.
    std::vector<std::pair<double, double>> findMarks() const;
    bool operator==(const Picture& other) const { return pixels == other.pixels; }
};

inline bool isRed(unsigned pixel) {
    return (pixel >> 16) > 150 && (pixel >> 8 & 255) < 90 && (pixel & 255) < 90;
}
inline bool isBlack(unsigned pixel) {
    return (pixel & 0xffffff) == 0;
}

/// Waits until the condition holds; false when it doesn't in that time.
bool eventually(const std::function<bool()>& condition, double seconds = 15);
void pause(double seconds);

/// A virtual X server on a free display, an empty directory, and a person who looks at the screen,
/// moves the pointer, presses keys and buttons.
class XFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Starts the chart tool, with marks for stations and nothing else but the border; half past
    /// noon unless the environment tells otherwise.
    std::unique_ptr<Process> startTool(std::vector<std::string> options,
                                       const Process::Settings& environment = half_past_noon);
    /// The window of the tool, once it is there; 0 when it doesn't come.
    unsigned long findWindow(const char* title = "obschart");
    /// The window once its picture has this many marks and stays as it is.
    unsigned long waitForMarks(std::size_t marks);
    Picture look(unsigned long window);
    std::string getTitle(unsigned long window);
    /// The number of the frame that the title tells, -1 for none.
    int getShown(unsigned long window);
    /// Where the window's upper left corner is on the screen.
    std::pair<int, int> getPlace(unsigned long window);

    /// Presses a key or button, given as to xdotool, with the pointer at a place in the window.
    void press(unsigned long window, double x, double y, const std::string& what);
    void run(const std::string& command);
    /// Looks no more at the screen, before the server goes.
    void disconnect();

    /// Writes an hour file with a mark at each of these stations.
    void writeHour(long time, const std::vector<std::string>& stations);
    void writeReports(long time, const std::string& reports);

    static inline const Process::Settings half_past_noon = {{"orvcurtime", "202501271230"}};

    TempDir dir;
    std::string directory = dir.path;
    std::string display_name;
    std::unique_ptr<Process> server;
    void* display = nullptr;
};

constexpr long noon = 1737979200; // 12Z 27 JAN 2025
constexpr long hour = 3600;

} // namespace ORV
