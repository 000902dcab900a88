#include "ORV/Wind.h"

#include "ORV/Calc.h"
#include "ORV/Orv.h"

#include <cmath>

namespace ORV {

int Wind::set(float dir, float spd) {
    this->dir = dir;
    this->spd = spd;
    return 1;
}

int Wind::setVect(float u, float v) {
    init();
    if (u == Const::MISS || v == Const::MISS)
        return 0;
    spd = Calc::windSpd(u, v);
    dir = Calc::windDir(u, v);
    return 1;
}

int Wind::toVect(Vect& vect) const {
    if (dir == Const::MISS || spd == Const::MISS)
        return 0;
    vect = toVect(dir, spd);
    return 1;
}

Vect Wind::toVect(float dir, float spd) {
    if (dir == Const::MISS || spd == Const::MISS)
        return {};
    return {Calc::windU(dir, spd), Calc::windV(dir, spd)};
}

int Wind::interp(const Wind& a, const Wind& b, float p1, float p2, float p) {
    // The result may be one of the two given.
    const Wind first = a;
    const Wind second = b;
    init();
    if (p1 <= 0 || p2 <= 0 || p <= 0 || p1 == p2)
        return 0;
    if (first.dir == Const::MISS || second.dir == Const::MISS) {
        *this = first.dir == Const::MISS ? second : first;
        return 1;
    }
    const double f = std::log(p / p1) / std::log(p1 / p2);
    const Vect from = first.toVect();
    const Vect to = second.toVect();
    set(Vect(from.u - (to.u - from.u) * f, from.v - (to.v - from.v) * f));
    spd = first.spd - (second.spd - first.spd) * f;
    return 1;
}

int Wind::print() const {
    return Orv::outMessage("Wind: %f %f\n", dir, spd);
}

} // namespace ORV
