#pragma once

#include "ORV/ContPlot.h"
#include "ORV/Grid.h"

#include "plot/PlotFixture.h"

#include <initializer_list>
#include <random>
#include <string>

namespace ORV {

/// Contours on a plot that records what is drawn, finely enough to tell places to 1e-5 of it.
class ContTest : public PlotTest {
protected:
    ContTest() {
        auto owned = std::make_unique<RecordingDevice>();
        device = owned.get();
        device->width = 20000; // devices get coordinates of up to 30000
        device->height = 10000;
        plot.graph.setDevice(std::move(owned), 1);
    }

    /// A grid with rows from the top down, and its plot.
    Grid makeGrid(const char* domain, std::initializer_list<float> values) {
        Grid grid;
        grid.setDomain(Domain(domain));
        grid.allocData();
        std::copy(values.begin(), values.end(), static_cast<float*>(grid.data));
        show(domain);
        return grid;
    }
    /// The same on a plain map with one unit from point to point, (0,0) at the lower left.
    Grid makeGrid(int nx, int ny, std::initializer_list<float> values) {
        return makeGrid(plain(nx, ny).c_str(), values);
    }
    static std::string plain(int nx, int ny) {
        char text[80];
        std::snprintf(text, sizeof text, "xy:0:0,%g,%g,%d,%d,1,1", (nx - 1) / 2.0, (ny - 1) / 2.0,
                      nx, ny);
        return text;
    }
    /// Smooth noise with the given share of missing values.
    static void fillRandom(Grid& grid, unsigned seed, double missing = 0) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<double> part(0, 1);
        for (int n = 0; n < grid.nx * grid.ny; n++)
            grid.data[n] = part(random) < missing ? Const::MISS : float(100 * part(random));
    }

    static std::string text(const std::vector<Shape>& shapes) {
        std::string all;
        for (const Shape& shape : shapes) {
            for (const Point& point : shape) {
                char pair[60];
                std::snprintf(pair, sizeof pair, "%.3g,%.3g ", clean(point.x), clean(point.y));
                all += pair;
            }
            all += "/ ";
        }
        return all;
    }

private:
    static double clean(float v) { return std::round(v * 1e3) / 1e3 + 0.0; }
};

} // namespace ORV
