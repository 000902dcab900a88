// Loops of full charts: real hours, with station models on the map.
#include "XFixture.h"
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace ORV;

namespace {
constexpr const char* cache = ORV_SHARED_DATA "/metars-20250127-2225.csv";
constexpr double patience = 90; // seconds for many charts under the sanitizers

class WindowCharts : public XFixture {
protected:
    std::unique_ptr<Process> startCharts(const char* hours, const char* now) {
        return startTool(
            {"-dr", "all", "-va", "station", "-pd", "oklahoma", "-nh", hours, "-de", "w,show_num"},
            {{"orvcurtime", now}});
    }
    // Processor time that a process took, in seconds, and the memory that it holds, in pages.
    static double getSeconds(int pid) {
        std::ifstream in("/proc/" + std::to_string(pid) + "/stat");
        std::string word;
        double ticks = 0;
        for (int i = 1; i <= 15 && in >> word; i++)
            if (i >= 14)
                ticks += std::atof(word.c_str());
        return ticks / sysconf(_SC_CLK_TCK);
    }
    static long getPages(int pid) {
        std::ifstream in("/proc/" + std::to_string(pid) + "/statm");
        long total = 0, resident = 0;
        in >> total >> resident;
        return resident;
    }
};
} // namespace

TEST_F(WindowCharts, TwoRealHoursAlternate) {
    if (!std::filesystem::exists(cache))
        GTEST_SKIP() << "no " << cache;
    ASSERT_EQ(Process({ORV_IMPORTER, "-o", ".", cache}, directory, directory + "/import.log", {})
                  .wait(60),
              0);
    const auto tool = startCharts("1", "202501272230");
    const unsigned long window = findWindow();
    ASSERT_TRUE(eventually([&] { return getShown(window) == 1; }, patience));
    Picture frames[2];
    for (int round = 0; round < 2; round++)
        for (const int frame : {0, 1}) {
            Picture shown;
            ASSERT_TRUE(eventually([&] {
                shown = look(window);
                return getShown(window) == frame && look(window) == shown;
            }));
            if (round == 1) {
                EXPECT_TRUE(shown == frames[frame]) << "frame " << frame << " changed";
            }
            frames[frame] = shown;
        }
    EXPECT_FALSE(frames[0] == frames[1]);
    EXPECT_GT(frames[1].count(isRed), 20) << "temperatures of the stations";
    EXPECT_GT(frames[1].count(isRed), frames[0].count(isRed)) << "the second hour has more reports";
}

TEST_F(WindowCharts, LoopOfADayStepsWithoutDrawing) {
    std::ifstream example(ORV_DATA "/../examples/2025012722_sfc.cvt");
    std::string reports;
    std::getline(example, reports); // the first line and the date
    std::getline(example, reports);
    std::getline(example, reports, '\0');
    for (int i = 0; i < 24; i++)
        writeReports(noon - i * hour, reports);
    const auto tool = startCharts("23", "202501271230");
    const unsigned long window = findWindow();
    ASSERT_TRUE(eventually([&] { return getShown(window) == 23; }, patience));
    // The first step tells that the last chart is done.
    ASSERT_TRUE(eventually([&] { return getShown(window) == 0; }, patience));
    const double drawing = getSeconds(tool->pid);
    const long pages = getPages(tool->pid);
    pause(4);
    EXPECT_TRUE(eventually([&] { return getShown(window) > 3; })) << "the loop stands";
    // Some eight steps; with drawing they would take a third of what the day took.
    EXPECT_LT(getSeconds(tool->pid) - drawing, 0.1 + drawing / 8);
    EXPECT_LT(getPages(tool->pid) - pages, 1000);
}
