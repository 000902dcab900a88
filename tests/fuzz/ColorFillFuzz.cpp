// A color fill, as the text of a setting and as a file, with values looked up in it.
#include "ORV/ColorFill.h"

#include "Fuzz.h"

using namespace ORV;

namespace {
void look(const ColorFill& fill) {
    for (const float v : {-1e30f, -9999.0f, -5.5f, 0.0f, 0.1f, 7.0f, 1e30f}) {
        const int ind = fill.getInd(v);
        expect(ind < fill.num || ind == 0);
        fill.get(v);
        fill.getColor(v);
    }
}
} // namespace

void fuzz(const std::string& text) {
    Orv::setDatabasePath("/nowhere");
    ColorMap map(64);
    map.add("red", 1, 0, 0);
    map.add("blue", 0, 0, 1);
    const bool is_path = text.find('/') != std::string::npos || text.find_first_of("-|~") == 0 ||
                         text.find("std") == 0;
    if (!is_path) {
        ColorFill fill(map, text.c_str());
        look(fill);
        fill.setBase(fill.getValue(0));
        fill.setInterval(fill.getValue(1));
        fill.setValues(nullptr, 0);
        look(fill);
    }
    ColorFill from_file;
    from_file.set(map, makeFile(text));
    look(from_file);
}
