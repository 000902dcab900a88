#pragma once

#include "ORV/Const.h"

namespace ORV {

/// An angle in radians with its sine and cosine, worked out once. Const::MISS until set.
class Angle {
public:
    double val = Const::MISS;
    double sin_val = Const::MISS;
    double cos_val = Const::MISS;

    Angle() = default;
    explicit Angle(double radians) { set(radians); }

    int init() {
        *this = Angle();
        return 1;
    }
    int set(double radians);
};

} // namespace ORV
