#pragma once

#include "ORV/EarthPoints.h"

namespace ORV {

/// The points of one "coordinates" element of a KML file.
class KmlData {
public:
    int type = 0;        ///< 1 inside a LineString, else 0
    char name[100] = ""; ///< of the placemark
    EarthPoints points;
};

} // namespace ORV
