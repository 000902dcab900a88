#include "ORV/Orv.h"
#include "ORV/ResrcFile.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const int fd = memfd_create("resources", 0);
    if (fd < 0 || write(fd, bytes, size) < 0)
        return 0;
    Orv::setMessageLevel(0);
    Orv::putResrc("prog", "obschart");
    Orv::putResrc("name", "+night");
    ResrcFile file(Orv::resrc);
    file.setTag("night");
    const std::string path = "/proc/self/fd/" + std::to_string(fd);
    String key, value;
    // Twice: the state of the conditions lives on.
    for (int i = 0; i < 2; i++) {
        file.open(path.c_str());
        while (file.get(key, value) == 1) {
            file.compare(value.get(), key.get());
            file.compare("color_map", key.get());
            file.valid(key.get());
        }
        file.close();
    }
    close(fd);
    return 0;
}
