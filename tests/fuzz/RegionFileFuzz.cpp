#include "ORV/DomainTool.h"
#include "ORV/DomainVal.h"
#include "ORV/Orv.h"
#include "ORV/Region.h"
#include "ORV/String.h"

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace ORV;

namespace {
// A database directory of this process, for the region file.
class Folder {
public:
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("orv_region_fuzz." + std::to_string(getpid()));

    Folder() {
        std::filesystem::create_directories(path);
        Orv::setMessageLevel(0);
        Orv::setDatabasePath(path.c_str());
        Orv::putResrc("city_file", "none");
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const Folder folder;
    std::ofstream(folder.path / "orv.reg", std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    String text;
    Region::get(nullptr, nullptr, text);
    Region::get(nullptr, "us", text);
    if (text.length() > 79)
        std::abort();
    DomainVal val;
    DomainTool::decode(val, "orv.reg:a");
    return 0;
}
