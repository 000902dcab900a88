#pragma once

#include "ORV/Const.h"

#include <cstdio>

namespace ORV {

/// A lifted condensation level.
class LclData {
public:
    float pres = Const::MISS; ///< mb
    float temp = Const::MISS; ///< K

    int init() {
        *this = LclData();
        return 1;
    }
    int print() const {
        std::printf("LCL: pres %.1f mb temp %.1f K\n", pres, temp);
        return 1;
    }
};

} // namespace ORV
