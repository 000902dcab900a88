#pragma once

#include "ORV/Domain.h"
#include "ORV/EarthPoint.h"
#include "ORV/Point.h"
#include "ORV/Points.h"

namespace ORV {

/// The edge of the world on a map that shows all of it: where x ends to the left and to the right,
/// where the poles lie, and the limb of the views from space. Plot coordinates.
class WorldEdge {
public:
    explicit WorldEdge(const Domain& dom) : domain(dom) {}

    /// Whether lines are cut at the edge. On the longitude-latitude map always; on a Mollweide
    /// ellipse only those that go on beyond it, as those over the date line do.
    bool cutsAlways() const { return domain.proj == 2; }
    bool cutsWrapped() const { return domain.proj == 2 || domain.proj == 7; }
    bool isBeyond(const Points& line) const;
    /// Cuts a line to the world; 0 when nothing of it is left.
    int crop(Point& a, Point& b) const;
    /// Cuts a line to the world: its pieces come parted by missing points.
    void crop(const Points& line, Points& pieces) const;
    /// Draws the points beyond the edge back to it.
    void clamp(Points& polygon) const;

    /// Closes a ring around a pole, which is open where the map is cut, by way of that pole.
    void closeAroundPole(Points& ring) const;

    /// The place on the limb beneath which a point behind it has vanished, in the orthographic and
    /// the satellite view; 0 in others, and for a point that is missing.
    int limb(const EarthPoint& earth, Point& point) const;

private:
    double limit(double y) const;
    double excess(const Point& point) const;
    Point crossing(const Point& inside, const Point& outside) const;
    double poleY() const;

    const Domain& domain;
};

} // namespace ORV
