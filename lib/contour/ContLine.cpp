#include "ORV/ContPlot.h"
#include "ORV/Grid.h"
#include "ORV/Plot.h"
#include "ORV/StrLib.h"

#include "ContTools.h"

namespace ORV {

using namespace ContTools;

namespace {

enum LineStyle { solid = 1, dashed = 2 };

// What a level is drawn with.
class LevelStyle {
public:
    float level = 0;
    int style = solid;
    PlotAttr fill; // of the fill at the level
};

void setStyle(Plot& plot, LevelStyle& level, PlotAttr& attr, bool from_fill) {
    PlotAttr& from = level.fill;
    plot.setLineStyle(level.style);
    plot.setLineWidth(0);
    plot.setLine(attr);
    if (from_fill)
        plot.setLine(from);
    if (from.validStyle())
        plot.setLineStyle(from.style);
    if (from.validWidth())
        plot.setLineWidth(from.width);
}

int drawSegment(Plot& plot, const GridBox& box, const Point& a, const Point& b) {
    if (!box.span)
        return plot.drawLine(a, b);
    return plot.drawLine(fold(plot.getDomain(), a), fold(plot.getDomain(), b));
}

} // namespace

int ContPlot::drawLine(Plot& plot, Grid& grid) {
    float lo, hi;
    findRange(grid, lo, hi);
    setColors(plot);

    const bool from_fill = isColorFromFill() || color_line.equal("off");
    PlotAttr attr;
    if (!from_fill)
        attr.set(color_line.valid() ? color_line.get() : type == 3 ? "black" : "white");
    if (line_width != Const::MISS)
        attr.setWidth(line_width);

    lo = dpy_min == Const::MISS ? lo : dpy_min;
    hi = dpy_max == Const::MISS ? hi : dpy_max;
    box.setTweak(getTweak(lo, hi));
    chooseLevels(lo, hi, true);

    plot.setLine();
    plot.setLine(attr);

    LevelList levels;
    std::vector<LevelStyle> styles(num_cont);
    const float dash_below = base == Const::MISS ? 0 : base;
    for (int k = 0; k < num_cont; k++) {
        const float v = getLevel(k);
        levels.add(v);
        styles[k] = {v, dash == 1 || (dash == -1 && v < dash_below) ? dashed : solid, fill.get(v)};
    }

    CellReader cells(grid, plot.getDomain());
    int styled = -1;
    for (int j = 0; cells.isSet() && num_cont > 0 && j < grid.ny - 1; j++)
        for (int i = 0; i < grid.nx - 1; i++) {
            if (!cells.read(i, j))
                continue;
            int k = levels.find(cells.lo);
            if (!levels.reaches(k, cells.hi))
                continue;
            for (cells.get(box); levels.reaches(k, cells.hi); k++) {
                level = levels.levels[k];
                if (!box.setLevel(level))
                    continue;
                if (styled != k)
                    setStyle(plot, styles[k], attr, from_fill);
                styled = k;
                drawBoxLine(plot);
            }
        }
    drawLineLabels(plot, grid);
    drawMaxMin(plot, grid);
    return 1;
}

int ContPlot::drawBoxLine(Plot& plot) {
    constexpr float on_level = -4;
    constexpr float saddle = 2; // where both pairings of a saddle are equally near
    constexpr int ends[4][2] = {{0, 1}, {1, 3}, {2, 3}, {0, 2}};
    for (int s = 0; s < 4; s++)
        if (box.side[s] == on_level && box.val[ends[s][0]] == box.level)
            drawSegment(plot, box, box.pt[ends[s][0]], box.pt[ends[s][1]]);

    const Point* c = box.cpt;
    if (box.numside == 2) {
        drawSegment(plot, box, c[0], c[1]);
    } else if (box.numside == 4) {
        const bool near = box.tsides >= saddle;
        drawSegment(plot, box, c[0], near ? c[1] : c[3]);
        drawSegment(plot, box, near ? c[2] : c[1], near ? c[3] : c[2]);
    }
    return 1;
}

} // namespace ORV
