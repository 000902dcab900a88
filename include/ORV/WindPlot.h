#pragma once

#include "ORV/Point.h"
#include "ORV/Wind.h"

namespace ORV {

class Plot;

/// Wind barbs, arrows and movement tracks, drawn with the plot's line and fill attributes. Points
/// and lengths are in plot units of the current panel; angles run clockwise from the top of the
/// plot. Each operation returns 1 when it drew and 0 when the wind was missing or calm.
///
/// With the graph's drop shadow on, a glyph is drawn twice, with the shadow and then without it, so
/// that it stands clean above its shadow; both passes of an arrow start from the same point.
class WindPlot {
public:
    WindPlot() = delete;

    /// A wind barb in the form of the WMO station model: a pennant is 50, a full barb 10 and a half
    /// barb 5 of the speed's unit, rounded to the nearest 5; the speed counts up to 300. The staff
    /// runs from start (counted from the point) to length, into the wind. Barbs stand on the
    /// clockwise side, on the other for a negative speed or a negative length. The wind's speed
    /// comes back as the magnitude that was drawn, raised by 0.01.
    static int drawBarb(Plot& plot, const Point& point, Wind& wind, float length, float start);

    /// The same with an earth direction, which is turned to the plot's projection at the point and
    /// written back into the wind.
    static int drawBarbMap(Plot& plot, const Point& point, Wind& wind, float length, float start);

    /// An arrow that points where the wind blows to. With a positive head its length is length for
    /// each unit of speed, and head scales the arrow head; with a negative head the length is fixed
    /// and the speed is written beyond the tip.
    static int drawVect(Plot& plot, const Point& point, const Wind& wind, float length, float head);

    /// The same with an earth direction, as in drawBarbMap.
    static int drawVectMap(Plot& plot, const Point& point, Wind& wind, float length, float head);

    /// A movement arrow: the way that a storm or ship goes in the given hours, with a tick for each
    /// whole hour and marks smaller ones inside each hour. The wind's direction is where the object
    /// comes from, its speed the length of the whole way; size scales ticks and head, a head of 0
    /// or less draws none. Hours below 1 draw the shaft alone.
    static int drawTrack(Plot& plot, const Point& point, const Wind& wind, float size, float head,
                         int hours, int marks);
};

} // namespace ORV
