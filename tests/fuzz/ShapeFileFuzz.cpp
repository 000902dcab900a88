// A shapefile, part by part.
#include "ORV/ShapeFile.h"

#include "MemoryFile.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static MemoryFile memory("shape");
    static ShapeFile file;
    static ShapeData data;
    std::size_t points = 0;
    for (file.open(memory.fill(bytes, size)); file.read(data);)
        for (int i = 0; i < data.points.getNum(); i++, points++)
            if (!std::isfinite(data.points.getLat1(i)) || !std::isfinite(data.points.getLon1(i)))
                std::abort();
    if (points * 16 > size)
        std::abort();
    return 0;
}
