#pragma once

#include "ORV/Const.h"
#include "ORV/OwnedArray.h"

#include <algorithm>
#include <limits>

namespace ORV {

/// A growing list of numbers, the common ground of FloatArray and IntArray. A negative index counts
/// from the end, except in set.
template <class T>
class NumArray {
public:
    int num = 0;        ///< values in use
    int max = 0;        ///< capacity
    int ind = 0;        ///< a cursor for the owner's use
    OwnedArray<T> vals; ///< the values

    NumArray() : NumArray(25) {}
    explicit NumArray(int n) { expand(n); }

    /// Appends a value; capacity grows by 10, or by an eighth when that is more.
    int add(T value) { return set(num, value); }
    /// Stores at i, growing to hold it; entries skipped by that are missing. A negative i fails.
    int set(int i, T value) {
        if (i < 0 || i >= max_size)
            return 0;
        if (i >= max)
            expand(std::max(i + 1, max + std::max(10, max / 8)));
        if (i >= num) {
            std::fill(vals + num, vals + i, static_cast<T>(Const::MISS));
            num = i + 1;
        }
        vals[i] = value;
        return 1;
    }
    /// The value at i, missing when there is none.
    T get(int i) const {
        T value;
        get(i, value);
        return value;
    }
    int get(int i, T& value) const {
        const int at = place(i);
        value = at < 0 ? static_cast<T>(Const::MISS) : vals[at];
        return at >= 0;
    }
    int getNum() const { return num; }
    int copy(const NumArray& other) {
        *this = other;
        return 1;
    }
    int clear() {
        num = ind = 0;
        return 1;
    }
    /// Makes the capacity at least n and keeps the values.
    int expand(int n) {
        if (n <= max)
            return 1;
        OwnedArray<T> wider(n);
        std::copy_n(static_cast<T*>(vals), num, static_cast<T*>(wider));
        vals = std::move(wider);
        max = n;
        return 1;
    }

protected:
    static constexpr int max_size = std::numeric_limits<int>::max() / 2;

    /// The index that i means, or -1 when it is out of range.
    int place(int i) const {
        const int at = i < 0 ? num + i : i;
        return at >= 0 && at < num ? at : -1;
    }
};

} // namespace ORV
