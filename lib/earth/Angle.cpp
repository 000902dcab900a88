#include "ORV/Angle.h"

#include <cmath>

namespace ORV {

int Angle::set(double radians) {
    val = radians;
    sin_val = std::sin(radians);
    cos_val = std::cos(radians);
    return 1;
}

} // namespace ORV
