#pragma once

namespace ORV {

class Domain;
class Grid;

/// What is done to the two grids of a wind field before it is drawn.
class WindField {
public:
    WindField() = delete;

    /// The greatest speed of the points of which neither component is missing or exactly 0.
    /// Missing when a grid has no data, when the domains differ, and when there is no such point.
    static float maxSpeed(const Grid& u, const Grid& v);

    /// The greatest finite speed of all points; 0 when there is none.
    static float maxAnySpeed(const Grid& u, const Grid& v);

    /// Turns components that are along the rows and columns of their grids, or with `earth` along
    /// the parallels and meridians, to the axes of the plot of a domain. 0, with nothing changed,
    /// when the domains of the grids differ, and when the components are along the axes already.
    static int turn(Grid& u, Grid& v, const Domain& domain, bool earth);
};

} // namespace ORV
