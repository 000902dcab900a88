#include "ORV/ContPlot.h"
#include "ORV/Format.h"
#include "ORV/Grid.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/StrLib.h"
#include "ORV/Tools.h"

#include "ContTools.h"

#include <cstdio>

namespace ORV {

using namespace ContTools;

namespace {

constexpr float text_size = 0.015f;  // of the height of the plot
constexpr float letter_size = 0.02f; // of the letter at an extremum, and down to its value
constexpr int value_digits = 3;

void setTextSize(Plot& plot, PlotAttr& attr, float scale, float part) {
    const float size = scale * plot.getVert() * part;
    plot.setTextHeight(size);
    plot.setText(attr, size);
}

// A fifth of the grid, in cells.
int getSpacing(int given, int n) {
    return given != Const::MISS ? given : n >= 5 ? n / 5 : 1;
}

// Where the label of a level stands in a cell: only where it runs straight through, in the columns
// and the rows that have labels.
bool isLabeled(const GridBox& box, bool in_column, bool in_row) {
    const int from = box.cross[0], to = box.cross[1];
    return (from == 1 && to == 3 && in_column) || (from == 0 && to == 2 && in_row);
}

// Compares a point with its neighbours.
class Neighbourhood {
public:
    Neighbourhood(const Grid& from, int reach)
        : grid(from), radius(std::min(reach, std::max(from.nx, from.ny))) {}

    /// "H" for a maximum, "L" for a minimum, null otherwise. A point with no neighbour that has a
    /// value is a maximum.
    const char* find(int i, int j) const {
        const float v = grid.getValue1(i, j);
        if (isMissing(v) || isBetween(v, i - 1, j, i + 1, j) || isBetween(v, i, j - 1, i, j + 1))
            return nullptr;
        int above = 0, below = 0, missing = 0;
        for (int row = std::max(j - radius, 0); row <= std::min(j + radius, grid.ny - 1); row++)
            for (int col = std::max(i - radius, 0); col <= std::min(i + radius, grid.nx - 1);
                 col++) {
                if (row == j && col == i)
                    continue;
                const float w = grid.getValue1(col, row);
                if (isMissing(w)) {
                    missing++;
                    continue;
                }
                above += v > w;
                below += v < w;
                if (v == w || (above > 0 && below > 0))
                    return nullptr;
            }
        if (missing > 1)
            return nullptr;
        return below == 0 ? "H" : "L";
    }

private:
    // Whether a point is no extremum already by two of its neighbours: most are told so.
    bool isBetween(float v, int i1, int j1, int i2, int j2) const {
        if (i1 < 0 || j1 < 0 || i2 >= grid.nx || j2 >= grid.ny)
            return false;
        const float a = grid.getValue1(i1, j1), b = grid.getValue1(i2, j2);
        return !isMissing(a) && !isMissing(b) && !(v > a && v > b) && !(v < a && v < b);
    }

