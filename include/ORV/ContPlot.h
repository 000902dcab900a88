#pragma once

#include "ORV/ColorFill.h"
#include "ORV/Const.h"
#include "ORV/GridBox.h"
#include "ORV/PlotAttr.h"
#include "ORV/Points.h"
#include "ORV/String.h"

#include <initializer_list>

namespace ORV {

class Domain;
class Grid;
class Plot;

/// Draws a grid: as contour lines, as filled contours, or as values at its points, with labels on
/// the lines and marks on the extrema.
///
/// Nothing is traced. Each cell is handled alone: a level crosses it as a straight segment, and a
/// band between two levels covers one or two small polygons of it. So a missing value only blanks
/// the cells that touch it, and cost grows with cells times levels.
///
/// Levels are those of the fill when it has explicit values, otherwise multiples of an interval
/// above a base. The interval is chosen from the range of the data when none is given, and stays
/// for what is drawn next.
class ContPlot {
public:
    int type = 2; ///< what is drawn, see decodeType
    String color_table;
    String color_fill;
    String color_line; ///< "miss" or "off": lines take the colors of the fill
    String color_label;
    float min = Const::MISS; ///< range that was filled
    float max = Const::MISS;
    float dpy_min = Const::MISS; ///< display limits, which go before the range of the grid
    float dpy_max = Const::MISS;
    float base = Const::MISS; ///< contour base; missing counts as 0
    float intrvl = Const::MISS;
    float level = Const::MISS;  ///< the level in work
    float plevel = Const::MISS; ///< and the one below it
    int num_cont = 0;           ///< number of levels
    float conlo = Const::MISS;  ///< lowest and highest of them
    float conhi = Const::MISS;
    ColorFill fill;
    GridBox box;             ///< the cell in work at its level
    GridBox pbox;            ///< and at the level below
    int skipx = Const::MISS; ///< spacing of line labels in grid cells
    int skipy = Const::MISS;
    int skipval = 2;            ///< every n-th level is labeled, none below 1
    int extrad = 2;             ///< grid points in which an extremum stands out, none below 1
    int dash = 0;               ///< 1 all lines dashed, -1 those below the base, 0 none
    int fill_pat = Const::MISS; ///< fill pattern, before those of the fill
    float line_width = Const::MISS;
    float scale = 1.0f;  ///< factor on the size of texts
    char tform[10] = ""; ///< printf format of plotted values; empty: three significant digits
    int bar = 0;         ///< 1 asks for a color bar

    ContPlot() { init(); }
    explicit ContPlot(const char* params) {
        init();
        setParam(params);
    }

    /// Takes the defaults, then the resources plot_type, color_table, con_interval, con_base,
    /// color_cont, color_fill, color_clabel, format and parameter.
    int init();

    /// Comma-separated; what is for others passes by. A kind of plot alone ("lcf"), or
    ///
    ///     ty= pl=    kind of plot           int= ci=   interval
    ///     base= cb=  base and limits        wi=        line width
    ///     sc=        size of texts          fill=      fill pattern
    ///     ct=        color table            co= coco= coln=   line color
    ///     cof=       color fill             cola=      label color
    ///     fm=        format of values       bar nobar  color bar
    ///     lab=n:r:x:y  label every n-th level, extrema within r points, a label each x columns and
    ///                  y rows; "lab=nr" in two digits
    int setParam(const char* list);

    /// The code of a kind of plot:
    ///     0 none (and any other text)   2 ln, dln all dashed, ndln dashed below the base
    ///     1 value, gvalue               3 cf   4 lcf, fill with lines
    static int decodeType(const char* text);
    int setType(int code);
    /// By its name; "dln" and "ndln" also set dash.
    int setType(const char* text);
    int getType() const { return type; }

    int setInterval(float interval);
    float getInterval() const { return intrvl; }
    int setBase(float b);
    /// Comma-separated: ">v" and "<v" give the lower and the upper display limit, a number the
    /// base.
    int setBase(const char* list);
    float getBase() const { return base; }
    float getMin() const { return min; }
    float getMax() const { return max; }
    int setLabelParam(int label_skip, int extrema_radius);
    int setLabelSpace(int space_x, int space_y);
    int setFillStyle(int pattern);
    int setLineWidth(float width);
    /// A printf format for one number, at most 9 characters; one that would not print just one is
    /// refused with 0.
    int setTextFormat(const char* format);
    int setColorTable(const char* text);
    int setColorFill(const char* text);
    int setColorLine(const char* text);
    int setColorLabel(const char* text);
    int setScaleFactor(float factor);

    /// Level k. With explicit values in the fill one above the range that was filled follows them.
    float getLevel(int k) const;

    /// Draws by the type: 1 values, 2 lines, 4 fill and lines, any other the fill. Hands the bar to
    /// the plot when it is asked for. Returns 1 also for a grid without data, which draws nothing.
    int draw(Plot& plot, Grid& grid);
    /// Lines with their labels and the extrema.
    int drawLine(Plot& plot, Grid& grid);
    /// Fills with labels and extrema. A grid without a list of places is given one: those of its
    /// points on this plot. What is drawn later goes by it, so that a grid for a plot with another
    /// domain is to be a copy without one. Cells with a corner that has no place stay empty.
    int drawFill(Plot& plot, Grid& grid);
    int drawValues(Plot& plot, Grid& grid);
    /// Levels on lines that run along a row, each skipx columns, and along a column, each skipy
    /// rows. 0 without labels.
    int drawLineLabels(Plot& plot, Grid& grid);
    /// "H" and "L" with the value beneath, at points that are above or below all points within
    /// extrad rows and columns, of which at most one is missing. 0 without extrema.
    int drawMaxMin(Plot& plot, Grid& grid);
    /// Title, date, interval and range as label texts of the plot.
    int drawLabels(Plot& plot, Grid& grid);

    /// The segments of the level in box.
    int drawBoxLine(Plot& plot);
    /// The band from the level in pbox to that in box, in one cell, with the attributes set on the
    /// plot.
    int drawBoxFill(Plot& plot);

private:
    class Bare {};
    explicit ContPlot(Bare) {}

    Points polygon; // the one in work

    void setColors(Plot& plot);
    void chooseLevels(float lo, float hi, bool find_interval);
    void countLevels(float lo, float hi);
    bool isColorFromFill() const;
    int fillPlain(Plot& plot);
    int fillSaddle(Plot& plot);
    int fillAbove(Plot& plot);
    int addPolygon(Plot& plot, std::initializer_list<const char*> parts);
    int closePolygon(Plot& plot);
    PlotAttr getTextAttr(const char* resource, const char* color) const;
};

} // namespace ORV
