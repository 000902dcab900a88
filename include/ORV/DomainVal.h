#pragma once

#include "ORV/Const.h"

namespace ORV {

/// What defines a domain: a projection, the centre of a plot on it, and a regular grid around that
/// centre. A value not given is Const::MISS. Domain adds what follows from it.
class DomainVal {
public:
    int proj = Const::MISS; ///< projection code, see Domain
    /// Origin of the projection in degrees: its pole, tangent point or central meridian.
    float plat = Const::MISS;
    float plon = Const::MISS;
    /// 0 and 1: the true latitudes in degrees; for the satellite view the radius of the orbit in
    /// 100 km, and 1 for coordinates in scan angles. 2: an earth radius in 100 km that replaces
    /// the mean one. 3 and 4 are not used.
    float param[5] = {Const::MISS, Const::MISS, Const::MISS, Const::MISS, Const::MISS};
    float clat = Const::MISS; ///< centre of the plot
    float clon = Const::MISS;
    float dx = Const::MISS; ///< grid spacing, in plot coordinates
    float dy = Const::MISS;
    int nx = Const::MISS; ///< grid size in points
    int ny = Const::MISS;
    bool ellipse = false; ///< compute on the ellipsoid

    int init() {
        *this = DomainVal();
        return 1;
    }

    /// Width over height of the plot for equal spacings, (nx - 1)/(ny - 1). Missing when there is
    /// no grid, or only one row.
    float getAspect() const;
    /// Stores param[i]; 0 when i is outside 0 to 4.
    int setParam(int i, float value);

    /// Whether all fields are equal.
    static bool compare(const DomainVal& a, const DomainVal& b);
    /// Whether projection, origin, parameters and ellipse are equal: then the two domains share
    /// their plot coordinates, whatever their windows.
    static bool compareProj(const DomainVal& a, const DomainVal& b);
};

} // namespace ORV
