#pragma once

#include "ORV/Domain.h"
#include "ORV/EarthPoint.h"
#include "ORV/EarthPoints.h"
#include "ORV/Point.h"
#include "ORV/Points.h"

#include <vector>

namespace ORV {

/// The edge of the world on a map that shows all of it: where x ends to the left and to the right,
/// where the poles lie, and the limb of the views from space. Plot coordinates.
class WorldEdge {
public:
    explicit WorldEdge(const Domain& dom) : domain(dom) {}

    /// Makes a line whole that runs over the edge: what has gone around is moved by the width of
    /// the world. The result is the sign of the first move, 0 for none, and shift then moves all to
    /// the other side. A line crosses the edge at most once in each direction, see isSecondTurn.
    int wrap(Point& a, Point& b) const;
    int wrap(Points& line) const;
    void shift(Point& a, Point& b, int side) const;
    void shift(Points& line, int side) const;
    /// Follows a line from a to b and counts its turns around the world; true, with turns as they
    /// were, when it would go around once more.
    bool isSecondTurn(const Point& a, const Point& b, int& turns) const;
    /// Whether a line between two points would run over what isn't the world: across the gap of a
    /// cone, or from rim to rim of a disc that shows the whole earth.
    bool parts(const Point& a, const Point& b) const;

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

    /// Makes a polygon close on the map as it does on the earth. A ring around a pole is open where
    /// the map is cut, and closes by way of that pole; one around the far end of a map, the other
    /// pole or the antipode, holds what is outside of it. 0 when nothing of it can be drawn.
    int close(Points& ring) const;
    /// Whether the map is a cone, on which polygons have to be split instead.
    bool isCone() const { return domain.proj == 9 || domain.proj == 4; }
    /// Cuts a polygon at the gap of a cone. 0 for one around the far pole, which has no place
    /// there.
    int splitOnCone(const Points& ring, std::vector<Points>& polygons) const;

    /// The place on the limb beneath which a point behind it has vanished, in the orthographic and
    /// the satellite view; 0 in others, and for a point that is missing.
    int limb(const EarthPoint& earth, Point& point) const;
    /// Puts a line on the map, in these views up to the limb where it goes behind it, and around
    /// the antipode of an azimuthal one.
    void project(const EarthPoints& earth, Points& line) const;

private:
    double limit(double y) const;
    double excess(const Point& point) const;
    Point meet(const Point& inside, const Point& outside) const;
    int turn(const Point& a, const Point& b) const;
    double coneAngle(const Point& point) const;
    double coneHalf() const;
    Point conePoint(double radius, double angle) const;
    double poleY() const;
    void closeAroundPole(Points& ring) const;
    bool isCut(const Point& a, const Point& b) const;
    void addArc(const EarthPoint& from, const Point& start, const EarthPoint& to, const Point& end,
                int depth, Points& line) const;
    void refine(const EarthPoints& earth, Points& line) const;
    void turnInsideOut(Points& ring) const;

    bool hasLimb() const { return domain.proj == 5 || domain.proj == 10; }
    Point findLimb(EarthPoint seen, EarthPoint hidden) const;

    const Domain& domain;
};

} // namespace ORV
