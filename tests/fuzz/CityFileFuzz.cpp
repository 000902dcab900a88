// A city file: every record of the bytes, then the table of them with all its keys.
#include "ORV/CityFile.h"
#include "ORV/CityHash.h"
#include "ORV/Domain.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const int fd = memfd_create("city", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(fd);
    static const Domain domain("ll,40,-77,11,11,1,1");
    if (ftruncate(fd, 0) != 0 || pwrite(fd, bytes, size, 0) != static_cast<ssize_t>(size))
        return 0;

    CityFile file(path.c_str());
    CityData city;
    int count = 0;
    while (file.read(city))
        count++;

    CityHash table(path.c_str());
    if (table.getNum() > count)
        std::abort();
    for (const char* found = table.first(); found; found = table.hash.next()) {
        CityHashData data;
        table.get(reinterpret_cast<const CityHashData*>(found)->getId(), data);
    }
    table.setup(path.c_str(), domain, 8);
    return 0;
}
