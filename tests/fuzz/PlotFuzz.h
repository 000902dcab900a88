#pragma once

#include "ORV/Grid.h"
#include "ORV/Plot.h"

#include "Fuzz.h"
#include "RecordingDevice.h"

#include <memory>

/// A plot of the domain on a device that draws nothing.
inline void openPlot(ORV::Plot& plot, const ORV::Domain& domain) {
    plot.graph.setDevice(std::make_unique<ORV::RecordingDevice>(), 1);
    plot.open("");
    plot.setPanel(ORV::Rect(0, 0, 1, 1), domain);
}

/// A field on the domain, of each point's index by this function.
template <class Value>
ORV::Grid makeField(const ORV::Domain& domain, const Value& value) {
    ORV::Grid grid;
    grid.setDomain(domain);
    grid.allocData();
    for (int i = 0; i < grid.nx * grid.ny; i++)
        grid.data[i] = static_cast<float>(value(i));
    return grid;
}
