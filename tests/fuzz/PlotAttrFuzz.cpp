// An attribute text, with the names in it looked up.
#include "ORV/ColorMap.h"
#include "ORV/Orv.h"
#include "ORV/PlotAttr.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    Orv::setMessageLevel(0);
    PlotAttr attr(text.c_str(), "red:wi=2");
    if (std::strlen(attr.color) >= sizeof attr.color || std::strlen(attr.font) >= sizeof attr.font)
        std::abort();
    PlotAttr other(text.c_str());
    attr.update(other);
    PlotAttr::parseFillStyle(text.c_str());
    const int mark = PlotAttr::parseMarker(text.c_str());
    if (mark < 1 || mark > 10)
        std::abort();
    ColorMap map(4);
    map.getValue(attr.getColor());
    map.getValue(text.c_str());
    return 0;
}
