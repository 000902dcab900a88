#pragma once

#include "ORV/Domain.h"
#include "ORV/Point.h"
#include "ORV/Rect.h"

namespace ORV {

/// One part of the surface with its own map. The surface in normalised device coordinates (NDC) has
/// its longer side from 0 to 1, y upward.
class Panel {
public:
    Rect limits; ///< The part of the surface given to the panel, in NDC.
    Rect offset; ///< The rectangle asked for, as fractions of the limits.
    Rect view;   ///< The viewport, in NDC.
    Domain domain;

    int init();
    /// The limits, in NDC.
    int setLimits(const Rect& rect);
    int setLimits(int x1, int y1, int x2, int y2);
    /// Whether a point in NDC lies in the limits, edges included.
    bool withinLimits(float x, float y) const;

    /// Position of an NDC point relative to the limits: both coordinates count from the lower left
    /// corner, in units of the larger extent of the limits.
    int getView(const Point& in, Point& out) const;
    /// The plot coordinates of the domain at an NDC point; 0 when the view has no size.
    int getWindow(const Point& in, Point& out) const;
};

} // namespace ORV
