#pragma once

#include "ORV/OwnedArray.h"
#include "ORV/Point.h"
#include "ORV/Points.h"

namespace ORV {

/// A curve through a list of points. Type 0: straight pieces over arc length; 1: y as a natural
/// cubic spline of x, which must rise; 2: x and y as natural cubic splines of arc length. A list
/// whose last point repeats its first is a closed curve, smooth through its start (types 0 and 2).
class Spline {
public:
    int num = 0; ///< points stored: those given, without repeats of the point before; a closed
                 ///< curve has one more in front and one more behind
    int type = 2;
    OwnedArray<float> x;
    OwnedArray<float> y;
    OwnedArray<float> dist;  ///< arc length from the first stored point (types 0 and 2)
    OwnedArray<float> coef1; ///< second derivatives: of y (type 1), of x (type 2)
    OwnedArray<float> coef2; ///< second derivatives of y (type 2)
    int closed = 0;

    Spline() = default;
    Spline(const Points& points, int spline_type) { set(points, spline_type); }
    int set(const Points& points, int spline_type);

    /// y at x (type 1); missing for an empty spline.
    float getValue(float at) const;
    /// The point at arc length s from the start (types 0 and 2); missing for an empty spline.
    int getPoint(float s, Point& point) const;
    Point getPoint(float s) const;

    /// The total length; for type 1 the last x. 0 for an empty spline.
    float getDist() const;
    /// Arc length at stored point i, counted from the curve's start; missing outside.
    float getDist(int i) const;
    /// Arc length at the first stored point that equals this one; missing when none does.
    float getDist(const Point& point) const;

private:
    void store(const Points& points);
    OwnedArray<float> solve(const float* at, const float* values) const;
    float evaluate(float s, const float* at, const float* values, const float* coef) const;
};

} // namespace ORV
