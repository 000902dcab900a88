#pragma once

#include "ORV/Const.h"

namespace ORV {

/// A place on a grid: column and row as real numbers, counted from 0 at the first grid point, the
/// upper left one. A coordinate not known is Const::MISS.
class GridPoint {
public:
    float gx = Const::MISS;
    float gy = Const::MISS;

    GridPoint() = default;
    GridPoint(float pgx, float pgy) : gx(pgx), gy(pgy) {}

    int init() { return set(Const::MISS, Const::MISS); }
    int set(float pgx, float pgy) {
        gx = pgx;
        gy = pgy;
        return 1;
    }
    int set(const GridPoint& point) {
        *this = point;
        return 1;
    }
    int offset(float dgx, float dgy) { return set(gx + dgx, gy + dgy); }
    float getGX() const { return gx; }
    float getGY() const { return gy; }
};

} // namespace ORV
