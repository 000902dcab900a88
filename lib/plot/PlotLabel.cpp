#include "ORV/DateTool.h"
#include "ORV/ForeTime.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace ORV {
namespace {

constexpr const char* positions[] = {"ul", "uc", "ur", "ll", "lc", "lr"};
constexpr int num_positions = 6;
constexpr int lower_row = 3;          // positions from here on
constexpr int first_flag = 3;         // of the parts that are drawn: that of "ul"
constexpr int border_flag = 9;        // and that of the border
constexpr float max_height = 0.03f;   // of a label line, in heights of the view
constexpr float inset = 0.01f;        // of labels at left and right, in widths of the view
constexpr float inner_margin = 0.06f; // for labels inside the picture, NDC
constexpr float letters = 0.75f;      // height of letters in a line

// The parts of a date that labels name by a letter, as formats of Date::toText.
class DatePart {
public:
    char letter;
    const char* format;
};
constexpr DatePart date_parts[] = {
    {'Y', "%Y"}, {'a', "%a"}, {'b', "%b"}, {'d', "%d"},
    {'h', "%H"}, {'m', "%m"}, {'n', "%M"}, {'y', "%y"},
};

String foreNumber(float hours) {
    char text[16] = "";
    if (hours != Const::MISS)
        std::snprintf(text, sizeof text, "%.0f", std::trunc(hours));
    return text;
}

// The text of a label's escape; 0 for a letter that is none.
int expand(const Plot& plot, char letter, String& text) {
    for (const DatePart& part : date_parts)
        if (part.letter == letter)
            return plot.date.toText(part.format, text);
    switch (letter) {
    case '%':
        return text.copy("%");
    case 'D':
        DateTool::createLabel(plot.date, plot.timezone, text);
        return 1;
    case 'F':
        ForeTime::toTimeLabel(plot.fore_hour, text);
        return 1;
    case 'S':
        return text.copy(plot.source);
    case 'V': {
        Date date = plot.date;
        date.setSecond(Const::MISS);
        DateTool::createLabel(date, plot.timezone, plot.source, plot.fore_hour, text);
        return 1;
    }
    case 'f':
        return text.copy(foreNumber(plot.fore_hour));
    default:
        return 0;
    }
}

// Where a label of the view begins: its anchor, and the alignment of its text there.
class Anchor {
public:
    Point at;
    int halign = 0;
    int valign = 0;

    Anchor(int pos, const Rect& view, bool inside) {
        const int column = pos % lower_row;
        const bool upper = pos < lower_row;
        const float width = view.xmax - view.xmin;
        const float x[] = {view.xmin + inset * width, view.xmin + 0.5f * width,
                           view.xmax - inset * width};
        at.set(x[column], upper ? view.ymax : view.ymin);
        halign = column + 1;
        valign = upper != inside ? 5 : 1;
    }
};

} // namespace

int Plot::setLabelColor(const char* text) {
    return label_color.copy(text);
}

int Plot::setLabelFormat(const char* text) {
    return StrLib::copy(label_format, sizeof label_format, text);
}

int Plot::addLabelLine(int line, const char* pos, const char* text) {
    if (num_labels >= max_labels)
        return 0;
    PlotLabel& label = labels[num_labels++];
    label.line = line;
    StrLib::copy(label.pos, sizeof label.pos, pos);
    StrLib::copy(label.text, sizeof label.text, text);
    StrLib::copy(label.format, sizeof label.format, label_format);
    return 1;
}

int Plot::addLabel(const char* pos, const char* text) {
    return addLabelLine(num_lines, pos, text);
}

int Plot::setLabel(const char* pos, const char* text) {
    return addLabelLine(-1, pos, text);
}

int Plot::done() {
    num_lines++;
    return 1;
}

int Plot::getLabelPosIndex(const char* pos) {
    for (int i = 0; i < num_positions; i++)
        if (StrLib::equal(pos, positions[i]))
            return i;
    return 0;
}

int Plot::formatLabel(const char* text, char* out, int size) const {
    if (size < 1)
        return 0;
    *out = '\0';
    String part;
    for (const char* c = text; c && *c; c++) {
        if (*c == '%' && expand(*this, c[1], part)) {
            StrLib::append(out, size, part.get());
            c++;
            continue;
        }
        const char plain[] = {*c == '_' ? ' ' : *c, '\0'};
        StrLib::append(out, size, plain);
    }
    return 1;
}

