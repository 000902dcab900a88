#include "ORV/Plot.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Tools.h"

#include <algorithm>

namespace ORV {
namespace {

constexpr int max_cells = 4096;  // more than any page has room for
constexpr int max_values = 16;   // printed under the bar
constexpr float strip = 0.05f;   // height of the bar with its values, in heights of the surface
constexpr float letters = 0.35f; // height of letters, in heights of the strip

/// The cells of a bar over a range: those of a step table, or steps of a cycle.
class BarCells {
public:
    const ColorFill& fill;
    Range range;
    int first = 0;
    int num = 0;

    BarCells(const ColorFill& color_fill, const Range& values) : fill(color_fill), range(values) {
        num = fill.getNum();
        if (range.max == Const::MISS)
            return;
        const float interval = fill.getInterval();
        if (fill.areValuesSet()) {
            first = std::max(fill.getInd(range.min), 0);
            num = fill.getInd(range.max) - first + 1;
        } else if (isSet(interval) && range.min != Const::MISS) {
            num = Scan::toInt((double(range.max) - range.min) / interval + 0.01);
        }
        num = std::clamp(num, 0, max_cells);
    }

    float getValue(int i) const {
        if (fill.areValuesSet())
            return fill.getValue(first + i);
        const bool steps = isSet(fill.getInterval());
        if (range.max != Const::MISS && range.min != Const::MISS)
            return steps ? fill.getInterval() * i + range.min : i;
        return steps && fill.getBase() != Const::MISS ? fill.getInterval() * i + fill.getBase() : i;
    }

    PlotAttr getAttr(int i) const {
        // Without an interval a value leads to no entry of a cycle; they come in turn.
        if (!fill.areValuesSet() && !isSet(fill.getInterval()))
            return fill.get(fill.getNum() > 0 ? i % fill.getNum() : 0);
        return fill.get(getValue(i));
    }

private:
    static bool isSet(float interval) { return interval != Const::MISS && interval != 0; }
};

/// Where the bar stands: under the view, from its left edge to the middle, or with labels inside
/// the picture, in its lower edge.
class BarPlace {
public:
    float x1, x2, y1, y2;

    BarPlace(const Rect& view, const Rect& surface, bool inside) {
        const float most = strip * (surface.ymax - surface.ymin);
        const float height = inside ? most : std::min(view.ymin - surface.ymin, most);
        const float width = view.xmax - view.xmin;
        x1 = view.xmin + 0.03f * width;
        x2 = view.xmin + 0.5f * width;
        y1 = inside ? view.ymin + 0.15f * height : view.ymin - height;
        y2 = inside ? view.ymin + height : view.ymin - 0.15f * height;
    }
    float middle() const { return (y1 + y2) / 2; }
};

} // namespace

int Plot::setBar(const ColorFill& fill, const Range& range) {
    bar.range = range;
    return setBar(fill);
}

int Plot::setBar(const ColorFill& fill) {
    bar.type = 0;
    bar.fill = fill;
    bar_set = 1;
    return 1;
}

int Plot::setBarLocate(const char* place) {
    return StrLib::copy(bar.locate, sizeof bar.locate, place);
}

int Plot::setBarRange(const Range& range) {
    bar.range = range;
    return 1;
}

int Plot::drawBar() {
    return drawBar(Range());
}

int Plot::drawBar(const Range& range) {
    const BarCells cells(bar.fill, bar.range.max != Const::MISS ? bar.range : range);
    if (cells.num == 0)
        return 0;
    if (!StrLib::equal(bar.locate, "ll"))
        return 1;

    const BarPlace place(graph.getViewport(), graph.getViewport(0), full == 2);
    const int former = graph.getTran();
    graph.activateTran(0);
    setText();
    PlotAttr attr = getLabelAttr();
    const float height = letters * (place.y2 - place.y1);
    setTextHeight(height);
    setText(attr, height);
    const float text_y = attr.validHeight() ? place.y1 + height * (1 - attr.height) : place.y1;

    setTextAlign(1, 4);
    drawText(place.x2 + 0.01f, text_y, bar.fill.getLabel());
    setTextAlign(2, 4);
    setFillStyle(0);
    const int text_step = cells.num / max_values + 1;
    const float cell_width = (place.x2 - place.x1) / cells.num;
    for (int i = 0; i < cells.num; i++) {
        const float left = place.x1 + i * cell_width;
        PlotAttr cell = cells.getAttr(i);
        setFill(cell);
        setLine(cell);
        drawFill(Rect(left, place.middle(), left + cell_width, place.y2));

        if (cell.validLabel()) {
            char text[sizeof cell.label];
            StrLib::copy(text, sizeof text, cell.label);
            StrLib::replace(text, '_', ' ');
            drawText(left + cell_width / 2, text_y, text);
        } else if (i % text_step == 0 && cells.getValue(i) != Const::MISS) {
            String text;
            Tools::toString(cells.getValue(i), text);
            drawText(left, text_y, text.get());
        }
    }

    setLine();
    setLine(attr);
    drawRect(place.x1, place.middle(), place.x2, place.y2);
    return graph.activateTran(former);
}

} // namespace ORV
