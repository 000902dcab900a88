#pragma once

#include "ORV/Device.h"
#include "ORV/GFont.h"
#include "ORV/GTran.h"
#include "ORV/GraphAttr.h"
#include "ORV/Listener.h"
#include "ORV/Points.h"
#include "ORV/RGB.h"
#include "ORV/Rect.h"
#include "ORV/String.h"
#include "ORV/Symbol.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ORV {

class Image;

/// The drawing layer above one device: four transforms, the attributes in force, vector text,
/// marks and symbols. Callers speak window coordinates of the current transform; heights and sizes
/// are in the same units. Projected drawing goes through transform 1, labels and borders through 0.
///
/// Every drawing and attribute operation returns 0 and does nothing without a device; so does an
/// attribute setter whose value is the one in force already.
class Graph : public Listener, public GraphAttr {
public:
    bool open_flag = false;
    std::unique_ptr<Device> device; ///< null before setDevice and after close
    GTran tran[4];
    int cur_tran = 0;
    /// 0 none, 1 vector font from a file, 2 device font, 3 device font that follows the text height
    int font_type = 1;
    char font_name[40] = "modern.fnt"; ///< as asked for
    char font_spec[120] = "";          ///< as found: a font file, or "#" and a device font
    GFont font{nullptr};
    char symbol_file[80] = "wx.smb";
    Symbol symbol;
    Points work;         ///< device points of the stroke at hand
    int device_type = 0; ///< 1 window, 2 PostScript, 3 HPGL, 4 metafile
    bool managed = false;
    bool fixed = true;

    int line_color = 1;
    float line_width = -1.0f;
    int line_style = 1;

    int fill_color = 1;
    int fill_style = 0;

    int hfont = 0; ///< 1: texts are drawn by the device

    int text_color = 1;
    float text_weight = 1.0f;
    float text_height = 0.01f;
    float text_expansion = 1.0f;
    float text_spacing = 0.25f; ///< gap between characters, in glyph cells
    float char_width = 0.0f;    ///< above 0: all characters take this width, in glyph cells
    int text_halign = 0;        ///< 0, 1 left, 2 centre, 3 right
    int text_valign = 0; ///< 0, 4 baseline, 1 cell top, 2 capital top, 3 middle, 5 cell bottom
    float dir_x = 0.0f;  ///< unit vector along which a line of text stands up
    float dir_y = 1.0f;
    int text_box_color = 0;

    int drop_color = 1;
    int drop_shadow = 0; ///< in device units
    int drop_width = 0;

    int mark_type = 1; ///< 1 to 10, see PlotAttr::parseMarker
    float mark_size = 0.01f;
    float mark_weight = 1.0f;
    int mark_color = 1;

    Graph();
    ~Graph() override;

    /// Puts all attributes back to the defaults above. What was chosen for the device to be
    /// opened stays: the device itself, hfont and fixed.
    int init();

    /// Makes the device of a name: "postscript", "hpgl", "meta", any other the window. The text
    /// goes to its setParam; an item "hfont" in it sets hfont. Returns 0 when this
    /// build has no such device, which the caller words.
    int setDevice(const char* name, const char* param);
    /// Takes a ready device in place of the one in hand. The type is that of device_type.
    int setDevice(std::unique_ptr<Device> ready, int type);
    /// Opens the device, a window when none was chosen, sets the transforms to its surface and
    /// reads "modern.fnt" and "wx.smb" of the database. A device that fails to open is dropped,
    /// and the result is 0.
    int open();
    int close();
    bool isOpen() const { return open_flag; }
    int manage();
    int unmanage();
    /// Refused while control is with the device.
    int addCallback(const char* type, Listener* listener, const void* client);
    int doCallback(const char* type, const char* data);
    void callback(const char* type, const char* data, const void* client) override;
    int getDevice(String& name);

    int update();
    int clear();
    int clearRect(const Rect& area);
    int newFrame();
    bool isLooping();
    int getFrame();
    int setFrame(int frame);
    int deleteFrame(int frame);
    int getNumFrames();
    int bell();
    int setCursor(int cursor);
    /// Sends up to 100 characters to the device as a comment.
    [[gnu::format(printf, 2, 3)]] int message(const char* format, ...);

    int setSize(float width, float height);
    int setOffset(float x, float y);
    int setInverse(bool inverse);
    bool getInverse();
    int setBackground(const char* color);
    int setIcon(bool icon);
    int setTitle(const char* title);
    int setFixed(bool fixed);
    int allocColor(float red, float grn, float blu);
    int allocColor(const RGB& color);

