#pragma once

#include "ORV/Const.h"
#include "ORV/Point.h"
#include "ORV/Points.h"

#include <cmath>

namespace ORV {

/// What the sources of Plot share.
namespace PlotTools {

constexpr int map_tran = 1; ///< the graph's transform for projected drawing

/// Whether a context isn't drawn: its color index is negative, and not only unset.
inline bool isOff(int color_ind) {
    return color_ind < 0 && color_ind != Const::MISS;
}

/// Whether a point has no place; what isn't a number has none either.
inline bool isMissing(float x, float y) {
    return x == Const::MISS || y == Const::MISS || !std::isfinite(x) || !std::isfinite(y);
}
inline bool isMissing(const Point& point) {
    return isMissing(point.x, point.y);
}
inline bool isMissing(const Points& points, int i) {
    return isMissing(points.getX1(i), points.getY1(i));
}

/// The first missing point from start on, or the number of points.
inline int nextMissing(const Points& points, int start) {
    int i = start;
    while (i < points.num && !isMissing(points, i))
        i++;
    return i;
}

/// Replaces a list by n points of another. Unlike Points::copy it keeps the room, so that a list
/// used again and again isn't made anew.
void copyPart(const Points& from, int start, int n, Points& to);

} // namespace PlotTools

} // namespace ORV
