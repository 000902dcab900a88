#pragma once

#include "ORV/ColorFill.h"
#include "ORV/Range.h"

namespace ORV {

/// What the color bar of a plot shows and where it stands.
class ColorBar {
public:
    int type = 0; ///< 0: the colors of a fill.
    ColorFill fill;
    int mode = 1; ///< Kept for the users of the record; the bar's drawing doesn't read it.
    Range range;  ///< The values that the bar covers; unset: those that the caller gives.
    char locate[10] = "ll"; ///< Only "ll", below the lower left of the view, has a place.

    int init() {
        *this = ColorBar();
        return 1;
    }
    /// Takes "lo=place" and "ra=min:max" from a comma-separated text, and passes over the rest.
    int setParam(const char* param);
};

} // namespace ORV
