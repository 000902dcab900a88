#pragma once

#include "ORV/Const.h"

namespace ORV {

/// A place on the earth: latitude and longitude in degrees, north and east positive, elevation in
/// metres. Diagrams put other pairs of quantities into lat and lon, temperature and pressure for
/// one. A value not known is Const::MISS.
class EarthPoint {
public:
    float lat = Const::MISS;
    float lon = Const::MISS;
    float elev = Const::MISS;

    EarthPoint() = default;
    EarthPoint(float plat, float plon) : lat(plat), lon(plon) {}
    EarthPoint(float plat, float plon, float pelev) : lat(plat), lon(plon), elev(pelev) {}

    int init() { return set(Const::MISS, Const::MISS, Const::MISS); }
    /// The elevation stays as it was.
    int set(float plat, float plon) {
        lat = plat;
        lon = plon;
        return 1;
    }
    int set(float plat, float plon, float pelev) {
        elev = pelev;
        return set(plat, plon);
    }
    int set(const EarthPoint& point) {
        *this = point;
        return 1;
    }
    int setElev(float pelev) {
        elev = pelev;
        return 1;
    }
    float getLat() const { return lat; }
    float getLon() const { return lon; }
    float getElev() const { return elev; }
};

} // namespace ORV
