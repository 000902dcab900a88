#pragma once

#include "ORV/File.h"
#include "ORV/FileDevice.h"
#include "ORV/GeomBox.h"
#include "ORV/RGB.h"
#include "ORV/TextBuffer.h"

#include <functional>
#include <string>

namespace ORV {

/// Writes a PostScript page, or an encapsulated one with "eps". Coordinates are points of 1/72
/// inch, y upward. Text comes as strokes from Graph. Fill styles are not written: every fill is
/// solid.
///
/// An encapsulated file closes without the lines that would end the dictionary and the save, since
/// its header opens neither; so it runs by itself and inside another page. Its bounding box is that
/// of the default page and doesn't follow the page keywords.
class Postscript : public FileDevice {
public:
    File file;
    bool inverse = false; ///< set by "color"
    float width = 756;    ///< surface in points
    float height = 576;
    float off_x = 0;
    float off_y = 0;
    bool open_flag = false;
    char name[60] = "orv.ps"; ///< a longer one given to setParam is cut here, but opened in full
    char title[60] = "ORV Plot";
    int append = 0; ///< 1: the plot goes behind what the file holds
    int eps = 0;
    int color = 0; ///< 1 color, 0 gray
    int portrait = 0;
    float scale = 1.0f;
    GeomBox clip;
    float lwidth = 1.0f; ///< factor on all line widths
    int line_color = 0;
    int line_style = 1;
    float line_width = 1.0f;
    int text_color = 0;
    float text_width = 1.0f;
    int fill_color = 0;
    int fill_style = 0;
    int mark_color = 0;
    float mark_width = 1.0f;

    Postscript() = default;
    Postscript(const Postscript&) = delete;
    Postscript& operator=(const Postscript&) = delete;
    ~Postscript() override;

    int init() override;
    /// The name of the file first ("|command" for a pipe, "+name" to append), then in any order and
    /// case: port land eps noeps color gray scale=N lwidth=N sz=W:H (inches) letter legal 11x17 a4
    /// a3 ansid. A scale that is not above 0 and sizes that are not are passed over.
    int setParam(const char* param) override;
    int open() override;
    /// Ends the page. 0, with a message and the error Orv::NOWRITE, when not all could be written.
    int close() override;
    int setTitle(const char* text) override;
    /// Paper is white, also in gray: what is drawn by default has to be dark.
    bool getInverse() override { return true; }
    /// In pixels of 1/100 inch.
    int setSize(float w, float h) override;
    int getSize(float& w, float& h) override;
    float getWidth() override { return width; }
    float getHeight() override { return height; }
    int setOffset(float x, float y) override;
    int getOffset(float& x, float& y) override;
    int getCoords(Rect& coords) override;
    Rect getCoords() override;
    /// Red in bits 16 to 23, green in 8 to 15, blue in 0 to 7.
    int allocColor(float red, float grn, float blu) override;
    int setColor(int context, int value) override;
    int setLineWidth(int context, float w) override;
    int setLineStyle(int context, int style) override;
    int setFillStyle(int context, int style) override;
    int drawLine(int context, float x1, float y1, float x2, float y2) override;
    int drawLine(int context, Points& points) override;
    int drawFill(int context, Points& points) override;
    /// Draws a raster of nx by ny pixels into the clip area, column x and row y of it at the upper
    /// left corner, one pixel to a point; white where the raster has none.
    int drawPixels(int nx, int ny, const std::function<RGB(int, int)>& pixel, float x, float y);
    Rect getClip() override;
    using FileDevice::setClip;
    int setClip(float x1, float y1, float x2, float y2) override;
    int message(const char* text) override;

private:
    void writeHeader();
    void writeColor(int value);
    void writeWidth(float w);
    void writeState(int context);
    void writePath(const Points& points);
    void writePoint(float x, float y, std::string_view verb);

    TextBuffer out;
    std::string full_name; // as given, where name is too short for it
};

} // namespace ORV
