#pragma once

#include "ORV/NumArray.h"

namespace ORV {

/// A growing list of floats.
class FloatArray : public NumArray<float> {
public:
    using NumArray::NumArray;
    using NumArray::set;

    /// Appends the numbers of a comma-separated text. An entry "start-end/step" stands for a series
    /// up to and with its end, as far as the array has 100000 values then; a step of 0, or one that
    /// leads away from the end, gives the start alone or nothing. An entry that is no number gives
    /// a missing value. Returns 0 for an empty text.
    int set(const char* text);
    /// Adds d to entry i, unless that is missing.
    int offset(int i, float d);
};

} // namespace ORV
