#pragma once

#include "ORV/Point.h"

namespace ORV {

class Plot;

/// The sky-cover circle of the station model (after WMO code table 2700), drawn with the plot's
/// line and fill attributes.
class CloudPlot {
public:
    CloudPlot() = delete;

    /// Draws the glyph of a cover with the given radius, in plot units, around the point. Covers:
    /// '0' to '8' eighths and '9' obscured; 'C', 'F', 'S', 'B', 'O', 'X' clear, few, scattered,
    /// broken, overcast, obscured; 'b', 'o', 's', 'x' an empty circle; anything else an M for a sky
    /// that isn't known. Returns 1.
    static int draw(Plot& plot, const Point& point, float size, char cover);
};

} // namespace ORV
