#pragma once

#include "ORV/Grid.h"

#include "Table.h"
#include "plot/PlotFixture.h"

#include <memory>
#include <string>

namespace ORV {

/// Grids on a plot that records what is drawn, finely enough to tell places to 1e-5 of it.
class GridPlotTest : public PlotTest {
protected:
    GridPlotTest() {
        auto owned = std::make_unique<RecordingDevice>();
        device = owned.get();
        device->width = 20000; // devices get coordinates of up to 30000
        device->height = 10000;
        plot.graph.setDevice(std::move(owned), 1);
    }
    /// A plain map with one unit from point to point, (0,0) at the lower left.
    static std::string plain(int nx, int ny) {
        char text[80];
        std::snprintf(text, sizeof text, "xy:0:0,%g,%g,%d,%d,1,1", (nx - 1) / 2.0, (ny - 1) / 2.0,
                      nx, ny);
        return text;
    }
};

} // namespace ORV
