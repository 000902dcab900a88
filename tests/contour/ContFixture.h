#pragma once

#include "ORV/ContPlot.h"

#include "GridFixture.h"

#include <random>
#include <vector>

namespace ORV {

class ContTest : public GridPlotTest {
protected:
    /// A grid with rows from the top down, and its plot.
    Grid makeGrid(const char* domain, const std::vector<float>& values) {
        Grid grid;
        grid.setDomain(Domain(domain));
        grid.allocData();
        std::copy(values.begin(), values.end(), static_cast<float*>(grid.data));
        show(domain);
        return grid;
    }
    Grid makeGrid(int nx, int ny, const std::vector<float>& values) {
        return makeGrid(plain(nx, ny).c_str(), values);
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
