#include "LogoText.h"

#include "ORV/Scan.h"
#include "ORV/StrLib.h"

namespace ORV {
namespace {

class Place {
public:
    const char* name;
    int column;
    bool upper;
};
// Any other text, and none, is the lower right.
constexpr Place places[] = {
    {"ul", 0, true}, {"uc", 1, true}, {"ur", 2, true}, {"ll", 0, false}, {"lc", 1, false},
};

} // namespace

int LogoText::set(const char* text) {
    if (!StrLib::contains(text, ".gif") && !StrLib::contains(text, ".png"))
        return 0;
    const bool frame = StrLib::iequal(text, "if:", 3);
    tran = frame ? 0 : 1;
    if (frame || StrLib::iequal(text, "im:", 3))
        text += 3;

    const int end = StrLib::index(text, ':');
    name = end >= 0 ? std::string(text, end) : text;
    const char* rest = end >= 0 ? text + end : "";
    char where[20] = "";
    if (Scan::text(rest, ":%19[^:]:%f:%f", where, &dx, &dy) == 0)
        Scan::text(rest, "::%f:%f", &dx, &dy);
    for (const Place& place : places)
        if (StrLib::equal(where, place.name)) {
            column = place.column;
            upper = place.upper;
        }
    halign = column + 1;
    valign = upper ? 3 : 1;
    return 1;
}

Point LogoText::getAnchor(const Rect& window) const {
    const float x[] = {window.xmin, (window.xmin + window.xmax) / 2, window.xmax};
    return Point(x[column] + dx, (upper ? window.ymax : window.ymin) + dy);
}

} // namespace ORV
