#pragma once

#include "ORV/Const.h"

namespace ORV {

/// The two ends of an interval of one quantity, in the units of that quantity.
/// An end is Const::MISS while it isn't known. The ends stay as given, in either order: a range of
/// pressures may run downward, as they do with height.
class Range {
public:
    float min = Const::MISS;
    float max = Const::MISS;

    int init() { return set(Const::MISS, Const::MISS); }
    int set(float first, float last) {
        min = first;
        max = last;
        return 1;
    }
    float getMin() const { return min; }
    float getMax() const { return max; }

    /// Returns max - min, or missing when either end is.
    float getRange() const {
        return min == Const::MISS || max == Const::MISS ? Const::MISS : max - min;
    }
};

} // namespace ORV
