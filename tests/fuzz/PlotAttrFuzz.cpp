// An attribute text, with the names in it looked up.
#include "ORV/ColorMap.h"
#include "ORV/PlotAttr.h"

#include "Fuzz.h"

#include <cstring>

using namespace ORV;

void fuzz(const std::string& text) {
    PlotAttr attr(text.c_str(), "red:wi=2");
    expect(std::strlen(attr.color) < sizeof attr.color);
    expect(std::strlen(attr.font) < sizeof attr.font);
    attr.update(PlotAttr(text.c_str()));
    PlotAttr::parseFillStyle(text.c_str());
    const int mark = PlotAttr::parseMarker(text.c_str());
    expect(mark >= 1 && mark <= 10);
    ColorMap map(4);
    map.getValue(attr.getColor());
    map.getValue(text.c_str());
}
