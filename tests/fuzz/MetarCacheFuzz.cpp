// A METAR cache, plain or packed: every row and the report that it makes.
#include "ORV/MetarCache.h"
#include "ORV/MetarReport.h"
#include "ORV/SfcData.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const int fd = memfd_create("cache", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(fd);
    if (ftruncate(fd, 0) != 0 || pwrite(fd, bytes, size, 0) != static_cast<ssize_t>(size))
        return 0;

    MetarCache cache;
    cache.open(path.c_str());
    MetarReport report, before;
    while (cache.read()) {
        if (report.decode(cache) != MetarReport::GOOD)
            continue;
        const long distance = report.data.getSeconds() - report.getHourSeconds();
        if (distance < -600 || distance >= 3000)
            std::abort();
        report.isBetter(before);
        before = report;
    }
    return 0;
}
