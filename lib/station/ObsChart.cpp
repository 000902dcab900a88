#include "ORV/ObsChart.h"

#include "ORV/DomainTool.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include "ObsFrame.h"

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
    vect.init();
    cont.init();
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
    sfc.setParam(text);
    datum.setParam(text);
    cont.setParam(text);
    vect.setParam(text);
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
    datum.setColorTable(text);
    cont.setColorTable(text);
    return vect.setColorTable(text);
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

int ObsChart::draw(Plot& plot) {
    ObsFrame frame(*this, plot);
    return frame.draw();
}

} // namespace ORV
