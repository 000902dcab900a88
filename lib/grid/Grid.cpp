#include "ORV/Grid.h"

#include "ORV/FloatArray.h"
#include "ORV/GridSpec.h"
#include "ORV/Range.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace ORV {
namespace {
/// Number of points of a grid, 0 when one of this size can't have any.
int countPoints(int nx, int ny) {
    if (nx < 1 || ny < 1)
        return 0;
    const std::int64_t points = std::int64_t{nx} * ny;
    return points <= Grid::max_points ? static_cast<int>(points) : 0;
}

/// The value between two others, missing when one of them is.
double mix(double a, double b, double part) {
    return a == Const::MISS || b == Const::MISS ? Const::MISS : (1 - part) * a + part * b;
}

template <class Change>
int changeValues(OwnedArray<float>& data, Change change) {
    for (int k = 0; k < data.size(); k++)
        if (data[k] != Const::MISS)
            data[k] = change(data[k]);
    return data != nullptr;
}
} // namespace

int Grid::init() {
    *this = Grid();
    return 1;
}

int Grid::checkArrays() {
    const int points = countPoints(nx, ny);
    for (OwnedArray<float>* array : {&data, &xloc, &yloc})
        if (array->size() != points)
            *array = {};
    return 1;
}

int Grid::copyInfo(const Grid& other) {
    type = other.type;
    version = other.version;
    source = other.source;
    setDatim(other.datim);
    setInfo(other.info);
    date = other.date;
    nx = other.nx;
    ny = other.ny;
    grid_type = other.grid_type;
    domain = other.domain;
    model = other.model;
    setGenName(other.gen_name);
    var = other.var;
    return checkArrays();
}

int Grid::copyData(const Grid& other) {
    if (nx != other.nx || ny != other.ny)
        return 0;
    data = other.data;
    xloc = other.xloc;
    yloc = other.yloc;
    return 1;
}

int Grid::setSize(int size_x, int size_y) {
    domain.set(size_x, size_y);
    nx = size_x;
    ny = size_y;
    return checkArrays();
}

int Grid::setDomain(const DomainVal& val) {
    domain.set(val);
    nx = domain.nx;
    ny = domain.ny;
    return checkArrays();
}

int Grid::setDomain(const Domain& dom) {
    domain = dom;
    nx = domain.nx;
    ny = domain.ny;
    return checkArrays();
}

int Grid::setDatim(const char* text) {
    return StrLib::copy(datim, sizeof datim, text), 1;
}

int Grid::setInfo(const char* text) {
    return StrLib::copy(info, sizeof info, text), 1;
}

int Grid::setGenName(const char* text) {
    return StrLib::copy(gen_name, sizeof gen_name, text), 1;
}

Date Grid::getInitDate() const {
    Date start = date;
    const int seconds = getForeSeconds();
    // The seconds of a forecast may be the most negative int, which has no opposite.
    if (seconds != Const::MISS)
        start += static_cast<int>(
            std::min<std::int64_t>(-std::int64_t{seconds}, std::numeric_limits<int>::max()));
    return start;
}

int Grid::setUnits(const char* units) {
    if (!StrLib::valid(units))
        return 0;
    var.setUnits(units);
    int at = StrLib::index(info, '[');
    if (at < 0)
        at = StrLib::index(info, '(');
    if (at >= 0)
        info[at] = '\0';
    else
        StrLib::append(info, sizeof info, " ");
    StrLib::aprintf(info, sizeof info, "[%s]", units);
    return 1;
}

GridSpec Grid::getSpec() const {
    GridSpec spec;
    spec.set(model, grid_type, var.getForeCode(), var.getLevelTypeCode(), var.getLevelCode(),
             var.getVarCode());
    return spec;
}

int Grid::getSpec(GridSpec& out) const {
    out = getSpec();
    return 1;
}

int Grid::allocData() {
    const int points = countPoints(nx, ny);
    if (points == 0)
        return 0;
    data = OwnedArray<float>(); // two at once might not fit
    data = OwnedArray<float>(points);
    std::fill_n(static_cast<float*>(data), points, static_cast<float>(Const::MISS));
    return 1;
}

