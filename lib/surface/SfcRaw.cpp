#include "ORV/SfcRaw.h"

#include "ORV/Datum.h"
#include "ORV/Orv.h"
#include "ORV/Raw.h"
#include "ORV/SfcData.h"
#include "ORV/SfcDataTool.h"
#include "ORV/SfcFile.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"
#include "ORV/VarList.h"

#include <cmath>
#include <cstdio>
#include <vector>

namespace ORV {
namespace {
constexpr int warn_level = 3;
constexpr int table_priority = 8; // stations up to it are worth keeping for lookups
constexpr int margin = 3;         // grid steps around the area
constexpr double knot = 0.5144;   // m/s

enum Component { NO_WIND, U_WIND, V_WIND };

/// One column of the table to be filled.
class Column {
public:
    VarSpec spec;
    bool is_text;
    Component component;
};

Component getComponent(const char* name) {
    return StrLib::iequal(name, "uwndg")   ? U_WIND
           : StrLib::iequal(name, "vwndg") ? V_WIND
                                           : NO_WIND;
}

std::vector<Column> makeColumns(const VarList& list, Raw& raw) {
    std::vector<Column> columns(list.num);
    raw.setFields(list.num);
    for (int i = 0; i < list.num; i++) {
        Column& column = columns[i];
        list.get(i, column.spec);
        column.is_text = list.isData(i);
        column.component = getComponent(column.spec.var.abbr);
        if (column.is_text)
            raw.setType(i, Data::STRINGS);
    }
    return columns;
}

/// The part of a wind along one axis of the grid; the datum holds direction and speed.
float getWindPart(const Datum& datum, const Domain& domain, Component component) {
    const float dir = datum.value[0];
    const float spd = datum.value[1];
    if (dir == Const::MISS || spd == Const::MISS)
        return Const::MISS;
    const float grid_dir = domain.adjustDir(dir, datum.ept);
    if (grid_dir == Const::MISS)
        return Const::MISS;
    const double angle = grid_dir * Const::DRC;
    return static_cast<float>(-spd * knot *
                              (component == U_WIND ? std::sin(angle) : std::cos(angle)));
}

void describeColumn(Raw& raw, int i, const VarSpec& item) {
    const char* name = item.var.abbr;
    const char* units =
        StrLib::valid(item.var.units) ? item.var.units : SfcDataTool::getUnits(name);
    VarSpec spec = item;
    spec.fore.set("anal");
    spec.level.set(StrLib::iequal(name, "pres") ? "sl" : "sfc");
    const String keyword(name); // setVar writes where name points to
    const String wanted(units);
    spec.setVar(keyword.get(), wanted.get());
    raw.setVarSpec(i, spec);
}

const char* after(const Strings& list, int i, int start) {
    const char* text = list.getString(i, start);
    return text ? text : "";
}
} // namespace

SfcRaw::SfcRaw(const char* params) {
    init();
    setParam(params);
}

int SfcRaw::init() {
    filename.init();
    filename.setNameConv("sfc_cvt");
    variable.set(Orv::getResrc("variable"));
    var_file.clear();
    city_file.set(Orv::getResrc("city_file", "sao.cty"));
    StrLib::copy(stat_prior, sizeof stat_prior, Orv::getResrc("stat_prior"));
    domain.init();
    prior.init();
    hash.init();
    def_prior = 5;
    syn_id = 0;
    setFile();
    return setParam(Orv::getResrc("parameter"));
}

int SfcRaw::setParam(const char* list) {
    const Strings params(list, ',');
    for (int i = 0; i < params.getNum(); i++) {
        if (params.equal(i, "syn_id"))
            syn_id = 1;
        else if (params.equal(i, "va", 2)) {
            // Options of drawings come by here as well, "value" among them.
            if (const char* text = params.getStringAfter(i, '='))
                variable.set(text);
        } else if (params.equal(i, "loc_pr", 6))
            setDefPrior(StrLib::toInt(after(params, i, 7), 0));
        else if (params.equal(i, "pr", 2)) {
            setStatPrior(after(params, i, 3));
            prior.set(domain.getVert(), stat_prior);
        } else if (params.equal(i, "cf", 2))
            city_file.set(after(params, i, 3));
    }
    return 1;
}

int SfcRaw::setFile() {
    if (const char* hour = Orv::getResrc("hour"))
        setHour(hour);
    if (const char* conv = Orv::getResrc("in_file"))
        setNameConv(conv);
    return 1;
}

int SfcRaw::setPath(const char* text) {
    return filename.setPath(text);
}

int SfcRaw::setNameConv(const char* text) {
    return filename.setNameConv(text);
}

int SfcRaw::setHour(const char* text) {
    return filename.setFixDate(text);
}

int SfcRaw::setFilename() {
    return filename.setFile();
}

int SfcRaw::setFilename(const char* text) {
    return filename.setFile(text);
}

int SfcRaw::setFilename(const Date& date) {
    return filename.setFile(date);
}

int SfcRaw::setFilename(const Date& date, const char* text) {
    return filename.setFile(date, text);
}

int SfcRaw::getDate(Date& date) const {
    return filename.getDate(date);
}

int SfcRaw::setVariable(const char* text) {
    return variable.set(text), 1;
}

int SfcRaw::setVarFile(const char* text) {
    return var_file.set(text), 1;
}

int SfcRaw::setDomain(const Domain& area) {
    domain = area;
    return setPrior(domain);
}

int SfcRaw::getDomain(Domain& out) const {
    out = domain;
    return 1;
}

int SfcRaw::setPrior(const Domain& area) {
    return prior.set(area.getVert(), stat_prior);
}

int SfcRaw::setDefPrior(int limit) {
    def_prior = limit;
    return 1;
}

int SfcRaw::setStatPrior(const char* text) {
    return StrLib::copy(stat_prior, sizeof stat_prior, text), 1;
}

int SfcRaw::createHash() {
    return hash.setup(city_file.get(), domain, table_priority);
}

int SfcRaw::getInfo(SfcData& report, Datum& datum) {
    const bool has_place = report.lat != Const::MISS;
    datum.setId(report.id);

    CityHashData station;
    if (hash.get(report.id, station)) {
        const CityData& city = station.city;
        report.elev = city.el;
        datum.setLoc(has_place ? EarthPoint(report.lat, report.lon)
                               : EarthPoint(city.lat, city.lon));
        if (syn_id)
            StrLib::copy(report.id, sizeof report.id, city.id);
        return prior.check(city.prior);
    }

    if (!has_place)
        return 0;
    report.elev = 0;
    const EarthPoint place(report.lat, report.lon);
    datum.setLoc(place);
    return domain.withinExt(place, margin) && prior.check(def_prior);
}

int SfcRaw::compute(Raw& raw) {
    raw.clear();
    if (!filename.isSet())
        setFilename("la");
    SfcFile file(filename.getName(), 0, SfcFile::UNKNOWN);
    if (!file.isOpen()) {
        Orv::outMessage(warn_level, "ObsChart: Unable to open file: %s\n", filename.getName());
        return 0;
    }
    createHash();
    setPrior(domain);

    VarList list;
    list.setFile(var_file.valid() ? var_file.get() : Orv::getResrc("var_file", "sfcraw.var"));
    VarList::process(variable.get(), list);
    if (list.num == 0)
        return 0;
    const std::vector<Column> columns = makeColumns(list, raw);
    Date date;
    file.getDate(date);
    raw.setDate(date);

    const int count = static_cast<int>(columns.size());
    int row = 0;
    SfcData report;
    Datum datum;
    while (file.read(report)) {
        datum.init();
        if (!getInfo(report, datum))
            continue;
        raw.setId(row, report.id);
        raw.setLoc(row, datum.ept);
        for (int i = 0; i < count; i++) {
            const Column& column = columns[i];
            SfcDataTool::compute(report, column.spec, datum);
            if (column.is_text)
                raw.setString(row, i, datum.data);
            else if (column.component == NO_WIND)
                raw.setValue(row, i, datum.value[0]);
            else
                raw.setValue(row, i, getWindPart(datum, domain, column.component));
        }
        row++;
    }
    for (int i = 0; i < count; i++)
        describeColumn(raw, i, columns[i].spec);
    return 1;
}

int SfcRaw::print() const {
    std::printf("SfcRaw");
    return 1;
}

} // namespace ORV
