#pragma once

#include "ORV/Date.h"
#include "ORV/Grids.h"
#include "ORV/MapPlot.h"
#include "ORV/SfcFile.h"
#include "ORV/VarList.h"

namespace ORV {

class ObsChart;
class Plot;

/// What one call of ObsChart::draw works with: the open file, the parsed plot list, the grids that
/// it asks for, and the walk over it. Grids are numbered in the order of the list: a function takes
/// a slot for its result, one of vectors two, and each operand that is a quantity, constant or
/// function its own.
class ObsFrame {
public:
    ObsFrame(ObsChart& chart, Plot& plot) : chart(chart), plot(plot) {}

    int draw();

private:
    bool openFile();
    void readList();
    void placeMap();
    bool isMapOnTop() const;

    void listGrids();
    int listFunction(int i);
    int listVector(int i);
    void addSlot(int i);
    void analyse();
    void computeFunctions();
    void computeFunction(int i);
    void collectOperands(int i, Grids& operands) const;

    void drawMap(MapPlot& map);
    void drawItems();
    int drawItem(int i);
    void nameResult(int i, Grid& grid);
    int drawGrid(int i, int last);
    int drawVector(int i, int u_index, int v_index, int last);
    int drawMarkedVector(int i);
    int drawStations(int i);
    void addLabels(int i);

    bool isGridded(int i) const;
    int endOf(int i) const;

    ObsChart& chart;
    Plot& plot;
    SfcFile reports;
    Date date;
    VarList list;
    bool grid_type = false; ///< quantities are drawn as grids, not as station values
    Grids grids;
    MapPlot under_map{"default,under"};
    MapPlot over_map{"over"};
    bool auto_map = false; ///< no item of the list is a map
    bool blank = false;    ///< nothing was drawn yet
    int layer = 0;
    bool label = false;
};

} // namespace ORV
