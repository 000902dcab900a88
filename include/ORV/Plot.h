#pragma once

#include "ORV/ColorBar.h"
#include "ORV/ColorMap.h"
#include "ORV/Const.h"
#include "ORV/Date.h"
#include "ORV/Domain.h"
#include "ORV/EarthPoint.h"
#include "ORV/EarthPoints.h"
#include "ORV/GeomBox.h"
#include "ORV/Graph.h"
#include "ORV/GridPoint.h"
#include "ORV/Listener.h"
#include "ORV/Panel.h"
#include "ORV/PlotAttr.h"
#include "ORV/PlotLabel.h"
#include "ORV/Point.h"
#include "ORV/Points.h"
#include "ORV/Rect.h"
#include "ORV/String.h"
#include "ORV/Timezone.h"

namespace ORV {

/// What every drawing draws into: a surface with up to 16 panels, each with a domain, and with
/// labels, a border, a color bar and logos around them.
///
/// Drawing happens in one of two transforms of the graph. Transform 1 has the domain limits of the
/// current panel as its window: plot coordinates, in 100 km on maps and degrees on
/// latitude-longitude domains. Transform 0 has the whole surface as its window: normalised device
/// coordinates (NDC), the longer side from 0 to 1, for labels and borders. y runs upward in both.
///
/// Operations return 1 for success and 0 otherwise. Without an open device they do nothing.
class Plot : public Listener {
public:
    static constexpr int max_panels = 16;
    static constexpr int max_labels = 30;
    static constexpr int num_flags = 13;

    Graph graph;
    ColorMap colors;
    String label_color;       ///< Attributes of labels and border; empty for the default ones.
    char panel_text[50] = ""; ///< Where the first panel stands, as decodePanelStr reads it.
    Panel panels[max_panels];
    int cur_panel = 0;
    int num_panels = 0;
    int full = 0; ///< 0 margins for labels, 1 the picture fills the surface, 2 labels inside it.
    int image_output = 0; ///< Whether the resource output asks for a picture file, not a window.
    int callbacks_ok = 1; ///< While 0, addCallback refuses.
    bool draw_flags[num_flags] = {}; ///< Which parts are drawn, see setDrawing.
    char title[80] = "";
    int line_ind = Const::MISS; ///< Color index in force; -9999 unset, other negative: not drawn.
    int fill_ind = Const::MISS;
    int text_ind = Const::MISS;
    int mark_ind = Const::MISS;
    int num_lines = 0;       ///< Label lines so far.
    char trans_col[20] = ""; ///< The color that a picture file treats as transparent.
    PlotLabel labels[max_labels];
    int num_labels = 0;
    char label_format[100] = ""; ///< Attributes given to the labels that are added.
    int bar_set = 0;
    ColorBar bar;
    String logo;                   ///< Picture files to place on the plot, comma-separated.
    char source[10] = "";          ///< Data source, for labels.
    float fore_hour = Const::MISS; ///< Forecast hours, for labels.
    Date date;                     ///< Date of the data, for labels.
    Timezone timezone;             ///< The zone that dates are shown in.

    Plot() { init(); }
    explicit Plot(const char* param) { open(param); }
    ~Plot() override { close(); }
    Plot(const Plot&) = delete;
    Plot& operator=(const Plot&) = delete;

    /// @name Opening and settings
    /// @{
    int init();
    /// Resets labels, flags and panels and clears the frame: one panel covers the surface.
    int clear();
    /// Chooses and opens the device by the resources and a comma-separated text, in which "de="
    /// names the device ("de=p,file.ps"), "ge=" the geometry ("ge=800x600+10-20") and "ct=" the
    /// color table; the rest goes to setParam. 0 when the device can't be opened. A kind of device
    /// that this build lacks ends the program with the status Orv::NOGRAPH.
    int open(const char* param);
    int open() { return open(nullptr); }
    int close();
    /// Comma-separated: "ti=title", "bg=color", "ic=1", "col=label attributes", "pan=panel",
    /// "full", "full_lab", "inv", "bar=color bar", "lo=logos", "trans_col=color", "tz=zone". What
    /// is for others passes by.
    int setParam(const char* param);
    /// Chooses what is drawn: comma-separated plot, sum, data, grid, map, text, text_ul to text_lr,
    /// bord, none, all. A leading "-" takes a part out, and begins with all when it comes first; an
    /// empty text means all.
    int setDrawing(const char* text);
    /// Whether a part is drawn: 0 plot, 1 data, 2 grid and map, 3 to 8 the labels ul, uc, ur, ll,
    /// lc, lr, 9 the border. 0 for any other.
    int isDrawing(int part) const;
    int printDrawing() const;
    int setLogo(const char* text);
    int setFull(int mode);
    int getFull() const { return full; }
    /// Tells the device's name: that of the display, empty for a file.
    int getDevice(String& name);
    /// Scans "WxH+X-Y": 2 for size and offset, 1 for a size, with offsets missing, 3 for an offset,
    /// with the size missing, 0 for anything else. Pixels.
    static int decodeGeometryStr(const char* text, GeomBox& box);
    /// @}

