#include "ORV/Spline.h"

#include "ORV/Const.h"

#include <algorithm>
#include <cmath>

namespace ORV {

int Spline::set(const Points& points, int spline_type) {
    *this = Spline();
    type = spline_type;
    store(points);
    if (num == 0)
        return 0;
    if (type == 1) {
        coef1 = solve(x, y);
        return 1;
    }
    dist = OwnedArray<float>(num);
    for (int i = 1; i < num; i++)
        dist[i] = dist[i - 1] + std::hypot(x[i] - x[i - 1], y[i] - y[i - 1]);
    if (type == 2) {
        coef1 = solve(dist, x);
        coef2 = solve(dist, y);
    }
    return 1;
}

void Spline::store(const Points& points) {
    if (points.num == 0)
        return;
    Points kept(points.num + 2);
    for (int i = 0; i < points.num; i++)
        if (i == 0 || points.getX1(i) != points.getX1(i - 1) ||
            points.getY1(i) != points.getY1(i - 1))
            kept.add1(points.get(i));

    const Point first = kept.get(0), last = kept.get(-1);
    closed = points.num > 2 && kept.num > 2 && first.x == last.x && first.y == last.y;
    if (closed) {
        // The neighbours on the ring of the point at which the curve starts and ends.
        const Point second = kept.get(1);
        kept.insert(0, kept.get(-2));
        kept.add(second);
    }
    num = kept.num;
    x = kept.x;
    y = kept.y;
}

// The second derivatives of the natural cubic spline, by one sweep forward and one back over the
// tridiagonal system (Burden and Faires, Numerical Analysis).
OwnedArray<float> Spline::solve(const float* at, const float* values) const {
    OwnedArray<float> coef(num);
    OwnedArray<double> factor(num), rest(num);
    for (int i = 1; i < num - 1; i++) {
        const double before = double(at[i]) - at[i - 1];
        const double after = double(at[i + 1]) - at[i];
        if (!(before > 0) || !(after > 0))
            continue; // points so near that the length doesn't grow: straight there
        const double span = before + after;
        const double pivot = before * factor[i - 1] + 2 * span;
        const double slopes = (double(values[i + 1]) - values[i]) / after -
                              (double(values[i]) - values[i - 1]) / before;
        factor[i] = -after / pivot;
        rest[i] = (6 * slopes - before * rest[i - 1]) / pivot;
    }
    for (int i = num - 2; i > 0; i--)
        coef[i] = static_cast<float>(factor[i] * coef[i + 1] + rest[i]);
    return coef;
}

float Spline::evaluate(float s, const float* at, const float* values, const float* coef) const {
    if (num == 0)
        return Const::MISS;
    if (num == 1)
        return values[0];
    const int i =
        std::clamp(static_cast<int>(std::upper_bound(at, at + num, s) - at) - 1, 0, num - 2);
    const double h = double(at[i + 1]) - at[i];
    if (h == 0)
        return values[i];
    const double d = double(s) - at[i];
    double slope = (double(values[i + 1]) - values[i]) / h;
    if (coef)
        slope += d * ((double(coef[i + 1]) - coef[i]) * d / (6 * h) + coef[i] / 2.0) -
                 (2.0 * coef[i] + coef[i + 1]) * h / 6;
    return static_cast<float>(values[i] + d * slope);
}

float Spline::getValue(float at) const {
    return evaluate(at, x, y, coef1);
}

int Spline::getPoint(float s, Point& point) const {
    point.init();
    if (num == 0 || type == 1)
        return 0;
    const float from_start = closed ? s + dist[1] : s;
    return point.set(evaluate(from_start, dist, x, coef1), evaluate(from_start, dist, y, coef2));
}

Point Spline::getPoint(float s) const {
    Point point;
    getPoint(s, point);
    return point;
}

float Spline::getDist() const {
    if (num == 0)
        return 0;
    if (type == 1)
        return x[num - 1];
    return closed ? dist[num - 2] - dist[1] : dist[num - 1];
}

float Spline::getDist(int i) const {
    const int at = closed ? i + 1 : i;
    if (i < 0 || at >= num || type == 1)
        return Const::MISS;
    return closed ? dist[at] - dist[1] : dist[at];
}

float Spline::getDist(const Point& point) const {
    const int from = closed ? 1 : 0;
    for (int i = from; i < num; i++)
        if (x[i] == point.x && y[i] == point.y)
            return getDist(i - from);
    return Const::MISS;
}

} // namespace ORV
