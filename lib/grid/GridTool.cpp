#include "ORV/GridTool.h"

#include "ORV/ForeTime.h"
#include "ORV/Grid.h"
#include "ORV/GridPoints.h"
#include "ORV/GridSpec.h"
#include "ORV/GridStats.h"
#include "ORV/Level.h"
#include "ORV/Scan.h"
#include "ORV/VarNameItem.h"

#include <cstdint>
#include <iterator>

namespace ORV {
namespace {
constexpr int not_given = 799;

/// Puts a single time into both groups of a period's code, under its kind and offset.
int fillPeriod(int code, float start) {
    const std::int64_t hours = Scan::toInt(start);
    const std::int64_t head = code / 1000000;
    return Scan::toInt(static_cast<double>(head * 1000000 + hours * 1000 + hours));
}

template <class Use>
void forEachValue(const Grid& grid, const GridPoints& points, Use use) {
    for (int k = 0; k < points.num; k++) {
        const float value = grid.getValue(GridPoint(points.getGX1(k), points.getGY1(k)));
        if (value != Const::MISS)
            use(value);
    }
}
} // namespace

int GridTool::valueGrid(Grid& grid, float value) {
    grid.init();
    grid.setSize(1, 1);
    grid.allocData();
    grid.setInfo("Value grid");
    return grid.setValue(0, 0, value);
}

int GridTool::getStats(const Grid& grid, const GridPoints& points, GridStats& stats) {
    stats = GridStats();
    double sum = 0;
    forEachValue(grid, points, [&](float value) {
        if (stats.num == 0 || value < stats.min)
            stats.min = value;
        if (stats.num == 0 || value > stats.max)
            stats.max = value;
        sum += value;
        stats.num++;
    });
    stats.avg =
        stats.num == 0 ? static_cast<float>(Const::MISS) : static_cast<float>(sum / stats.num);
    return 1;
}

float GridTool::getCoverage(const Grid& grid, const GridPoints& points, float lo, float hi) {
    int all = 0, covered = 0;
    forEachValue(grid, points, [&](float value) {
        all++;
        covered += value >= lo && value <= hi;
    });
    return all == 0 ? static_cast<float>(Const::MISS) : static_cast<float>(covered) / all;
}

int GridTool::updateSpec(GridSpec& spec, const ForeTime& time, const Level& level,
                         const VarNameItem& item) {
    updateSpec(spec, time, level);
    for (int k = 1; k < static_cast<int>(std::size(spec.var)); k++)
        if (spec.var[k] == Const::MISS)
            spec.var[k] = item.ind[k];
    return 1;
}

int GridTool::updateSpec(GridSpec& spec, const ForeTime& time, const Level& level) {
    updateSpec(spec, time);
    return updateSpec(spec, level);
}

int GridTool::updateSpec(GridSpec& spec, const ForeTime& time) {
    const bool unknown = time.tim1 == Const::MISS && time.tim2 == Const::MISS;
    if (spec.time == Const::MISS) {
        if (!unknown)
            spec.time = time.toCode();
    } else if (spec.getTime1() == not_given) {
        if (time.type >= 1 && time.type <= 8)
            spec.time = time.toCode();
        else if (time.tim1 != Const::MISS)
            spec.time = fillPeriod(spec.time, time.tim1);
    }
    return 1;
}

int GridTool::updateSpec(GridSpec& spec, const Level& level) {
    if (spec.ltype == Const::MISS && level.isSet()) {
        spec.ltype = level.toTypeCode();
        spec.level = level.toLevelCode();
    }
    return 1;
}

} // namespace ORV
