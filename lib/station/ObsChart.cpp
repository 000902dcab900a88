#include "ORV/ObsChart.h"

#include "ORV/DomainTool.h"
#include "ORV/MapPlot.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/SfcData.h"
#include "ORV/SfcDataTool.h"
#include "ORV/SfcFile.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"
#include "ORV/VarList.h"
#include "ORV/VarSpec.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ORV {

int ObsChart::init() {
    sync = 0;
    map = false;
    map_fill = -1;
    file = Filename();
    param.clear();
    variable.clear();
    tz = Timezone();
    plot_type[0] = 0;
    setNameConv("sfc_cvt");
    datum.init();
    setFile();

    struct Setting {
        const char* resource;
        int (ObsChart::*set)(const char* text);
    };
    static constexpr Setting settings[] = {
        {"grid_domain", &ObsChart::setGridDomain}, {"timezone", &ObsChart::setTimezone},
        {"plot_type", &ObsChart::setPlotType},     {"variable", &ObsChart::setVariable},
        {"parameter", &ObsChart::setParam},
    };
    for (const Setting& setting : settings)
        if (const char* value = Orv::getResrc(setting.resource))
            (this->*setting.set)(value);
    return 1;
}

int ObsChart::getDomain(Domain& domain) {
    DomainTool::set(domain, "us");
    return 1;
}

int ObsChart::setFile() {
    struct Setting {
        const char* resource;
        int (ObsChart::*set)(const char* text);
    };
    static constexpr Setting settings[] = {{"hour", &ObsChart::setHour},
                                           {"input", &ObsChart::setInput},
                                           {"in_file", &ObsChart::setNameConv}};
    for (const Setting& setting : settings)
        if (const char* value = Orv::getResrc(setting.resource))
            (this->*setting.set)(value);
    if (const char* hours = Orv::getResrc("num_hour"))
        file.setNumFiles(hours);
    return 1;
}

int ObsChart::setInput(const char*) {
    return 1;
}

int ObsChart::setNameConv(const char* text) {
    const int result = file.setNameConv(text);
    if (const char* hours = Orv::getResrc("num_hour"))
        file.setNumFiles(hours);
    return result;
}

int ObsChart::setFilename() {
    return file.setFile();
}

int ObsChart::setFilename(const char* text) {
    return file.setFile(text);
}

int ObsChart::setFilename(Date& date) {
    return file.setFile(date);
}

int ObsChart::setFilename(Date& date, const char* text) {
    return file.setFile(date, text);
}

int ObsChart::setForeTime(const char*) {
    return 1;
}

int ObsChart::setParam(const char* text) {
    struct Keyword {
        const char* name;
        bool whole; // the entry is the name, in any case; otherwise it begins with it
        void (*set)(ObsChart& chart, const char* value, const char* from_fourth);
    };
    static constexpr Keyword keywords[] = {
        {"ct", false, [](ObsChart& c, const char* v, const char*) { c.setColorTable(v); }},
        {"co", false, [](ObsChart& c, const char* v, const char*) { c.setColor(v); }},
        {"va", false, [](ObsChart& c, const char* v, const char*) { c.setVariable(v); }},
        {"if", false, [](ObsChart& c, const char* v, const char*) { c.setNameConv(v); }},
        {"nc", false, [](ObsChart& c, const char* v, const char*) { c.setNameConv(v); }},
        {"ho", false, [](ObsChart& c, const char* v, const char*) { c.setHour(v); }},
        {"tz", false, [](ObsChart& c, const char*, const char* v) { c.setTimezone(v); }},
        {"pl", false, [](ObsChart& c, const char*, const char* v) { c.setPlotType(v); }},
        {"map", true, [](ObsChart& c, const char*, const char*) { c.map = true; }},
        {"sync", true, [](ObsChart& c, const char*, const char*) { c.sync = 1; }},
        {"map_line", true, [](ObsChart& c, const char*, const char*) { c.map_fill = 0; }},
        {"map_fill", true, [](ObsChart& c, const char*, const char*) { c.map_fill = 1; }},
    };
    const Strings entries(text, ',');
    for (int i = 0; i < entries.getNum(); i++)
        for (const Keyword& keyword : keywords)
            if (keyword.whole ? entries.iequal(i, keyword.name)
                              : entries.equal(i, keyword.name, 2)) {
                keyword.set(*this, entries.getStringAfter(i, '='), entries.getString(i, 3));
                break;
            }
    raw.setParam(text);
    datum.setParam(text);
    return param.set(text);
}

int ObsChart::getDate(Date& date) {
    return file.getDate(date);
}

int ObsChart::getInitDate(Date& date) {
    if (!file.isSet())
        file.setFile("la");
    return file.getDate(date);
}

int ObsChart::getDateOffset() {
    return file.getOffset();
}

int ObsChart::getNumFrames() {
    return file.getNumFiles();
}

void ObsChart::callback(const char*, const char*, const void*) {}

int ObsChart::setMap(bool on) {
    map = on;
    return 1;
}

int ObsChart::setHour(const char* text) {
    return file.setFixDate(text);
}

int ObsChart::setPath(const char* text) {
    return file.setPath(text);
}

int ObsChart::setColorTable(const char* text) {
    return datum.setColorTable(text);
}

int ObsChart::setColor(const char* text) {
    return datum.setAttr(text);
}

int ObsChart::setVariable(const char* text) {
    return variable.set(text);
}

int ObsChart::setPlotType(const char* text) {
    return StrLib::copy(plot_type, sizeof plot_type, text);
}

int ObsChart::setTimezone(const char* text) {
    return tz.set(text);
}

