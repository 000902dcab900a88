#include "ORV/ColorFile.h"
#include "ORV/ContPlot.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Tools.h"

#include "ContTools.h"

#include <algorithm>
#include <cmath>

namespace ORV {

using namespace ContTools;

namespace {

constexpr int most_levels = 150;    // more than these make a plot black
constexpr int limit_levels = 10000; // when even a chosen interval doesn't fit the base

// Entries of a fill with values up to the first whose value isn't known.
int countValues(const ColorFill& fill) {
    int n = 0;
    while (n < fill.num && fill.value[n] != Const::MISS)
        n++;
    return n;
}

} // namespace

void ContTools::findRange(const Grid& grid, float& lo, float& hi) {
    lo = hi = Const::MISS;
    grid.getRange(lo, hi);
    if (std::isfinite(lo) && std::isfinite(hi))
        return;
    lo = hi = Const::MISS;
    const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(grid.nx) * grid.ny;
    for (std::ptrdiff_t i = 0; i < n; i++) {
        const float v = grid.data[i];
        if (isMissing(v))
            continue;
        lo = lo == Const::MISS ? v : std::min(lo, v);
        hi = hi == Const::MISS ? v : std::max(hi, v);
    }
}

// The table is read into the plot's colors; the fill adds its own to them.
void ContPlot::setColors(Plot& plot) {
    if (color_table.valid()) {
        ColorMap table;
        ColorFile::read(color_table.get(), table);
        plot.setColorMap(table);
    }
    fill.set(plot.getColorMap(), color_fill.valid() ? color_fill.get() : nullptr);
}

bool ContPlot::isColorFromFill() const {
    return color_line.equal("miss");
}

void ContPlot::chooseLevels(float lo, float hi, bool find_interval) {
    if (intrvl == 0 || (find_interval && intrvl == Const::MISS))
        intrvl = Tools::calcInterval(hi, lo, fill.num - 1);

    if (fill.areValuesSet()) {
        conlo = fill.getValue(0);
        num_cont = countValues(fill);
        conhi = fill.getValue(num_cont - 1);
        intrvl = Const::MISS;
    } else if (hi == Const::MISS) {
        conlo = 0;
        intrvl = 1;
        num_cont = 0;
    } else {
        countLevels(lo, hi);
        if (num_cont > most_levels) {
            Orv::outWarning("Contour interval too small, recomputing...\n");
            intrvl = Tools::calcInterval(hi, lo, fill.num - 1);
            countLevels(lo, hi);
        }
        if (num_cont > limit_levels)
            num_cont = 0;
    }
    fill.setInterval(intrvl);
    fill.setBase(base == Const::MISS ? conlo : base);
}

void ContPlot::countLevels(float lo, float hi) {
    constexpr double rounding = 1.01; // one level more than steps, and some slack
    if (intrvl == Const::MISS) {
        conlo = conhi = Const::MISS;
        num_cont = 0;
        return;
    }
    const double from = base == Const::MISS ? 0 : base;
    // Chosen for limits that run downward, the interval does, too.
    const double step = std::fabs(double(intrvl));
    intrvl = static_cast<float>(step);
    double low = hi, high = lo;
    if (!(hi < lo)) {
        const double top = std::ceil((hi - from) / step) * step;
        low = std::floor((lo - from) / step) * step + from;
        high = top + from;
        if (static_cast<float>(top) == static_cast<float>(hi - from))
            high += step;
    }
    conlo = static_cast<float>(low);
    conhi = static_cast<float>(high);
    const double count = (high - low) / step + rounding;
    num_cont = std::isfinite(count) ? Scan::toInt(count) : 0;
}

float ContPlot::getLevel(int k) const {
    if (!fill.areValuesSet())
        return static_cast<float>(k * double(intrvl) + conlo);
    const float value = fill.getValue(k);
    return value == Const::MISS ? max + 1.0f : value;
}

} // namespace ORV
