#include "ORV/Grid.h"
#include "ORV/Plot.h"
#include "ORV/VectPlot.h"
#include "ORV/Wind.h"
#include "ORV/WindPlot.h"

#include "FillPen.h"
#include "VectTools.h"

#include <algorithm>
#include <cmath>

namespace ORV {
namespace {

constexpr float calm = 0.001f;        // below it a line ends
constexpr float aimless = 0.01f;      // below it the direction is 0
constexpr float steps_per_length = 4; // a step is a quarter of the grid spacing
constexpr int free_steps = 5;         // after the start, through boxes that are full
constexpr double stay = 6;            // steps in one box, times skipx
constexpr float turn_back = 120;      // degrees from step to step
constexpr float head_distance = 0.5f; // between arrow heads, in heights of the plot
constexpr float head_size = 0.06f;    // of an arrow head at least, in heights of the plot

/// Where places on a plot are on a grid. Between planes of one projection, on which each place has
/// one point, there is no need to go over the earth.
class Locator {
public:
    Locator(const Domain& grid, const Domain& plot)
        : grid(grid), plot(plot),
          direct(DomainVal::compareProj(grid, plot) && grid.proj >= 1 && grid.proj <= 4),
          world(grid.proj == 2   ? Domain::OFFSET_LL
                : grid.proj == 3 ? Domain::OFFSET_MERC
                                 : 0) {}

    bool toPlot(const GridPoint& at, Point& point) const {
        EarthPoint place;
        return grid.tran(at, place) && plot.tran(place, point) && point.x != Const::MISS &&
               point.y != Const::MISS;
    }

    /// On a grid that runs over the edge of the world, the one of a place's points that is on it.
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
    float world; // its width; 0 where it has no edge at the side
};

/// The boxes of a grid, in which the lines that pass are counted.
class Boxes {
public:
    Boxes(const VectPlot& vect, int nx)
        : counts(vect.num), last(vect.numsize - 1), row(2.0 * nx), skipx(std::max(vect.skipx, 1)),
          skipy(std::max(vect.skipy, 1)) {}

    int find(const GridPoint& at) const {
        const double box =
            std::trunc(2 * at.gx / skipx + 0.0001) + row * std::trunc(2 * at.gy / skipy + 0.0001);
        return box >= 0 && box < last - 1 ? static_cast<int>(box) : last;
    }
    int enter(int box) { return ++counts[box]; }
    int getCount(int box) const { return counts[box]; }

private:
    int* counts;
    int last; // the box of all that has none
    double row;
    double skipx;
    double skipy;
};

/// Follows the wind from point to point of a plot. One tracer draws many lines.
class Tracer {
public:
    Tracer(Plot& plot, const VectPlot& vect, const Grid& u, const Grid& v, const PlotAttr& attr)
        : plot(plot), vect(vect), u(u), v(v), boxes(vect, u.nx),
          locator(u.domain, plot.getDomain()), pen(plot, vect.fill, vect.isColored(), attr),
          dx(u.getDx()) {
        const float height = plot.getVert();
        const float distance =
            height * head_distance * VectTools::asFactor(vect.scale, VectPlot::max_scale);
        // Whole units, except on a plot so small that there would be a head at each step.
        between = distance < 1 ? distance : std::trunc(distance);
        head = std::max(height * head_size, dx);
        if (vect.arrow_scale != Const::MISS)
            head *= std::max(vect.arrow_scale, 0.0f);
    }

    void follow(int i, int j, float limit) {
        at.set(i, j);
        if (limit <= 0 || isFull(at) || !locator.toPlot(at, point))
            return;
        start();
        int step = 0;
        while (step < limit) {
            const bool full = enterBox() && (step < 1 || step > free_steps);
            look();
            if (full || same_box > stay * std::max(vect.skipx, 1) || speed == Const::MISS ||
                speed < calm || (step > 0 && turnsBack()))
                break;
            pen.set(speed);
            if (show && pen.isVisible())
                drawStep();
            move();
            if (++step < limit)
                previous = direction;
        }
        if (step > 0 && show && pen.isVisible())
            drawHead();
    }

private:
    // A line that would end where it begins: only counted.
    bool isFull(const GridPoint& seed) {
        const int place = boxes.find(seed);
        return boxes.getCount(place) >= vect.density && boxes.enter(place);
    }

    void start() {
        travelled = 0;
        same_box = 0;
        box = -1;
        show = true;
        previous = Const::MISS;
        sample();
    }

    void sample() {
        a = u.getValue(at);
        b = v.getValue(at);
    }