int Plot::printLabels() const {
    for (int i = 0; i < num_labels; i++)
        std::printf("%d %s %s: %s\n", labels[i].line, labels[i].pos, labels[i].format,
                    labels[i].text);
    return 1;
}

int Plot::clearLabels() {
    const Rect view = graph.getViewport();
    const Rect surface = graph.getViewport(0);
    const int former = graph.getTran();
    graph.activateTran(0);
    graph.clearRect(Rect(surface.xmin, view.ymax, surface.xmax, surface.ymax));
    graph.clearRect(Rect(surface.xmin, surface.ymin, surface.xmax, view.ymin));
    graph.activateTran(former);
    num_labels = 0;
    num_lines = 0;
    return 1;
}

int Plot::setDataSource(const char* text) {
    return StrLib::copy(source, sizeof source, text);
}

PlotAttr Plot::getLabelAttr() {
    if (label_color.valid())
        return PlotAttr(label_color.get());
    return PlotAttr(Orv::getResrc("color_label", getForeground()));
}

int Plot::drawBorder() {
    if (!draw_flags[border_flag])
        return 0;
    setLine();
    PlotAttr attr = getLabelAttr();
    setLine(attr);
    const Rect view = graph.getViewport();
    const int former = graph.getTran();
    graph.activateTran(0);
    drawRect(view);
    return graph.activateTran(former);
}

// Labels that the user asks for: "ur:Title", or a text alone for the upper left.
int Plot::addLabelResrc() {
    const Strings items(Orv::getResrc("label"), ',');
    for (int i = 0; i < items.getNum(); i++) {
        const char* item = items.getString(i);
        if (!StrLib::valid(item))
            continue;
        const bool placed = items.getChar(i, 2) == ':';
        const char pos[] = {item[0], item[1], '\0'};
        setLabel(placed ? pos : positions[0], placed ? item + 3 : item);
    }
    return 1;
}

int Plot::drawLabelTexts(const Rect& view, const Rect& surface) {
    float margin = surface.ymax - view.ymax;
    if (margin == 0)
        margin = view.ymin - surface.ymin;
    if (full == 2)
        margin = inner_margin;
    const float limit = max_height * (view.ymax - view.ymin);
    const float line_height = num_lines > 0 ? std::min(margin / num_lines, limit) : limit;
    margin = std::min(margin, limit);
    const int shift = full == 2 ? num_lines - 1 : 0;

    int counts[num_positions] = {};
    for (int i = 0; i < num_labels; i++) {
        int& count = counts[getLabelPosIndex(labels[i].pos)];
        if (labels[i].line == -1)
            count = -1;
        else if (count != -1)
            count++;
    }

    setText();
    PlotAttr common = getLabelAttr();
    for (int i = 0; i < num_labels; i++) {
        const PlotLabel& label = labels[i];
        const int pos = getLabelPosIndex(label.pos);
        const bool alone = label.line == -1;
        if (!draw_flags[first_flag + pos] || (counts[pos] == -1 && !alone))
            continue;
        Anchor anchor(pos, view, full == 2);
        if (!alone)
            anchor.at.y += line_height * (pos < lower_row ? label.line - shift
                                                          : label.line - (num_lines - 1) + shift);
        const float height = letters * (alone ? margin : line_height);
        PlotAttr attr(label.format);
        char text[100];
        formatLabel(label.text, text, sizeof text);
        graph.setTextAlign(anchor.halign, anchor.valign);
        graph.setTextHeight(height);
        setText(common, height);
        setText(attr, height);
        drawText(anchor.at, text);
    }
    return 1;
}

int Plot::drawLabels() {
    const Rect view = graph.getViewport();
    const Rect surface = graph.getViewport(0);
    const int former = graph.getTran();
    addLabelResrc();
    graph.activateTran(0);
    drawLabelTexts(view, surface);
    graph.activateTran(former);
    if (bar_set)
        drawBar();
    return drawLogos();
}

} // namespace ORV