    /// @name Events and output
    /// @{
    int addCallback(const char* type, Listener* listener, const void* client);
    int update();
    /// Hands control to the device, or saves the picture when the output is one.
    int manage();
    /// Border, labels and manage, for those who draw without a Figure.
    int end();
    /// The keys of the window: Return closes, Alt-v tells the position, Alt-s and Alt-Shift-s save.
    void callback(const char* type, const char* data, const void* client) override;
    /// Saves the picture; type is "GIF" or "PNG", or what the name ends in.
    int saveImage(const char* name, const char* type);
    int saveImage(const char* name);
    /// A comment in the device's output; 100 characters at most.
    [[gnu::format(printf, 2, 3)]] int message(const char* format, ...);
    /// @}

    /// @name Frames
    /// @{
    int newFrame();
    int clearFrame();
    int deleteFrame(int frame);
    int deleteAllFrames();
    /// The pointer's shape, 0 to 8; returns the one before.
    int setCursor(int cursor);
    /// @}

    /// @name Colors
    /// @{
    ColorMap& getColorMap() { return colors; }
    int getColorMap(ColorMap& map) const;
    /// Allocates the colors of a map, and adds them to those of the plot under their names.
    int setColorMap(ColorMap& map);
    /// Gets the device's value for a color and returns it; 0 for an index outside the table.
    int allocColor(int ind);
    int getColorValue(const char* name);
    /// The name of the color that shows on the surface: "black" where it is light, as paper is and
    /// an inverse window, otherwise "white".
    const char* getForeground();
    /// Components from 0 to 1.
    int getColorRGB(int ind, float& red, float& grn, float& blu) const;
    /// @}

    /// @name Panels
    /// @{
    int initPanel();
    /// Places the current panel in a rectangle, given as fractions of its limits, with a view of
    /// that aspect (width to height, 0 for the rectangle's own), aligned 1 left or lower, 2
    /// centred, 3 right or upper.
    int setPanel(const Rect& rect, float aspect, int halign, int valign);
    int setPanel(const Rect& rect, float aspect) { return setPanel(rect, aspect, 2, 2); }
    int setPanel(const Rect& rect) { return setPanel(rect, 0); }
    int setPanel() { return setPanel(Rect(0, 0, 0, 0), 0); }
    /// Gives the current panel a place and a domain.
    int setPanel(const Rect& rect, const Domain& dom);
    /// Gives the current panel a domain; the view stays when it had one.
    int setPanel(const Domain& dom);
    /// Sets panel i up again from its rectangle and its domain, and makes it the current one.
    int setPanel(int i);
    int setDomain(const Rect& rect, float aspect, int halign, int valign) {
        return setPanel(rect, aspect, halign, valign);
    }
    int setDomain(const Rect& rect, float aspect) { return setPanel(rect, aspect); }
    int setDomain(const Rect& rect, const Domain& dom) { return setPanel(rect, dom); }
    int setDomain(const Domain& dom) { return setPanel(dom); }
    int setDomain(const DomainVal& val);
    int setDomain(const Rect& rect) { return setPanel(rect); }
    int setDomain() { return setPanel(); }
    int setPanelDomain(int i, const Domain& dom);
    int getPanelDomain(int i, Domain& dom) const;
    /// Finishes the panel that is ending and begins the next: "2x2+1+0" is the second column of the
    /// upper row, "0.5x0.5+0.5+0" the lower right quarter.
    int newPanel(const char* text);
    /// Scans "WxH+X+Y" against a rectangle. A W above 1 counts columns and rows, at most 8 each,
    /// and X, Y name the cell from the upper left; otherwise they are fractions from the lower
    /// left. With neither two nor four numbers the box is the rectangle, and the result 0.
    static int decodePanelStr(const Rect& rect, const char* text, GeomBox& box);
    /// @}

