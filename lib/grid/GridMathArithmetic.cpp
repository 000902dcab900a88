#include "ORV/Grids.h"
#include "ORV/StrLib.h"

#include "GridCompute.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace ORV {

using namespace GridCompute;

namespace {

constexpr double no_number =
    std::numeric_limits<double>::quiet_NaN(); // which toValue makes missing

// Of two operands the one that says what the result is.
const Grid& describer(const Grid& a, const Grid& b) {
    return a.isValue() ? b : a;
}

template <class Value>
int combine(Grid& out, const char* name, const char* units, const Grid& a, const Grid& b,
            Value value) {
    return isTogether(a, b) && make(out, describer(a, b), name, units, pointwise(value, a, b));
}

template <class Value>
int combineOrEmpty(Grid& out, const char* name, const char* units, const Grid& a, const Grid& b,
                   Value value) {
    return combine(out, name, units, a, b, value) || refuse(out);
}

template <class Value>
int apply(Grid& out, const char* name, const Grid& in, Value value) {
    const bool field = in.isData() && !in.isValue();
    return (field && make(out, in, name, "", pointwise(value, in))) || refuse(out);
}

template <class Value>
int change(Grid& grid, const Grid& other, Value value) {
    if (!isField(grid, other))
        return 0;
    fill(grid, pointwise(value, grid, other));
    return 1;
}

// Whether all grids with data are fields like the first one, or constants.
bool isList(const Grids& grids) {
    const Grid* first = grids.grd;
    if (grids.num < 1 || !first->isData())
        return false;
    return std::all_of(first, first + grids.num, [first](const Grid& grid) {
        return !grid.isData() || isTogether(*first, grid);
    });
}

// merge(a, b) of all values that there are at each point, times a factor.
template <class Merge>
int gather(Grid& out, const Grids& grids, const char* name, const char* units, Merge merge,
           double factor = 1) {
    const auto value = [&grids, merge, factor](int i, int j) {
        int found = 0;
        double all = 0;
        for (int k = 0; k < grids.num; k++) {
            const double x = grids.grd[k].getValue(i, j);
            if (x != miss)
                all = found++ ? merge(all, x) : x;
        }
        return found ? toValue(all * factor) : miss;
    };
    return (isList(grids) && make(out, grids.grd[0], name, units, value)) || refuse(out);
}

// The test of a mode "lower" or "higher"; null for any other.
using Beyond = bool (*)(float value, float limit);
Beyond getTest(const char* mode) {
    if (StrLib::equal(mode, "lower"))
        return [](float value, float limit) { return value < limit; };
    if (StrLib::equal(mode, "higher"))
        return [](float value, float limit) { return value > limit; };
    return nullptr;
}

int replace(Grid& grid, const char* mode, float limit, float replacement) {
    const Beyond beyond = getTest(mode);
    if (!beyond || !grid.isData())
        return 0;
    fill(grid, [&grid, beyond, limit, replacement](int i, int j) {
        const float value = grid.getValue(i, j);
        return value != miss && beyond(value, limit) ? replacement : value;
    });
    return 1;
}

float wrapLon(float lon) {
    return lon == miss ? lon : lon < -180 ? lon + 360 : lon > 180 ? lon - 360 : lon;
}

class Position {
public:
    const char* kind;
    const char* title;
    const char* units;
    float (*get)(const Grid& grid, int i, int j);
};

constexpr Position positions[] = {
    {"lat", "Latitude (deg)", "deg",
     [](const Grid& grid, int i, int j) { return earthAt(grid, i, j).lat; }},
    {"lon", "Longitude (deg)", "deg",
     [](const Grid& grid, int i, int j) { return wrapLon(earthAt(grid, i, j).lon); }},
    {"projx", "Projection X", "",
     [](const Grid& grid, int i, int j) { return plotAt(grid, i, j).x; }},
    {"projy", "Projection Y", "",
     [](const Grid& grid, int i, int j) { return plotAt(grid, i, j).y; }},
};

} // namespace

int GridMath::remap(Grid& out, const Domain& domain, const Grid& in) {
    if (!in.isData())
        return 0;
    Grid made;
    made.copyInfo(in);
    if (domain.isSet())
        made.setDomain(domain);
    if (!made.allocData())
        return 0;
    if (domain.isSet())
        fill(made, [&](int i, int j) { return in.getValue(earthAt(made, i, j)); });
    else
        fill(made, [&in](int i, int j) { return in.getValue(i, j); });
    out = std::move(made);
    return 1;
}

