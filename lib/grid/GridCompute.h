#pragma once

#include "ORV/Grid.h"
#include "ORV/GridMath.h"

#include <cmath>
#include <limits>
#include <utility>

namespace ORV {

/// What the functions of GridMath have in common: how a result is described, and how values go
/// from point to point.
namespace GridCompute {

constexpr float miss = Const::MISS;

/// A computed number as a value of a grid.
inline float toValue(double x) {
    constexpr double most = std::numeric_limits<float>::max();
    constexpr float infinite = std::numeric_limits<float>::infinity();
    if (std::isnan(x))
        return miss;
    return x > most ? infinite : x < -most ? -infinite : static_cast<float>(x);
}

/// Where a point of a grid lies: missing where it lies nowhere.
inline Point plotAt(const Grid& grid, int i, int j) {
    Point plot;
    grid.tran(GridPoint(static_cast<float>(i), static_cast<float>(j)), plot);
    return plot;
}
inline EarthPoint earthAt(const Grid& grid, int i, int j) {
    EarthPoint earth;
    grid.tran(GridPoint(static_cast<float>(i), static_cast<float>(j)), earth);
    return earth;
}

/// Whether two grids have values at the same points; a constant has its value at all points.
inline bool isTogether(const Grid& a, const Grid& b) {
    return a.isData() && b.isData() &&
           (a.isValue() || b.isValue() || GridMath::isDomainEqual(a, b));
}

/// Whether all fields have data on one domain.
template <class... Rest>
bool isField(const Grid& first, const Rest&... rest) {
    return first.isData() &&
           ((rest.isData() && GridMath::isDomainEqual(first, rest)) && ... && true);
}

/// Sets each value of a grid to value(i, j).
template <class Value>
void fill(Grid& grid, Value value) {
    for (int j = 0; j < grid.ny; j++)
        for (int i = 0; i < grid.nx; i++)
            grid.setValue1(i, j, value(i, j));
}

/// value(x...) of the values of some grids, missing where one of them is.
template <class Value, class... Fields>
auto pointwise(Value value, const Fields&... fields) {
    return [&fields..., value](int i, int j) {
        const auto combine = [value](auto... x) {
            return ((x == miss) || ...) ? miss : toValue(value(x...));
        };
        return combine(fields.getValue(i, j)...);
    };
}

/// Makes `out` a grid like another one, of this variable and with value(i, j) as its values. It is
/// put in place last, so that it may be one of the operands. 0, with nothing changed, when it has
/// no room.
template <class Value>
int make(Grid& out, const Grid& like, const char* name, const char* units, Value value) {
    Grid made;
    made.copyInfo(like);
    if (!made.allocData())
        return 0;
    fill(made, value);
    GridMath::setInfo(made, name, units);
    out = std::move(made);
    return 1;
}

/// The outcome of a refused function that leaves nothing.
inline int refuse(Grid& out) {
    out.init();
    return 0;
}

} // namespace GridCompute
} // namespace ORV
