#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/XWindow.h"

#include "XLibrary.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace ORV {
namespace {
constexpr float full_intensity = 65535;
constexpr int max_fonts = 1000;
constexpr int size_field = 7; // the dash of a logical font name before its pixel size
constexpr int images_per_line_pad = 32;

constexpr struct {
    int length;
    char pixels[4]; // on, off
} dashes[] = {{0, {}}, {0, {}}, {2, {6, 6}}, {2, {3, 6}}, {4, {6, 6, 3, 6}}, {2, {2, 2}}};

constexpr int gc_of_context[] = {0, 1, 4, 3, 2}; // others, line, mark, fill, text

short toPixel(double v) {
    return static_cast<short>(std::clamp(Scan::toInt(v + 0.5), -32768, 32767));
}

std::vector<XPoint> toPixels(const Points& points) {
    std::vector<XPoint> pixels(static_cast<std::size_t>(points.num));
    for (int i = 0; i < points.num; i++)
        pixels[static_cast<std::size_t>(i)] = {toPixel(points.x[i]), toPixel(points.y[i])};
    return pixels;
}

unsigned short toIntensity(float part) {
    return static_cast<unsigned short>(std::clamp(part, 0.0f, 1.0f) * full_intensity);
}

// What a color of a true-color pixel keeps of an intensity: as many upper bits as it has room for.
unsigned long place(unsigned short intensity, unsigned long mask) {
    unsigned long low = 1;
    while (!(mask & low))
        low <<= 1;
    return static_cast<unsigned long>(intensity) * (mask / low + 1) / 65536 * low;
}

// The wanted pixel size in a logical font name, -1 when it has no such field.
int findSizeField(const std::string& font, std::size_t& begin, std::size_t& end) {
    begin = 0;
    for (int i = 0; i < size_field; i++) {
        begin = font.find('-', begin);
        if (begin == std::string::npos)
            return -1;
        begin++;
    }
    end = std::min(font.find('-', begin), font.size());
    int size = 0;
    Scan::integer(font.c_str() + begin, size);
    return size;
}

std::string withSize(std::string font, const std::string& size) {
    std::size_t begin, end;
    if (findSizeField(font, begin, end) >= 0)
        font.replace(begin, end - begin, size);
    return font;
}
} // namespace

XWindow::GC XWindow::getContext(int context) const {
    return gc[context >= 1 && context <= 4 ? gc_of_context[context] : 0];
}

int XWindow::allocColor(float red, float grn, float blu) {
    if (!open_flag)
        return 0;
    if (red == -1)
        return static_cast<int>(bg);
    const auto* const shades = static_cast<const Visual*>(visual);
    if (shades->c_class == TrueColor && shades->red_mask && shades->green_mask &&
        shades->blue_mask) // the server would give the same, after a round trip each
        return static_cast<int>(place(toIntensity(red), shades->red_mask) |
                                place(toIntensity(grn), shades->green_mask) |
                                place(toIntensity(blu), shades->blue_mask));
    XColor color = {};
    color.red = toIntensity(red);
    color.green = toIntensity(grn);
    color.blue = toIntensity(blu);
    if (!XLibrary::get().allocColor(display, colormap, &color))
        return static_cast<int>(fg);
    return static_cast<int>(color.pixel);
}

int XWindow::setColor(int context, int color) {
    if (!open_flag)
        return 0;
    XLibrary::get().setForeground(display, getContext(context), static_cast<unsigned>(color));
    return 1;
}

int XWindow::setLineWidth(int context, float w) {
    if (!open_flag)
        return 0;
    XGCValues values = {};
    values.line_width = std::max<int>(toPixel(w), 0);
    XLibrary::get().changeGC(display, getContext(context), GCLineWidth, &values);
    return 1;
}

int XWindow::setLineStyle(int context, int style) {
    if (!open_flag)
        return 0;
    const XLibrary& x = XLibrary::get();
    const bool dashed =
        style >= 0 && style < static_cast<int>(std::size(dashes)) && dashes[style].length > 0;
    XGCValues values = {};
    values.line_style = dashed ? LineOnOffDash : LineSolid;
    x.changeGC(display, getContext(context), GCLineStyle, &values);
    if (dashed)
        x.setDashes(display, getContext(context), 0, dashes[style].pixels, dashes[style].length);
    return 1;
}

