// The ways a window ends, or never begins, on the real tool.
#include "XFixture.h"

#include <csignal>
#include <cstdlib>
#include <fstream>

using namespace ORV;

namespace {
constexpr int no_graph = 4; // exit status

class WindowEnd : public XFixture {
protected:
    void SetUp() override {
        XFixture::SetUp();
        writeHour(noon, {"KDEN", "KLIT"});
    }

    // A small window manager, with keys that close a window and that cut its program off.
    void startManager() {
        std::ofstream(directory + "/twmrc") << "RandomPlacement\nNoGrabServer\n"
                                               "UsePPosition \"on\"\n"
                                               "\"F9\" = : window | frame : f.delete\n"
                                               "\"F10\" = : window | frame : f.destroy\n";
        manager =
            std::make_unique<Process>(std::vector<std::string>{"twm", "-f", directory + "/twmrc"},
                                      directory, directory + "/twm.log", Process::Settings{});
        pause(0.5);
        ASSERT_TRUE(manager->isRunning()) << manager->getText();
    }

    std::unique_ptr<Process> manager;
};

bool has(const std::string& text, const char* words) {
    return text.find(words) != std::string::npos;
}
} // namespace

TEST_F(WindowEnd, AKilledServerEndsTheRunWithItsWords) {
    const auto tool = startTool({"-pd", "us"});
    waitForMarks(2);
    disconnect();
    server->kill(SIGKILL);
    EXPECT_EQ(tool->wait(), no_graph);
    EXPECT_TRUE(has(tool->getText(), "X11 Disconnected\n")) << tool->getText();
}

TEST_F(WindowEnd, AServerKilledWhileAFullLoopIsDrawnEndsTheRunToo) {
    for (int i = 0; i < 12; i++)
        writeHour(noon - i * hour, {"KDEN", "KLIT", "KMSP", "KABQ"});
    const auto tool = startTool({"-pd", "us", "-nh", "12", "-dr", "all"});
    ASSERT_NE(findWindow(), 0u);
    disconnect();
    server->kill(SIGKILL);
    EXPECT_EQ(tool->wait(), no_graph);
    EXPECT_TRUE(has(tool->getText(), "X11 Disconnected\n")) << tool->getText();
}

TEST_F(WindowEnd, WithoutAServerOneLineNamesTheWayOut) {
    for (const std::string server_name : {":987", "", "localhost:987"}) {
        const auto tool = startTool({"-pd", "us"}, {{"DISPLAY", server_name}});
        EXPECT_EQ(tool->wait(), no_graph) << server_name;
        EXPECT_TRUE(has(tool->getText(), "XWindow: unable to connect to display\n"
                                         "obschart: no window can be opened; draw to a file with "
                                         "-de p,file.ps\n"))
            << tool->getText();
    }
}

TEST_F(WindowEnd, AWindowClosedByTheManagerEndsTheRunLikeReturn) {
    startManager();
    const auto tool = startTool({"-pd", "us"});
    const unsigned long window = waitForMarks(2);
    press(window, 300, 300, "key F9");
    EXPECT_EQ(tool->wait(), 0) << tool->getText();
    EXPECT_FALSE(has(tool->getText(), "Disconnected")) << tool->getText();
}

TEST_F(WindowEnd, APageIsDrawnWithoutLoadingTheLibraryOfTheWindow) {
    const auto tool =
        startTool({"-pd", "us", "-de", "p,page.ps"}, {{"LD_DEBUG", "files"}, half_past_noon[0]});
    EXPECT_EQ(tool->wait(), 0);
    const std::string text = tool->getText();
    EXPECT_TRUE(has(text, "calling init")) << "the loader tells nothing";
    EXPECT_FALSE(has(text, "libX11"));
}
