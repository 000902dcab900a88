#pragma once

#include "ORV/Const.h"
#include "ORV/Vect.h"

namespace ORV {

/// A wind: the direction that it blows from, in degrees clockwise from north, and its speed, in the
/// caller's unit. Either is Const::MISS while it isn't known. A negative speed is a convention of
/// WindPlot::drawBarb: the barbs fall on the other side of the staff, as south of the equator.
class Wind {
public:
    float dir = Const::MISS;
    float spd = Const::MISS;

    Wind() = default;
    Wind(float dir, float spd) : dir(dir), spd(spd) {}

    int init() { return set(Const::MISS, Const::MISS); }
    int set(float dir, float spd);

    /// Direction and speed of a vector. Returns 0, both missing, when a component is missing.
    int setVect(float u, float v);
    int set(const Vect& vect) { return setVect(vect.u, vect.v); }

    /// The components of the wind. With a direction or speed missing the first form leaves vect as
    /// it was and returns 0, the others give a missing vector.
    int toVect(Vect& vect) const;
    Vect toVect() const { return toVect(dir, spd); }
    static Vect toVect(float dir, float spd);

    /// Sets this wind to the one at pressure p, linear in the logarithm of pressure, from wind a at
    /// p1 and wind b at p2 (any one pressure unit). A wind without a direction gives way to the
    /// other. A pressure of 0 or below, or p1 equal to p2, gives a missing wind and 0.
    int interp(const Wind& a, const Wind& b, float p1, float p2, float p);

    /// Prints "Wind: dir spd" on standard output.
    int print() const;
};

} // namespace ORV
