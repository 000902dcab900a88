#include "ORV/MetarReport.h"

#include "ORV/MetarCache.h"
#include "ORV/MetarRemarks.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include "MetarText.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace ORV {
namespace {
using std::string_view;

constexpr float miss = Const::MISS;
constexpr long hour_seconds = 3600;
constexpr double mb_per_inch = 33.86389;
constexpr double metres_per_mile = 1609.344;
constexpr float max_wind = 150;       // knots; typhoons pass 100
constexpr float max_snow = 1500;      // cm
constexpr float max_elevation = 9000; // m; above it stands a mark for one that isn't known

class CoverName {
public:
    const char* name;
    char cover;
};
constexpr CoverName cover_names[] = {
    {"CLR", 'C'}, {"SKC", 'C'}, {"NSC", 'C'}, {"NCD", 'C'}, {"CAVOK", 'C'}, {"FEW", 'F'},
    {"SCT", 'S'}, {"BKN", 'B'}, {"OVC", 'O'}, {"OVX", 'X'}, {"VV", 'X'},
};

bool has(float value) {
    return value != miss;
}
bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c));
}
bool begins(string_view text, string_view start) {
    return text.substr(0, start.size()) == start;
}

bool allDigits(string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

int getNumber(string_view digits) {
    int value = 0;
    for (const char c : digits)
        value = value * 10 + (c - '0');
    return value;
}

bool isStation(string_view id) {
    return id.size() >= 3 && id.size() < sizeof SfcData::id &&
           std::all_of(id.begin(), id.end(),
                       [](char c) { return isDigit(c) || (c >= 'A' && c <= 'Z'); });
}

// "2025-01-27T22:25:00Z"
bool readTime(string_view text, Date& date) {
    constexpr string_view form = "0000-00-00T00:00:00";
    if (text.size() < form.size())
        return false;
    for (std::size_t i = 0; i < form.size(); i++)
        if (form[i] == '0' ? !isDigit(text[i]) : text[i] != form[i])
            return false;
    const auto part = [text](int start, int n) { return getNumber(text.substr(start, n)); };
    const int year = part(0, 4), month = part(5, 2), day = part(8, 2);
    const int hour = part(11, 2), min = part(14, 2), sec = part(17, 2);
    if (year < 1900 || month < 1 || month > 12 || hour > 23 || min > 59 || sec > 59)
        return false;
    const int* before = Date::isYearLeap(year) ? DateVal::num_day_leap : DateVal::num_day;
    if (day < 1 || day > before[month] - before[month - 1])
        return false;
    return date.set(year, month, day, hour, min, static_cast<float>(sec));
}

void readWind(const MetarCache& row, SfcData& data) {
    data.spd = row.getFloat(MetarCache::WIND_SPEED);
    data.gust = row.getFloat(MetarCache::GUST);
    if (!has(data.spd))
        return;
    // A wind from north has 360; 0 is a calm, and in older caches a wind that is variable.
    data.dir = row.getFloat(MetarCache::WIND_DIR);
    if (data.dir == 0 && data.spd > 0)
        data.dir = miss;
}

// Adds a group to the present weather, as long as there is room for the whole of it.
void addWeather(string_view group, SfcData& data) {
    const std::size_t length = std::strlen(data.weather);
    if (length + 1 + group.size() >= sizeof data.weather)
        return;
    const std::string text = (length ? "_" : "!") + std::string(group);
    StrLib::append(data.weather, sizeof data.weather, text.c_str());
}

bool isWeatherCode(char first, char second) {
    constexpr char codes[] = "MIPRBCDRBLSHTSFZDZRASNSGICPLPEGRGSUPBRFGFUVADUSAHZPYPOSQFCSSDS";
    for (const char* code = codes; *code; code += 2)
        if (code[0] == first && code[1] == second)
            return true;
    return false;
}

bool isWeather(string_view group) {
    if (begins(group, "VC"))
        group.remove_prefix(2);
    else if (begins(group, "-") || begins(group, "+"))
        group.remove_prefix(1);
    if (group.empty() || group.size() % 2 != 0)
        return false;
    for (std::size_t i = 0; i < group.size(); i += 2)
        if (!isWeatherCode(group[i], group[i + 1]))
            return false;
    return true;
}

// What the text of a report tells ahead of its remarks and its trend. The columns are made from it,
// but not always well: they split a mixed weather, take the sky of a trend for that of the report,
// and lose what is written in an unusual way.
class Body {
public:
    SfcData data;          // sky, weather, temperatures in whole degrees
    float metres = miss;   // visibility
    int qnh = Const::MISS; // mb
    string_view ahead;     // the part ahead of the temperature, or of the pressure

    explicit Body(const char* raw_text);

private:
    bool readTemperature(string_view word);
    bool readPressure(string_view word);
    bool readCloud(string_view word);
    void readVisibility(string_view word);
};

bool isEnd(string_view word) {
    constexpr const char* ends[] = {"RMK", "TEMPO", "BECMG", "NOSIG"};
    return std::find(std::begin(ends), std::end(ends), word) != std::end(ends);
}

Body::Body(const char* raw_text) {
    constexpr float ten_km = 10000;
    MetarText words(raw_text);
    words.next();        // the station
    bool behind = false; // the temperature or the pressure, where nothing of the sky comes any more
    for (string_view word = words.next(); !word.empty() && !isEnd(word); word = words.next()) {
        if (readTemperature(word) || readPressure(word))
            behind = true;
        if (behind)
            continue;
        ahead = {raw_text, static_cast<std::size_t>(word.data() + word.size() - raw_text)};
        if (word == "CAVOK")
            metres = ten_km;
        if (isWeather(word))
            addWeather(word, data);
        else if (!readCloud(word))
            readVisibility(word);
    }
}

// "07/M01" or "07/"
bool Body::readTemperature(string_view word) {
    const auto slash = word.find('/');
    if (slash == string_view::npos)
        return false;
    const auto read = [](string_view part, float& t) {
        const bool minus = begins(part, "M");
        const string_view digits = part.substr(minus ? 1 : 0);
        if (digits.size() != 2 || !allDigits(digits))
            return false;
        t = static_cast<float>(minus ? -getNumber(digits) : getNumber(digits));
        return true;
    };
    const string_view second = word.substr(slash + 1);
    float t = miss, td = miss;
    if (!read(word.substr(0, slash), t) || (!second.empty() && !read(second, td)))
        return false;
    if (!has(data.t)) {
        data.t = t;
        data.td = td;
    }
    return true;
}

// "Q1013" or "A2992"
bool Body::readPressure(string_view word) {
    if (word.size() != 5 || (word[0] != 'Q' && word[0] != 'A') || !allDigits(word.substr(1)))
        return false;
    if (word[0] == 'Q')
        qnh = getNumber(word.substr(1));
    return true;
}

// A layer, or several that are written without a blank.
bool Body::readCloud(string_view word) {
    constexpr const char* towers[] = {"CB", "TCU", "///"};
    for (const auto& row : cover_names) {
        if (word.empty() || word[0] != row.name[0] || !begins(word, row.name))
            continue;
        string_view rest = word.substr(std::strlen(row.name));
        const string_view figures = rest.substr(0, 3);
        const bool height = figures.size() == 3 && allDigits(figures);
        if (row.cover == 'C' ? !rest.empty() : !height && figures != "///")
            return false;
        const int layer = data.num_cld;
        if (layer < SfcData::max_cloud) {
            data.setCldCover(layer, row.cover);
            if (height)
                data.setCldHeight(layer, getNumber(figures) * 100.0f);
        }
        rest.remove_prefix(figures.size());
        for (const char* tower : towers)
            if (begins(rest, tower))
                rest.remove_prefix(std::strlen(tower));
        readCloud(rest);
        return true;
    }
    return false;
}

// "4000" or "9999NDV"
void Body::readVisibility(string_view word) {
    constexpr int ten_km_or_more = 9999;
    const string_view figures = word.substr(0, 4);
    const string_view rest = word.substr(figures.size());
    if (has(metres) || figures.size() != 4 || !allDigits(figures) ||
        (!rest.empty() && rest != "NDV"))
        return;
    const int value = getNumber(figures);
    metres = value == ten_km_or_more ? 10000.0f : static_cast<float>(value);
}

// A column that is off by more than rounding was misread.
void readTemperatures(const MetarCache& row, const Body& body, SfcData& data) {
    constexpr float rounding = 1;
    const auto choose = [](float column, float text) {
        return has(text) && !(std::fabs(column - text) < rounding) ? text : column;
    };
    data.t = choose(row.getFloat(MetarCache::TEMP), body.data.t);
    data.td = choose(row.getFloat(MetarCache::DEWPOINT), body.data.td);
}

void readWeather(const MetarCache& row, const Body& body, SfcData& data) {
    if (*body.data.weather) {
        data.setWeather(body.data.weather);
        return;
    }
    MetarText groups(row.get(MetarCache::WEATHER));
    for (string_view group = groups.next(); !group.empty(); group = groups.next()) {
        const bool there = body.ahead.empty() || body.ahead.find(group) != string_view::npos;
        if (there && isWeather(group))
            addWeather(group, data);
    }
}

void readClouds(const MetarCache& row, const Body& body, SfcData& data) {
    if (body.data.num_cld > 0) {
        std::copy(std::begin(body.data.cloud), std::end(body.data.cloud), data.cloud);
        data.num_cld = body.data.num_cld;
        return;
    }
    for (int i = 0; i < MetarCache::max_repeat && data.num_cld < SfcData::max_cloud; i++) {
        const char* text = row.get(MetarCache::COVER, i);
        for (const auto& cover : cover_names) {
            if (!StrLib::equal(text, cover.name))
                continue;
            const int layer = data.num_cld;
            data.setCldCover(layer, cover.cover);
            if (cover.cover == 'X')
                data.setCldHeight(layer, row.getFloat(MetarCache::VERT_VIS));
            else if (cover.cover != 'C')
                data.setCldHeight(layer, row.getFloat(MetarCache::BASE, i));
        }
    }
}

void readPressure(const MetarCache& row, const Body& body, SfcData& data) {
    // Hundredths are what is reported; the cache goes through millibars and back.
    const float alt = row.getFloat(MetarCache::ALTIMETER);
    if (has(alt))
        data.alt = static_cast<float>(std::round(alt * 100.0) / 100);

    // A whole number that is that of the altimeter setting has not been reduced to sea level.
    const float slp = row.getFloat(MetarCache::SEA_LEVEL);
    const bool whole = slp == std::floor(slp);
    const bool is_qnh = body.qnh == slp || (has(data.alt) && body.qnh == Const::MISS &&
                                            std::fabs(data.alt * mb_per_inch - slp) < 0.6);
    if (has(slp) && !(whole && is_qnh))
        data.slp = slp;
}

void readPlace(const MetarCache& row, SfcData& data) {
    const float lat = row.getFloat(MetarCache::LAT), lon = row.getFloat(MetarCache::LON);
    if (std::fabs(lat) <= 90 && std::fabs(lon) <= 180)
        data.setLoc(lat, lon);
    const float elev = row.getFloat(MetarCache::ELEVATION);
    if (std::fabs(elev) < max_elevation)
        data.elev = elev;
}

void validate(SfcData& data) {
    const float spd = data.spd, snow_cov = data.snow_cov;
    data.validate();
    if (spd >= 0 && spd <= max_wind)
        data.spd = spd;
    if (snow_cov >= 0 && snow_cov <= max_snow)
        data.snow_cov = snow_cov;
    if (!has(data.spd))
        data.dir = data.gust = miss;
}

bool hasValue(const SfcData& data) {
    const float values[] = {data.t,      data.td,    data.spd,    data.slp,    data.alt,
                            data.vis,    data.ptend, data.prec1,  data.prec3,  data.prec6,
                            data.prec24, data.max_t, data.max6_t, data.min6_t, data.snow_cov};
    return data.num_cld > 0 || *data.weather ||
           std::any_of(std::begin(values), std::end(values), has);
}
} // namespace