int GridMath::cutoff(Grid& out, const char* mode, float limit, float replacement, const Grid& in) {
    Grid made = in;
    if (!replace(made, mode, limit, replacement))
        return 0;
    out = std::move(made);
    return 1;
}

int GridMath::mask(Grid& grid, const char* mode, float limit) {
    return replace(grid, mode, limit, miss);
}

int GridMath::resetMiss(Grid& grid, float value) {
    float* values = grid.data;
    std::replace(values, values + grid.data.size(), miss, value);
    return grid.isData();
}

int GridMath::offset(Grid& grid, float a) {
    return grid.offset(a);
}

int GridMath::scale(Grid& grid, float f) {
    return grid.scale(f);
}

int GridMath::interp(Grid& out, const Grid& a, float t, const Grid& b) {
    if (!isTogether(a, b))
        return 0;
    Grid made;
    made.copyInfo(describer(a, b));
    if (!made.allocData())
        return 0;
    fill(made, pointwise([t](double x, double y) { return x + (y - x) * t; }, a, b));
    out = std::move(made);
    return 1;
}

int GridMath::locatePoint(Grid& out, const Grid& in, const char* kind) {
    for (const Position& position : positions)
        if (StrLib::equal(kind, position.kind)) {
            const auto value = [&](int i, int j) { return position.get(in, i, j); };
            return make(out, in, position.kind, position.units, value) &&
                   out.setInfo(position.title);
        }
    return 0;
}

int GridMath::add(Grid& out, const Grid& a, const Grid& b) {
    return combine(out, "add", "", a, b, std::plus<double>());
}

int GridMath::diff(Grid& out, const Grid& a, const Grid& b) {
    return combineOrEmpty(out, "diff", a.getUnits(), a, b, std::minus<double>());
}

int GridMath::mult(Grid& out, const Grid& a, const Grid& b) {
    return combineOrEmpty(out, "mult", "", a, b, std::multiplies<double>());
}

int GridMath::div(Grid& out, const Grid& a, const Grid& b) {
    return combineOrEmpty(out, "div", "", a, b,
                          [](double x, double y) { return y == 0 ? no_number : x / y; });
}

int GridMath::mod(Grid& out, const Grid& a, const Grid& b) {
    return combineOrEmpty(out, "mod", "", a, b,
                          [](double x, double y) { return y == 0 ? no_number : std::fmod(x, y); });
}

int GridMath::pow(Grid& out, const Grid& a, const Grid& b) {
    return combineOrEmpty(out, "pow", "", a, b, [](double x, double y) { return std::pow(x, y); });
}

int GridMath::add(Grid& a, const Grid& b) {
    return change(a, b, std::plus<double>());
}

int GridMath::diff(Grid& a, const Grid& b) {
    return change(a, b, std::minus<double>());
}

int GridMath::sqrt(Grid& out, const Grid& in) {
    return apply(out, "sqrt", in, [](double x) { return std::sqrt(x); });
}

int GridMath::abs(Grid& out, const Grid& in) {
    return apply(out, "abs", in, [](double x) { return std::fabs(x); });
}

int GridMath::inv(Grid& out, const Grid& in) {
    return apply(out, "inv", in, std::negate<double>());
}

int GridMath::log(Grid& out, const Grid& in) {
    return apply(out, "log", in, [](double x) { return std::log(x); });
}

int GridMath::log10(Grid& out, const Grid& in) {
    return apply(out, "log10", in, [](double x) { return std::log10(x); });
}

int GridMath::exp(Grid& out, const Grid& in) {
    return apply(out, "exp", in, [](double x) { return std::exp(x); });
}

int GridMath::add(Grid& out, const Grids& grids) {
    return gather(out, grids, "sum", grids.getVarSpec(0).getUnits(), std::plus<double>());
}

int GridMath::avg(Grid& out, const Grids& grids) {
    const double share = 1.0 / std::max(grids.num, 1);
    return gather(out, grids, "avg", grids.getVarSpec(0).getUnits(), std::plus<double>(), share);
}

int GridMath::max(Grid& out, const Grids& grids) {
    return gather(out, grids, "max", "", [](double x, double y) { return std::max(x, y); });
}

int GridMath::min(Grid& out, const Grids& grids) {
    return gather(out, grids, "min", "", [](double x, double y) { return std::min(x, y); });
}

} // namespace ORV
