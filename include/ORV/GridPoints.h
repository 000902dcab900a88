#pragma once

#include "ORV/CoordList.h"
#include "ORV/GridPoint.h"
#include "ORV/Rect.h"

namespace ORV {

/// A growing list of grid points.
class GridPoints : public CoordList<GridPoints, GridPoint, &GridPoint::gx, &GridPoint::gy> {
public:
    OwnedArray<float> gx;
    OwnedArray<float> gy;

    GridPoints() : GridPoints(25) {}
    explicit GridPoints(int n) { init(n); }
    GridPoints(const GridPoints& other) : CoordList() { copy(other); }
    GridPoints& operator=(const GridPoints& other) {
        copy(other);
        return *this;
    }

    /// A coordinate of point i, missing outside 0 to num - 1.
    float getGX(int i) const { return valueAt(gx, i); }
    float getGY(int i) const { return valueAt(gy, i); }
    /// The same without a test of i.
    float getGX1(int i) const { return gx[i]; }
    float getGY1(int i) const { return gy[i]; }

    /// Whether the point lies inside the polygon of the list, whose edges run from each point to
    /// the next: it has to repeat its first point at the end. An edge holds its end in y, not its
    /// start. A polygon of fewer than two points holds nothing.
    bool within(const GridPoint& point) const;
    /// A point inside the polygon, on the middle line across the narrower way of its bounding box.
    /// Returns 0, and a missing point, for fewer than three points.
    int getCenter(GridPoint& out) const;
    /// The mean of the points, without those that repeat the first one. (0,0) for an empty list.
    int getCentroid(GridPoint& out) const;

    /// The extremes of the points. Returns 0, with out left alone, for an empty list.
    int getBoundingBox(Rect& out) const;
    /// Fills out with the whole-numbered grid points inside the polygon, column by column. The last
    /// whole column and row before the far side of the bounding box aren't looked at.
    int getPointsWithin(GridPoints& out) const;

    static int nextRoom(int room) { return static_cast<int>(room * 1.5); }
    OwnedArray<float>& first() { return gx; }
    OwnedArray<float>& second() { return gy; }
    const OwnedArray<float>& first() const { return gx; }
    const OwnedArray<float>& second() const { return gy; }
};

} // namespace ORV
