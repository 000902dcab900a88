#pragma once

#include "ORV/ColorFill.h"
#include "ORV/Plot.h"

namespace ORV {

/// Gives the lines and areas of a plot the colors of a fill, value by value. Values of one entry
/// change nothing from the first to the last.
class FillPen {
public:
    /// The attributes are those in force on the plot; without colors they stay.
    FillPen(Plot& plot, const ColorFill& fill, bool colored, const PlotAttr& attr)
        : plot(plot), fill(fill), colored(colored), visible(attr.validColor()) {}

    void set(float value) {
        if (!colored)
            return;
        const int ind = fill.getInd(value);
        if (started && ind == current)
            return;
        started = true;
        current = ind;
        PlotAttr attr = fill.get(ind);
        visible = attr.validColor();
        plot.setLine(attr);
        plot.setFill(attr);
    }

    bool isVisible() const { return visible; }

private:
    Plot& plot;
    const ColorFill& fill;
    bool colored;
    bool visible;
    bool started = false;
    int current = 0;
};

} // namespace ORV
