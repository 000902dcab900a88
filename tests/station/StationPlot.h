#pragma once

#include "ORV/ColorFile.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"

#include "RecordingDevice.h"
#include <gtest/gtest.h>

#include <memory>

namespace ORV {

/// A plot on a recording device of 1000 by 500, y downward, with the colors of the database. The
/// whole surface is one panel; drawing is in window units of transform 0, 1 by 0.5, until a domain
/// is set.
class StationPlot : public testing::Test {
protected:
    StationPlot() {
        Orv::setDatabasePath(ORV_DATA);
        auto owned = std::make_unique<RecordingDevice>();
        device = owned.get();
        plot.graph.setDevice(std::move(owned), 1);
        plot.graph.open();
        plot.initPanel();
        ColorFile::read("orv.clr", plot.colors);
        for (int i = 0; i < plot.colors.getNum(); i++)
            plot.allocColor(i);
        device->take();
    }

    /// Sets a domain that fills the surface: one plot unit is 1000 / width of it.
    void setDomain(const char* text) {
        plot.setPanel(Rect(0, 0, 1, 1), Domain(text));
        device->take();
    }
    int lines() const { return device->count("line 1 "); }
    int fills() const { return device->count("fill 3 "); }

    Plot plot;
    RecordingDevice* device;
};

} // namespace ORV
