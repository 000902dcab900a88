#include "ORV/NameConv.h"
#include "ORV/Orv.h"

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

using namespace ORV;

namespace {
/// The folder of this process, removed at its end.
class Folder {
public:
    Folder()
        : path(std::filesystem::temp_directory_path() / ("orv_fuzz_" + std::to_string(getpid()))) {
        std::filesystem::create_directories(path);
        Orv::setMessageLevel(0);
        Orv::putResrc("file_path", path.c_str());
        setenv("orvcurtime", "200701121830", 1);
    }
    ~Folder() {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    }
    std::filesystem::path path;
};
} // namespace

/// Three lines: a request, a name, a pattern; the whole is a convention file as well.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const Folder folder;
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    if (text.find("http:") != std::string::npos)
        return 0; // nothing leaves this machine
    std::ofstream(folder.path / "name.cnv", std::ios::binary) << text;
    const std::size_t first = std::min(text.find('\n'), text.size());
    const std::size_t second = std::min(text.find('\n', first + 1), text.size());
    const std::string request = text.substr(0, first);
    const std::string name = text.substr(std::min(first + 1, text.size()), second - first);
    const std::string pattern = "@" + text.substr(std::min(second + 1, text.size()));

    for (const std::string& convention : {pattern, name, std::string("sfc_cvt")}) {
        NameConv conv;
        conv.setLateLimit(3);
        conv.setFixDate(name.c_str());
        conv.set(convention.c_str());
        conv.min_time = Const::MISS; // a search as long as the file asks for would take seconds
        NameConvFile result;
        conv.decode(name.c_str());
        conv.setFile(conv.date, result);
        if (request.find("#") == std::string::npos)
            conv.setLatest(request.c_str(), result);
    }
    return 0;
}
