#pragma once

#include "ORV/Const.h"
#include "ORV/Domain.h"
#include "ORV/Grid.h"
#include "ORV/GridBox.h"
#include "ORV/Point.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace ORV {

/// What the sources of ContPlot and GridBox share.
namespace ContTools {

inline bool isMissing(float v) {
    return v == Const::MISS || !std::isfinite(v);
}
inline bool isMissing(const Point& point) {
    return isMissing(point.x) || isMissing(point.y);
}

/// Half the width of the world at this height on the plot; 0 where it doesn't wrap.
double halfWorld(const Domain& domain, double y);
/// Brings a point of a cell that was put together back into the world.
Point fold(const Domain& domain, const Point& point);

/// The range of the values of a grid that are finite; missing without any.
void findRange(const Grid& grid, float& lo, float& hi);
/// What moves a corner off a level, for a range of values.
inline float getTweak(float lo, float hi) {
    return static_cast<float>((double(hi) - lo) / 10000);
}

/// Where a grid point lies on a plot.
Point findPlace(const Grid& grid, const Domain& domain, bool same, int i, int j);

/// Levels in the order in which a cell is asked for them.
class LevelList {
public:
    std::vector<float> levels;
    bool rising = true; ///< then only those within a cell are looked at

    void add(float level) {
        rising = rising && (levels.empty() || levels.back() < level);
        levels.push_back(level);
    }
    int size() const { return static_cast<int>(levels.size()); }
    /// The first level that isn't below a value; 0 when they don't rise. Cells come in their order
    /// on the grid, so the search starts where the last one ended.
    int find(float v) {
        if (!rising)
            return 0;
        while (last > 0 && !(levels[last - 1] < v))
            last--;
        while (last < size() && levels[last] < v)
            last++;
        return last;
    }
    /// Whether level k and those behind it may reach down to a value.
    bool reaches(int k, float v) const { return k < size() && (!rising || !(levels[k] > v)); }

    /// Whether a range lies between two levels, k the upper one, and on neither of them.
    bool isWithin(int k, float lo, float hi) const {
        return rising && k > 0 && k < size() && levels[k - 1] < lo && hi < levels[k];
    }

private:
    int last = 0;
};

/// Reads the cells of a grid row by row. Places of a row are worked out once, when asked for.
class CellReader {
public:
    float lo = 0; ///< range of the values of the cell in work
    float hi = 0;

    CellReader(const Grid& from, const Domain& to);
    /// Whether the grid has any cell.
    bool isSet() const { return grid.isData() && grid.nx > 1 && grid.ny > 1; }
    /// Takes cell (i, j); false when a value of it is missing.
    bool read(int i, int j) {
        const float* upper = grid.data + static_cast<std::ptrdiff_t>(grid.nx) * j + i;
        const float* lower = upper + grid.nx;
        if (isMissing(upper[0]) || isMissing(upper[1]) || isMissing(lower[0]) ||
            isMissing(lower[1]))
            return false;
        column = i;
        row = j;
        lo = std::min(std::min(upper[0], upper[1]), std::min(lower[0], lower[1]));
        hi = std::max(std::max(upper[0], upper[1]), std::max(lower[0], lower[1]));
        return true;
    }
    /// The cell that was read last.
    void get(GridBox& box);
    Point getPlace(int i, int j);

private:
    const Grid& grid;
    const Domain& domain;
    const bool same;
    int column = 0;
    int row = 0;
    std::vector<Point> places[2]; // of an even and an odd row; not yet known: y is a NaN
    int rows[2] = {-1, -1};
};

} // namespace ContTools
} // namespace ORV
