#include "ORV/Plot.h"

namespace ORV {

// A negative index is stored alone: it keeps the context from being drawn, or, when missing,
// leaves it with the color that it has.
int Plot::setColor(int& context_ind, int ind, int (Graph::*set)(int)) {
    context_ind = ind;
    if (ind < 0)
        return 0;
    const int value = colors.getValue(ind);
    return (graph.*set)(value == -1 ? allocColor(ind) : value);
}

int Plot::findColor(PlotAttr& attr) {
    if (!attr.validColorInd())
        attr.color_ind = colors.getInd(attr.color);
    return attr.color_ind;
}

int Plot::setLineColor(int ind) {
    return setColor(line_ind, ind, &Graph::setLineColor);
}
int Plot::setFillColor(int ind) {
    return setColor(fill_ind, ind, &Graph::setFillColor);
}
int Plot::setTextColor(int ind) {
    return setColor(text_ind, ind, &Graph::setTextColor);
}
int Plot::setMarkColor(int ind) {
    return setColor(mark_ind, ind, &Graph::setMarkColor);
}
int Plot::setLineColor(const char* name) {
    return setLineColor(colors.getInd(name));
}
int Plot::setFillColor(const char* name) {
    return setFillColor(colors.getInd(name));
}
int Plot::setTextColor(const char* name) {
    return setTextColor(colors.getInd(name));
}
int Plot::setMarkColor(const char* name) {
    return setMarkColor(colors.getInd(name));
}

int Plot::setLine() {
    graph.setLineColor(getColorValue(getForeground()));
    graph.setLineStyle(1);
    graph.setLineWidth(0);
    graph.setDropShadow(0);
    return 1;
}

int Plot::setLine(PlotAttr& attr) {
    setLineColor(findColor(attr));
    if (attr.validStyle())
        graph.setLineStyle(attr.style);
    if (attr.validWidth())
        graph.setLineWidth(attr.width);
    graph.setDropShadow(attr.validShadow() ? attr.shadow : 0);
    return 1;
}

int Plot::setLine(const char* text) {
    PlotAttr attr(text);
    return setLine(attr);
}

int Plot::setFill() {
    graph.setFillColor(getColorValue(getForeground()));
    graph.setFillStyle(0);
    return 1;
}

int Plot::setFill(PlotAttr& attr) {
    setFillColor(findColor(attr));
    if (attr.validFillPat())
        graph.setFillStyle(attr.fill_pat);
    return 1;
}

int Plot::setFill(const char* text) {
    PlotAttr attr(text);
    return setFill(attr);
}

int Plot::setText() {
    graph.setDropShadow(0);
    graph.setTextColor(getColorValue(getForeground()));
    graph.setTextHeight(0.01f);
    graph.setTextWeight(1);
    graph.setTextCharWidth(0);
    graph.setTextAlign(0, 0);
    graph.setTextExpansion(1);
    graph.setTextDirection(0, 1);
    graph.setFont("modern.fnt");
    return 1;
}

int Plot::setText(PlotAttr& attr) {
    setTextColor(findColor(attr));
    if (attr.validWeight())
        graph.setTextWeight(attr.weight);
    if (attr.validHeight())
        graph.setTextHeight(attr.height);
    if (attr.validExpan())
        graph.setTextExpansion(attr.expan);
    if (attr.validShadow())
        graph.setDropShadow(attr.shadow);
    if (attr.validFont())
        graph.setFont(attr.font);
    return 1;
}

int Plot::setText(PlotAttr& attr, float scale) {
    setText(attr);
    if (attr.validHeight())
        graph.setTextHeight(attr.height * scale);
    return 1;
}

int Plot::setText(const char* text) {
    PlotAttr attr(text);
    return setText(attr);
}

int Plot::setMark() {
    graph.setMarkColor(getColorValue(getForeground()));
    graph.setMarkSize(0.01f);
    graph.setMarkWeight(0);
    return 1;
}

int Plot::setMark(PlotAttr& attr) {
    setMarkColor(findColor(attr));
    if (attr.validWeight())
        graph.setMarkWeight(attr.weight);
    if (attr.validHeight())
        graph.setMarkSize(attr.height);
    if (attr.validShadow())
        graph.setDropShadow(attr.shadow);
    return 1;
}

int Plot::setMark(PlotAttr& attr, float scale) {
    setMark(attr);
    if (attr.validHeight())
        graph.setMarkSize(attr.height * scale);
    return 1;
}

int Plot::setMark(const char* text) {
    PlotAttr attr(text);
    return setMark(attr);
}

int Plot::setLineWidth(float width) {
    return graph.setLineWidth(width);
}
int Plot::setLineStyle(int style) {
    return graph.setLineStyle(style);
}
int Plot::setFillStyle(int style) {
    return graph.setFillStyle(style);
}
int Plot::setTextAlign(int halign, int valign) {
    return graph.setTextAlign(halign, valign);
}
int Plot::setTextHeight(float height) {
    return graph.setTextHeight(height);
}
int Plot::setTextWeight(float weight) {
    return graph.setTextWeight(weight);
}
int Plot::setTextExpansion(float expansion) {
    return graph.setTextExpansion(expansion);
}
int Plot::setTextSpacing(float spacing) {
    return graph.setTextSpacing(spacing);
}
int Plot::setTextCharWidth(float width) {
    return graph.setTextCharWidth(width);
}
int Plot::setTextDirection(float dx, float dy) {
    return graph.setTextDirection(dx, dy);
}
int Plot::setFont(const char* name) {
    return graph.setFont(name);
}
int Plot::setMarkType(int type) {
    return graph.setMarkType(type);
}
int Plot::setMarkType(const char* name) {
    return graph.setMarkType(PlotAttr::parseMarker(name));
}
int Plot::setMarkWeight(float weight) {
    return graph.setMarkWeight(weight);
}
int Plot::setMarkSize(float size) {
    return graph.setMarkSize(size);
}
int Plot::setImageAlign(int halign, int valign) {
    return graph.setImageAlign(halign, valign);
}

} // namespace ORV
