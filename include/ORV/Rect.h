#pragma once

#include "ORV/Const.h"

#include <algorithm>

namespace ORV {

/// A rectangle by its corners. All four are Const::MISS until set.
class Rect {
public:
    float xmin = Const::MISS;
    float ymin = Const::MISS;
    float xmax = Const::MISS;
    float ymax = Const::MISS;

    Rect() = default;
    Rect(float x1, float y1, float x2, float y2) { set(x1, y1, x2, y2); }

    int init() { return setu(Const::MISS, Const::MISS, Const::MISS, Const::MISS); }
    /// Takes two opposite corners in either order and sorts them.
    int set(float x1, float y1, float x2, float y2) {
        return setu(std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2));
    }
    /// Stores the corners as they come.
    int setu(float x1, float y1, float x2, float y2) {
        xmin = x1;
        ymin = y1;
        xmax = x2;
        ymax = y2;
        return 1;
    }
};

} // namespace ORV
