// A map file in the native form, in either of its forms, read whole and passed over.
#include "ORV/MapOrvFile.h"

#include "Fuzz.h"

#include <cmath>

using namespace ORV;

void fuzz(const std::string& bytes) {
    const char* path = makeFile(bytes);
    for (const int type : {MapOrvFile::FIND, MapOrvFile::BINARY, MapOrvFile::TEXT}) {
        MapOrvFile file;
        MapFileHeader header;
        EarthPoint point;
        int segments = 0;
        std::size_t points = 0;
        for (file.open(path, 0, type); file.readHeader(header); segments++)
            for (; file.readData(point); points++)
                expect(std::isfinite(point.lat) && std::isfinite(point.lon));
        expect(points <= bytes.size());
        file.rewind();
        for (; file.readHeader(header); segments--)
            file.skipData();
        expect(segments == 0);
    }
}
