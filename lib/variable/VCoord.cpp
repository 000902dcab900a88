#include "ORV/VCoord.h"

#include "ORV/Orv.h"
#include "ORV/String.h"

#include "TextOut.h"

namespace ORV {

namespace {

constexpr const char* place_name[] = {"sfc", "frz", "lcl", "mwnd", "trop"};
constexpr const char* value_unit[] = {"mb", "m", "K"};

} // namespace

int VCoord::init() {
    *this = VCoord();
    return 1;
}

bool VCoord::equal(const VCoord& a, const VCoord& b) {
    return a.type == b.type && a.val == b.val;
}

int VCoord::print() const {
    Orv::print("VCoord: ");
    if (type >= 0 && type < 5)
        return Orv::print(place_name[type]);
    if (type < 5 || type > 7)
        return 1;
    String text;
    setText(text, "%.2f %s\n", val, value_unit[type - 5]);
    return Orv::print(text.get());
}

} // namespace ORV