    /// Chooses transform 0 to 3; nothing reaches the device before activateTran.
    int setTran(int n);
    int getTran() const { return cur_tran; }
    /// Clips the device to the viewport of the current transform.
    int activateTran();
    int activateTran(int n);
    /// The forms without a number work on the current transform. Those that return a rectangle
    /// give that of a default Rect for a number outside 0 to 3.
    int setWindow(const Rect& area);
    int setWindow(int n, const Rect& area);
    Rect getWindow() const;
    Rect getWindow(int n) const;
    int getWindow(Rect& area) const;
    int getWindow(int n, Rect& area) const;
    int setViewport(const Rect& area);
    int setViewport(int n, const Rect& area);
    Rect getViewport() const;
    Rect getViewport(int n) const;
    int getViewport(Rect& area) const;
    int getViewport(int n, Rect& area) const;
    /// The whole normalised surface.
    Rect getMaxViewport() const;
    Rect getMaxViewport(int n) const;
    int getMaxViewport(Rect& area) const;
    int getMaxViewport(int n, Rect& area) const;
    /// The clip area of the device, in device coordinates.
    Rect getDeviceViewport();
    int getDeviceViewport(Rect& area);
    /// Places a viewport of an aspect (width / height, 0: that of the limits) as large as possible
    /// inside limits. A negative limit counts from the far edge of the surface. Alignments:
    /// horizontal 1 left, 3 right, vertical 1 lower, 3 upper, others centre.
    int setViewportAspect(const Rect& limits, float aspect, int halign = 2, int valign = 2);

    /// Device to normalised coordinates.
    int tranPlotView(float x, float y, float& view_x, float& view_y) const;
    /// Device to window coordinates of the current transform.
    int tranPlotWindow(float x, float y, float& window_x, float& window_y) const;
    /// Window of one transform to the window of another, over the device.
    int tranWindow(int from, float x, float y, int to, float& to_x, float& to_y) const;

    /// Colors are color values of the device.
    int setLineColor(int color);
    int setLineWidth(float width);
    int setLineStyle(int style);
    int setFillColor(int color);
    int setFillStyle(int style);
    int setTextColor(int color);
    int setTextWeight(float weight);
    int setMarkColor(int color);
    int setMarkWeight(float weight);

    int setTextHeight(float height);
    int setTextExpansion(float expansion);
    int setTextSpacing(float spacing);
    int setTextCharWidth(float width);
    int setTextAlign(int halign, int valign);
    /// The direction in which text stands up, (0, 1) for horizontal text; normalised. No direction
    /// at all is refused.
    int setTextDirection(float dx, float dy);
    int setTextBoxColor(int color);
    int setMarkType(int type);
    int setMarkSize(float size);
    int setDropColor(int color);
    int setDropShadow(int size);
    int setDropWidth(int width);
    int setImageAlign(int halign, int valign);

    /// Chooses a font: a short name of "orv.fnl", a font file of the database, or "#" and a device
    /// font, in which "{N}" stands for a size that follows the text height. A font that cannot be
    /// had is replaced by "modern.fnt", with a warning the first time; the result is 0 then.
    int setFont(const char* name);
    /// Reads another symbol file of the database.
    int setSymbol(const char* file);

    int drawLine(float x1, float y1, float x2, float y2);
    int drawLine(const Points& points);
    int drawRect(const Rect& area);
    int drawRect(float x1, float y1, float x2, float y2);
    int drawCircle(float x, float y, float radius);
    int drawFill(const Points& points);
    int drawFill(const Rect& area);
    int drawFillarea(const Points& points) { return drawFill(points); }
    int drawFillarea(const Rect& area) { return drawFill(area); }
    int drawMark(float x, float y);
    /// Draws the bare shape of mark_type.
    int drawMarkLine(float x, float y, float size);
    /// Draws lines of text separated by newlines, at most 100 characters each.
    int drawText(float x, float y, const char* text);
    /// Draws one line with the vector font.
    int drawTextLine(float x, float y, const char* line);
    /// Draws a named symbol of the given size, its lower left corner at (x, y), or as the text
    /// alignment says.
    int drawSymbol(float x, float y, const char* name, float size);
    int drawImage(Image& image, float x, float y);
    int drawImage(Image& image, int mode, float x, float y);
    int getImage(Image& image);

private:
    static bool isTran(int n) { return n >= 0 && n < 4; }
    GTran& cur() { return tran[cur_tran]; }
    const GTran& cur() const { return tran[cur_tran]; }
    template <class Value>
    int change(Value& stored, Value value, int (Device::*tell)(int, Value), int context);
    int setFontSpec();
    std::string findFontSpec(const char* name) const;
    const GFont* loadFont(const std::string& file);
    Point pixelSize() const;
    void drawShadow();
    void drawTextPart(float x, float y, const char* line);
    float getLineWidth(const char* line) const;
    void drawGlyph(float x, float y, float u, float offset);
    void flushStroke(int context);

    // Files read once: elements of a plot change fonts and symbols at every station.
    std::map<std::string, std::string> font_specs;
    std::map<std::string, GFont> fonts;
    std::map<std::string, Symbol> symbols;
    std::vector<std::unique_ptr<Device>> closing; // closed from inside their own event loop
    int managing = 0;                             // event loops entered and not left
};

} // namespace ORV