int Grid::allocLocate() {
    const int points = countPoints(nx, ny);
    if (nx < 2 || ny < 2 || points == 0)
        return 0;
    xloc = OwnedArray<float>(points);
    yloc = OwnedArray<float>(points);
    return 1;
}

int Grid::setData(const float* src, int flip) {
    if (!src || !allocData())
        return 0;
    for (int j = 0; j < ny; j++)
        std::copy_n(src + nx * (flip ? ny - 1 - j : j), nx, data + nx * j);
    return 1;
}

int Grid::setData(const FloatArray& src, int flip) {
    if (!allocData())
        return 0;
    const float* values = src.vals;
    for (int j = 0; j < ny; j++) {
        const int start = nx * (flip ? ny - 1 - j : j);
        std::copy_n(values + std::min(start, src.num), std::clamp(src.num - start, 0, nx),
                    data + nx * j);
    }
    return 1;
}

float Grid::getValue(const GridPoint& point) const {
    const double gx = point.gx, gy = point.gy;
    if (!data || !(gx >= 0 && gx <= nx - 1 && gy >= 0 && gy <= ny - 1))
        return Const::MISS;
    const int i = static_cast<int>(gx), j = static_cast<int>(gy);
    const double fx = gx - i, fy = gy - j;
    const bool last_column = i == nx - 1, last_row = j == ny - 1;
    const float here = getValue1(i, j);
    if (last_column && last_row)
        return here;

    double value;
    if (last_column) {
        value = mix(here, getValue1(i, j + 1), fy);
    } else if (last_row) {
        value = mix(here, getValue1(i + 1, j), fx);
    } else {
        const double right = getValue1(i + 1, j), below = getValue1(i, j + 1);
        const double across = getValue1(i + 1, j + 1);
        if (here == Const::MISS || right == Const::MISS || below == Const::MISS ||
            across == Const::MISS)
            return Const::MISS;
        value = (1 - fy) * (1 - fx) * here + (1 - fy) * fx * right + (1 - fx) * fy * below +
                fx * fy * across;
    }
    return std::isnan(value) ? static_cast<float>(Const::MISS) : static_cast<float>(value);
}

float Grid::getValue(const EarthPoint& earth) const {
    GridPoint point;
    tran(earth, point);
    return getValue(point);
}

float Grid::getValue(const Point& plot) const {
    GridPoint point;
    tran(plot, point);
    return getValue(point);
}

int Grid::setLocate(int i, int j, const Point& place) {
    if (!hasPlace(i, j))
        return 0;
    xloc[nx * j + i] = place.x;
    yloc[nx * j + i] = place.y;
    return 1;
}

int Grid::getLocate(int i, int j, Point& place) const {
    place = getLocate(i, j);
    return hasPlace(i, j);
}

Point Grid::getLocate(int i, int j) const {
    return hasPlace(i, j) ? Point(xloc[nx * j + i], yloc[nx * j + i]) : Point();
}

int Grid::getValid() const {
    if (!data)
        return Const::MISS;
    const float* values = data;
    return data.size() - static_cast<int>(std::count(values, values + data.size(), Const::MISS));
}

float Grid::getAverage() const {
    double sum = 0;
    int count = 0;
    for (int k = 0; k < data.size(); k++)
        if (data[k] != Const::MISS) {
            sum += data[k];
            count++;
        }
    return count == 0 ? static_cast<float>(Const::MISS) : static_cast<float>(sum / count);
}

int Grid::getRange(float& min, float& max) const {
    min = max = Const::MISS;
    for (int k = 0; k < data.size(); k++) {
        const float value = data[k];
        if (value == Const::MISS)
            continue;
        if (min == Const::MISS || value < min)
            min = value;
        if (max == Const::MISS || value > max)
            max = value;
    }
    return isData();
}

int Grid::getRange(Range& range) const {
    return getRange(range.min, range.max);
}

int Grid::scale(float f) {
    return changeValues(data, [f](float value) { return value * f; });
}

int Grid::offset(float f) {
    return changeValues(data, [f](float value) { return value + f; });
}

} // namespace ORV