MetarReport::Fault MetarReport::decode(const MetarCache& row) {
    *this = MetarReport();
    if (!row.isWhole())
        return DAMAGED;
    const char* id = row.get(MetarCache::STATION);
    if (!isStation(id))
        return NO_STATION;
    data.setId(id);
    if (!readTime(row.get(MetarCache::TIME), data.date))
        return NO_TIME;
    routine = StrLib::equal(row.get(MetarCache::REPORT_TYPE), "METAR");
    corrected = StrLib::iequal(row.get(MetarCache::CORRECTED), "TRUE");

    const char* raw_text = row.get(MetarCache::RAW_TEXT);
    const Body body(raw_text);
    readTemperatures(row, body, data);
    readWind(row, data);
    data.vis = row.getFloat(MetarCache::VISIBILITY);
    if (!has(data.vis) && has(body.metres))
        data.vis = static_cast<float>(body.metres / metres_per_mile);
    readWeather(row, body, data);
    readClouds(row, body, data);
    readPressure(row, body, data);
    validate(data); // before the remarks, which need the altimeter setting

    MetarRemarks remarks;
    remarks.decode(raw_text);
    remarks.apply(data);
    validate(data);
    if (!hasValue(data))
        return NO_VALUE;
    readPlace(row, data);
    return GOOD;
}

long MetarReport::getHourSeconds() const {
    // The date is moved by whole hours, so that days and months follow.
    const long start = data.getSeconds() / hour_seconds * hour_seconds;
    return data.getHour() == data.date.hour ? start : start + hour_seconds;
}

bool MetarReport::isBetter(const MetarReport& other) const {
    if (routine != other.routine)
        return routine;
    const auto distance = [this](const MetarReport& report) {
        return routine ? std::labs(report.data.getSeconds() - report.getHourSeconds())
                       : -report.data.getSeconds();
    };
    const long mine = distance(*this), others = distance(other);
    if (mine != others)
        return mine < others;
    return corrected || !other.corrected;
}

} // namespace ORV
