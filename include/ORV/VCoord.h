#pragma once

#include "ORV/Const.h"

namespace ORV {

/// One vertical coordinate: a named place of the atmosphere, or a value of pressure, height or
/// potential temperature.
class VCoord {
public:
    int type = 5; ///< 0 surface, 1 freezing level, 2 lifted condensation level, 3 maximum wind,
                  ///< 4 tropopause, 5 pressure, 6 height, 7 potential temperature
    float val = Const::MISS; ///< mb, m or K for types 5, 6 and 7

    int init();
    /// Whether type and value both match.
    static bool equal(const VCoord& a, const VCoord& b);
    int print() const;
};

} // namespace ORV
