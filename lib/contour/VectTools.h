#pragma once

#include <algorithm>

namespace ORV {

class VectTools {
public:
    VectTools() = delete;

    /// A factor as users set it: 1 for one that is missing or not above 0.
    static float asFactor(float scale, float most) { return scale > 0 ? std::min(scale, most) : 1; }
};

} // namespace ORV
