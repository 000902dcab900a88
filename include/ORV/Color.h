#pragma once

namespace ORV {

/// One named color of a ColorMap.
class Color {
public:
    char name[20] = "";
    float red = 0; ///< components, 0 to 1
    float grn = 0;
    float blu = 0;
    int value = -1; ///< the color value of the device; -1 until it is allocated
};

} // namespace ORV
