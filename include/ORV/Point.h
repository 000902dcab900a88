#pragma once

#include "ORV/Const.h"

namespace ORV {

/// A point in plot coordinates, what a Domain projects to: units of 100 km on map projections,
/// degrees on latitude-longitude domains. A coordinate not known is Const::MISS.
class Point {
public:
    float x = Const::MISS;
    float y = Const::MISS;
    float z = Const::MISS;

    Point() = default;
    Point(float px, float py) : x(px), y(py) {}
    Point(float px, float py, float pz) : x(px), y(py), z(pz) {}

    int init() { return set(Const::MISS, Const::MISS, Const::MISS); }
    /// z stays as it was.
    int set(float px, float py) {
        x = px;
        y = py;
        return 1;
    }
    int set(float px, float py, float pz) {
        z = pz;
        return set(px, py);
    }
    int set(const Point& point) {
        *this = point;
        return 1;
    }
    int offset(float dx, float dy) { return set(x + dx, y + dy); }
    float getX() const { return x; }
    float getY() const { return y; }

    /// The point at fraction f of the way from a to b; its z is missing.
    static Point interp(const Point& a, const Point& b, float f) {
        return Point((b.x - a.x) * f + a.x, (b.y - a.y) * f + a.y);
    }
};

} // namespace ORV
