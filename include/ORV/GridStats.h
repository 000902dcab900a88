#pragma once

#include "ORV/Const.h"

namespace ORV {

/// Statistics of a grid's values at some points.
class GridStats {
public:
    float max = Const::MISS;
    float min = Const::MISS;
    float avg = 0; ///< mean of the values present; missing when there were none
    int num = 0;   ///< number of the values present
};

} // namespace ORV
