#pragma once

#include "ORV/Coords.h"
#include "ORV/Point.h"
#include "ORV/Points.h"
#include "ORV/Rect.h"

namespace ORV {

/// One transform: a window in the user's units is mapped to a viewport of the normalised surface
/// (NDC, its longer side 1), and that to device coordinates. Window y always runs upward, whatever
/// the device does.
///
/// Device coordinates are limited to -30000 and 30000, so that points far away stay within what a
/// device can take; a coordinate that is not a number comes out as -30000.
class GTran {
public:
    Coords plot;      ///< the whole surface in device coordinates; dy < 0 when y runs upward
    Coords ndc;       ///< the whole surface, normalised
    Point scale;      ///< window to NDC
    Point plot_scale; ///< NDC to device
    Coords window;
    Coords viewport;

    /// Takes the surface of a device, and makes viewport and window the whole normalised surface.
    int set(Rect surface);
    int resize(Rect surface) { return set(surface); }

    int setWindow(Rect area);
    int setViewport(Rect area);
    Rect getWindow() const;
    Rect getViewport() const;
    Rect getMaxViewport() const;

    float windowToNdcX(float x) const { return (x - window.x1) * scale.x + viewport.x1; }
    float windowToNdcY(float y) const { return (y - window.y1) * scale.y + viewport.y1; }
    float ndcToDeviceX(float x) const { return limit(x * plot_scale.x + plot.x1); }
    float ndcToDeviceY(float y) const { return limit((ndc.y2 - y) * plot_scale.y + plot.y1); }
    float windowToDeviceX(float x) const { return ndcToDeviceX(windowToNdcX(x)); }
    float windowToDeviceY(float y) const { return ndcToDeviceY(windowToNdcY(y)); }
    float deviceToNdcX(float x) const { return (x - plot.x1) / plot_scale.x; }
    float deviceToNdcY(float y) const { return ndc.y2 - (y - plot.y1) / plot_scale.y; }
    float deviceToWindowX(float x) const {
        return (deviceToNdcX(x) - viewport.x1) / scale.x + window.x1;
    }
    float deviceToWindowY(float y) const {
        return (deviceToNdcY(y) - viewport.y1) / scale.y + window.y1;
    }

    /// Turns window points into device points; the result has as many.
    void windowToDevice(const Points& points, Points& result) const;

    /// From the window of one transform to that of another over the same surface.
    static float tranWindowX(const GTran& a, const GTran& b, float x);
    static float tranWindowY(const GTran& a, const GTran& b, float y);

    /// The viewport in device coordinates, sorted, also on a surface whose y runs upward.
    Rect getClipRect() const;

    /// False only when the bounding box of the points and the window don't overlap.
    bool isPointsInWindow(const Points& points) const;

private:
    static float limit(float v) {
        constexpr float most = 30000;
        return v > -most ? (v < most ? v : most) : -most;
    }
    void setScale();
};

} // namespace ORV
