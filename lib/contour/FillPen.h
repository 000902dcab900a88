#pragma once

#include "ORV/ColorFill.h"
#include "ORV/Plot.h"

namespace ORV {

/// Gives the lines and areas of a plot the colors of a fill, value by value. Values of one entry
/// change nothing from the first to the last.
class FillPen {
public:
    /// Without colors the plot keeps its attributes.
    FillPen(Plot& plot, const ColorFill& fill, bool colored)
        : plot(plot), fill(fill), colored(colored) {}

    void set(float value) {
        if (!colored)
            return;
        const int ind = fill.getInd(value);
        if (started && ind == current)
            return;
        started = true;
        current = ind;
        PlotAttr attr = fill.get(ind);
        plot.setLine(attr);
        plot.setFill(attr);
    }

private:
    Plot& plot;
    const ColorFill& fill;
    bool colored;
    bool started = false;
    int current = 0;
};

} // namespace ORV
