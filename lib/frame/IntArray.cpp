#include "ORV/IntArray.h"

#include <algorithm>
#include <limits>

namespace ORV {
namespace {
int narrow(long long value) {
    return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}
} // namespace

int IntArray::offset(int i, int d) {
    const int at = place(i);
    if (at >= 0 && vals[at] != Const::MISS)
        vals[at] = narrow(static_cast<long long>(vals[at]) + d);
    return at >= 0;
}

int IntArray::sum() const {
    long long total = 0;
    for (int i = 0; i < num; i++)
        total += vals[i];
    return narrow(total);
}

int IntArray::product() const {
    int total = 1;
    for (int i = 0; i < num; i++)
        total = narrow(static_cast<long long>(total) * vals[i]);
    return total;
}

} // namespace ORV