    /// @name The current panel's domain
    /// @{
    Domain& getDomain() { return panels[cur_panel].domain; }
    const Domain& getDomain() const { return panels[cur_panel].domain; }
    int getDomain(Domain& dom) const;
    DomainVal& getDomainVal() { return getDomain(); }
    int getDomainVal(DomainVal& val) const;
    int getProj() const { return getDomain().proj; }
    float getPLat() const { return getDomain().plat; }
    float getPLon() const { return getDomain().plon; }
    float getDomCLat() const { return getDomain().clat; }
    float getDomCLon() const { return getDomain().clon; }
    float getDomAspect() const { return getDomain().getAspect(); }
    /// The height of the domain, in plot coordinates.
    float getDomVert() const { return getDomain().getVert(); }
    float getVert() const { return getDomVert(); }
    int getDomNx() const { return getDomain().nx; }
    int getDomNy() const { return getDomain().ny; }
    float getDomDx() const { return getDomain().dx; }
    float getDomDy() const { return getDomain().dy; }
    bool withinDomain(const Point& point) const { return getDomain().within(point); }
    bool withinDomain(const EarthPoint& earth) const { return getDomain().within(earth); }
    /// The same with n grid steps added on each side.
    bool withinDomainExt(const Point& point, int n) const {
        return getDomain().withinExt(point, n);
    }
    bool withinDomainExt(const EarthPoint& earth, int n) const {
        return getDomain().withinExt(earth, n);
    }
    /// Where a point lies, as on a telephone keypad: 5 inside, 1 above left, 9 below right.
    int whereDomain(const Point& point) const { return getDomain().where(point); }
    int whereDomain(const EarthPoint& earth) const { return getDomain().where(earth); }
    /// The panel's domain as a grid of device pixels.
    int getViewDomain(Domain& dom);
    /// Device pixels to the plot coordinates of the panel that holds them. Outside all panels the
    /// result is 0, with the position in NDC.
    int tranPlotWindow(float x, float y, float& wx, float& wy);
    /// @}

    /// @name Drawing
    /// A context whose color is off draws nothing and returns 0; so does a point that is missing or
    /// has no place on the map. Under transform 1 lines and polygons that cross the edge of the
    /// world show on both sides. Lists and points of the caller stay as they are.
    /// @{
    int drawLine(float x1, float y1, float x2, float y2);
    int drawLine(const Point& a, const Point& b);
    int drawLine(const EarthPoint& a, const EarthPoint& b);
    int drawLine(const GridPoint& a, const GridPoint& b);
    /// Points that are missing part the line.
    int drawLine(const Points& points);
    int drawLine(const EarthPoints& earth);
    /// A smooth curve through the points.
    int drawSpline(const Points& points);
    int drawSpline(const EarthPoints& earth);
    int drawRect(float x1, float y1, float x2, float y2);
    int drawRect(const Rect& rect);
    int drawCircle(const Point& center, float radius);
    /// Radius in km.
    int drawCircle(const EarthPoint& center, float radius);
    /// Points that are missing are left out of the polygon.
    int drawFill(const Points& points);
    int drawFill(const Rect& rect);
    int drawFill(const EarthPoints& earth);
    int drawFillarea(const Points& points) { return drawFill(points); }
    int drawFillarea(const Rect& rect) { return drawFill(rect); }
    int drawFillarea(const EarthPoints& earth) { return drawFill(earth); }
    int drawText(const Point& point, const char* text);
    int drawText(float x, float y, const char* text);
    int drawText(const EarthPoint& earth, const char* text);
    int drawText(const GridPoint& grid, const char* text);
    /// At most 100 characters. A format that comes from outside must have been checked.
    [[gnu::format(printf, 3, 4)]] int drawFormText(const Point& point, const char* format, ...);
    [[gnu::format(printf, 3, 4)]] int drawFormText(const EarthPoint& earth, const char* format,
                                                   ...);
    int drawMark(float x, float y);
    int drawMark(const Point& point);
    int drawMark(const EarthPoint& earth);
    int drawMark(const GridPoint& grid);
    /// A picture file at a place in window coordinates; 0 when it can't be read. The alignment is
    /// "ul", "uc" and so on to "lr".
    int drawImage(const char* file, float x, float y);
    int drawImage(const char* file, float x, float y, const char* align);
    int clearRect(const Rect& rect);
    /// @}

