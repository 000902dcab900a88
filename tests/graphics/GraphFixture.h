#pragma once

#include "ORV/Graph.h"
#include "ORV/Orv.h"

#include "RecordingDevice.h"
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace ORV {

/// A graph on a recording device of 1000 by 500, with the fonts of the database.
class GraphFixture : public testing::Test {
protected:
    GraphFixture() : path(Orv::getDatabasePath()) { Orv::setDatabasePath(ORV_DATA); }
    ~GraphFixture() override { Orv::setDatabasePath(path.c_str()); }

    void open(bool up = false) {
        auto made = std::make_unique<RecordingDevice>();
        device = made.get();
        device->up = up;
        graph.setDevice(std::move(made), 1);
        ASSERT_EQ(graph.open(), 1);
        device->calls.clear();
    }
    /// One window unit is one device unit, y upward from the foot of the surface.
    void openInPixels() {
        open();
        graph.setWindow(Rect(0, 0, 1000, 500));
    }

    Graph graph;
    RecordingDevice* device = nullptr;

private:
    std::string path;
};

} // namespace ORV
