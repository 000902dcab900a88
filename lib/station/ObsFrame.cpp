#include "ObsFrame.h"

#include "ORV/ContPlot.h"
#include "ORV/GridMath.h"
#include "ORV/ObsChart.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/SfcData.h"
#include "ORV/SfcDataTool.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/VarSpec.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ORV {
namespace {
constexpr int fill = 3, lines_over_fill = 4; // of ContPlot::decodeType
} // namespace

int ObsFrame::draw() {
    if (!openFile())
        return 0;
    readList();
    placeMap();
    listGrids();
    analyse();
    computeFunctions();
    drawItems();
    return 1;
}

bool ObsFrame::openFile() {
    if (!chart.file.isSet())
        chart.file.setFile("la");
    if (!reports.open(chart.file.getName())) {
        Orv::outMessage(3, "ObsChart: Unable to open file: %s\n", chart.file.getName());
        return false;
    }
    reports.getDate(date);
    return true;
}

void ObsFrame::readList() {
    const char* var_file = Orv::getResrc("var_file", "obschart.var");
    chart.sfc.setDomain(chart.grid_domain.isSet() ? chart.grid_domain : plot.getDomain());
    chart.sfc.sfc.setVarFile(var_file);
    chart.sfc.sfc.createHash();
    const int type = ContPlot::decodeType(chart.plot_type);
    grid_type = type >= 1 && type <= 4;
    list.setFile(var_file);
    VarList::process(chart.variable.get(), list);
    // The name is one file, whatever it looks like.
    chart.sfc.setFilename((std::string("@") + chart.file.getName()).c_str());
}

/// A fill hides a map under it, so the map then goes over it.
bool ObsFrame::isMapOnTop() const {
    const int type = chart.cont.cont.type;
    if (type == fill || type == lines_over_fill)
        return true;
    if (chart.map_fill >= 0)
        return chart.map_fill == 1 && list.num > 0;
    for (int i = 0; i < list.num; i++)
        if (list.isFillContour(i))
            return true;
    return false;
}

void ObsFrame::placeMap() {
    auto_map = chart.map;
    for (int i = 0; i < list.num; i++)
        if (list.isMap(i))
            auto_map = false;
    if (chart.map && isMapOnTop()) {
        under_map.setParam("fill_cont,nodefault");
        over_map.setParam("fill_cont,default");
    }
}

void ObsFrame::drawMap(MapPlot& map) {
    if (auto_map)
        map.draw(plot);
}

bool ObsFrame::isGridded(int i) const {
    return list.isParam(i) && !list.isEmpty(i) && (grid_type || list.isContour(i));
}

/// The first item behind i that isn't inside it.
int ObsFrame::endOf(int i) const {
    int end = i + 1;
    while (end < list.num && list.getLayer(end) > list.getLayer(i))
        end++;
    return end;
}

void ObsFrame::drawItems() {
    // Before a list that begins with a panel there is no picture for a map to lie under.
    blank = list.isPanel(0);
    if (!blank)
        drawMap(under_map);
    for (int i = 0; i < list.num; i++) {
        plot.setLine();
        plot.setText();
        plot.setMark();
        plot.setFill();
        layer = std::min(layer, list.getLayer(i));
        label = false;
        i = drawItem(i);
        if (label)
            addLabels(i);
    }
    drawMap(over_map);
}

/// Draws the item at i, and returns the last item that this took.
int ObsFrame::drawItem(int i) {
    if (list.isMap(i)) {
        MapPlot map;
        map.setParam(list.getFormat(i));
        map.draw(plot);
        return i;
    }
    if (list.isPanel(i)) {
        if (!blank)
            drawMap(over_map);
        blank = false;
        plot.newPanel(list.getFormat(i));
        chart.cont.init();
        chart.vect.init();
        drawMap(under_map);
        return i;
    }
    if (list.isFunction(i))
        return drawGrid(i, endOf(i) - 1);
    if (list.isVectFunction(i)) {
        const int index = list.getDataIndex(i);
        return drawVector(i, index, index + 1, endOf(i) - 1);
    }
    if (list.isVect(i))
        return drawMarkedVector(i);
    if (isGridded(i))
        return drawGrid(i, i);
    if (list.isGroup(i)) {
        label = layer == 0;
        layer = list.getLayer(i) + 1;
        chart.sfc.setParam(list.getFormat(i));
        return i;
    }
    if (list.isParam(i)) {
        label = layer == 0;
        return drawStations(i);
    }
    return i;
}

