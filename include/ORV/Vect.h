#pragma once

#include "ORV/Const.h"

namespace ORV {

/// A vector by its components, positive toward east (or right) and north (or up), in any one unit.
/// A component is Const::MISS while it isn't known.
class Vect {
public:
    float u = Const::MISS;
    float v = Const::MISS;

    Vect() = default;
    Vect(float u, float v) : u(u), v(v) {}

    int init() { return set(Const::MISS, Const::MISS); }
    int set(float u, float v);

    /// Adds or subtracts the other vector. Returns 0 and changes nothing when either u is missing.
    int add(const Vect& other);
    int sub(const Vect& other);

    /// Multiplies both components. Returns 0 and changes nothing when the factor or u is missing.
    int scale(float factor);

    /// Prints "Vect: u v" on standard output.
    int print() const;
};

} // namespace ORV
