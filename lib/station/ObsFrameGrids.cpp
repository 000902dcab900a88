#include "ORV/GridMath.h"
#include "ORV/GridTool.h"
#include "ORV/ObsChart.h"
#include "ORV/Scan.h"
#include "ORV/String.h"
#include "ORV/VarSpec.h"

#include "ObsFrame.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ORV {
namespace {
constexpr int time_and_level = 3; // of VarSpec::update
} // namespace

/// Gives each item that needs a grid its data index.
void ObsFrame::listGrids() {
    for (int i = 0; i < list.num;) {
        if (list.isFunction(i) || list.isVectFunction(i))
            i = listFunction(i);
        else if (list.isVect(i))
            i = listVector(i);
        else {
            if (isGridded(i))
                addSlot(i);
            i++;
        }
    }
}

/// Adds the slots of one item: its key to be analysed, a constant, or an empty one for a result.
void ObsFrame::addSlot(int i) {
    list.setDataIndex(i, grids.getNum());
    float constant;
    if (list.isFunction(i) || list.isVectFunction(i)) {
        grids.addSpec(GridSpec());
        if (list.isVectFunction(i))
            grids.addSpec(GridSpec());
    } else if (list.getName(i)[0] == '#' && Scan::number(list.getName(i) + 1, constant) > 0) {
        Grid grid;
        GridTool::valueGrid(grid, constant);
        grids.addGrid(grid);
    } else {
        GridSpec spec;
        list.get(i, spec);
        grids.addSpec(spec);
    }
}

int ObsFrame::listFunction(int i) {
    const int end = endOf(i);
    for (int j = i; j < end; j++)
        if (!list.isVect(j) && !list.isGroup(j) && !list.isEmpty(j))
            addSlot(j);
    return end;
}

int ObsFrame::listVector(int i) {
    int j = i + 1;
    for (; j < list.num && list.getLayer(j) == list.getLayer(i) + 1; j++)
        if (!list.isEmpty(j))
            addSlot(j);
    return j;
}

/// Analyses all quantities in one reading of the file. The text has an entry for each slot, "null"
/// for those that the observations don't fill.
void ObsFrame::analyse() {
    if (grids.getNum() == 0)
        return;
    std::vector<std::string> entries(grids.getNum(), "null");
    for (int i = 0; i < list.num; i++) {
        const int index = list.getDataIndex(i);
        if (index < 0 || !grids.isVarSet(index))
            continue;
        String text;
        list.getString(i, text);
        entries[index] = text.get();
    }
    std::string variable;
    for (const std::string& entry : entries)
        variable += entry + ",";
    chart.sfc.setVariable(variable.c_str());
    chart.sfc.compute(grids);
}

/// Evaluates the functions from the deepest layer outward, so that a nested result is there when
/// the enclosing function reads it.
void ObsFrame::computeFunctions() {
    const auto isComputed = [&](int i) { return list.isFunction(i) || list.isVectFunction(i); };
    int top = 0;
    for (int i = 0; i < list.num; i++)
        if (isComputed(i))
            top = std::max(top, list.getLayer(i));
    for (int depth = top; depth >= 0; depth--)
        for (int i = 0; i < list.num; i++)
            if (isComputed(i) && list.getLayer(i) == depth)
                computeFunction(i);
}

void ObsFrame::collectOperands(int i, Grids& operands) const {
    int deepest = list.getLayer(i) + 1;
    Grid grid;
    const auto addGrid = [&](int index) {
        grids.getGrid(index, grid);
        operands.addGrid(grid);
    };
    for (int j = i + 1; j < endOf(i); j++) {
        if (list.isVect(j))
            deepest = list.getLayer(i) + 2;
        const int index = list.getDataIndex(j);
        if (list.isVect(j) || list.getLayer(j) > deepest || index < 0)
            continue;
        addGrid(index);
        if (list.isVectFunction(j))
            addGrid(index + 1);
    }
}

void ObsFrame::computeFunction(int i) {
    Grids operands;
    collectOperands(i, operands);
    const int index = list.getDataIndex(i);
    Grid u, v;
    if (list.isFunction(i)) {
        GridMath::process(list.getName(i), u, operands);
    } else {
        GridMath::process(list.getName(i), u, v, operands);
        GridMath::units(v, list.getUnits(i));
        grids.setGrid(index + 1, v);
    }
    VarSpec own, wanted;
    u.getVar(own);
    list.get(i, wanted);
    own.update(wanted, time_and_level);
    u.setVar(own);
    GridMath::units(u, list.getUnits(i));
    grids.setGrid(index, u);
}

} // namespace ORV
