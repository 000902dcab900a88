#include "ORV/DomainVal.h"

#include <algorithm>
#include <iterator>

namespace ORV {

float DomainVal::getAspect() const {
    if (nx == Const::MISS || ny == Const::MISS || ny == 1)
        return Const::MISS;
    return (static_cast<float>(nx) - 1) / (static_cast<float>(ny) - 1);
}

int DomainVal::setParam(int i, float value) {
    if (i < 0 || i >= static_cast<int>(std::size(param)))
        return 0;
    param[i] = value;
    return 1;
}

bool DomainVal::compareProj(const DomainVal& a, const DomainVal& b) {
    return a.proj == b.proj && a.plat == b.plat && a.plon == b.plon && a.ellipse == b.ellipse &&
           std::equal(std::begin(a.param), std::end(a.param), std::begin(b.param));
}

bool DomainVal::compare(const DomainVal& a, const DomainVal& b) {
    return compareProj(a, b) && a.clat == b.clat && a.clon == b.clon && a.dx == b.dx &&
           a.dy == b.dy && a.nx == b.nx && a.ny == b.ny;
}

} // namespace ORV
