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
    return std::atoi(std::string(digits).c_str());
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

void readWeather(const char* text, SfcData& data) {
    std::string weather;
    MetarText groups(text);
    for (string_view group = groups.next(); !group.empty(); group = groups.next()) {
        const bool good = std::all_of(group.begin(), group.end(), [](char c) {
            return (c >= 'A' && c <= 'Z') || c == '+' || c == '-';
        });
        if (!good || weather.size() + 1 + group.size() >= sizeof data.weather)
            continue;
        weather += weather.empty() ? '!' : '_';
        weather += group;
    }
    data.setWeather(weather.c_str());
}

// What the text of a report tells before its temperature, where the columns may say nothing.
class Body {
public:
    SfcData sky;           // its cloud layers
    float metres = miss;   // visibility
    int qnh = Const::MISS; // mb, from behind the temperature

    explicit Body(const char* raw_text);

private:
    bool readCloud(string_view word);
    void readVisibility(string_view word);
};

bool isTemperature(string_view word) {
    const auto slash = word.find('/');
    if (slash == string_view::npos)
        return false;
    const auto isPart = [](string_view part) {
        if (!part.empty() && part[0] == 'M')
            part.remove_prefix(1);
        return part.size() == 2 && allDigits(part);
    };
    return isPart(word.substr(0, slash)) &&
           (slash + 1 == word.size() || isPart(word.substr(slash + 1)));
}

bool isEnd(string_view word) {
    constexpr const char* ends[] = {"RMK", "TEMPO", "BECMG", "NOSIG"};
    return std::find(std::begin(ends), std::end(ends), word) != std::end(ends);
}

Body::Body(const char* raw_text) {
    constexpr float ten_km = 10000;
    MetarText words(raw_text);
    words.next(); // the station
    bool before_temp = true;
    for (string_view word = words.next(); !word.empty() && !isEnd(word); word = words.next()) {
        before_temp = before_temp && !isTemperature(word);
        if (word.size() == 5 && word[0] == 'Q' && allDigits(word.substr(1)))
            qnh = getNumber(word.substr(1));
        if (!before_temp)
            continue;
        if (word == "CAVOK")
            metres = ten_km;
        if (!readCloud(word))
            readVisibility(word);
    }
}

bool Body::readCloud(string_view word) {
    for (const auto& row : cover_names) {
        if (!begins(word, row.name))
            continue;
        const string_view rest = word.substr(std::strlen(row.name));
        const bool clear = row.cover == 'C';
        const bool height = rest.size() >= 3 && allDigits(rest.substr(0, 3));
        if (clear ? !rest.empty() : !height && !begins(rest, "///"))
            return false;
        const int layer = sky.num_cld;
        if (layer < SfcData::max_cloud) {
            sky.setCldCover(layer, row.cover);
            if (height)
                sky.setCldHeight(layer, getNumber(rest.substr(0, 3)) * 100.0f);
        }
        return true;
    }
    return false;
}

void Body::readVisibility(string_view word) {
    constexpr int ten_km_or_more = 9999;
    const string_view rest = word.substr(std::min<std::size_t>(word.size(), 4));
    if (has(metres) || !allDigits(word.substr(0, 4)) || word.size() < 4 ||
        (!rest.empty() && rest != "NDV"))
        return;
    const int value = getNumber(word.substr(0, 4));
    metres = value == ten_km_or_more ? 10000.0f : static_cast<float>(value);
}

void readColumnClouds(const MetarCache& row, SfcData& data) {
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

// The text counts when the columns have no layer, or when it goes on behind all of theirs.
void readClouds(const MetarCache& row, const Body& body, SfcData& data) {
    readColumnClouds(row, data);
    if (body.sky.num_cld <= data.num_cld)
        return;
    for (int i = 0; i < data.num_cld; i++)
        if (data.cloud[i].cover != body.sky.cloud[i].cover ||
            data.cloud[i].height != body.sky.cloud[i].height)
            return;
    std::copy(std::begin(body.sky.cloud), std::end(body.sky.cloud), data.cloud);
    data.num_cld = body.sky.num_cld;
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
    data.t = row.getFloat(MetarCache::TEMP);
    data.td = row.getFloat(MetarCache::DEWPOINT);
    readWind(row, data);
    data.vis = row.getFloat(MetarCache::VISIBILITY);
    if (!has(data.vis) && has(body.metres))
        data.vis = static_cast<float>(body.metres / metres_per_mile);
    readWeather(row.get(MetarCache::WEATHER), data);
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
