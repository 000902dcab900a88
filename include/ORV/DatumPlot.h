#pragma once

#include "ORV/ColorFill.h"
#include "ORV/Const.h"
#include "ORV/Datum.h"
#include "ORV/DatumAttr.h"
#include "ORV/Point.h"
#include "ORV/String.h"

#include <string>
#include <vector>

namespace ORV {

class Plot;
class PlotAttr;
class Wind;

/// Draws station elements on a plot. It lives for a run: color table and color fill are set up at
/// the first element, and line elements connect successive ones, so their order matters.
class DatumPlot {
public:
    String color_table;
    String color_fill;
    char format[10] = ""; ///< printf format over all elements
    int def_type = Datum::DATA;
    DatumAttr attr; ///< what an element's own attributes leave open
    int use_fill = 0;
    ColorFill fill;
    float base = 0;
    float intrvl = Const::MISS; ///< in the units of the values, as base
    Point ppt;                  ///< where the element before was, in plot units
    float scale = 1;
    int post_line = 0; ///< a line waits for the next element
    int first = 1;     ///< the one-time setup is still due

    DatumPlot() { init(); }

    /// Defaults, and then the resources plot_scale, plot_type, color_table, color_fill,
    /// con_interval, con_base, color_data, format and parameter, each when set.
    int init();

    /// Takes from a comma-separated text what begins with "sc", "ty", "ct", "cof", "co=" or "fm".
    int setParam(const char* text);

    /// "text", "mark" or "data", the kind of elements that have none. Returns 0 for other texts.
    int setType(const char* text);
    int setColorTable(const char* file);
    int setColorFill(const char* text);
    int setInterval(float interval);
    int setBase(float value);
    int setAttr(const char* text);
    int setAttr(const PlotAttr& attributes);
    int setColor(const char* name);
    /// Keeps at most 9 characters.
    int setFormat(const char* text);
    int setScale(float factor);
    int setMarker(const char* name);

    /// Draws one element where it lies in the plot's current domain. Returns 0 when the place isn't
    /// on the plot's projection, and then draws nothing; a waiting line is dropped then.
    int draw(Plot& plot, const Datum& datum);
    int draw(Plot& plot, float lat, float lon, int type, const char* text, const char* format);
    int draw(Plot& plot, float lat, float lon, int type, float value, const char* format);
    int draw(Plot& plot, const EarthPoint& point, int type, const char* text, const char* format);
    int draw(Plot& plot, const EarthPoint& point, int type, float value, const char* format);

private:
    /// All that one element is drawn with.
    struct Element;
    /// An attribute text that was parsed before: the same few texts come for every station.
    struct Parsed {
        std::string text;
        DatumAttr attr;
    };

    const DatumAttr& parse(const char* text);
    void setUp(Plot& plot);
    void setAttributes(Plot& plot, const Element& element);
    void colorByValue(Plot& plot, const Element& element, bool text_only);
    void drawNumber(Plot& plot, const Element& element, const char* dflt);
    void drawKind(Plot& plot, Element& element);
    void drawData(Plot& plot, const Element& element);
    void drawText(Plot& plot, const Element& element);
    void drawBarb(Plot& plot, const Element& element, int kind);
    void drawArrow(Plot& plot, const Element& element, int kind);
    void drawTrack(Plot& plot, const Element& element);
    void drawLine(Plot& plot, const Element& element);

    std::vector<Parsed> parsed;
};

} // namespace ORV
