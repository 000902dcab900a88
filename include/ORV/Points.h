#pragma once

#include "ORV/CoordList.h"
#include "ORV/Point.h"

namespace ORV {

/// A growing list of plot points. Their z isn't kept.
class Points : public CoordList<Points, Point, &Point::x, &Point::y> {
public:
    OwnedArray<float> x;
    OwnedArray<float> y;

    Points() : Points(25) {}
    explicit Points(int n) { init(n); }
    Points(const Points& other) : CoordList() { copy(other); }
    Points& operator=(const Points& other) {
        copy(other);
        return *this;
    }

    /// A coordinate of point i, missing outside 0 to num - 1.
    float getX(int i) const { return valueAt(x, i); }
    float getY(int i) const { return valueAt(y, i); }
    /// The same without a test of i.
    float getX1(int i) const { return x[i]; }
    float getY1(int i) const { return y[i]; }

    /// Whether the point lies inside the polygon of the list, whose edges run from each point to
    /// the next: it has to repeat its first point at the end. An edge holds its end in y, not its
    /// start. A polygon of fewer than two points holds nothing.
    bool within(const Point& point) const;
    /// A point inside the polygon, on the middle line across the narrower way of its bounding box.
    /// Returns 0, and a missing point, for fewer than three points.
    int getCenter(Point& out) const;
    /// The mean of the points, without those that repeat the first one. (0,0) for an empty list.
    int getCentroid(Point& out) const;

    static int nextRoom(int room) { return static_cast<int>(room * 1.5); }
    OwnedArray<float>& first() { return x; }
    OwnedArray<float>& second() { return y; }
    const OwnedArray<float>& first() const { return x; }
    const OwnedArray<float>& second() const { return y; }
};

} // namespace ORV
