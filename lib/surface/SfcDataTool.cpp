#include "ORV/SfcDataTool.h"

#include "ORV/Calc.h"
#include "ORV/Const.h"
#include "ORV/Datum.h"
#include "ORV/SfcData.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Unit.h"
#include "ORV/VarSpec.h"
#include "ORV/WxTool.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>

namespace ORV {
namespace {
constexpr int keyword_size = 20;
constexpr int weather_size = 20;
constexpr double zero_celsius = 273.15;   // K
constexpr double knot = 0.5144;           // m/s
constexpr double inch_mercury = 33.85399; // mb
constexpr float clear_ceiling = 500;      // hundreds of feet, stands for no ceiling

bool isPresent(float x) {
    return x != Const::MISS;
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// A value in other units, missing when it is missing.
float shift(float x, double offset) {
    return isPresent(x) ? static_cast<float>(x + offset) : x;
}
float scale(float x, double factor) {
    return isPresent(x) ? static_cast<float>(x * factor) : x;
}

/// What a quantity is made from: a report, and what its formulas take.
class Source {
public:
    const SfcData& report;
    const VarSpec& spec;
    Unit& unit;

    float kelvin() const { return shift(report.t, zero_celsius); }
    float dewpoint() const { return shift(report.td, zero_celsius); }
    float speed() const { return scale(report.spd, knot); }
    float altimeter() const { return scale(report.alt, inch_mercury); }
    float pressure() const { return Calc::sfcPrAlt(altimeter(), report.elev); }

    /// The layer that stands for the whole sky.
    CloudLayer sky() const {
        CloudLayer layer;
        WxTool::setCloud(std::min(report.num_cld, SfcData::max_cloud), report.cloud, layer);
        return layer;
    }

    /// Converts a value to the units wanted, when there are any and they aren't these.
    float convert(float x, const char* units) const {
        const char* wanted = spec.var.units;
        if (!StrLib::valid(wanted) || StrLib::equal(wanted, units))
            return x;
        return unit.convert(x, units, wanted);
    }
};

void setWind(const Source& s, Datum& d) {
    d.setValue(s.report.dir, s.report.spd);
}

void setComponent(const Source& s, Datum& d, double (*part)(double)) {
    if (isPresent(s.report.dir) && isPresent(s.report.spd))
        d.setValue(static_cast<float>(-s.speed() * part(s.report.dir * Const::DRC)));
}

void setTime(const Source& s, Datum& d) {
    const int time = s.report.getTime();
    if (time != Const::MISS)
        d.formatData("%4.4d", time);
}

/// The last three digits, as a station model shows a pressure.
void setDigits(double x, Datum& d) {
    constexpr double limit = 1e9; // below the largest int
    if (std::abs(x) < limit)
        d.formatData("%3.3d", static_cast<int>(x) % 1000);
}

void setAltimeter(const Source& s, Datum& d) {
    d.setValue(s.report.alt);
    // In float: the product is rounded back to the whole hundredths that the report gave.
    const float hundredths = s.report.alt * 100;
    if (isPresent(s.report.alt))
        setDigits(hundredths, d);
}

void setPressure(float mb, Datum& d) {
    d.setValue(mb);
    const float tenths = mb * 10;
    if (isPresent(mb))
        setDigits(tenths + 0.1, d);
}

void setSeaLevelOrAltimeter(const Source& s, Datum& d) {
    setPressure(isPresent(s.report.slp) ? s.report.slp : s.altimeter(), d);
}

void setLevelPressure(const Source& s, Datum& d) {
    constexpr int surface = 1;
    constexpr int condensation_level = 5;
    switch (s.spec.level.l1.type) {
    case surface:
        d.setValue(s.pressure());
        break;
    case condensation_level:
        d.setValue(Calc::lclPres(s.kelvin(), s.dewpoint(), s.pressure()));
        break;
    default:
        setPressure(s.report.slp, d);
    }
}

using WeatherText = char[weather_size];

void copyWmoWeather(const char* weather, WeatherText& text) {
    // A number too large for a code gives no weather, as one outside the table does.
    const long code = std::clamp(std::strtol(weather, nullptr, 10), 0L, 1000L);
    StrLib::copy(text, sizeof text, WxTool::getWmoWeather(static_cast<int>(code)));
}

void translate(int (*notation)(const char*, String&), const char* weather, WeatherText& text) {
    String translated;
    notation(weather, translated);
    StrLib::copy(text, sizeof text, translated.get());
}

void getMetarWeather(const char* weather, WeatherText& text) {
    if (isDigit(weather[0]))
        copyWmoWeather(weather, text);
    else if (weather[0] == '!')
        StrLib::copy(text, sizeof text, weather + 1);
    else if (weather[0] != 0)
        translate(WxTool::getWeather, weather, text);
}

void getOlderWeather(const char* weather, WeatherText& text) {
    if (isDigit(weather[0]))
        copyWmoWeather(weather, text);
    else if (weather[0] == '!')
        translate(WxTool::getSAWeather, weather, text);
    else
        StrLib::copy(text, sizeof text, weather);
}

/// Stores a weather text, and whether it tells of something (0) or of no more than an obstruction
/// to vision (1).
void setWeather(const char* text, bool obstruction, Datum& d) {
    d.setData(text);
    d.setValue(*text == 0 || *text == ' ' || obstruction ? 1.0F : 0.0F);
}

void setMetarWeather(const Source& s, Datum& d) {
    static constexpr std::string_view obstructions[] = {"HZ", "FG",   "BR",   "BCFG", "FU",
                                                        "DU", "BLDU", "BLSN", "IC"};
    WeatherText text = "";
    getMetarWeather(s.report.weather, text);
    const std::string_view whole = text;
    const auto begins = [&](std::string_view o) { return whole.substr(0, o.size()) == o; };
    setWeather(text, std::any_of(std::begin(obstructions), std::end(obstructions), begins), d);
}

void setOlderWeather(const Source& s, Datum& d) {
    static constexpr std::string_view obstructions[] = {"H", "F", "K", "D", "BD", "BS", "IC"};
    WeatherText text = "";
    getOlderWeather(s.report.weather, text);
    const auto* end = std::end(obstructions);
    setWeather(text, std::find(std::begin(obstructions), end, text) != end, d);
}

void setWeatherWords(const Source& s, Datum& d) {
    WeatherText text = "";
    getMetarWeather(s.report.weather, text);
    if (!*text)
        return;
    String words;
    WxTool::getTextFromWeather(text, words);
    d.setData(words.get());
}

/// The text has whole units from 3 up, tenths from 1, and below that only the count of tenths.
void setVisibility(const Source& s, Datum& d) {
    d.setValue(s.report.vis);
    const float vis = s.convert(s.report.vis, "mi");
    if (vis >= 3)
        d.formatData("%.0f", vis);
    else if (vis >= 1)
        d.formatData("%.1f", vis);
    else if (isPresent(vis))
        d.formatData("%.0f", vis * 10);
}

void setLayers(const Source& s, Datum& d) {
    char covers[SfcData::max_cloud + 1] = "";
    for (int i = 0; i < SfcData::max_cloud; i++) {
        const CloudLayer& layer = s.report.cloud[i];
        d.setValue(i, s.convert(layer.height, ""));
        covers[i] = layer.cover ? layer.cover : ' ';
    }
    d.setData(covers);
}

bool isClear(char cover) {
    return cover == 'C' || cover == '0';
}

void setCeiling(const Source& s, Datum& d) {
    const CloudLayer sky = s.sky();
    if (isClear(sky.cover)) {
        d.setValue(clear_ceiling);
        return;
    }
    if (!isPresent(sky.height))
        return;
    d.setValue(sky.height / 100);
    d.formatData("%.0f", d.getValue());
}

void setCeilingCode(const Source& s, Datum& d) {
    const CloudLayer sky = s.sky();
    if (!isClear(sky.cover) && isPresent(sky.height))
        d.setValue(static_cast<float>(WxTool::getWmoCeilingToCode(sky.height)));
}

class Cover {
public:
    char code;
    float percent;
    const char* text;
};

constexpr Cover covers[] = {
    {'9', 100, "OVC"}, {'O', 100, "OVC"}, {'B', 67, "BKN"},  {'C', 0, "CLR"},
    {'F', 16, "FEW"},  {'S', 33, "SCT"},  {'X', 100, "OBX"},
};

void setCover(const Source& s, Datum& d) {
    const char code = s.sky().cover;
    if (code >= '0' && code <= '8') {
        d.setValue((code - '0') * 12.5F);
        d.setData(code);
    }
    for (const Cover& cover : covers)
        if (code == cover.code) {
            d.setValue(cover.percent);
            d.setData(cover.text);
        }
}

void setLowCover(const Source& s, Datum& d) {
    const int code = s.report.cld_low;
    if (code >= '0' && code <= '8')
        d.setValue((code - '0') * 0.125F);
    if (code > ' ' && code <= '~')
        d.setData(static_cast<char>(code));
}

void setCloudType(const Source& s, Datum& d, int level) {
    const char code = s.report.cld_type[level];
    if (code != ' ')
        d.setData(code);
}

void setTendency(const Source& s, Datum& d) {
    d.setValue(s.report.ptend);
    if (s.report.ptend_type != Const::MISS)
        d.formatData("%d", s.report.ptend_type);
}

float firstPresent(std::initializer_list<float> values) {
    const auto found = std::find_if(values.begin(), values.end(), isPresent);
    return found == values.end() ? Const::MISS : *found;
}

void setPrecipitation(const Source& s, Datum& d) {
    const SfcData& r = s.report;
    switch (s.spec.fore.toCode()) {
    case 4024000:
        d.setValue(r.prec24);
        break;
    case 4012000:
        d.setValue(r.prec12);
        break;
    case 4006000:
        d.setValue(r.prec6);
        break;
    case 4003000:
        d.setValue(r.prec3);
        break;
    default:
        d.setValue(firstPresent({r.prec24, r.prec12, r.prec6}));
    }
}

/// An extreme temperature of the spec's period; without one, of the day before that of 6 hours.
void setExtreme(const Source& s, Datum& d, float day, float six_hours) {
    switch (s.spec.fore.toCode()) {
    case 2024000:
        d.setValue(day);
        break;
    case 2006000:
        d.setValue(six_hours);
        break;
    default:
        d.setValue(firstPresent({day, six_hours}));
    }
}

/// The extreme that a report of its hour is about: of the day, or the maximum of an afternoon or
/// the minimum of a night, by the hours of North America.
void setHourExtreme(const Source& s, Datum& d) {
    const SfcData& r = s.report;
    const int hour = r.getHour();
    float six_hours = Const::MISS;
    if (hour == 18 || hour == 0)
        six_hours = r.max6_t;
    else if (hour == 6 || hour == 12)
        six_hours = r.min6_t;
    d.setValue(firstPresent({r.max_t, r.min_t, six_hours}));
}

class FlightCategory {
public:
    const char* text;
    float value;
    float ceiling; // feet
    float vis;     // statute miles
    bool inclusive;
};

/// The worst first; a report belongs to the first one whose ceiling or visibility it falls below.
constexpr FlightCategory flight_categories[] = {
    {"LIFR", 3, 500, 1, false},
    {"IFR", 2, 1000, 3, false},
    {"MVFR", 1, 3000, 5, true},
};

bool isBelow(float x, float limit, bool inclusive) {
    return isPresent(x) && (x < limit || (inclusive && x == limit));
}

void setFlightCategory(const Source& s, Datum& d) {
    const CloudLayer sky = s.sky();
    const bool has_ceiling = sky.cover != 0 && std::strchr("012345BO", sky.cover);
    const float ceiling = has_ceiling ? sky.height : Const::MISS;
    d.setValue(0);
    d.setData("VFR");
    for (const FlightCategory& category : flight_categories)
        if (isBelow(ceiling, category.ceiling, category.inclusive) ||
            isBelow(s.report.vis, category.vis, category.inclusive)) {
            d.setValue(category.value);
            d.setData(category.text);
            return;
        }
}

enum Converted {
    FIRST,  ///< value 0 is converted to the units wanted
    SECOND, ///< value 1, the speed of a wind
    NONE,   ///< it converts its values itself
};

class Quantity {
public:
    const char* name;
    const char* units;
    void (*set)(const Source& s, Datum& d);
    Converted converted = FIRST;
};

/// All quantities, in the order of their names.
constexpr Quantity quantities[] = {
    {"alt", "in_Hg", setAltimeter},
    {"city", "", [](const Source& s, Datum& d) { d.setData(s.report.id); }},
    {"cldcl", "100 ft", setCeiling},
    {"cldclc", "", setCeilingCode},
    {"cldcv", "%", setCover},
    {"clds", "", setLayers, NONE},
    {"dewd", "dC",
     [](const Source& s, Datum& d) {
         if (isPresent(s.report.t) && isPresent(s.report.td))
             d.setValue(s.report.t - s.report.td);
     }},
    {"dewp", "C", [](const Source& s, Datum& d) { d.setValue(s.report.td); }},
    {"elev", "m", [](const Source& s, Datum& d) { d.setValue(s.report.elev); }},
    {"extt", "C", setHourExtreme},
    {"fr", "", setFlightCategory},
    {"hcld", "", [](const Source& s, Datum& d) { setCloudType(s, d, 2); }},
    {"heat", "K",
     [](const Source& s, Datum& d) { d.setValue(Calc::heatIndex(s.kelvin(), s.dewpoint())); }},
    {"humit", "F",
     [](const Source& s, Datum& d) { d.setValue(Calc::humiture(s.kelvin(), s.dewpoint())); }},
    {"id", "", [](const Source& s, Datum& d) { d.setData(s.report.id); }},
    {"lcld", "", [](const Source& s, Datum& d) { setCloudType(s, d, 0); }},
    {"maxt", "C",
     [](const Source& s, Datum& d) { setExtreme(s, d, s.report.max_t, s.report.max6_t); }},
    {"maxt24", "C", [](const Source& s, Datum& d) { d.setValue(s.report.max_t); }},
    {"maxt6", "C", [](const Source& s, Datum& d) { d.setValue(s.report.max6_t); }},
    {"mcld", "", [](const Source& s, Datum& d) { setCloudType(s, d, 1); }},
    {"mint", "C",
     [](const Source& s, Datum& d) { setExtreme(s, d, s.report.min_t, s.report.min6_t); }},
    {"mint24", "C", [](const Source& s, Datum& d) { d.setValue(s.report.min_t); }},
    {"mint6", "C", [](const Source& s, Datum& d) { d.setValue(s.report.min6_t); }},
    {"mrat", "g/kg",
     [](const Source& s, Datum& d) { d.setValue(Calc::mixRatio(s.dewpoint(), s.pressure())); }},
    {"nlcld", "%", setLowCover},
    {"pralt", "mb", setSeaLevelOrAltimeter},
    {"prec", "mm", setPrecipitation},
    {"prec1", "mm", [](const Source& s, Datum& d) { d.setValue(s.report.prec1); }},
    {"prec12", "mm", [](const Source& s, Datum& d) { d.setValue(s.report.prec12); }},
    {"prec24", "mm", [](const Source& s, Datum& d) { d.setValue(s.report.prec24); }},
    {"prec3", "mm", [](const Source& s, Datum& d) { d.setValue(s.report.prec3); }},
    {"prec6", "mm", [](const Source& s, Datum& d) { d.setValue(s.report.prec6); }},
    {"pres", "mb", setLevelPressure},
    {"ptend", "mb/3hr", setTendency},
    {"rhum", "%",
     [](const Source& s, Datum& d) { d.setValue(Calc::relHum(s.kelvin(), s.dewpoint())); }},
    {"sawx", "", setOlderWeather},
    {"shum", "g/kg",
     [](const Source& s, Datum& d) { d.setValue(Calc::specHum(s.dewpoint(), s.pressure())); }},
    {"smrat", "g/kg",
     [](const Source& s, Datum& d) { d.setValue(Calc::mixRatio(s.kelvin(), s.pressure())); }},
    {"snwdp", "cm", [](const Source& s, Datum& d) { d.setValue(s.report.snow_cov); }},
    {"solar", "min", [](const Source& s, Datum& d) { d.setValue(s.report.solar); }},
    {"sst", "C", [](const Source& s, Datum& d) { d.setValue(s.report.sst); }},
    {"svpres", "mb", [](const Source& s, Datum& d) { d.setValue(Calc::vaporPres(s.kelvin())); }},
    {"temp", "C", [](const Source& s, Datum& d) { d.setValue(s.report.t); }},
    {"theta", "K",
     [](const Source& s, Datum& d) { d.setValue(Calc::potTemp(s.kelvin(), s.pressure())); }},
    {"thetae", "K",
     [](const Source& s, Datum& d) {
         d.setValue(Calc::equivPotTemp(s.kelvin(), s.dewpoint(), s.pressure()));
     }},
    {"thetav", "K",
     [](const Source& s, Datum& d) {
         d.setValue(Calc::virtPotTemp(s.kelvin(), s.dewpoint(), s.pressure()));
     }},
    {"thetaw", "K",
     [](const Source& s, Datum& d) {
         d.setValue(Calc::wetBulbPotTemp(s.kelvin(), s.dewpoint(), s.pressure()));
     }},
    {"time", "", setTime},
    {"ttd", "C", [](const Source& s, Datum& d) { d.setValue(s.report.t, s.report.td); }},
    {"txtwx", "", setWeatherWords},
    {"uwnd", "m/s", [](const Source& s, Datum& d) { setComponent(s, d, std::sin); }},
    {"uwndg", "m/s", setWind, SECOND},
    {"vis", "mi", setVisibility},
    {"vpres", "mb", [](const Source& s, Datum& d) { d.setValue(Calc::vaporPres(s.dewpoint())); }},
    {"vtemp", "K",
     [](const Source& s, Datum& d) {
         d.setValue(Calc::virtTemp(s.kelvin(), s.dewpoint(), s.pressure()));
     }},
    {"vwnd", "m/s", [](const Source& s, Datum& d) { setComponent(s, d, std::cos); }},
    {"vwndg", "m/s", setWind, SECOND},
    {"wavhgt", "m", [](const Source& s, Datum& d) { d.setValue(s.report.wav_hgt); }},
    {"wavper", "sec", [](const Source& s, Datum& d) { d.setValue(s.report.wav_per); }},
    {"wbrb", "knt", setWind, SECOND},
    {"wbrbc", "knt", setWind, SECOND},
    {"wchilf", "W/m^2",
     [](const Source& s, Datum& d) { d.setValue(Calc::windChill(s.kelvin(), s.speed())); }},
    {"wchill", "K",
     [](const Source& s, Datum& d) { d.setValue(Calc::windChillTemp(s.kelvin(), s.speed())); }},
    {"wchill2", "K",
     [](const Source& s, Datum& d) { d.setValue(Calc::windChillTemp2(s.kelvin(), s.speed())); }},
    {"wchilt", "K",
     [](const Source& s, Datum& d) { d.setValue(Calc::windChillTemp(s.kelvin(), s.speed())); }},
    {"wchilt2", "K",
     [](const Source& s, Datum& d) { d.setValue(Calc::windChillTemp2(s.kelvin(), s.speed())); }},
    {"wdir", "deg", [](const Source& s, Datum& d) { d.setValue(s.report.dir); }},
    {"wetblb", "K",
     [](const Source& s, Datum& d) {
         d.setValue(Calc::wetBulb(s.kelvin(), s.dewpoint(), s.pressure()));
     }},
    {"wgst", "knt", [](const Source& s, Datum& d) { d.setValue(s.report.gust); }},
    {"wind", "knt", setWind, SECOND},
    {"wspd", "knt", [](const Source& s, Datum& d) { d.setValue(s.report.spd); }},
    {"wx", "", setMetarWeather},
};

constexpr int compareNames(const char* a, const char* b) {
    for (; *a && *a == *b; a++, b++)
        ;
    return static_cast<unsigned char>(*a) - static_cast<unsigned char>(*b);
}

constexpr bool areSorted() {
    for (std::size_t i = 1; i < std::size(quantities); i++)
        if (compareNames(quantities[i - 1].name, quantities[i].name) >= 0)
            return false;
    return true;
}
static_assert(areSorted(), "find walks the table by halves");

/// Finds a quantity by the first 19 characters of its name; null when there is none.
const Quantity* find(const char* name) {
    char key[keyword_size];
    StrLib::copy(key, sizeof key, name);
    StrLib::lowCase(key);
    const Quantity* found = std::lower_bound(
        std::begin(quantities), std::end(quantities), key,
        [](const Quantity& row, const char* text) { return compareNames(row.name, text) < 0; });
    return found != std::end(quantities) && compareNames(found->name, key) == 0 ? found : nullptr;
}
} // namespace

const char* SfcDataTool::getUnits(const char* name) {
    const Quantity* quantity = find(name);
    return quantity ? quantity->units : "";
}

int SfcDataTool::compute(const SfcData& report, const VarSpec& spec, Datum& datum) {
    static Unit unit; // its cache serves all stations of a run
    datum.initVals();
    if (!StrLib::valid(spec.var.abbr))
        return 0;
    datum.setId(report.id);
    const Quantity* quantity = find(spec.var.abbr);
    if (!quantity)
        return 0;

    const Source source{report, spec, unit};
    quantity->set(source, datum);
    if (quantity->converted == NONE)
        return 0;
    float& value = datum.value[quantity->converted == SECOND ? 1 : 0];
    value = source.convert(value, quantity->units);
    return 1;
}

} // namespace ORV
