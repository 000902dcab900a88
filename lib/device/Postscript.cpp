#include "ORV/Postscript.h"

#include "ORV/DateTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <algorithm>
#include <cstdio>

namespace ORV {
namespace {
enum Context { line = 1, mark = 2, fill = 3, text_context = 4 };

constexpr float points_per_inch = 72;
constexpr float points_per_pixel = 0.72f;
constexpr float clip_margin = 0.1f; // points, so that lines on the edge of a frame show in full

constexpr struct {
    const char* name;
    float width, height; // inches
} pages[] = {
    {"letter", 10.5f, 8.0f}, {"legal", 13.5f, 8.0f}, {"11x17", 16.5f, 10.5f},
    {"a4", 11.2f, 7.8f},     {"a3", 15.4f, 11.2f},   {"ansid", 33.5f, 21.5f},
};

constexpr std::string_view solid = "[] 0 setdash\n";
constexpr std::string_view dashes[] = {
    "",    // 0: as the line before it
    solid, // 1
    "[6] 0 setdash\n",
    "[3 6] 0 setdash\n",
    "[6 6 3 6] 0 setdash\n",
    "[2] 0 setdash\n",
};

constexpr std::string_view definitions = "/inch {72 mul} def\n"
                                         "/dot {.33 mul} def\n"
                                         "/mv {moveto} def\n"
                                         "/ln {lineto} def\n"
                                         "/lw {setlinewidth} def\n"
                                         "/np {newpath} def\n"
                                         "/cp {closepath} def\n";

constexpr struct {
    const char* name;
    void (*apply)(Postscript& device);
} switches[] = {
    {"port", [](Postscript& p) { p.portrait = 1; }},
    {"land", [](Postscript& p) { p.portrait = 0; }},
    {"eps", [](Postscript& p) { p.eps = 1; }},
    {"noeps", [](Postscript& p) { p.eps = 0; }},
    {"color",
     [](Postscript& p) {
         p.color = 1;
         p.inverse = true;
     }},
    {"gray", [](Postscript& p) { p.color = 0; }},
};

int part(float component) {
    return static_cast<int>(std::clamp(component, 0.0f, 1.0f) * 255);
}

double gray(double red, double grn, double blu) {
    return (red * 0.9 + grn + blu * 0.8) / 2.7;
}

bool takeFactor(const char* item, const char* key, float& factor) {
    const int length = StrLib::length(key);
    if (!StrLib::iequal(item, key, length))
        return false;
    float number = 0;
    if (Scan::number(item + length, number) && number > 0)
        factor = number;
    return true;
}

// A file name or title with no line ends, so that the comment that holds it ends where it should.
std::string oneLine(const char* words) {
    std::string out(words);
    std::replace_if(
        out.begin(), out.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return out;
}
} // namespace

Postscript::~Postscript() {
    close();
}

int Postscript::init() {
    inverse = false;
    width = 756;
    height = 576;
    off_x = off_y = 0;
    StrLib::copy(name, sizeof name, "orv.ps");
    StrLib::copy(title, sizeof title, "ORV Plot");
    append = eps = color = portrait = 0;
    scale = lwidth = 1;
    clip.init();
    line_color = text_color = fill_color = mark_color = 0;
    line_style = 1;
    fill_style = 0;
    line_width = text_width = mark_width = 1;
    return 1;
}

int Postscript::setParam(const char* param) {
    const Strings items(param, ',');
    if (items.valid(0)) {
        full_name = items.getString(0);
        StrLib::copy(name, sizeof name, items.getString(0));
    }
    float page_width = 0, page_height = 0;
    for (int i = 1; i < items.getNum(); i++) {
        const char* item = items.getString(i);
        for (const auto& s : switches)
            if (StrLib::iequal(item, s.name))
                s.apply(*this);
        for (const auto& page : pages)
            if (StrLib::iequal(item, page.name)) {
                page_width = page.width;
                page_height = page.height;
            }
        if (StrLib::iequal(item, "sz=", 3))
            Scan::text(item + 3, "%f:%f", &page_width, &page_height);
        takeFactor(item, "scale=", scale);
        takeFactor(item, "lwidth=", lwidth);
    }
    if (page_width > 0 && page_height > 0) {
        width = page_width * points_per_inch;
        height = page_height * points_per_inch;
    }
    return 1;
}

int Postscript::open() {
    close();
    const bool cut = full_name.size() >= sizeof name && full_name.rfind(name, 0) == 0;
    const char* path = cut ? full_name.c_str() : name;
    append = name[0] == '+';
    path += append;
    const char* doing = append ? "Appending to" : name[0] == '|' ? "Spooling to" : "Creating";
    if (!file.open(path, append ? "a" : "w")) {
        std::fprintf(stderr, "Postscript: unable to output to file\n");
        return 0;
    }
    std::printf("%s: %s\n", doing, path);
    open_flag = true;
    out = {};
    writeHeader();
    return 1;
}

void Postscript::writeHeader() {
    if (eps)
        out.text("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 ")
            .text(portrait ? "756 576\n" : "576 756\n");
    else
        out.text("%!PS-Adobe-1.0\n");

    String date;
    DateTool::getCurrent(date);
    out.text("%%Title: ORV Graphics Display: ").text(oneLine(title));
    out.text("\n%%Creator: ORV Postscript Processor-5.5\n%%CreationDate: ").text(date.get());
    out.text("\n%%EndComments\n%%Postscript initialization\n");
    if (!eps)
        out.text("30 dict begin\n/saveobj save def\n");
    out.text(definitions);
    if (!portrait)
        out.text("90 rotate\n")
            .text(eps ? "0. inch -8.5 inch translate\n" : ".25 inch -8.25 inch translate\n");
    else if (!eps)
        out.text(".25 inch .25 inch translate\n");
    out.text(color ? "0 0 0 setrgbcolor\n" : "0 setgray\n");
    out.text("2 setlinejoin\n1 dot lw\n").text(solid);
    if (scale != 1)
        out.fixed(scale, 2).put(' ').fixed(scale, 2).text(" scale\n");
    out.text("%%Begin plot\n%%ORV Plot: ").text(oneLine(title)).put('\n');
}

int Postscript::close() {
    if (!open_flag)
        return 0;
    open_flag = false;
    out.text("%%End of plot\n");
    if (!append) {
        if (!eps)
            out.text("saveobj restore\n");
        out.text("showpage\n");
        if (!eps)
            out.text("end\n");
        out.text("%%EOF\n");
    }
    out.flush(file);
    const bool complete = file.close() && !out.hasFailed();
    if (!complete) { // a full disk, or a spool command that ended early
        std::fprintf(stderr, "Postscript: unable to write to file\n");
        Orv::setError(Orv::NOWRITE);
    }
    return complete;
}

int Postscript::setTitle(const char* text) {
    return StrLib::copy(title, sizeof title, text);
}

int Postscript::setSize(float w, float h) {
    width = w * points_per_pixel;
    height = h * points_per_pixel;
    return 1;
}

int Postscript::getSize(float& w, float& h) {
    w = width;
    h = height;
    return 1;
}

int Postscript::setOffset(float x, float y) {
    off_x = x * points_per_pixel;
    off_y = y * points_per_pixel;
    return 1;
}

int Postscript::getOffset(float& x, float& y) {
    x = off_x;
    y = off_y;
    return 1;
}

int Postscript::getCoords(Rect& coords) {
    return coords.setu(0, height, width, 0);
}

Rect Postscript::getCoords() {
    Rect coords;
    getCoords(coords);
    return coords;
}

int Postscript::allocColor(float red, float grn, float blu) {
    return (part(red) << 16) + (part(grn) << 8) + part(blu);
}

int Postscript::setColor(int context, int value) {
    int* const colors[] = {&line_color, &mark_color, &fill_color, &text_color};
    if (context < line || context > text_context)
        return 0;
    *colors[context - 1] = value;
    return 1;
}

int Postscript::setLineWidth(int context, float w) {
    float* const widths[] = {&line_width, &mark_width, nullptr, &text_width};
    if (context < line || context > text_context || !widths[context - 1])
        return 0;
    *widths[context - 1] = w > 0 ? w : 1;
    return 1;
}

int Postscript::setLineStyle(int context, int style) {
    if (context != line)
        return 0;
    line_style = style;
    return 1;
}

int Postscript::setFillStyle(int context, int style) {
    if (context != fill)
        return 0;
    fill_style = style;
    return 1;
}

void Postscript::writeColor(int value) {
    const double red = (value >> 16 & 255) / 255.0;
    const double grn = (value >> 8 & 255) / 255.0;
    const double blu = (value & 255) / 255.0;
    if (color)
        out.fixed(red, 2).put(' ').fixed(grn, 2).put(' ').fixed(blu, 2).text(" setrgbcolor\n");
    else
        out.fixed(gray(red, grn, blu), 2).text(" setgray\n");
}

void Postscript::writeWidth(float w) {
    out.fixed(w * lwidth, 1).text(" dot lw\n");
}

void Postscript::writeState(int context) {
    switch (context) {
    case line:
        writeColor(line_color);
        writeWidth(line_width);
        if (line_style >= 0 && line_style < static_cast<int>(std::size(dashes)))
            out.text(dashes[line_style]);
        break;
    case mark:
        writeColor(mark_color);
        out.text(solid);
        writeWidth(mark_width);
        break;
    case text_context:
        writeColor(text_color);
        out.text(solid);
        writeWidth(text_width);
        break;
    }
}

void Postscript::writePoint(float x, float y, std::string_view verb) {
    out.fixed(x, 2).put(' ').fixed(y, 2).text(verb);
}

void Postscript::writePath(const Points& points) {
    out.text("np\n");
    writePoint(points.getX(0), points.getY(0), " mv\n");
    for (int i = 1; i < points.num; i++)
        writePoint(points.getX1(i), points.getY1(i), " ln\n");
}

int Postscript::drawLine(int context, float x1, float y1, float x2, float y2) {
    if (!open_flag)
        return 0;
    out.text("%%PL:2\n");
    writeState(context);
    out.text("np\n");
    writePoint(x1, y1, " mv\n");
    writePoint(x2, y2, " ln\n");
    out.text("stroke\n");
    return out.flushFull(file);
}

int Postscript::drawLine(int context, Points& points) {
    if (!open_flag)
        return 0;
    out.text("%%PL:").integer(points.num).put('\n');
    writeState(context);
    writePath(points);
    out.text("stroke\n");
    return out.flushFull(file);
}

int Postscript::drawFill(int context, Points& points) {
    if (!open_flag)
        return 0;
    out.text("%%FA:").integer(points.num).put('\n');
    if (context == fill)
        writeColor(fill_color);
    writePath(points);
    out.text("cp\nfill\n");
    return out.flushFull(file);
}

Rect Postscript::getClip() {
    return Rect(clip.x, clip.y, clip.x + clip.width, clip.y + clip.height);
}

int Postscript::setClip(float x1, float y1, float x2, float y2) {
    clip.set(x1 - clip_margin, y1 - clip_margin, x2 - x1 + 2 * clip_margin,
             y2 - y1 + 2 * clip_margin);
    if (!open_flag)
        return 0;
    out.text("initclip\nnp\n");
    writePoint(x1 - clip_margin, y1 - clip_margin, " mv\n");
    writePoint(x1 - clip_margin, y2 + clip_margin, " ln\n");
    writePoint(x2 + clip_margin, y2 + clip_margin, " ln\n");
    writePoint(x2 + clip_margin, y1 - clip_margin, " ln\n");
    out.text("cp\nclip\n");
    return 1;
}

int Postscript::message(const char* words) {
    if (!open_flag)
        return 0;
    out.text("%% ").text(oneLine(words ? words : "")).put('\n');
    return 1;
}

int Postscript::drawPixels(int nx, int ny, const std::function<RGB(int, int)>& pixel, float x,
                           float y) {
    constexpr int most_on_line = 80;
    const int cols = Scan::toInt(clip.width), rows = Scan::toInt(clip.height);
    const int x0 = Scan::toInt(x), y0 = Scan::toInt(y);
    if (!open_flag || nx < 1 || ny < 1 || cols < 1 || rows < 1)
        return 0;
    out.text("gsave\n").integer(Scan::toInt(clip.x)).put(' ').integer(Scan::toInt(clip.y));
    out.text(" translate\n").integer(cols).put(' ').integer(rows).text(" scale\n");
    out.text("/picstr ").integer(cols).text(" string def\n");
    out.integer(cols).put(' ').integer(rows).text(" 8 [ ").integer(cols).text(" 0 0 ");
    out.integer(-rows).text(" 0 ").integer(rows).text(" ]\n");
    out.text("{ currentfile picstr readhexstring pop }\n");
    out.text(color ? "false 3 colorimage\n" : "image\n");
    for (int row = 0; row < rows; row++) {
        for (int col = 0; col < cols; col++) {
            const long long i = static_cast<long long>(x0) + col;
            const long long j = static_cast<long long>(y0) + row;
            RGB c;
            c.set(1, 1, 1);
            if (i >= 0 && i < nx && j >= 0 && j < ny)
                c = pixel(static_cast<int>(i), static_cast<int>(j));
            if (color)
                out.hex(part(c.red)).hex(part(c.grn)).hex(part(c.blu));
            else
                out.hex(part(static_cast<float>(gray(c.red, c.grn, c.blu))));
            if ((col + 1) % most_on_line == 0 && col + 1 < cols)
                out.put('\n');
        }
        out.put('\n');
        out.flushFull(file);
    }
    out.text("grestore\n");
    return 1;
}

} // namespace ORV
