#include "ORV/VectPlot.h"

#include "ORV/Grid.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"
#include "ORV/Tools.h"
#include "ORV/VarName.h"
#include "ORV/WindPlot.h"

#include <algorithm>

namespace ORV {
namespace {

enum Type { arrows = 0, barbs = 1, streamlines = 2 };

constexpr struct {
    const char* name;
    Type type;
} types[] = {{"vect", arrows}, {"barb", barbs}, {"stream", streamlines}, {"strm", streamlines}};

constexpr const char* type_variables[] = {"vect", "barb", "strm"};
constexpr int title_size = 91;
constexpr float bottom_space = 0.05f; // of the surface, for the reference arrow at most
constexpr float gap = 0.01f;          // beside the reference arrow, NDC
constexpr int page_tran = 0, map_tran = 1;

// Entries of a parameter text in the order in which they are tried, by their first characters or
// as a whole.
constexpr struct {
    const char* key;
    bool whole;
    int (*apply)(VectPlot& vect, const char* value);
} keywords[] = {
    {"vect", true, [](VectPlot& p, const char*) { return p.setType(arrows); }},
    {"barb", true, [](VectPlot& p, const char*) { return p.setType(barbs); }},
    {"stream", true, [](VectPlot& p, const char*) { return p.setType(streamlines); }},
    {"strm", true, [](VectPlot& p, const char*) { return p.setType(streamlines); }},
    {"uvgrid", true, [](VectPlot& p, const char*) { return p.uvgrid = 0, 1; }},
    {"uvew", true, [](VectPlot& p, const char*) { return p.uvgrid = 1, 1; }},
    {"sk", false, [](VectPlot& p, const char* v) { return p.setSkip(StrLib::getInt(v)); }},
    {"ci", false, [](VectPlot& p, const char* v) { return p.setInterval(StrLib::getFloat(v)); }},
    {"ct", false, [](VectPlot& p, const char* v) { return p.setColorTable(v); }},
    {"cof", false, [](VectPlot& p, const char* v) { return p.setColorFill(v); }},
    {"co", false, [](VectPlot& p, const char* v) { return p.setColor(v); }},
    {"sc", false, [](VectPlot& p, const char* v) { return p.setScale(StrLib::getFloat(v)); }},
    {"bar", false, [](VectPlot& p, const char*) { return p.bar = 1; }},
    {"nobar", true, [](VectPlot& p, const char*) { return p.bar = 0, 1; }},
    {"sa", false, [](VectPlot& p, const char* v) { return p.setArrowScale(StrLib::getFloat(v)); }},
    {"ba", false, [](VectPlot& p, const char* v) { return p.setBase(StrLib::getFloat(v)); }},
    {"cb", false, [](VectPlot& p, const char* v) { return p.setBase(StrLib::getFloat(v)); }},
    {"sp", false, [](VectPlot& p, const char* v) { return p.setMagnitude(StrLib::getFloat(v)); }},
    {"mag", false, [](VectPlot& p, const char* v) { return p.setMagnitude(StrLib::getFloat(v)); }},
    {"de", false, [](VectPlot& p, const char* v) { return p.setDensity(StrLib::getInt(v)); }},
};

void addWord(String& title, const String& word) {
    if (!word.valid())
        return;
    title.append(word);
    title.append(' ');
}

/// What the title of a field of that type says: forecast time, level and variable.
String getTitle(const Grid& grid, int type) {
    String fore, level, name, title;
    grid.getForeTime().toVarLabel(fore);
    grid.getLevel().toLabel(level);
    VarName names;
    Variable variable;
    names.get(type_variables[std::clamp<int>(type, arrows, streamlines)], variable);
    variable.setUnits(grid.getUnits());
    variable.toLabel(name);
    for (const String* word : {&fore, &level, &name})
        addWord(title, *word);
    title.trunc(title_size - 1);
    return title;
}

} // namespace

int VectPlot::init() {
    *this = VectPlot(Bare());
    setInterval(Orv::getResrc("con_interval", static_cast<float>(Const::MISS)));
    setBase(Orv::getResrc("con_base", static_cast<float>(Const::MISS)));
    setMagnitude(Orv::getResrc("vect_mag", static_cast<float>(Const::MISS)));
    setColor(Orv::getResrc("color_line"));
    setColorFill(Orv::getResrc("color_fill"));
    setType(Orv::getResrc("plot_type"));
    setParam(Orv::getResrc("parameter"));
    return 1;
}

int VectPlot::setParam(const char* list) {
    const Strings entries(list, ',');
    for (int i = 0; i < entries.getNum(); i++)
        for (const auto& keyword : keywords)
            if (keyword.whole ? entries.equal(i, keyword.key)
                              : entries.equal(i, keyword.key, StrLib::length(keyword.key))) {
                keyword.apply(*this, entries.getStringAfter(i, '='));
                break;
            }
    return 1;
}

int VectPlot::setType(const char* text) {
    for (const auto& named : types)
        if (StrLib::equal(text, named.name))
            return setType(named.type);
    return 0;
}

int VectPlot::setSkip(int x, int y) {
    skipx = std::max(x, 1);
    skipy = std::max(y, 1);
    return 1;
}

float VectPlot::getLength() const {
    return vect_mag > 0 && max != Const::MISS ? dom_scale * max / vect_mag : dom_scale;
}

int VectPlot::drawLabels(Plot& plot, const Grid& grid, bool with_max) {
    if (plot.source[0] == '\0' && !plot.date.isSet()) {
        plot.date = grid.date;
        if (const int fore = grid.getForeSeconds(); fore > 0 && plot.date.isSet())
            plot.date += fore;
    }
    plot.addLabel("ul", getTitle(grid, type).get());
    plot.addLabel("ur", grid.getDatim());
    if (max != Const::MISS && with_max) {
        String speed, greatest("Max: ");
        Tools::toString(max, 3, speed);
        greatest.append(speed);
        plot.addLabel("lr", greatest.get());
    }
    return 1;
}

int VectPlot::drawVect(Plot& plot, const char* pos) {
    if (max == Const::MISS)
        return 0;
    if (!StrLib::equal(pos, "lr"))
        return 1;
    Graph& graph = plot.graph;
    const int tran = graph.getTran();
    const Rect view = graph.getViewport(map_tran);
    const Rect window = graph.getWindow(map_tran);
    graph.activateTran(page_tran);
    const Rect page = graph.getViewport();

    const float space = std::min(view.ymin - page.ymin, bottom_space * (page.ymax - page.ymin));
    const float width = window.xmax - window.xmin;
    const float length = getLength() * (width > 0 ? (view.xmax - view.xmin) / width : 0);
    PlotAttr line = getAttr(plot);
    plot.setLine();
    plot.setLine(line);
    Point at(view.xmax - gap - length, view.ymin - space / 2);
    WindPlot::drawVect(plot, at, Wind(270, 1), length, 1);

    PlotAttr attr(Orv::getResrc("color_text", plot.getForeground()));
    plot.setText();
    plot.setText(attr);
    plot.setTextHeight(space / 4);
    plot.setTextAlign(3, 3);
    at.x -= gap;
    String speed;
    Tools::toString(max, 3, speed);
    plot.drawFormText(at, "Max vect: %s", speed.get());
    graph.activateTran(tran);
    return 1;
}

} // namespace ORV