int XWindow::setFillStyle(int context, int style) {
    if (!open_flag)
        return 0;
    const bool solid = style <= 0 || style >= static_cast<int>(std::size(fill_bitmaps));
    XGCValues values = {};
    values.fill_style = solid ? FillSolid : FillStippled;
    values.stipple = solid ? 0 : fill_bitmaps[style];
    XLibrary::get().changeGC(display, getContext(context),
                             GCFillStyle | (solid ? 0ul : static_cast<unsigned long>(GCStipple)),
                             &values);
    return 1;
}

int XWindow::drawLine(int context, float x1, float y1, float x2, float y2) {
    if (!open_flag)
        return 0;
    XLibrary::get().drawLine(display, target, getContext(context), toPixel(x1), toPixel(y1),
                             toPixel(x2), toPixel(y2));
    return 1;
}

int XWindow::drawLine(int context, Points& points) {
    if (!open_flag || points.num < 1)
        return 0;
    std::vector<XPoint> pixels = toPixels(points);
    XLibrary::get().drawLines(display, target, getContext(context), pixels.data(), points.num,
                              CoordModeOrigin);
    return 1;
}

int XWindow::drawFill(int context, Points& points) {
    if (!open_flag || points.num < 1)
        return 0;
    const XLibrary& x = XLibrary::get();
    std::vector<XPoint> pixels = toPixels(points);
    const GC area = getContext(context);
    x.fillPolygon(display, target, area, pixels.data(), points.num, Nonconvex, CoordModeOrigin);
    x.drawLines(display, target, area, pixels.data(), points.num, CoordModeOrigin);
    return 1;
}

int XWindow::clearRect(Rect& area) {
    if (!open_flag)
        return 0;
    const XLibrary& x = XLibrary::get();
    Rect sorted;
    sorted.set(area.xmin, area.ymin, area.xmax, area.ymax);
    const int x1 = toPixel(sorted.xmin), x2 = toPixel(sorted.xmax);
    const int y1 = toPixel(sorted.ymin), y2 = toPixel(sorted.ymax);
    x.setForeground(display, frame_gc, back_pixel);
    x.fillRectangle(display, target, frame_gc, x1, y1, unsigned(x2 - x1 + 1),
                    unsigned(y2 - y1 + 1));
    return 1;
}

int XWindow::setClip(float x1, float y1, float x2, float y2) {
    if (!open_flag)
        return 0;
    const int left = toPixel(x1), top = toPixel(y1);
    clip.x = static_cast<short>(left);
    clip.y = static_cast<short>(top);
    clip.width = static_cast<unsigned short>(std::clamp(toPixel(x2) - left + 1, 0, 65535));
    clip.height = static_cast<unsigned short>(std::clamp(toPixel(y2) - top + 1, 0, 65535));
    resetClip(copy_gc);
    for (const GC context : gc)
        resetClip(context);
    return 1;
}

void XWindow::resetClip(GC context) {
    XRectangle area = {clip.x, clip.y, clip.width, clip.height};
    XLibrary::get().setClipRectangles(display, context, 0, 0, &area, 1, Unsorted);
}

Rect XWindow::getClip() {
    Rect area;
    area.setu(clip.x, clip.y, float(clip.x + clip.width - 1), float(clip.y + clip.height - 1));
    return area;
}

int XWindow::setCursor(int cursor) {
    const int before = cur_cursor;
    if (!open_flag || cursor < 0 || cursor >= static_cast<int>(std::size(cursors)))
        return before;
    cur_cursor = cursor;
    if (cursors[cursor] && cursor != before) {
        XLibrary::get().defineCursor(display, window, cursors[cursor]);
        XLibrary::get().flush(display); // it tells what goes on now
    }
    return before;
}

bool XWindow::useFont(const char* name) {
    const XLibrary& x = XLibrary::get();
    XFontStruct* const loaded = x.loadQueryFont(display, name);
    if (!loaded)
        return false;
    if (font)
        x.freeFont(display, static_cast<XFontStruct*>(font));
    font = loaded;
    x.setFont(display, gc[2], loaded->fid);
    return true;
}

