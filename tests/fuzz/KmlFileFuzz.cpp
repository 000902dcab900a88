// A KML document.
#include "ORV/KmlFile.h"

#include "MemoryFile.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static MemoryFile memory("kml");
    KmlFile file;
    KmlData data;
    std::size_t points = 0;
    for (file.open(memory.fill(bytes, size)); file.read(data);)
        for (int i = 0; i < data.points.getNum(); i++, points++)
            if (!std::isfinite(data.points.getLat1(i)) || !std::isfinite(data.points.getLon1(i)))
                std::abort();
    if (points > 2000 * size + 1) // packed bytes grow by 1000 at most
        std::abort();
    return 0;
}