    const Grid& grid;
    const int radius;
};

} // namespace

// The color of labels: their own, that of the lines, or the default of a resource.
PlotAttr ContPlot::getTextAttr(const char* resource, const char* color) const {
    PlotAttr attr;
    if (isColorFromFill())
        return attr;
    if (color_label.valid())
        attr.set(color_label.get());
    else if (type == 3)
        attr.set(Orv::getResrc("color_flabel", "black"));
    else if (color_line.valid())
        attr.set(color_line.get());
    else
        attr.set(Orv::getResrc(resource, color));
    if (line_width != Const::MISS)
        attr.setWidth(line_width);
    return attr;
}

int ContPlot::drawLineLabels(Plot& plot, Grid& grid) {
    if (skipval < 1)
        return 0;
    skipx = getSpacing(skipx, grid.nx);
    skipy = getSpacing(skipy, grid.ny);
    const int step_x = std::max(skipx, 1), step_y = std::max(skipy, 1);

    PlotAttr attr = getTextAttr("color_clabel", "white");
    setTextSize(plot, attr, scale, text_size);
    plot.setTextAlign(2, 3);

    LevelList levels;
    for (long long k = 0; k < num_cont; k += skipval)
        levels.add(getLevel(static_cast<int>(k)));

    CellReader cells(grid, plot.getDomain());
    String text;
    for (int j = 0; cells.isSet() && j < grid.ny - 1; j++) {
        const bool in_row = j % step_y == 0;
        for (int i = 0; i < grid.nx - 1; i += in_row ? 1 : step_x) {
            if (!cells.read(i, j))
                continue;
            int k = levels.find(cells.lo);
            if (!levels.reaches(k, cells.hi))
                continue;
            for (cells.get(box); levels.reaches(k, cells.hi); k++) {
                level = levels.levels[k];
                if (!box.setLevel(level) || !isLabeled(box, i % step_x == 0, in_row))
                    continue;
                if (isColorFromFill()) {
                    PlotAttr of_level = fill.get(level);
                    plot.setText(of_level);
                }
                const Point middle = Point::interp(box.cpt[0], box.cpt[1], 0.5f);
                if (isMissing(box.cpt[0]) || isMissing(box.cpt[1]))
                    continue;
                Tools::toString(level, text);
                plot.drawText(box.span ? fold(plot.getDomain(), middle) : middle, text.get());
            }
        }
    }
    return 1;
}

int ContPlot::drawMaxMin(Plot& plot, Grid& grid) {
    if (extrad < 1)
        return 0;
    PlotAttr attr = getTextAttr("color_flabel", "white");
    plot.setTextAlign(2, 3);

    CellReader cells(grid, plot.getDomain());
    const Neighbourhood neighbours(grid, extrad);
    String text;
    for (int j = 0; grid.isData() && j < grid.ny; j++)
        for (int i = 0; i < grid.nx; i++) {
            const char* letter = neighbours.find(i, j);
            if (!letter)
                continue;
            const Point place = cells.getPlace(i, j);
            if (isMissing(place))
                continue;
            const float v = grid.getValue1(i, j);
            setTextSize(plot, attr, scale, letter_size);
            if (isColorFromFill()) {
                PlotAttr of_value = fill.get(v);
                plot.setText(of_value);
            }
            plot.drawText(place, letter);
            setTextSize(plot, attr, scale, text_size);
            Tools::toString(v, value_digits, text);
            plot.drawText(place.x, place.y - plot.getVert() * letter_size, text.get());
        }
    return 1;
}

int ContPlot::drawValues(Plot& plot, Grid& grid) {
    float lo, hi;
    findRange(grid, lo, hi);
    setColors(plot);
    chooseLevels(dpy_min == Const::MISS ? lo : dpy_min, dpy_max == Const::MISS ? hi : dpy_max,
                 false);

    PlotAttr attr(color_line.valid() ? color_line.get() : "green");
    plot.setTextAlign(2, 3);
    setTextSize(plot, attr, scale, text_size);

    const bool by_fill = intrvl != Const::MISS || fill.areValuesSet();
    CellReader cells(grid, plot.getDomain());
    String text;
    for (int j = 0; grid.isData() && j < grid.ny; j++)
        for (int i = 0; i < grid.nx; i++) {
            const float v = grid.getValue1(i, j);
            const Point place = isMissing(v) ? Point() : cells.getPlace(i, j);
            if (isMissing(place))
                continue;
            if (by_fill) {
                attr = fill.get(v);
                setTextSize(plot, attr, scale, text_size);
            }
            if (!attr.validColor())
                continue;
            if (tform[0] == '\0' || !Format::print(text, tform, v))
                Tools::toString(v, value_digits, text);
            plot.drawText(place, text.get());
        }
    return 1;
}

int ContPlot::drawLabels(Plot& plot, Grid& grid) {
    constexpr int label_size = 41;
    plot.addLabel("ul", grid.getInfo());
    plot.addLabel("ur", grid.getDatim());
    if (plot.source[0] == '\0' && !plot.date.isSet()) {
        plot.date = grid.getDate();
        if (grid.getForeHours() >= 0)
            plot.fore_hour = grid.getForeHours();
        plot.setDataSource(grid.getGenName());
    }

    float lo, hi;
    findRange(grid, lo, hi);
    if (lo == Const::MISS)
        return 1;
    String low, high, step;
    Tools::toString(lo, value_digits, low);
    Tools::toString(hi, value_digits, high);
    Tools::toString(intrvl, step);
    char label[label_size];
    if (intrvl == Const::MISS)
        std::snprintf(label, sizeof label, "Lo: %s Hi: %s", low.get(), high.get());
    else
        std::snprintf(label, sizeof label, "Int: %s Lo: %s Hi: %s", step.get(), low.get(),
                      high.get());
    plot.addLabel("lr", label);
    return 1;
}

} // namespace ORV
