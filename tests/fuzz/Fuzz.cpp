#include "Fuzz.h"

#include "TempDir.h"
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

void expect(bool good) {
    if (!good)
        std::abort();
}

const char* makeFile(const std::string& content) {
    static const int fd = memfd_create("fuzz", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(fd);
    expect(ftruncate(fd, 0) == 0);
    expect(pwrite(fd, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()));
    return path.c_str();
}

void makeDatabase(const std::string& name, const std::string& content) {
    static const TempDir folder;
    ORV::Orv::setDatabasePath(folder.path.c_str());
    folder.write(name, content);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    ORV::Orv::setMessageLevel(0);
    fuzz(std::string(reinterpret_cast<const char*>(bytes), size));
    return 0;
}
