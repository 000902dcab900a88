#pragma once

#include "ORV/ColorFill.h"
#include "ORV/Const.h"
#include "ORV/OwnedArray.h"
#include "ORV/PlotAttr.h"
#include "ORV/String.h"

namespace ORV {

class Grid;
class Plot;

/// Draws a wind field, given by a grid of u and a grid of v, as arrows, as wind barbs or as
/// streamlines, with labels and a reference arrow.
///
/// The components are taken in the grids' units, and turned to the plot by Domain::adjustDir.
/// Lengths are in plot coordinates: the spacing dx of the grid counts on the plot as it stands, 100
/// km as one degree.
class VectPlot {
public:
    static constexpr int max_density = 100; ///< beyond it, lines would only cover one another
    static constexpr float max_scale = 100;

    int type = 0;   ///< 0 arrows, 1 barbs, 2 streamlines
    int uvgrid = 0; ///< 0 components along the rows and columns of the grid, 1 east and north
    int skipx = 1;  ///< every n-th column is drawn, from column 0; below 1 counts as 1
    int skipy = 1;  ///< and every n-th row
    float intrvl = Const::MISS; ///< speeds of one color of the fill
    float base = Const::MISS;   ///< where the colors begin; missing counts as 0
    /// The speed whose arrow is one grid spacing long. Missing, or not above 0: the greatest one.
    float vect_mag = Const::MISS;
    int density = 1;               ///< how many streamlines may pass a box, 1 to max_density
    float scale = 1;               ///< factor on lengths; missing or not above 0 counts as 1
    float arrow_scale = 1;         ///< factor on the arrow heads of streamlines
    float dom_scale = Const::MISS; ///< arrow length of the last draw, without vect_mag
    float min_cut = Const::MISS;   ///< slower parts of streamlines aren't shown
    float max_cut = Const::MISS;   ///< nor are faster ones
    /// The greatest speed of the last draw, over the points of which neither component is 0.
    /// Missing when there is none.
    float max = Const::MISS;
    String color_table;
    String color_data; ///< attributes; unset: the foreground of the plot
    String color_fill;
    String color_label;
    ColorFill fill;
    int bar = 0; ///< 1 asks for a color bar
    /// How many lines passed each box of half a skipx by half a skipy, box (i, j) at 2 nx j + i;
    /// only while streamlines are drawn. The last one is for all that lies outside.
    OwnedArray<int> num;
    int numsize = 0; ///< 4 nx ny

    VectPlot() { init(); }
    explicit VectPlot(const char* params) : VectPlot() { setParam(params); }

    /// Takes the defaults, then the resources con_interval, con_base, vect_mag, color_line,
    /// color_fill, plot_type and parameter.
    int init();

    /// Comma-separated, tried in this order; what is for others passes by.
    ///
    ///     vect barb stream strm   the type      cof=  color fill
    ///     uvgrid uvew   what the components     co=   color (attributes)
    ///                   are along               sc=   scale
    ///     sk=   every n-th point                bar nobar  color bar
    ///     ci=   interval of the colors          sa=   scale of arrow heads
    ///     ct=   color table                     ba= cb=  base of the colors
    ///     sp= mag=  speed of the full length    de=   density
    int setParam(const char* list);

    /// "vect", "barb", "stream" or "strm"; any other text changes nothing.
    int setType(const char* text);
    int setType(int code) { return type = code, 1; }
    int getType() const { return type; }
    int setSkip(int x, int y);
    int setSkip(int both) { return setSkip(both, both); }
    int setInterval(float interval) { return intrvl = interval, 1; }
    int setBase(float b) { return base = b, 1; }
    int setMagnitude(float speed) { return vect_mag = speed, 1; }
    int setDensity(int lines) { return density = lines, 1; }
    int setScale(float factor) { return scale = factor, 1; }
    int setArrowScale(float factor) { return arrow_scale = factor, 1; }
    int setColor(const char* text) { return color_data.set(text); }
    int setColorTable(const char* text) { return color_table.set(text); }
    int setColorFill(const char* text) { return color_fill.set(text); }
    float getMax() const { return max; }
    /// Whether the speed decides the color: by explicit values of the fill, or by the interval.
    bool isColored() const { return fill.areValuesSet() || intrvl != Const::MISS; }

    /// Draws by the type, and hands the bar to the plot when it is asked for. 0, with nothing
    /// drawn, when the grids have different domains or one has no data. Points with a component
    /// missing, and those that have no place on the plot, are passed over.
    ///
    /// The longest arrow is one grid spacing times scale long, or max / vect_mag times that.
    /// Without a max, as of winds all from one of the four main directions, the greatest speed of
    /// all points takes its place as the measure of length. Barbs are as long as the longest arrow;
    /// they count the speed as it is, and stand on the other side of the staff south of the
    /// equator.
    int draw(Plot& plot, const Grid& u, const Grid& v);

    /// Draws one streamline from a grid point, of at most `limit` steps of a quarter grid spacing.
    /// The components are relative to the plot's axes, and num is there, as draw sees to.
    ///
    /// The line ends where density lines have passed the box (its first five steps are exempt, but
    /// not its start), when it stays in one box for more than 6 skipx steps, at missing values, at
    /// the edge of the grid, in a calm below 0.001, and where it would turn back by more than 120
    /// degrees. It has arrow heads at equal distances, and one at its end.
    ///
    /// The line of a grid with plot positions (Grid::isLocate) starts there, with x as longitude
    /// and y as latitude, and keeps the components of its first point: it is straight.
    int drawStreamline(Plot& plot, const Grid& u, const Grid& v, int i, int j, float limit);

    /// Adds the title (forecast time, level and variable), the date and, unless it is missing or
    /// told elsewhere, the greatest speed as labels of the plot. A plot without source and date
    /// takes the date of the grid.
    int drawLabels(Plot& plot, const Grid& grid, bool with_max = true);

    /// Draws the reference arrow, as long as that of the greatest speed, under the plot. Only at
    /// "lr". 0 when max is missing.
    int drawVect(Plot& plot, const char* pos);

    /// The bar is drawn by the plot.
    int drawBar(Plot&, const char*) { return 1; }

private:
    class Bare {};
    explicit VectPlot(Bare) {}

    PlotAttr getAttr(Plot& plot) const;
    float getLength() const;
    void setColors(Plot& plot);
    void drawGlyphs(Plot& plot, const Grid& u, const Grid& v);
    void drawStreamlines(Plot& plot, const Grid& u, const Grid& v);
};

} // namespace ORV
