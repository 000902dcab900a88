#pragma once

#include "ORV/Const.h"

#include <cstdio>

namespace ORV {

/// One cloud layer of a surface report.
///
/// The codes of `cover`: '0' to '8' eighths of the sky and '9' obscured, as a synoptic report gives
/// them; 'C' clear, 'F' few, 'S' scattered, 'B' broken, 'O' overcast, 'X' obscured, as an aviation
/// report does; 's', 'b', 'o', 'x' the thin and partial forms of these; a blank: not reported.
class CloudLayer {
public:
    char cover = '\0';          ///< sky-cover code
    float height = Const::MISS; ///< base in feet above ground (of 'X' the vertical visibility)

    int init() {
        *this = CloudLayer();
        return 1;
    }
    int print() const {
        std::printf("Cov: %c Hgt: %.0f\n", cover, height);
        return 1;
    }
};

} // namespace ORV
