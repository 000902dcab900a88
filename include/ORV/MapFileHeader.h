#pragma once

#include "ORV/Const.h"

namespace ORV {

/// What stands in front of a map segment: its count of points and the box that it lies in, in
/// degrees. A box is Const::MISS until it was read; one with both latitudes 0 is no box, and the
/// segment may lie anywhere.
class MapFileHeader {
public:
    int num = 0;
    float min_lat = Const::MISS;
    float max_lat = Const::MISS;
    float min_lon = Const::MISS;
    float max_lon = Const::MISS;
    int id = Const::MISS; ///< number of the segment
    char name[50] = "";

    int init() { return *this = MapFileHeader(), 1; }
    bool hasBox() const { return min_lat != 0 || max_lat != 0; }

    /// Prints one line on standard output.
    int print() const;
};

} // namespace ORV
