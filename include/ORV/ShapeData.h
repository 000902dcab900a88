#pragma once

#include "ORV/EarthPoints.h"
#include "ORV/EarthRange.h"

namespace ORV {

/// One part of a record of a shapefile: a line, a ring, or a single point.
class ShapeData {
public:
    int id = 0; ///< number of the record
    char name[100] = "";
    EarthRange range; ///< box of the whole record, in degrees
    EarthPoints points;
};

} // namespace ORV
