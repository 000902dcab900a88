#include "XFixture.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace ORV {
namespace {
double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

std::string readAll(const std::string& path) {
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

unsigned long findTitled(Display* display, ::Window top, const std::string& title) {
    char* name = nullptr;
    if (XFetchName(display, top, &name) && name) {
        const bool found = title == std::string(name).substr(0, title.size());
        XFree(name);
        if (found)
            return top;
    }
    ::Window root, parent, *children = nullptr;
    unsigned num = 0;
    unsigned long found = 0;
    if (XQueryTree(display, top, &root, &parent, &children, &num))
        for (unsigned i = 0; i < num && !found; i++)
            found = findTitled(display, children[i], title);
    if (children)
        XFree(children);
    return found;
}
} // namespace

Process::Process(const std::vector<std::string>& command, const std::string& directory,
                 const std::string& output, const Settings& environment)
    : file(output) {
    std::vector<char*> args;
    for (const std::string& word : command)
        args.push_back(const_cast<char*>(word.c_str()));
    args.push_back(nullptr);
    pid = fork();
    if (pid != 0)
        return;
    const int out = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const int in = ::open("/dev/null", O_RDONLY);
    dup2(in, 0);
    dup2(out, 1);
    dup2(out, 2);
    for (const auto& [name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
    if (chdir(directory.c_str()) == 0)
        execvp(args[0], args.data());
    _exit(127);
}

Process::~Process() {
    if (isRunning()) {
        kill(SIGTERM);
        if (wait(3) < 0) {
            kill(SIGKILL);
            wait(3);
        }
    }
}

bool Process::isRunning() {
    int result = 0;
    if (!ended && waitpid(pid, &result, WNOHANG) == pid) {
        ended = true;
        status = WIFEXITED(result) ? WEXITSTATUS(result) : 128 + WTERMSIG(result);
    }
    return !ended;
}

int Process::wait(double seconds) {
    eventually([this] { return !isRunning(); }, seconds);
    return status;
}

void Process::kill(int signal) const {
    if (!ended)
        ::kill(pid, signal);
}

std::string Process::getText() const {
    return readAll(file);
}

int Picture::count(const std::function<bool(unsigned)>& wanted) const {
    int n = 0;
    for (const unsigned pixel : pixels)
        n += wanted(pixel);
    return n;
}

std::vector<std::pair<double, double>> Picture::findMarks() const {
    constexpr int reach = 12; // pixels; marks are smaller than this, and further apart
    class Box {
    public:
        int x1, y1, x2, y2;
    };
    std::vector<Box> boxes;
    for (int x = 0; x < width; x++)
        for (int y = 0; y < height; y++) {
            if (!isRed(at(x, y)))
                continue;
            bool known = false;
            for (Box& box : boxes)
                if (std::abs(x - box.x1) < reach && std::abs(y - box.y1) < reach) {
                    box = {std::min(box.x1, x), std::min(box.y1, y), std::max(box.x2, x),
                           std::max(box.y2, y)};
                    known = true;
                    break;
                }
            if (!known)
                boxes.push_back({x, y, x, y});
        }
    std::vector<std::pair<double, double>> marks;
    for (const Box& box : boxes)
        marks.emplace_back((box.x1 + box.x2) / 2.0, (box.y1 + box.y2) / 2.0);
    return marks;
}

bool eventually(const std::function<bool()>& condition, double seconds) {
    const double end = now() + seconds;
    while (!condition()) {
        if (now() > end)
            return false;
        pause(0.01);
    }
    return true;
}

void pause(double seconds) {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

void XFixture::SetUp() {
    // The server picks a free display itself, and tells its number on this channel.
    const std::string told = directory + "/display";
    server = std::make_unique<Process>(
        std::vector<std::string>{
            "sh", "-c", "exec Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>" + told},
        directory, directory + "/server.log", Process::Settings{});
    ASSERT_TRUE(eventually([&] { return readAll(told).find('\n') != std::string::npos; }))
        << "no X server: " << server->getText();
    const std::string number = readAll(told);
    display_name = ":" + number.substr(0, number.find('\n'));
    setenv("DISPLAY", display_name.c_str(), 1);
    display = XOpenDisplay(display_name.c_str());
    ASSERT_NE(display, nullptr);
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; }); // windows come and go
}

void XFixture::disconnect() {
    if (display)
        XCloseDisplay(static_cast<Display*>(std::exchange(display, nullptr)));
}

void XFixture::TearDown() {
    disconnect();
    server.reset();
}

std::unique_ptr<Process> XFixture::startTool(std::vector<std::string> options,
                                             const Process::Settings& environment) {
    std::vector<std::string> command = {ORV_TOOL,    "-dp", ".",
                                        "-cp",       ".",   "-dr",
                                        "data,bord", "-va", "temp[C,cc,mk=square,red,sc=0.8]"};
    command.insert(command.end(), options.begin(), options.end());
    return std::make_unique<Process>(command, directory, directory + "/tool.log", environment);
}

unsigned long XFixture::findWindow(const char* title) {
    auto* const screen = static_cast<Display*>(display);
    unsigned long window = 0;
    eventually([&] {
        window = findTitled(screen, DefaultRootWindow(screen), title);
        XWindowAttributes now_is;
        return window && XGetWindowAttributes(screen, window, &now_is) &&
               now_is.map_state == IsViewable;
    });
    return window;
}

unsigned long XFixture::waitForMarks(std::size_t marks) {
    const unsigned long window = findWindow();
    const bool shown = eventually([&] { return look(window).findMarks().size() == marks; });
    EXPECT_TRUE(shown) << look(window).findMarks().size() << " marks";
    return window;
}

Picture XFixture::look(unsigned long window) {
    auto* const screen = static_cast<Display*>(display);
    Picture picture;
    XWindowAttributes size;
    if (!window || !XGetWindowAttributes(screen, window, &size))
        return picture;
    XImage* const image = XGetImage(screen, window, 0, 0, unsigned(size.width),
                                    unsigned(size.height), AllPlanes, ZPixmap);
    if (!image)
        return picture;
    picture.width = size.width;
    picture.height = size.height;
    for (int y = 0; y < size.height; y++)
        for (int x = 0; x < size.width; x++)
            picture.pixels.push_back(unsigned(XGetPixel(image, x, y)));
    XDestroyImage(image);
    return picture;
}

std::string XFixture::getTitle(unsigned long window) {
    char* name = nullptr;
    std::string title;
    if (XFetchName(static_cast<Display*>(display), window, &name) && name) {
        title = name;
        XFree(name);
    }
    return title;
}

std::pair<int, int> XFixture::getPlace(unsigned long window) {
    auto* const screen = static_cast<Display*>(display);
    int x = 0, y = 0;
    ::Window child;
    XTranslateCoordinates(screen, window, DefaultRootWindow(screen), 0, 0, &x, &y, &child);
    return {x, y};
}

void XFixture::run(const std::string& command) {
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
}

void XFixture::press(unsigned long window, double x, double y, const std::string& what) {
    const auto [left, top] = getPlace(window);
    run("xdotool mousemove " + std::to_string(left + std::lround(x)) + " " +
        std::to_string(top + std::lround(y)) + " " + what);
}

int XFixture::getShown(unsigned long window) {
    int frame = -1;
    std::sscanf(getTitle(window).c_str(), "%*[^[][%d]", &frame);
    return frame;
}

void XFixture::writeHour(long time, const std::vector<std::string>& stations) {
    std::string reports;
    for (const std::string& station : stations)
        reports += station + " 320 280 1107 2 -99 7.0 15S - @2149 $\n";
    writeReports(time, reports);
}

void XFixture::writeReports(long time, const std::string& reports) {
    const std::time_t seconds = time;
    std::tm utc = {};
    gmtime_r(&seconds, &utc);
    char name[40], header[40];
    std::strftime(name, sizeof name, "/%Y%m%d%H_sfc.cvt", &utc);
    std::strftime(header, sizeof header, "ORVSFC\n%HZ %d %b %y\n", &utc);
    // Written aside and moved into place, as a feed of data does it.
    std::filesystem::rename(dir.write("part", header + reports), directory + name);
}

} // namespace ORV
