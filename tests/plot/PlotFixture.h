#pragma once

#include "ORV/Orv.h"
#include "ORV/Plot.h"

#include "RecordingDevice.h"
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace ORV {

/// Puts the settings back after each test.
class SettingsTest : public testing::Test {
protected:
    SettingsTest() : saved(Orv::resrc), mask(Orv::message_mask) {
        Orv::resrc.clear();
        Orv::setDatabasePath(ORV_DATA);
    }
    ~SettingsTest() override {
        Orv::resrc = saved;
        Orv::message_mask = mask;
        Orv::setDatabasePath(nullptr);
    }

private:
    Resrc saved;
    int mask;
};

/// Gives a graph a recording device of 1000 by 500, y downward, and tells it.
inline RecordingDevice* record(Graph& graph) {
    auto owned = std::make_unique<RecordingDevice>();
    RecordingDevice* device = owned.get();
    graph.setDevice(std::move(owned), 1);
    return device;
}

/// A plot opened on a recording device: 1 by 0.5 in NDC.
class PlotTest : public SettingsTest {
protected:
    Plot plot;
    RecordingDevice* device = record(plot.graph);

    void open(const char* param = "") {
        ASSERT_TRUE(plot.open(param));
        device->take();
    }
    /// The whole surface as the map of a domain.
    void show(const char* domain) {
        open();
        plot.setPanel(Rect(0, 0, 1, 1), Domain(domain));
        device->take();
    }

    /// One recorded line or polygon, in the plot coordinates of the domain.
    using Shape = std::vector<Point>;
    /// What was drawn by calls that begin with "line 1" or "fill 3".
    std::vector<Shape> drawn(const std::string& call) {
        std::vector<Shape> shapes;
        for (const std::string& text : device->calls) {
            if (text.rfind(call + " ", 0) != 0)
                continue;
            Shape shape;
            std::istringstream in(text.substr(call.size()));
            float x, y;
            for (char comma; in >> x >> comma >> y;) {
                Point point;
                plot.graph.tranPlotWindow(x, y, point.x, point.y);
                shape.push_back(point);
            }
            shapes.push_back(shape);
        }
        return shapes;
    }
    std::vector<Shape> lines() { return drawn("line 1"); }
    std::vector<Shape> fills() { return drawn("fill 3"); }

    /// The longest straight piece of what was drawn, in plot coordinates.
    static double longest(const std::vector<Shape>& shapes) {
        double most = 0;
        for (const Shape& shape : shapes)
            for (size_t i = 1; i < shape.size(); i++)
                most = std::max<double>(
                    most, std::hypot(shape[i].x - shape[i - 1].x, shape[i].y - shape[i - 1].y));
        return most;
    }
    /// The area of a polygon, in squares of plot coordinates.
    static double area(const Shape& shape) {
        double sum = 0;
        for (size_t i = 0; i < shape.size(); i++) {
            const Point& a = shape[i];
            const Point& b = shape[(i + 1) % shape.size()];
            sum += double(a.x) * b.y - double(b.x) * a.y;
        }
        return std::fabs(sum / 2);
    }
};

} // namespace ORV
