#include "ORV/Vect.h"

#include "ORV/Orv.h"

namespace ORV {

int Vect::set(float u, float v) {
    this->u = u;
    this->v = v;
    return 1;
}

int Vect::add(const Vect& other) {
    if (u == Const::MISS || other.u == Const::MISS)
        return 0;
    u += other.u;
    v += other.v;
    return 1;
}

int Vect::sub(const Vect& other) {
    if (u == Const::MISS || other.u == Const::MISS)
        return 0;
    u -= other.u;
    v -= other.v;
    return 1;
}

int Vect::scale(float factor) {
    if (u == Const::MISS || factor == Const::MISS)
        return 0;
    u *= factor;
    v *= factor;
    return 1;
}

int Vect::print() const {
    return Orv::outMessage("Vect: %f %f\n", u, v);
}

} // namespace ORV