    // Returns whether too many lines passed the box.
    bool enterBox() {
        const int place = boxes.find(at);
        same_box++;
        if (place != box) {
            boxes.enter(place);
            same_box = 0;
        }
        box = place;
        return boxes.getCount(place) > vect.density;
    }

    // Infinite components have no direction, and count as missing.
    void look() {
        speed = direction = Const::MISS;
        if (a == Const::MISS || b == Const::MISS || !std::isfinite(a) || !std::isfinite(b))
            return;
        speed = static_cast<float>(std::sqrt(double(a) * a + double(b) * b));
        direction = speed < aimless ? 0 : std::atan2(-a, -b) * static_cast<float>(Const::RDC);
        show = (vect.min_cut == Const::MISS || speed >= vect.min_cut) &&
               (vect.max_cut == Const::MISS || speed <= vect.max_cut);
    }

    bool turnsBack() const {
        const float turn = std::fabs(previous - direction);
        return turn > turn_back && turn < 360 - turn_back;
    }

    void drawStep() {
        WindPlot::drawVect(plot, point, Wind(direction, dx / steps_per_length), 1, 0);
        if (travelled > between) {
            drawHead();
            travelled = 0;
        }
    }

    void drawHead() {
        if (previous != Const::MISS && head > 0)
            WindPlot::drawVect(plot, point, Wind(previous, 1), 0, head);
    }

    void move() {
        point.x += a / speed * dx / steps_per_length;
        point.y += b / speed * dx / steps_per_length;
        travelled += dx / steps_per_length;
        plot.getDomain().adjust(point); // a line that leaves the world comes in on its other side
        at = locator.toGrid(point);
        sample();
    }

    Plot& plot;
    const VectPlot& vect;
    const Grid& u;
    const Grid& v;
    Boxes boxes;
    Locator locator;
    FillPen pen;
    float dx;
    float between; // arrow heads, plot coordinates
    float head;    // size of one

    // The state of the line.
    GridPoint at;
    Point point;
    float a = Const::MISS; // components
    float b = Const::MISS;
    float speed = Const::MISS;
    float direction = Const::MISS;
    float previous = Const::MISS; // direction
    double travelled = 0;         // since the last head
    double same_box = 0;          // steps
    int box = -1;
    bool show = true;
};

/// A walk over the points of a grid, and the winds that blow from its corner into the field.
struct Sweep {
    bool right, down;
    float sign_u, sign_v;
};
constexpr Sweep sweeps[] = {
    {true, true, 1, -1},
    {false, true, -1, -1},
    {true, false, 1, 1},
    {false, false, -1, 1},
};

/// Calls visit(i) for 0, skip, 2 skip, ... or n - 1, n - 1 - skip, ...
template <class Visit>
void walk(int n, int skip, bool upward, const Visit& visit) {
    for (long i = 0; i < n; i += skip)
        visit(static_cast<int>(upward ? i : n - 1 - i));
}

} // namespace

void VectPlot::drawStreamlines(Plot& plot, const Grid& u, const Grid& v) {
    density = std::clamp(density, 1, max_density);
    numsize = 4 * u.nx * u.ny;
    num = OwnedArray<int>(numsize);
    const float limit = 4.0f * u.nx * VectTools::asFactor(scale, max_scale);

    Tracer tracer(plot, *this, u, v, getAttr(plot));
    for (const Sweep& sweep : sweeps)
        walk(u.ny, std::max(skipy, 1), sweep.down, [&](int j) {
            walk(u.nx, std::max(skipx, 1), sweep.right, [&](int i) {
                const float a = u.getValue1(i, j), b = v.getValue1(i, j);
                if (a != Const::MISS && b != Const::MISS && a * sweep.sign_u > 0 &&
                    b * sweep.sign_v > 0)
                    tracer.follow(i, j, limit);
            });
        });
    num = OwnedArray<int>();
    numsize = 0;
}

int VectPlot::drawStreamline(Plot& plot, const Grid& u, const Grid& v, int i, int j, float limit) {
    if (!u.isData() || !v.isData())
        return 1;
    const bool own = num.size() < 4 * u.nx * u.ny || numsize != num.size();
    if (own) {
        numsize = 4 * u.nx * u.ny;
        num = OwnedArray<int>(numsize);
    }
    Tracer(plot, *this, u, v, getAttr(plot)).follow(i, j, limit);
    if (own) {
        num = OwnedArray<int>();
        numsize = 0;
    }
    return 1;
}

} // namespace ORV
