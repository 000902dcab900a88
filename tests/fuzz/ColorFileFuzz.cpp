// A color table, and every color of it by index and name.
#include "ORV/ColorFile.h"
#include "ORV/Orv.h"

#include "MemoryFile.h"

#include <cstdlib>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static MemoryFile file("colors");
    Orv::setMessageLevel(0);
    ColorMap map(64);
    ColorFile::readFile(file.fill(bytes, size), map);
    if (map.num > map.max || map.num_fill > map.num)
        std::abort();
    for (int i = -2; i < map.num + 2; i++) {
        RGB color;
        int red, grn, blu;
        map.get(i, color);
        map.getIRGB(i, red, grn, blu);
        map.getValue(map.getName(i));
        if (red > 255 || grn > 255 || blu > 255)
            std::abort();
    }
    return 0;
}
