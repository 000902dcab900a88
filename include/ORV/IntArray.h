#pragma once

#include "ORV/NumArray.h"

namespace ORV {

/// A growing list of ints. Results that don't fit an int become the largest or smallest one.
class IntArray : public NumArray<int> {
public:
    using NumArray::NumArray;

    /// Adds d to entry i, unless that is missing.
    int offset(int i, int d);
    /// 0 for an empty list.
    int sum() const;
    /// 1 for an empty list.
    int product() const;
};

} // namespace ORV
