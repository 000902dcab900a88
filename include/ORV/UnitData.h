#pragma once

namespace ORV {

/// One conversion: (value * pre * mult + add) / post.
class UnitData {
public:
    char from[30] = ""; ///< the unit names as the caller wrote them
    char to[30] = "";
    char expr[40] = ""; ///< the conversion as the file has it, "*1.8+32"
    float mult = 1;
    float add = 0;
    float pre = 1;  ///< number in front of `from`, "100 ft"
    float post = 1; ///< number in front of `to`
    int found = 0;  ///< 1 when the file has this conversion
    int use = -1;   ///< stamp by which a slot is given up

    int init();
};

} // namespace ORV