/// Labels the result of the function at i with the variable of its operand and what the item says.
void ObsFrame::nameResult(int i, Grid& grid) {
    VarSpec own, wanted;
    grid.getVar(own);
    list.get(i, wanted);
    own.set(wanted);
    String info;
    own.toInfoLabel(info);
    grid.setInfo(info.get());
}

int ObsFrame::drawGrid(int i, int last) {
    Grid grid;
    grids.getGrid(list.getDataIndex(i), grid);
    chart.cont.init();
    if (layer != 0)
        chart.cont.label = 0;
    if (list.isFunction(i)) {
        GridMath::units(grid, list.getUnits(i));
        nameResult(i, grid);
    }
    chart.cont.setParam(chart.param.get());
    chart.cont.setParam(list.getFormat(i));
    chart.cont.draw(plot, grid);
    return last;
}

int ObsFrame::drawVector(int i, int u_index, int v_index, int last) {
    Grid u, v;
    grids.getGrid(u_index, u);
    grids.getGrid(v_index, v);
    chart.vect.init();
    if (layer != 0)
        chart.vect.label = 0;
    if (list.isVectFunction(i)) {
        nameResult(i, u);
    } else { // the feathers of a barb count the units that the list gives the wind
        GridMath::units(u, list.getUnits(i));
        GridMath::units(v, list.getUnits(i));
    }
    chart.vect.setParam(chart.param.get());
    chart.vect.setParam(list.getFormat(i));
    chart.vect.draw(plot, u, v);
    return last;
}

/// Draws the vector whose components follow: the first is u, the last of the others v.
int ObsFrame::drawMarkedVector(int i) {
    int u_index = Const::MISS;
    int v_index = Const::MISS;
    const int end = endOf(i);
    for (int j = i + 1; j < end; j++)
        if (list.getLayer(j) == list.getLayer(i) + 1 && !list.isEmpty(j))
            (u_index == Const::MISS ? u_index : v_index) = list.getDataIndex(j);
    return drawVector(i, u_index, v_index, end - 1);
}

/// Plots a run of station items, all of them at one station before the next.
int ObsFrame::drawStations(int i) {
    struct Item {
        VarSpec spec;
        std::string attributes;
    };
    std::vector<Item> items;
    int end = i;
    for (; end < list.num && list.isParam(end) && list.getLayer(end) == layer; end++) {
        if (list.isEmpty(end))
            continue;
        Item item;
        list.get(end, item.spec);
        item.attributes = list.getFormat(end);
        std::replace(item.attributes.begin(), item.attributes.end(), ':', ',');
        items.push_back(std::move(item));
    }

    reports.rewind();
    chart.sfc.setParam(list.getFormat(i));
    SfcData report;
    Datum datum;
    while (reports.read(report)) {
        datum.init();
        if (!chart.sfc.sfc.getInfo(report, datum))
            continue;
        for (Item& item : items) {
            SfcDataTool::compute(report, item.spec, datum);
            datum.setFormat(item.attributes.c_str());
            chart.datum.draw(plot, datum);
        }
    }
    return std::max(i, end - 1);
}

void ObsFrame::addLabels(int i) {
    VarSpec spec;
    list.get(i, spec);
    if (!spec.fore.isSet())
        spec.fore.set("anal");
    if (!spec.level.isSet())
        spec.level.set(StrLib::equal(list.getName(i), "pres") ? "sl" : "sfc");
    const char* units = list.getUnits(i);
    if (!StrLib::valid(units))
        units = SfcDataTool::getUnits(list.getName(i));
    spec.setVar(list.getName(i), units);

    String text;
    spec.toInfoLabel(text);
    plot.addLabel("ul", text.get());
    if (!plot.date.isSet())
        plot.date = date;
    spec.toDateLabel(date, chart.tz, "", text);
    plot.addLabel("ur", text.get());
    plot.done();
}

} // namespace ORV
