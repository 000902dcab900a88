#include "ORV/Plot.h"

#include "ORV/Orv.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace ORV {
namespace {

class Keyword {
public:
    const char* text;
    int length; // characters that decide
    bool any_case;
    int (*set)(Plot& plot, const Strings& items, int i);

    bool fits(const Strings& items, int i) const {
        return any_case ? items.iequal(i, text, length) : items.equal(i, text, length);
    }
};

template <int size>
int copyAfter(char (&field)[size], const Strings& items, int i) {
    return StrLib::copy(field, size, items.getStringAfter(i, '='));
}

// Behind the three characters of "ti=" and its like; null when there is nothing.
const char* rest(const Strings& items, int i) {
    return items.getString(i, 3);
}

int setBarParam(Plot& plot, const Strings& items, int i) {
    const char* text = items.getString(i, 4);
    return text ? plot.bar.setParam(text) : 0;
}

int setPlotTitle(Plot& plot, const Strings& items, int i) {
    if (!rest(items, i))
        return 0;
    StrLib::copy(plot.title, sizeof plot.title, rest(items, i));
    return plot.graph.setTitle(plot.title);
}

// In the order in which they are tried: "trans_col" comes behind "ti", which it doesn't begin with.
// The whole words count their terminator, so that "full" isn't the start of "full_lab".
constexpr Keyword keywords[] = {
    {"ti", 2, false, setPlotTitle},
    {"bg", 2, false,
     [](Plot& p, const Strings& s, int i) {
         return rest(s, i) ? p.graph.setBackground(rest(s, i)) : 0;
     }},
    {"ic", 2, false,
     [](Plot& p, const Strings& s, int i) { return p.graph.setIcon(s.getLength(i) > 3); }},
    {"col", 3, false,
     [](Plot& p, const Strings& s, int i) { return p.label_color.copy(s.getStringAfter(i, '=')); }},
    {"pan", 3, true,
     [](Plot& p, const Strings& s, int i) { return copyAfter(p.panel_text, s, i); }},
    {"full", 5, true, [](Plot& p, const Strings&, int) { return p.setFull(1); }},
    {"full_lab", 9, true, [](Plot& p, const Strings&, int) { return p.setFull(2); }},
    {"inv", 4, true, [](Plot& p, const Strings&, int) { return p.graph.setInverse(true); }},
    {"bar", 3, true, setBarParam},
    {"lo", 2, true,
     [](Plot& p, const Strings& s, int i) { return p.logo.copy(s.getStringAfter(i, '=')); }},
    {"trans_col", 9, true,
     [](Plot& p, const Strings& s, int i) { return copyAfter(p.trans_col, s, i); }},
    {"tz", 2, true, [](Plot& p, const Strings& s, int i) { return p.timezone.set(rest(s, i)); }},
};

// The parts of a plot: the flags from first to last.
class Part {
public:
    const char* name;
    int first;
    int last;
};
constexpr Part parts[] = {
    {"plot", 0, 0},    {"sum", 0, 0},     {"data", 1, 1},    {"grid", 2, 2},    {"map", 2, 2},
    {"text", 3, 9},    {"text_ul", 3, 3}, {"text_uc", 4, 4}, {"text_ur", 5, 5}, {"text_ll", 6, 6},
    {"text_lc", 7, 7}, {"text_lr", 8, 8}, {"bord", 9, 9},    {"border", 9, 9},
};

void setParts(bool* flags, const char* name, bool on) {
    if (StrLib::iequal(name, "none") || StrLib::iequal(name, "all")) {
        std::fill_n(flags, Plot::num_flags, StrLib::iequal(name, "all"));
        return;
    }
    for (const Part& part : parts)
        if (StrLib::iequal(name, part.name))
            std::fill(flags + part.first, flags + part.last + 1, on);
}

} // namespace

int Plot::init() {
    num_lines = 0;
    num_labels = 0;
    bar_set = 0;
    callbacks_ok = 1;
    StrLib::clear(panel_text);
    StrLib::clear(trans_col);
    StrLib::clear(label_format);
    StrLib::clear(source);
    label_color.clear();
    date.init();
    fore_hour = Const::MISS;
    cur_panel = 0;
    num_panels = 0;
    std::fill_n(draw_flags, num_flags, true);
    if (const char* draw = Orv::getResrc("draw"))
        setDrawing(draw);
    return 1;
}

