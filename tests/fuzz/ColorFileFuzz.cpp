// A color table, and every color of it by index and name.
#include "ORV/ColorFile.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& bytes) {
    ColorMap map(64);
    ColorFile::readFile(makeFile(bytes), map);
    expect(map.num <= map.max && map.num_fill <= map.num);
    for (int i = -2; i < map.num + 2; i++) {
        RGB color;
        int red, grn, blu;
        map.get(i, color);
        map.getIRGB(i, red, grn, blu);
        map.getValue(map.getName(i));
        expect(red <= 255 && grn <= 255 && blu <= 255);
    }
}