    /// @name Attributes
    /// The forms without arguments set the defaults, with the foreground as color. A record's color
    /// name is looked up once, and the index kept in the record. A scale multiplies the record's
    /// height.
    /// @{
    int setLine();
    int setLine(PlotAttr& attr);
    int setLine(const char* text);
    int setFill();
    int setFill(PlotAttr& attr);
    int setFill(const char* text);
    int setText();
    int setText(PlotAttr& attr);
    int setText(PlotAttr& attr, float scale);
    int setText(const char* text);
    int setMark();
    int setMark(PlotAttr& attr);
    int setMark(PlotAttr& attr, float scale);
    int setMark(const char* text);
    int setLineColor(const char* name);
    int setLineColor(int ind);
    int setFillColor(const char* name);
    int setFillColor(int ind);
    int setTextColor(const char* name);
    int setTextColor(int ind);
    int setMarkColor(const char* name);
    int setMarkColor(int ind);
    int setLineWidth(float width);
    int setLineStyle(int style);
    int setFillStyle(int style);
    int setTextAlign(int halign, int valign);
    /// Window units of the current transform, as are mark sizes.
    int setTextHeight(float height);
    int setTextWeight(float weight);
    int setTextExpansion(float expansion);
    int setTextSpacing(float spacing);
    int setTextCharWidth(float width);
    int setTextDirection(float dx, float dy);
    int setFont(const char* name);
    int setMarkType(int type);
    int setMarkType(const char* name);
    int setMarkWeight(float weight);
    int setMarkSize(float size);
    int setImageAlign(int halign, int valign);
    /// @}

    /// @name Labels, border, color bar and logos
    /// @{
    /// Attributes of labels and border.
    int setLabelColor(const char* text);
    /// Attributes of the labels that are added from here on.
    int setLabelFormat(const char* text);
    /// Adds a text at a position ("ul", "uc", "ur", "ll", "lc", "lr") of the current label line; 0
    /// when 30 labels are held.
    int addLabel(const char* pos, const char* text);
    /// Adds a text that has its position alone: what is added by lines isn't drawn there.
    int setLabel(const char* pos, const char* text);
    /// Ends a label line: what is added next goes to the next one.
    int done();
    /// 0 to 5 for ul, uc, ur, ll, lc, lr; 0 for any other.
    static int getLabelPosIndex(const char* pos);
    /// Copies a text of at most size - 1 characters, with "_" as a blank and the escapes %D %F %S
    /// %V %Y %a %b %d %f %h %m %n %y %% replaced by dates, forecast hours and source.
    int formatLabel(const char* text, char* out, int size) const;
    int printLabels() const;
    int clearLabels();
    int setDataSource(const char* text);
    int setBar(const ColorFill& fill, const Range& range);
    int setBar(const ColorFill& fill);
    int setBarLocate(const char* place);
    int setBarRange(const Range& range);
    int drawBorder();
    int drawLabels();
    int drawBar();
    /// The range is that of the data; the bar's own goes before it.
    int drawBar(const Range& range);
    /// @}

private:
    // Where the panels' maps really are, in NDC; a panel's own view follows that of the one before.
    Rect viewports[max_panels];
    // Lists kept from call to call, so that lines need no memory of their own.
    Points earth_points; // an earth list on the map
    Points run_points;   // a run between missing points
    Points crop_points;  // a run cut at the edges of the world
    Points piece_points; // one of its pieces

    int setDevice(const char* param);
    int setDevice(char kind, const char* param);
    int setGeometry(const char* text);
    int setDeviceResrc();

    Panel& getPanel() { return panels[cur_panel]; }
    int setPanelWindow();
    int placePanel();

    int drawPieces(const Points& points);
    int drawSides(Points& run, int side);
    int drawCropped(const Points& run);
    int drawPolygon(Points& polygon);

    int setColor(int& context_ind, int ind, int (Graph::*set)(int));
    int findColor(PlotAttr& attr);

    int addLabelLine(int line, const char* pos, const char* text);
    PlotAttr getLabelAttr();
    int addLabelResrc();
    int drawLabelTexts(const Rect& view, const Rect& surface);
    int drawLogos();
    int drawLogo(const char* item);

    int printPosition(const char* pixel);
    int saveFrames(const char* type);
    int saveOutput(const char* output);
};

} // namespace ORV