int Plot::clear() {
    init();
    graph.clear();
    return initPanel();
}

int Plot::close() {
    return graph.close();
}

int Plot::setParam(const char* param) {
    const Strings items(param, ',');
    for (int i = 0; i < items.getNum(); i++)
        for (const Keyword& keyword : keywords)
            if (keyword.fits(items, i)) {
                keyword.set(*this, items, i);
                break;
            }
    return 1;
}

int Plot::setDrawing(const char* text) {
    std::fill_n(draw_flags, num_flags, !StrLib::valid(text));
    const Strings items(text, ',');
    for (int i = 0; i < items.getNum(); i++) {
        const char* name = items.getString(i);
        if (!StrLib::valid(name))
            continue;
        const bool on = *name != '-';
        if (*name == '+' || *name == '-')
            name++;
        if (!on && i == 0)
            std::fill_n(draw_flags, num_flags, true);
        setParts(draw_flags, name, on);
    }
    return 1;
}

int Plot::isDrawing(int part) const {
    return part >= 0 && part <= 9 && draw_flags[part];
}

int Plot::printDrawing() const {
    for (const Part& part : parts)
        if (part.first == part.last)
            std::printf("%s: %d\n", part.name, draw_flags[part.first] ? 1 : 0);
    return 1;
}

int Plot::setLogo(const char* text) {
    return logo.copy(text);
}

int Plot::setFull(int mode) {
    full = mode;
    return 1;
}

int Plot::getDevice(String& name) {
    return graph.getDevice(name);
}

int Plot::addCallback(const char* type, Listener* listener, const void* client) {
    return callbacks_ok ? graph.addCallback(type, listener, client) : 0;
}

int Plot::update() {
    return image_output ? 0 : graph.update();
}

int Plot::manage() {
    return image_output ? saveOutput(Orv::getResrc("output")) : graph.manage();
}

int Plot::end() {
    drawBorder();
    drawLabels();
    return manage();
}

int Plot::message(const char* format, ...) {
    char text[101];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    return graph.message("%s", text);
}

int Plot::newFrame() {
    graph.newFrame();
    num_labels = 0;
    num_lines = 0;
    if (num_panels <= 1)
        return 1;

    // The last panel has left its place in both transforms; the next frame begins with the first.
    cur_panel = 0;
    initPanel();
    if (getPanel().domain.isSet() && getPanel().offset.xmax != Const::MISS)
        setPanel(0);
    return 1;
}

int Plot::clearFrame() {
    num_labels = 0;
    num_lines = 0;
    return graph.clear();
}

int Plot::deleteFrame(int frame) {
    return graph.deleteFrame(frame);
}

int Plot::deleteAllFrames() {
    for (int n = graph.getNumFrames(); n > 0; n--)
        graph.deleteFrame(0);
    return 1;
}

int Plot::setCursor(int cursor) {
    return graph.setCursor(cursor);
}

int Plot::getColorMap(ColorMap& map) const {
    return map.set(colors);
}

int Plot::setColorMap(ColorMap& map) {
    for (int i = 0; i < map.getNum(); i++) {
        RGB color;
        map.get(i, color);
        const int value = graph.allocColor(color);
        map.setValue(i, value);
        colors.setValue(colors.add(map.getName(i), color), value);
    }
    return 1;
}

int Plot::allocColor(int ind) {
    if (!colors.isColor(ind))
        return 0;
    RGB color;
    colors.get(ind, color);
    const int value = graph.allocColor(color);
    colors.setValue(ind, value);
    return value;
}

int Plot::getColorValue(const char* name) {
    const int ind = colors.getInd(name);
    const int value = colors.getValue(ind);
    return value == -1 ? allocColor(ind) : value;
}

const char* Plot::getForeground() {
    const bool paper = graph.device_type > 1;
    return paper || graph.getInverse() ? "black" : "white";
}

int Plot::getColorRGB(int ind, float& red, float& grn, float& blu) const {
    return colors.getRGB(ind, red, grn, blu);
}

} // namespace ORV
