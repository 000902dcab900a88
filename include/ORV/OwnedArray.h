#pragma once

#include <algorithm>
#include <memory>
#include <utility>

namespace ORV {

/// A fixed-length array owned by the record that holds it. It indexes, compares with nullptr and
/// converts to T* as the plain pointer would; copies are deep; empty means null.
template <class T>
class OwnedArray {
public:
    OwnedArray() = default;
    explicit OwnedArray(int n) : values(n > 0 ? new T[n]() : nullptr), count(std::max(n, 0)) {}
    OwnedArray(const OwnedArray& other) : OwnedArray(other.count) {
        std::copy_n(other.values.get(), count, values.get());
    }
    OwnedArray(OwnedArray&& other) noexcept { swap(other); }
    OwnedArray& operator=(OwnedArray other) noexcept {
        swap(other);
        return *this;
    }

    operator T*() const { return values.get(); }
    int size() const { return count; }

private:
    void swap(OwnedArray& other) noexcept {
        values.swap(other.values);
        std::swap(count, other.count);
    }

    std::unique_ptr<T[]> values;
    int count = 0;
};

} // namespace ORV
