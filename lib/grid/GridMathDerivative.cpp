#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Unit.h"

#include "GridCompute.h"

#include <cmath>
#include <string>

namespace ORV {

using namespace GridCompute;

namespace {

constexpr const char* per_second = "10^-5 /s";
constexpr float hundred_km = 1e-5f;         // one over the unit of plot coordinates, 1/m
constexpr double degree = 1.11195;          // length of a degree, 100 km
constexpr double gravity = 9.8;             // m/s^2
constexpr double twice_earth_rate = 14.584; // 10^-5 /s
constexpr int lat_lon = 2;

// One axis of a grid: the step to the next point along it, and the spacing.
class Axis {
public:
    int di;
    int dj;
    double spacing;
};

// The two axes of a grid; y points up the plot, against the rows.
class Axes {
public:
    Axis x;
    Axis y;
    bool valid; // whether they have a length

    explicit Axes(const Grid& grid)
        : x{1, 0, grid.getDx()}, y{0, -1, getSpacingY(grid)},
          valid(grid.getDx() != miss && grid.getDy() != miss) {}

    // As they are at a row.
    Axes(const Grid& grid, int j) : Axes(grid) {
        if (!valid || grid.getProj() != lat_lon)
            return;
        const float lat = earthAt(grid, 0, j).lat;
        valid = lat != miss && std::fabs(lat) != 90;
        x.spacing = static_cast<float>(grid.getDx() * degree * std::cos(lat * Const::DRC));
    }

private:
    static float getSpacingY(const Grid& grid) {
        const float dy = grid.getDy();
        return grid.getProj() == lat_lon ? static_cast<float>(dy * degree) : dy;
    }
};

// The value n steps along an axis, missing outside the grid, also outside that of a constant.
float valueAt(const Grid& f, int i, int j, const Axis& axis, int n) {
    const int column = i + n * axis.di, row = j + n * axis.dj;
    const bool inside = column >= 0 && column < f.nx && row >= 0 && row < f.ny;
    return inside ? f.getValue(column, row) : miss;
}

double slope(const Grid& f, int i, int j, const Axis& axis) {
    const double here = f.getValue(i, j);
    const double ahead = valueAt(f, i, j, axis, 1), behind = valueAt(f, i, j, axis, -1);
    if (ahead == miss && behind == miss)
        return 0;
    if (ahead == miss)
        return (here - behind) / axis.spacing;
    if (behind == miss)
        return (ahead - here) / axis.spacing;
    return (ahead - behind) / (2 * axis.spacing);
}

// Second difference of three neighbours, missing when one is.
double bend(double first, double middle, double last, const Axis& axis) {
    if (first == miss || middle == miss || last == miss)
        return miss;
    return (first + last - 2 * middle) / (axis.spacing * axis.spacing);
}

// Second derivative, from the higher indexes unless the first one there can't be used.
double curvature(const Grid& f, int i, int j, const Axis& axis) {
    const auto at = [&](int n) { return valueAt(f, i, j, axis, n * (axis.di + axis.dj)); };
    const double here = f.getValue(i, j);
    if (at(1) == miss)
        return bend(here, at(-1), at(-2), axis);
    if (at(-1) == miss)
        return bend(here, at(1), at(2), axis);
    return bend(at(-1), here, at(1), axis);
}

enum class Poles { MISSING, KEPT };

// Makes a result of value(i, j, axes) at each point where all fields have a value.
template <class Value, class... Rest>
int differentiate(Grid& out, const char* name, const char* units, Poles poles, Value value,
                  const Grid& first, const Rest&... rest) {
    if (!isField(first, rest...))
        return 0;
    Axes axes(first);
    int row = -1;
    return make(out, first, name, units, [&](int i, int j) {
        if (poles == Poles::MISSING && j != row)
            axes = Axes(first, row = j);
        const bool missing = first.getValue(i, j) == miss || ((rest.getValue(i, j) == miss) || ...);
        return missing || !axes.valid ? miss : toValue(value(i, j, axes));
    });
}

// The units of a field by metre or by second, on the scale of 100 km.
String scaleUnits(const Grid& field, const char* by) {
    constexpr std::size_t length = 30;
    const std::string units = std::string(field.getUnits()) + by;
    String scaled;
    Unit::scale(units.substr(0, length).c_str(), hundred_km, "", scaled);
    Unit::simplify(scaled);
    return scaled;
}

// A function of a wind and a scalar comes in the units that the result is to have.
template <class Value>
int transport(Grid& out, const char* name, const Grid& u, const Grid& v, const Grid& s,
              Value value) {
    const std::string wanted = out.getUnits();
    const String units = scaleUnits(s, "/s");
    if (!differentiate(out, name, units.get(), Poles::MISSING, value, u, v, s))
        return 0;
    GridMath::units(out, wanted.c_str());
    return 1;
}

template <class Value>
int deform(Grid& out, const char* name, const Grid& u, const Grid& v, Value value) {
    return differentiate(out, name, per_second, Poles::MISSING, value, u, v);
}

class CoriolisTerm {
public:
    const char* op;
    double (*apply)(double a, double f);
};

constexpr CoriolisTerm coriolis_terms[] = {
    {"add", [](double a, double f) { return a + f; }},
    {"sub", [](double a, double f) { return a - f; }},
    {"sub-", [](double a, double f) { return f - a; }},
    {"mul", [](double a, double f) { return f * a; }},
    {"div-", [](double a, double f) { return f / a; }},
};

using Term = double (*)(double a, double f);
Term findTerm(const char* op) {
    for (const CoriolisTerm& term : coriolis_terms)
        if (StrLib::equal(op, term.op))
            return term.apply;
    return [](double a, double f) { return a / f; };
}

// From the slope of a pressure surface to the wind along it.
int toGeostrophic(Grid& wind, const char* name, double factor) {
    return GridMath::coriolis(wind, wind, "div") &&
           GridMath::scale(wind, static_cast<float>(factor)) &&
           GridMath::setInfo(wind, name, "m/s");
}

} // namespace

int GridMath::dx(Grid& out, const Grid& in) {
    const auto value = [&in](int i, int j, const Axes& axes) { return slope(in, i, j, axes.x); };
    return differentiate(out, "dx", scaleUnits(in, "/m").get(), Poles::MISSING, value, in) ||
           refuse(out);
}

int GridMath::dy(Grid& out, const Grid& in) {
    const auto value = [&in](int i, int j, const Axes& axes) { return slope(in, i, j, axes.y); };
    return differentiate(out, "dy", scaleUnits(in, "/m").get(), Poles::KEPT, value, in) ||
           refuse(out);
}

int GridMath::laplacian(Grid& out, const Grid& in) {
    const auto value = [&in](int i, int j, const Axes& axes) -> double {
        const double x = curvature(in, i, j, axes.x), y = curvature(in, i, j, axes.y);
        return x == miss || y == miss ? miss : x + y;
    };
    return differentiate(out, "lapl", scaleUnits(in, "/m").get(), Poles::MISSING, value, in) ||
           refuse(out);
}

int GridMath::converge(Grid& out, const Grid& u, const Grid& v) {
    return deform(out, "conv", u, v, [&](int i, int j, const Axes& axes) {
        return -slope(u, i, j, axes.x) - slope(v, i, j, axes.y);
    });
}

int GridMath::deformation1(Grid& out, const Grid& u, const Grid& v) {
    return deform(out, "def1", u, v, [&](int i, int j, const Axes& axes) {
        return slope(u, i, j, axes.x) - slope(v, i, j, axes.y);
    });
}

int GridMath::deformation2(Grid& out, const Grid& u, const Grid& v) {
    return deform(out, "def2", u, v, [&](int i, int j, const Axes& axes) {
        return -slope(v, i, j, axes.x) - slope(u, i, j, axes.y);
    });
}

int GridMath::vorticity(Grid& out, Grid& u, Grid& v) {
    if (!isField(u, v))
        return 0;
    units(u, "m/s");
    units(v, "m/s");
    return deform(out, "rvort", u, v, [&](int i, int j, const Axes& axes) {
        return slope(v, i, j, axes.x) - slope(u, i, j, axes.y);
    });
}

int GridMath::converge(Grid& out, const Grid& u, const Grid& v, const Grid& s) {
    return transport(out, "conv", u, v, s, [&](int i, int j, const Axes& axes) {
        return -(slope(u, i, j, axes.x) + slope(v, i, j, axes.y)) * s.getValue(i, j);
    });
}

int GridMath::advection(Grid& out, const Grid& u, const Grid& v, const Grid& s) {
    return transport(out, "adv", u, v, s, [&](int i, int j, const Axes& axes) {
        return -u.getValue(i, j) * slope(s, i, j, axes.x) -
               v.getValue(i, j) * slope(s, i, j, axes.y);
    });
}

int GridMath::coriolis(Grid& out, const Grid& in, const char* op) {
    if (!in.isData())
        return &out == &in ? 0 : refuse(out);
    Grid made = in;
    const Term term = findTerm(op);
    fill(made, [&](int i, int j) {
        const float value = in.getValue(i, j), lat = earthAt(in, i, j).lat;
        if (value == miss || lat == miss)
            return miss;
        return toValue(term(value, std::sin(lat * Const::DRC) * twice_earth_rate));
    });
    out = std::move(made);
    return 1;
}

int GridMath::geosU(Grid& out, Grid& z) {
    if (!z.isData())
        return 0;
    units(z, "m");
    return dy(out, z) && toGeostrophic(out, "ugeos", -gravity);
}

int GridMath::geosV(Grid& out, Grid& z) {
    if (!z.isData())
        return 0;
    units(z, "m");
    return dx(out, z) && toGeostrophic(out, "vgeos", gravity);
}

} // namespace ORV
