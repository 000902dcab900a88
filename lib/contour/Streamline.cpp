#include "ORV/Grid.h"
#include "ORV/Plot.h"
#include "ORV/VectPlot.h"
#include "ORV/Wind.h"
#include "ORV/WindPlot.h"

#include "FillPen.h"

#include <algorithm>
#include <cmath>

namespace ORV {
namespace {

constexpr float calm = 0.001f;          // below it a line ends
constexpr float no_direction = 0.01f;   // below it the direction is 0
constexpr float steps_per_length = 4;   // a step is a quarter of the grid spacing
constexpr int free_steps = 5;           // after the start, through boxes that are full
constexpr int stay = 6;                 // steps in one box, times skipx
constexpr float turn_back = 120;        // degrees from step to step
constexpr float head_distance = 0.5f;   // between arrow heads, in heights of the plot
constexpr float head_size = 0.06f;      // least size of an arrow head, in heights of the plot
constexpr float mark_size = 0.2f;
constexpr int mark_type = 2;

bool isSet(const Point& point) {
    return point.x != Const::MISS && point.y != Const::MISS;
}

/// Where the points of a plot are on a grid. Plots that share the grid's plane, on which each place
/// has one point, need no way over the earth.
class Locator {
public:
    Locator(const Domain& grid, const Domain& plot)
        : grid(grid), plot(plot),
          direct(DomainVal::compareProj(grid, plot) && grid.proj >= 1 && grid.proj <= 4),
          world(grid.proj == 2   ? Domain::OFFSET_LL
                : grid.proj == 3 ? Domain::OFFSET_MERC
                                 : 0) {}

    Point toPlot(const GridPoint& at) const {
        EarthPoint place;
        Point point;
        if (grid.tran(at, place))
            plot.tran(place, point);
        return point;
    }

    /// On a grid that runs over the date line, of all its places the one that is on the grid.
    GridPoint toGrid(const Point& point) const {
        Point own = point;
        if (!direct) {
            EarthPoint place;
            plot.tran(point, place);
            grid.tran(place, own);
        }
        GridPoint at;
        grid.tran(own, at);
        if (world > 0 && at.gx < 0)
            grid.tran(Point(own.x + world, own.y), at);
        else if (world > 0 && at.gx > grid.nx - 1)
            grid.tran(Point(own.x - world, own.y), at);
        return at;
    }

private:
    const Domain& grid;
    const Domain& plot;
    bool direct;
    float world; // its width, 0 where it has no seam
};

/// The table of boxes in which lines are counted.
class Boxes {
public:
    Boxes(const VectPlot& vect, int* counts, int nx)
        : counts(counts), last(vect.numsize - 1), row(2.0 * nx), skipx(std::max(vect.skipx, 1)),
          skipy(std::max(vect.skipy, 1)) {}

    int find(const GridPoint& at) const {
        const double box = std::trunc(2 * at.gx / skipx + 0.0001) +
                           row * std::trunc(2 * at.gy / skipy + 0.0001);
        return box >= 0 && box < last - 1 ? static_cast<int>(box) : last;
    }
    int enter(int box) { return ++counts[box]; }
    int count(int box) const { return counts[box]; }

private:
    int* counts;
    int last; // for all that has no box
    double row;
    double skipx;
    double skipy;
};

/// One line on its way.
class Line {
public:
    Line(Plot& plot, const VectPlot& vect, const Grid& u, const Grid& v, Boxes boxes, PlotAttr attr)
        : plot(plot), vect(vect), u(u), v(v), boxes(boxes), attr(attr),
          locator(u.domain, plot.getDomain()),
          pen(plot, vect.fill,
              vect.fill.areValuesSet() || vect.intrvl != Const::MISS),
          length(u.getDx() / steps_per_length) {
        const float height = plot.getVert();
        const float factor = vect.scale > 0 ? std::min(vect.scale, VectPlot::max_scale) : 1;
        const float distance = height * head_distance * factor;
        // Whole units, but on a plot of less than that, where there would be a head at each step.
        between = distance < 1 ? distance : std::trunc(distance);
        head = std::max(height * head_size, u.getDx());
        if (vect.arrow_scale != Const::MISS)
            head *= std::max(vect.arrow_scale, 0.0f);
    }
};

} // namespace
} // namespace ORV
