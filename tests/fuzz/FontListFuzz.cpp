// A font list and the device fonts in it, set on a graph whose texts are then drawn.
#include "ORV/Graph.h"
#include "ORV/Orv.h"

#include "../RecordingDevice.h"
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>

using namespace ORV;

namespace {
// A database directory of this process, for the font list.
class Folder {
public:
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("orv_font_fuzz." + std::to_string(getpid()));

    Folder() { std::filesystem::create_directories(path); }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const Folder folder;
    Orv::setMessageLevel(0);
    Orv::setDatabasePath(folder.path.c_str());
    std::ofstream(folder.path / "orv.fnl", std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    Graph graph;
    graph.setDevice(std::make_unique<RecordingDevice>(), 1);
    graph.open();
    graph.setFont("a");
    graph.setTextHeight(0.02f);
    graph.setFont(("#" + text).c_str());
    graph.setTextHeight(0.03f);
    graph.setTextAlign(2, 3);
    graph.drawText(0.1f, 0.1f, text.c_str());
    return 0;
}
