#include "ORV/ContPlot.h"

#include "ORV/Format.h"
#include "ORV/Grid.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/Range.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

namespace ORV {
namespace {

enum Type { none = 0, values = 1, lines = 2, filled = 3, filled_lines = 4 };

constexpr struct {
    const char* name;
    Type type;
} types[] = {
    {"none", none}, {"value", values}, {"gvalue", values}, {"ln", lines},
    {"dln", lines}, {"ndln", lines},   {"cf", filled},     {"lcf", filled_lines},
};

// The whole entry is one of the kinds of plot that can stand alone.
bool isTypeEntry(const char* entry) {
    return !StrLib::equal(entry, "none") && ContPlot::decodeType(entry) != none;
}

// "n:r:x:y", with ":" "," or "." between, or n and r as two digits of one number.
void setLabels(ContPlot& cont, const char* entry) {
    int a = 0, b = 0, c = 0, d = 0, n = 0;
    const char* text = StrLib::length(entry) > 4 ? entry + 4 : "";
    for (const char* format : {"%d:%d:%d:%d", "%d,%d,%d,%d", "%d.%d.%d.%d"}) {
        n = Scan::text(text, format, &a, &b, &c, &d);
        if (n != 1)
            break;
    }
    if (n == 1)
        cont.setLabelParam(a / 10, a % 10);
    if (n >= 2)
        cont.setLabelParam(a, b);
    if (n >= 3)
        cont.setLabelSpace(c, n == 3 ? c : d);
}

// Entries of a parameter text by their first characters, in the order in which they are tried. The
// value stands behind the "=", or at a fixed place when that is above 0.
constexpr struct {
    const char* key;
    int value_at;
    int (*apply)(ContPlot& cont, const char* value);
} keywords[] = {
    {"ty", 0, [](ContPlot& c, const char* v) { return c.setType(v); }},
    {"pl", 0, [](ContPlot& c, const char* v) { return c.setType(v); }},
    {"int", 0, [](ContPlot& c, const char* v) { return c.setInterval(StrLib::getFloat(v)); }},
    {"ci", 0, [](ContPlot& c, const char* v) { return c.setInterval(StrLib::getFloat(v)); }},
    {"base", 0, [](ContPlot& c, const char* v) { return c.setBase(v); }},
    {"cb", 0, [](ContPlot& c, const char* v) { return c.setBase(v); }},
    {"wi", 0, [](ContPlot& c, const char* v) { return c.setLineWidth(StrLib::getFloat(v)); }},
    {"sc", 0, [](ContPlot& c, const char* v) { return c.setScaleFactor(StrLib::getFloat(v)); }},
    {"fill", 5,
     [](ContPlot& c, const char* v) { return c.setFillStyle(PlotAttr::parseFillStyle(v)); }},
    {"ct", 3, [](ContPlot& c, const char* v) { return c.setColorTable(v); }},
    {"coco", 5, [](ContPlot& c, const char* v) { return c.setColorLine(v); }},
    {"coln", 5, [](ContPlot& c, const char* v) { return c.setColorLine(v); }},
    {"cof", 4, [](ContPlot& c, const char* v) { return c.setColorFill(v); }},
    {"cola", 5, [](ContPlot& c, const char* v) { return c.setColorLabel(v); }},
    {"co=", 3, [](ContPlot& c, const char* v) { return c.setColorLine(v); }},
    {"fm", 0, [](ContPlot& c, const char* v) { return c.setTextFormat(v); }},
};

void setEntry(ContPlot& cont, const Strings& entries, int i) {
    const char* entry = entries.getString(i);
    if (!StrLib::valid(entry))
        return;
    if (isTypeEntry(entry)) {
        cont.setType(entry);
        return;
    }
    for (const auto& keyword : keywords)
        if (StrLib::equal(entry, keyword.key, StrLib::length(keyword.key))) {
            keyword.apply(cont, keyword.value_at > 0 ? entries.getString(i, keyword.value_at)
                                                     : entries.getStringAfter(i, '='));
            return;
        }
    if (StrLib::iequal(entry, "bar", 3))
        cont.bar = 1;
    else if (StrLib::iequal(entry, "nobar"))
        cont.bar = 0;
    else if (StrLib::equal(entry, "lab", 3))
        setLabels(cont, entry);
}

} // namespace

int ContPlot::init() {
    *this = ContPlot(Bare());
    if (const char* kind = Orv::getResrc("plot_type"))
        setType(kind);
    setColorTable(Orv::getResrc("color_table"));
    setInterval(Orv::getResrc("con_interval", static_cast<float>(Const::MISS)));
    setBase(Orv::getResrc("con_base"));
    setColorLine(Orv::getResrc("color_cont"));
    setColorFill(Orv::getResrc("color_fill"));
    setColorLabel(Orv::getResrc("color_clabel"));
    setTextFormat(Orv::getResrc("format"));
    setParam(Orv::getResrc("parameter"));
    return 1;
}

int ContPlot::setParam(const char* list) {
    const Strings entries(list, ',');
    for (int i = 0; i < entries.getNum(); i++)
        setEntry(*this, entries, i);
    return 1;
}

int ContPlot::decodeType(const char* text) {
    for (const auto& t : types)
        if (StrLib::equal(text, t.name))
            return t.type;
    return none;
}

int ContPlot::setType(int code) {
    type = code;
    return 1;
}

int ContPlot::setType(const char* text) {
    if (StrLib::equal(text, "dln"))
        dash = 1;
    else if (StrLib::equal(text, "ndln"))
        dash = -1;
    return setType(decodeType(text));
}

int ContPlot::setInterval(float interval) {
    intrvl = interval;
    return 1;
}

int ContPlot::setBase(float b) {
    base = b;
    return 1;
}

int ContPlot::setBase(const char* list) {
    const Strings entries(list, ',');
    for (int i = 0; i < entries.getNum(); i++) {
        switch (entries.getChar(i, 0)) {
        case '>':
            dpy_min = entries.getFloat(i, 1);
            break;
        case '<':
            dpy_max = entries.getFloat(i, 1);
            break;
        default:
            base = entries.getFloat(i);
        }
    }
    return 1;
}

int ContPlot::setLabelParam(int label_skip, int extrema_radius) {
    skipval = label_skip;
    extrad = extrema_radius;
    return 1;
}

int ContPlot::setLabelSpace(int space_x, int space_y) {
    skipx = space_x;
    skipy = space_y;
    return 1;
}

int ContPlot::setFillStyle(int pattern) {
    fill_pat = pattern;
    return 1;
}

int ContPlot::setLineWidth(float width) {
    line_width = width;
    return 1;
}

int ContPlot::setTextFormat(const char* format) {
    char text[sizeof tform];
    StrLib::copy(text, sizeof text, format);
    if (text[0] != '\0' && !Format::check(text, "f"))
        return 0;
    StrLib::copy(tform, sizeof tform, text);
    return 1;
}

int ContPlot::setColorTable(const char* text) {
    return color_table.set(text);
}

int ContPlot::setColorFill(const char* text) {
    return color_fill.set(text);
}

int ContPlot::setColorLine(const char* text) {
    return color_line.set(text);
}

int ContPlot::setColorLabel(const char* text) {
    return color_label.set(text);
}

int ContPlot::setScaleFactor(float factor) {
    if (!(factor > 0))
        return 0;
    scale = factor;
    return 1;
}

int ContPlot::draw(Plot& plot, Grid& grid) {
    switch (type) {
    case values:
        drawValues(plot, grid);
        break;
    case lines:
        drawLine(plot, grid);
        break;
    case filled_lines:
        drawFill(plot, grid);
        drawLine(plot, grid);
        break;
    default:
        drawFill(plot, grid);
    }
    Range range;
    if (!fill.areValuesSet())
        range.set(conlo, conhi);
    if (bar)
        plot.setBar(fill, range);
    return 1;
}

} // namespace ORV
