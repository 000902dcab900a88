// A map file in the native form, in either of its forms, read whole and passed over.
#include "ORV/MapOrvFile.h"

#include "MemoryFile.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static MemoryFile memory("map");
    const char* path = memory.fill(bytes, size);
    for (const int type : {MapOrvFile::FIND, MapOrvFile::BINARY, MapOrvFile::TEXT}) {
        MapOrvFile file;
        MapFileHeader header;
        EarthPoint point;
        int segments = 0, points = 0;
        for (file.open(path, 0, type); file.readHeader(header); segments++)
            while (file.readData(point))
                points +=
                    std::isfinite(point.lat) && std::isfinite(point.lon) ? 1 : (std::abort(), 0);
        if (static_cast<std::size_t>(points) > size)
            std::abort();
        file.rewind();
        for (; file.readHeader(header); segments--)
            file.skipData();
        if (segments != 0)
            std::abort();
    }
    return 0;
}
