#pragma once

#include "ORV/CoordList.h"
#include "ORV/EarthPoint.h"
#include "ORV/EarthRange.h"

namespace ORV {

/// A growing list of places on the earth, in degrees. Their elevation isn't kept.
class EarthPoints : public CoordList<EarthPoints, EarthPoint, &EarthPoint::lat, &EarthPoint::lon> {
public:
    OwnedArray<float> lat;
    OwnedArray<float> lon;

    EarthPoints() : EarthPoints(25) {}
    explicit EarthPoints(int n) { init(n); }
    EarthPoints(const EarthPoints& other) : CoordList() { copy(other); }
    EarthPoints& operator=(const EarthPoints& other) {
        copy(other);
        return *this;
    }

    /// A coordinate of point i, missing outside 0 to num - 1.
    float getLat(int i) const { return valueAt(lat, i); }
    float getLon(int i) const { return valueAt(lon, i); }
    /// The same without a test of i.
    float getLat1(int i) const { return lat[i]; }
    float getLon1(int i) const { return lon[i]; }

    /// Whether the point lies inside the polygon of the list, whose edges run from each point to
    /// the next: it has to repeat its first point at the end. An edge holds its end in y, not its
    /// start. A polygon of fewer than two points holds nothing.
    bool within(const EarthPoint& point) const;

    /// The span of the points, all missing for an empty list. Missing coordinates count like any
    /// other value.
    EarthRange getRange() const;

    static int nextRoom(int room) { return room + 10; }
    OwnedArray<float>& first() { return lat; }
    OwnedArray<float>& second() { return lon; }
    const OwnedArray<float>& first() const { return lat; }
    const OwnedArray<float>& second() const { return lon; }
};

} // namespace ORV