int ObsChart::setGridDomain(const char* text) {
    return DomainTool::decode(grid_domain, text);
}

int ObsChart::print() {
    Orv::outMessage("ObsChart: file %s variable %s plot type %s map %d parameter %s\n",
                    file.getName(), variable.get(), plot_type, map, param.get());
    return 1;
}

/// What one call of draw works with: the open file, the parsed list, and the walk over it.
class ObsChart::Frame {
public:
    Frame(ObsChart& chart, Plot& plot) : chart(chart), plot(plot) {}

    bool open();
    void readList();
    void placeMap();
    void drawItems();

private:
    bool isMapOnTop() const;
    void drawMap(MapPlot& map);
    int drawItem(int i);
    int drawStations(int i);
    void addLabels(int i);

    ObsChart& chart;
    Plot& plot;
    SfcFile reports;
    Date date;
    VarList list;
    MapPlot under_map{"default,under"};
    MapPlot over_map{"over"};
    bool auto_map = false; // no item of the list is a map
    int layer = 0;
    bool label = false;
};

bool ObsChart::Frame::open() {
    if (!chart.file.isSet())
        chart.file.setFile("la");
    if (!reports.open(chart.file.getName())) {
        Orv::outMessage(3, "ObsChart: Unable to open file: %s\n", chart.file.getName());
        return false;
    }
    reports.getDate(date);
    return true;
}

void ObsChart::Frame::readList() {
    const char* var_file = Orv::getResrc("var_file", "obschart.var");
    Domain domain =
        chart.grid_domain.getProj() == Const::MISS ? plot.getDomain() : chart.grid_domain;
    chart.raw.setDomain(domain);
    chart.raw.setVarFile(var_file);
    chart.raw.createHash();
    list.setFile(var_file);
    VarList::process(chart.variable.get(), list);
}

/// A fill in the list hides a map under it, so the map then goes over it.
bool ObsChart::Frame::isMapOnTop() const {
    if (chart.map_fill >= 0)
        return chart.map_fill == 1 && list.num > 0;
    for (int i = 0; i < list.num; i++)
        if (list.isFillContour(i))
            return true;
    return false;
}

void ObsChart::Frame::placeMap() {
    auto_map = chart.map;
    for (int i = 0; i < list.num; i++)
        if (list.isMap(i))
            auto_map = false;
    if (chart.map && isMapOnTop()) {
        under_map.setParam("fill_cont,nodefault");
        over_map.setParam("fill_cont,default");
    }
}

void ObsChart::Frame::drawMap(MapPlot& map) {
    if (auto_map)
        map.draw(plot);
}

void ObsChart::Frame::drawItems() {
    drawMap(under_map);
    for (int i = 0; i < list.num; i++) {
        plot.setLine();
        plot.setText();
        plot.setMark();
        plot.setFill();
        layer = std::min(layer, list.getLayer(i));
        label = false;
        i = drawItem(i);
        if (label)
            addLabels(i);
    }
    drawMap(over_map);
}

/// Draws the item at i, and returns the last item that this took.
int ObsChart::Frame::drawItem(int i) {
    if (list.isMap(i)) {
        MapPlot map;
        map.setParam(list.getFormat(i));
        map.draw(plot);
        return i;
    }
    if (list.isPanel(i)) {
        drawMap(over_map);
        plot.newPanel(list.getFormat(i));
        drawMap(under_map);
        return i;
    }
    if (list.isGroup(i)) {
        label = layer == 0;
        layer = list.getLayer(i) + 1;
        chart.raw.setParam(list.getFormat(i));
        return i;
    }
    if (list.isParam(i)) {
        label = layer == 0;
        return drawStations(i);
    }
    return i;
}

/// Plots a run of station items, all of them at one station before the next.
int ObsChart::Frame::drawStations(int i) {
    struct Item {
        VarSpec spec;
        std::string attributes;
    };
    std::vector<Item> items;
    int end = i;
    for (; end < list.num && list.isParam(end) && list.getLayer(end) == layer; end++) {
        Item item;
        list.get(end, item.spec);
        item.attributes = list.getFormat(end);
        std::replace(item.attributes.begin(), item.attributes.end(), ':', ',');
        items.push_back(std::move(item));
    }

    reports.rewind();
    chart.raw.setParam(list.getFormat(i));
    SfcData report;
    Datum datum;
    while (reports.read(report)) {
        datum.init();
        if (!chart.raw.getInfo(report, datum))
            continue;
        for (Item& item : items) {
            SfcDataTool::compute(report, item.spec, datum);
            datum.setFormat(item.attributes.c_str());
            chart.datum.draw(plot, datum);
        }
    }
    return std::max(i, end - 1);
}

void ObsChart::Frame::addLabels(int i) {
    VarSpec spec;
    list.get(i, spec);
    if (!spec.fore.isSet())
        spec.fore.set("anal");
    if (!spec.level.isSet())
        spec.level.set(StrLib::equal(list.getName(i), "pres") ? "sl" : "sfc");
    const char* units = list.getUnits(i);
    if (!StrLib::valid(units))
        units = SfcDataTool::getUnits(list.getName(i));
    spec.setVar(list.getName(i), units);

    String text;
    spec.toInfoLabel(text);
    plot.addLabel("ul", text.get());
    if (!plot.date.isSet())
        plot.date = date;
    spec.toDateLabel(date, chart.tz, "", text);
    plot.addLabel("ur", text.get());
    plot.done();
}

int ObsChart::draw(Plot& plot) {
    Frame frame(*this, plot);
    if (!frame.open())
        return 0;
    frame.readList();
    frame.placeMap();
    frame.drawItems();
    return 1;
}

} // namespace ORV
