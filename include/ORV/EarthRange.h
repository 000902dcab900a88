#pragma once

#include "ORV/Const.h"

namespace ORV {

/// A span of latitudes and longitudes in degrees, kept as given. Const::MISS until set.
class EarthRange {
public:
    float min_lat = Const::MISS;
    float max_lat = Const::MISS;
    float min_lon = Const::MISS;
    float max_lon = Const::MISS;

    EarthRange() = default;
    EarthRange(float lat1, float lat2, float lon1, float lon2) { set(lat1, lat2, lon1, lon2); }

    int init() { return set(Const::MISS, Const::MISS, Const::MISS, Const::MISS); }
    /// Takes least and greatest latitude, then least and greatest longitude.
    int set(float lat1, float lat2, float lon1, float lon2) {
        min_lat = lat1;
        max_lat = lat2;
        min_lon = lon1;
        max_lon = lon2;
        return 1;
    }
};

} // namespace ORV