int XWindow::setFont(const char* spec) {
    if (!open_flag || !StrLib::valid(spec))
        return 0;
    const XLibrary& x = XLibrary::get();
    std::string chosen = spec;
    std::size_t begin, end;
    const int wanted = findSizeField(chosen, begin, end);
    if (wanted >= 0) {
        int num = 0, nearest = -1;
        char** const list = x.listFonts(display, withSize(spec, "*").c_str(), max_fonts, &num);
        for (int i = 0; i < num; i++) {
            const int size = findSizeField(list[i], begin, end);
            if (size == 0) { // scalable: any size can be had
                chosen = withSize(list[i], std::to_string(wanted));
                break;
            }
            if (size > 0 && (nearest < 0 || std::abs(double(size) - wanted) < nearest)) {
                nearest = static_cast<int>(std::abs(double(size) - wanted));
                chosen = list[i];
            }
        }
        if (list)
            x.freeFontNames(list);
    }
    if (useFont(chosen.c_str()))
        return 1;
    Orv::outWarning("Unable to load font\n");
    return 0;
}

int XWindow::setTextAlign(int halign, int valign) {
    text_h = halign;
    text_v = valign;
    return 1;
}

int XWindow::drawText(Point& point, const char* text) {
    if (!open_flag || !text)
        return 0;
    const XLibrary& x = XLibrary::get();
    const int length = StrLib::length(text);
    int right = 0, down = 0;
    if (auto* const face = static_cast<XFontStruct*>(font)) {
        const int text_width = x.textWidth(face, text, length);
        right = text_h == 2 ? -text_width / 2 : text_h == 3 ? -text_width : 0;
        down = text_v == 1   ? face->ascent
               : text_v == 2 ? face->ascent / 2
               : text_v == 3 ? -face->descent
                             : 0;
    }
    x.drawString(display, target, gc[2], toPixel(point.x) + right, toPixel(point.y) + down, text,
                 length);
    return 1;
}

int XWindow::setImageAlign(int halign, int valign) {
    image_h = halign;
    image_v = valign;
    return 1;
}

int XWindow::drawImage(Image&, float, float) {
    return 0;
}

int XWindow::drawImage(Image& image, int, float x, float y) {
    return drawImage(image, x, y);
}

int XWindow::getImage(Image&) {
    return 0;
}

int XWindow::drawPixels(int nx, int ny, const std::function<long(int, int)>& pixel, int left,
                        int top) {
    if (!open_flag || nx < 1 || ny < 1 || nx > 32767 || ny > 32767)
        return 0;
    const XLibrary& x = XLibrary::get();
    XImage* const image =
        x.createImage(display, static_cast<Visual*>(visual), unsigned(depth), ZPixmap, 0, nullptr,
                      unsigned(nx), unsigned(ny), images_per_line_pad, 0);
    if (!image)
        return 0;
    std::vector<char> data(std::size_t(image->bytes_per_line) * std::size_t(ny));
    image->data = data.data();
    // A clip mask takes the place of the clip area, so it says what both let through.
    const int mask_row = (nx + 7) / 8;
    std::vector<char> mask(std::size_t(mask_row) * std::size_t(ny));
    const auto isClipped = [&](int i, int j) {
        const int px = left + i - clip.x, py = top + j - clip.y;
        return px < 0 || py < 0 || px >= clip.width || py >= clip.height;
    };
    for (int j = 0; j < ny; j++)
        for (int i = 0; i < nx; i++) {
            const long value = pixel(i, j);
            if (value < 0 || isClipped(i, j))
                continue;
            XPutPixel(image, i, j, static_cast<unsigned long>(value));
            mask[std::size_t(j * mask_row + i / 8)] |= static_cast<char>(1 << i % 8);
        }
    const ::Pixmap shape = x.createBitmap(display, target, mask.data(), unsigned(nx), unsigned(ny));
    x.setClipMask(display, copy_gc, shape);
    x.setClipOrigin(display, copy_gc, left, top);
    x.putImage(display, target, copy_gc, image, 0, 0, left, top, unsigned(nx), unsigned(ny));
    x.setClipOrigin(display, copy_gc, 0, 0);
    resetClip(copy_gc);
    x.freePixmap(display, shape);
    image->data = nullptr; // it is ours
    XDestroyImage(image);
    x.sync(display, False);
    return 1;
}

int XWindow::readPixels(std::vector<Pixel>& pixels) {
    pixels.clear();
    if (!open_flag)
        return 0;
    XImage* const image = XLibrary::get().getImage(display, target, 0, 0, unsigned(width),
                                                   unsigned(height), AllPlanes, ZPixmap);
    if (!image)
        return 0;
    pixels.reserve(std::size_t(width) * std::size_t(height));
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            pixels.push_back(XGetPixel(image, x, y));
    XDestroyImage(image);
    return 1;
}

} // namespace ORV
