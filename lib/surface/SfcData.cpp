#include "ORV/SfcData.h"

#include "ORV/Calc.h"
#include "ORV/Convert.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/WxTool.h"

#include <algorithm>
#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string>

namespace ORV {
namespace {
constexpr float miss = Const::MISS;
constexpr int num_type = 3; // low, medium and high cloud types

bool has(float value) {
    return value != miss;
}

// How compare and update treat the plain numbers of a report.
class Member {
public:
    int group;
    float SfcData::*value;
};
constexpr Member members[] = {
    {SfcData::TEMP, &SfcData::t},          {SfcData::TEMP, &SfcData::td},
    {SfcData::PRES, &SfcData::slp},        {SfcData::PRES, &SfcData::alt},
    {SfcData::WIND, &SfcData::dir},        {SfcData::WIND, &SfcData::spd},
    {SfcData::WIND, &SfcData::gust},       {SfcData::VIS, &SfcData::vis},
    {SfcData::PTEND, &SfcData::ptend},     {SfcData::EXT_TEMP, &SfcData::max_t},
    {SfcData::EXT_TEMP, &SfcData::min_t},  {SfcData::EXT_TEMP, &SfcData::max6_t},
    {SfcData::EXT_TEMP, &SfcData::min6_t}, {SfcData::SNOW, &SfcData::snow_cov},
    {SfcData::SOLAR, &SfcData::solar},     {SfcData::SEA, &SfcData::sst},
    {SfcData::SEA, &SfcData::wav_per},     {SfcData::SEA, &SfcData::wav_hgt},
};

// Precipitation whose absence from a supplementary section says that there was none.
constexpr float SfcData::*section_precip[] = {&SfcData::prec3, &SfcData::prec6, &SfcData::prec12,
                                              &SfcData::prec24};

class GroupName {
public:
    int group;
    const char* name;
};
constexpr GroupName group_names[] = {
    {SfcData::TYPE, "type"},   {SfcData::TIME, "time"},     {SfcData::TEMP, "temp"},
    {SfcData::PRES, "pres"},   {SfcData::WIND, "wind"},     {SfcData::WX, "wx"},
    {SfcData::CLOUD, "cld"},   {SfcData::VIS, "vis"},       {SfcData::PTEND, "ptnd"},
    {SfcData::PREC, "prec"},   {SfcData::EXT_TEMP, "extt"}, {SfcData::SNOW, "snow"},
    {SfcData::SOLAR, "sol"},   {SfcData::SEA, "sea"},       {SfcData::CLOUD_TYPE, "ctyp"},
    {SfcData::COMMENT, "com"},
};

class Limit {
public:
    float SfcData::*value;
    float low, high;
};
constexpr Limit limits[] = {
    {&SfcData::t, -100, 150},        {&SfcData::td, -100, 150},     {&SfcData::max_t, -100, 150},
    {&SfcData::min_t, -100, 150},    {&SfcData::max6_t, -100, 150}, {&SfcData::min6_t, -100, 150},
    {&SfcData::snow_cov, -100, 150}, {&SfcData::solar, -100, 150},  {&SfcData::sst, -100, 150},
    {&SfcData::slp, 900, 1150},      {&SfcData::alt, 26, 33},       {&SfcData::dir, 0, 360},
    {&SfcData::spd, 0, 100},         {&SfcData::gust, 0, 150},      {&SfcData::vis, 0, 150},
    {&SfcData::ptend, -10, 10},      {&SfcData::prec3, 0, 300},     {&SfcData::prec6, 0, 400},
    {&SfcData::prec12, 0, 500},      {&SfcData::prec24, 0, 500},    {&SfcData::wav_per, 0, 10},
    {&SfcData::wav_hgt, 0, 20},
};
constexpr float max_cloud_height = 35000; // feet

// The classes of the sky-cover codes.
class CoverClass {
public:
    const char* codes;
    char letter;       // of the summary cover
    const char* word;  // in the long report
    const char* table; // in the table line, for a letter
};
constexpr CoverClass cover_classes[] = {
    {"0C", 'C', "clear", " CLR "},         {"1F", 'F', "few", " FEW "},
    {"23S", 'S', "scattered", " SCT "},    {"456B", 'B', "broken", " BKN "},
    {"78O", 'O', "overcast", " OVC "},     {"9X", 'X', "obscured", "  X  "},
    {"b", 'C', "thin broken", "-BKN "},    {"o", 'C', "thin overcast", "-OVC "},
    {"s", 'C', "thin scattered", "-SCT "}, {"x", 'C', "partially obscured", " -X  "},
};

const CoverClass* findCover(char cover) {
    for (const auto& row : cover_classes)
        if (cover && std::strchr(row.codes, cover))
            return &row;
    return nullptr;
}

bool limit(float& value, float low, float high) {
    if (value >= low && value <= high)
        return true;
    value = miss;
    return false;
}

float toFahrenheit(float t) {
    return Convert::CtoF(t);
}

// A supplementary section: the groups that come only every three or six hours.
bool hasSection(const SfcData& data) {
    const float values[] = {data.ptend, data.prec3, data.prec6,   data.prec12, data.prec24,
                            data.max_t, data.min_t, data.max6_t,  data.min6_t, data.snow_cov,
                            data.solar, data.sst,   data.wav_per, data.wav_hgt};
    return data.ptend_type != Const::MISS ||
           std::any_of(std::begin(values), std::end(values), has) ||
           std::any_of(data.cld_type, data.cld_type + num_type, [](char c) { return c != ' '; });
}

void updateClouds(SfcData& data, const SfcData& src) {
    for (int i = 0; i < SfcData::max_cloud; i++) {
        if (has(src.cloud[i].height)) {
            data.cloud[i].height = src.cloud[i].height;
            data.num_cld = i + 1;
        }
        if (src.cloud[i].cover != ' ') {
            data.cloud[i].cover = src.cloud[i].cover;
            data.num_cld = i + 1;
        }
    }
}

// Present weather as METAR groups, whatever its notation.
void getShortWeather(const char* weather, String& out) {
    out.clear();
    int code = 0;
    if (*weather == '!')
        out.set(weather + 1);
    else if (Scan::integer(weather, code))
        out.set(WxTool::getWmoWeather(code));
    else
        WxTool::getWeather(weather, out);
}

// A line of fixed columns.
class Columns {
public:
    std::string text;

    [[gnu::format(printf, 2, 3)]] void add(const char* format, ...) {
        char column[40];
        va_list args;
        va_start(args, format);
        std::vsnprintf(column, sizeof column, format, args);
        va_end(args);
        text += column;
    }
    void blank(int width) { text.append(width, ' '); }
    // Four columns wide.
    void number(float value) {
        if (has(value))
            add("%3.0f ", value);
        else
            blank(4);
    }
    // The last digits of a pressure, four columns wide.
    void pressure(float value, double nudge, double scale) {
        if (has(value))
            add("%03d ", Scan::toInt((value + nudge) * scale) % 1000);
        else
            blank(4);
    }
    void precip(float value) {
        if (has(value))
            add("%4.0f ", value);
        else
            blank(5);
    }
    void cover(char code) {
        const CoverClass* row = findCover(code);
        if (!row)
            blank(5);
        else if (std::isdigit(static_cast<unsigned char>(code)) && code != '9')
            add("%c/8 ", code);
        else
            text += row->table;
    }
    void weather(const char* code) {
        if (!*code)
            return blank(4);
        String word;
        getShortWeather(code, word);
        add("%-5.5s ", word.get());
    }
};

void printTemp(const char* label, float t) {
    if (has(t))
        std::printf("%s%4.1f C = %3.0f F\n", label, t, toFahrenheit(t));
}

void printPrecip(const char* label, float amount) {
    if (amount >= 0)
        std::printf("%s%4.1f mm = %4.2f in\n", label, amount, amount * 0.03937);
}
} // namespace

int SfcData::init() {
    *this = SfcData();
    return 1;
}

int SfcData::setId(const char* text) {
    return StrLib::copy(id, sizeof id, text);
}
int SfcData::setName(const char* text) {
    return StrLib::copy(name, sizeof name, text);
}
int SfcData::setArea(const char* text) {
    return StrLib::copy(area, sizeof area, text);
}
int SfcData::setWeather(const char* text) {
    return StrLib::copy(weather, sizeof weather, text);
}
int SfcData::setComment(const char* text) {
    return StrLib::copy(comment, sizeof comment, text);
}

int SfcData::setWmo(const char* text) {
    long long number = 0;
    if (!text || !Scan::integer(text, number))
        return 0;
    wmo = static_cast<long>(number);
    return 1;
}

int SfcData::setNumCld(int value) {
    num_cld = std::clamp(value, 0, max_cloud);
    return 1;
}

int SfcData::getTime() const {
    if (!date.isSet() || date.hour == Const::MISS)
        return Const::MISS;
    return date.hour * 100 + (date.min == Const::MISS ? 0 : date.min);
}

int SfcData::getHour() const {
    constexpr int early = 50; // from this minute on a report is made for the coming hour
    if (!date.isSet() || date.hour == Const::MISS)
        return Const::MISS;
    return (date.hour + (date.min >= early ? 1 : 0)) % 24;
}

int SfcData::weatherText(String& out) const {
    return WxTool::getTextFromWeather(weather, out);
}

int SfcData::setCldHeight(int i, float height) {
    if (i < 0 || i >= max_cloud)
        return 0;
    cloud[i].height = height;
    num_cld = std::max(num_cld, i + 1);
    return 1;
}

float SfcData::getCldHeight(int i) const {
    return i < 0 || i >= max_cloud ? miss : cloud[i].height;
}

float SfcData::getCldHeight() const {
    if (num_cld == 0)
        return miss;
    if (num_cld == 1)
        return cloud[0].height;

    int rank = 0;
    float height = miss;
    for (int i = 0; i < num_cld; i++) {
        const CoverClass* row = findCover(cloud[i].cover);
        switch (row ? row->letter : 'C') {
        case 'F':
        case 'S':
            if (rank <= 1)
                height = cloud[i].height;
            rank = 1;
            break;
        case 'B':
        case 'O':
            if (rank <= 1)
                height = cloud[i].height;
            rank = 2;
            break;
        case 'X':
            height = cloud[i].height;
            rank = 3;
            break;
        default:
            height = miss;
            rank = 0;
        }
    }
    return height;
}

int SfcData::setCldCover(int i, char cover) {
    if (i < 0 || i >= max_cloud)
        return Const::MISS;
    cloud[i].cover = cover;
    num_cld = std::max(num_cld, i + 1);
    return 1;
}

char SfcData::getCldCover(int i) const {
    return i < 0 || i >= max_cloud ? static_cast<char>(241) : cloud[i].cover;
}

char SfcData::getCldCover() const {
    if (num_cld == 0)
        return ' ';
    if (num_cld == 1)
        return cloud[0].cover;
    const CoverClass* row = findCover(cloud[num_cld - 1].cover);
    return row ? row->letter : 'C';
}

int SfcData::setCldType(int i, char code) {
    if (i < 0 || i >= num_type)
        return 0;
    cld_type[i] = code;
    return 1;
}

char SfcData::getCldType(int i) const {
    return i < 0 || i >= num_type ? ' ' : cld_type[i];
}

int SfcData::addComment(const char* text) {
    StrLib::append(comment, sizeof comment, text);
    return StrLib::append(comment, sizeof comment, " ");
}

int SfcData::addComment(const char* text, int n) {
    constexpr const char* white = " \t\n\r\f\v";
    constexpr int max_word = 20;
    const char* p = text ? text : "";
    for (int i = 0; i < n; i++) {
        p += std::strspn(p, white);
        const int length = std::min(static_cast<int>(std::strcspn(p, white)), max_word);
        if (length == 0)
            break;
        addComment(std::string(p, length).c_str());
        p += length;
    }
    return 1;
}

int SfcData::print() const {
    std::printf("Data for: %s\n", id);
    if (wmo != Const::MISS)
        std::printf(" WMO number: %ld\n", wmo);
    if (*name)
        std::printf(" Name: %s\n", name);
    if (has(lat))
        std::printf(" Lat: %7.2f N  Lon: %7.2f E\n", lat, lon);
    if (has(elev))
        std::printf(" Elevation: %7.0f m\n", elev);

    std::printf(" Date: ");
    std::fflush(stdout);
    date.print();
    std::printf("\n");
    if (date.hour != Const::MISS)
        std::printf(" Report time:        %2.2d%2.2d Z\n", date.hour,
                    date.min == Const::MISS ? 0 : date.min);
    return printWeather();
}

int SfcData::printWeather() const {
    printTemp(" Temperature:        ", t);
    printTemp(" Dewpoint:           ", td);
    printWind();
    if (has(alt))
        std::printf(" Altimeter setting:    %5.2f in Hg\n", alt);
    if (has(slp))
        std::printf(" Sea level pressure: %5.1f mb\n", slp);
    printClouds();
    if (has(vis))
        std::printf(" Visibility:           %5.2f miles\n", vis);
    if (*weather) {
        String text;
        weatherText(text);
        std::printf(" Present weather:     %s\n", text.get());
    }
    if (has(ptend))
        std::printf(" Pressure tendency:    %4.1f mb\n", ptend);

    printPrecip(" 3 hour precip:        ", prec3);
    printPrecip(" 6 hour precip:        ", prec6);
    printPrecip(" 12 hour precip:       ", prec12);
    printPrecip(" 24 hour precip:       ", prec24);
    printTemp(" Max temperature:      ", max_t);
    printTemp(" Min temperature:      ", min_t);
    printTemp("  6 hr Max temp:       ", max6_t);
    printTemp("  6 hr Min temp:       ", min6_t);
    if (snow_cov >= 0)
        std::printf(" Snow cover:          %3.0f cm = %3.0f in\n", snow_cov, snow_cov * 0.3937);
    if (cld_type[0] != ' ')
        std::printf(" Cloud types- Low:%c Medium:%c High:%c\n", cld_type[0], cld_type[1],
                    cld_type[2]);
    if (*comment)
        std::printf(" Remarks: %s\n", comment);
    return 1;
}

void SfcData::printWind() const {
    if (!has(dir) && !has(spd))
        return;
    if (spd == 0)
        std::printf(" Winds:               calm");
    else if (!has(dir))
        std::printf(" Winds:               variable at %1.0f knt", spd);
    else
        std::printf(" Winds:               %3.0f deg at %1.0f knt", dir, spd);
    if (has(gust))
        std::printf(" Gusts: %1.0f knt\n", gust);
    else
        std::printf("\n");
}

void SfcData::printClouds() const {
    for (int i = 0; i < num_cld; i++) {
        std::printf("%s", i == 0 ? " Clouds:" : "        ");
        if (has(cloud[i].height))
            std::printf("level %d: %6.0f feet ", i + 1, cloud[i].height);
        else
            std::printf("                    ");
        if (const CoverClass* row = findCover(cloud[i].cover))
            std::printf("%s\n", row->word);
    }
}

int SfcData::outString(String& out) const {
    if (!*id) {
        out.set(
            "ID     TIME   T  TD  RH DIR SPD GST ALT SLP VIS CIL  COV WX  MAX MIN  PR6 PR24 SC");
        return 0;
    }
    Columns line;
    line.add("%-6.6s ", id);
    if (date.hour != Const::MISS)
        line.add("%2.2d%2.2d ", date.hour, date.min == Const::MISS ? 0 : date.min);
    else
        line.blank(5);
    line.number(t);
    line.number(td);
    line.number(has(t) && has(td) ? Calc::relHum(Convert::CtoK(t), Convert::CtoK(td)) : miss);
    line.number(dir);
    line.number(spd);
    line.number(gust);
    line.pressure(alt, 0.002, 100);
    line.pressure(slp, 0.02, 10);
    if (has(vis))
        line.add(vis >= 3 ? "%3.0f " : "%3.1f ", vis);
    else
        line.blank(4);

    CloudLayer sky;
    WxTool::setCloud(num_cld, cloud, sky);
    line.number(has(sky.height) ? sky.height / 100 : miss);
    line.cover(sky.cover);
    line.weather(weather);
    line.number(has(max_t) ? max_t : max6_t);
    line.number(has(min_t) ? min_t : min6_t);
    line.precip(prec6);
    line.precip(prec24);
    if (has(snow_cov))
        line.add("%2.0f", snow_cov);
    else
        line.blank(2);
    return out.set(line.text.c_str());
}

int SfcData::printLine() const {
    String line;
    outString(line);
    std::printf("%s\n", line.get());
    return 1;
}

int SfcData::compare(const SfcData& a, const SfcData& b) {
    int mask = 0;
    const auto note = [&mask](int group, bool differs) {
        if (differs)
            mask |= group;
    };
    for (const auto& row : members)
        note(row.group, a.*row.value != b.*row.value);
    for (const auto value : section_precip)
        note(PREC, a.*value != b.*value);
    for (int i = 0; i < max_cloud; i++)
        note(CLOUD, a.cloud[i].height != b.cloud[i].height || a.cloud[i].cover != b.cloud[i].cover);
    note(TYPE, a.type != b.type);
    note(TIME, a.getSeconds() != b.getSeconds());
    note(WX, !StrLib::equal(a.weather, b.weather));
    note(PTEND, a.ptend_type != b.ptend_type);
    note(PREC, a.prec != b.prec);
    note(CLOUD_TYPE, !std::equal(a.cld_type, a.cld_type + num_type, b.cld_type));
    note(COMMENT, !StrLib::equal(a.comment, b.comment));
    return mask;
}

int SfcData::printDiff(int mask) {
    std::printf("%X ", static_cast<unsigned>(mask));
    for (const auto& row : group_names)
        if (mask & row.group)
            std::printf("%s ", row.name);
    std::printf("\n");
    return 1;
}

int SfcData::update(const SfcData& src, int mask) {
    const bool section = hasSection(src);
    for (const auto& row : members)
        if ((mask & row.group) && has(src.*row.value))
            this->*row.value = src.*row.value;
    if ((mask & TYPE) && src.type != 0)
        type = src.type;
    if ((mask & WX) && *src.weather != ' ')
        setWeather(src.weather);
    if (mask & CLOUD)
        updateClouds(*this, src);
    if ((mask & PTEND) && src.ptend_type != Const::MISS)
        ptend_type = src.ptend_type;
    if (mask & PREC)
        for (const auto value : section_precip)
            if (section || has(src.*value))
                this->*value = src.*value;
    if (mask & CLOUD_TYPE)
        for (int i = 0; i < num_type; i++)
            if (src.cld_type[i] != ' ')
                cld_type[i] = src.cld_type[i];
    if ((mask & COMMENT) && *src.comment)
        setComment(src.comment);
    return 1;
}

int SfcData::validate() {
    for (const auto& row : limits)
        limit(this->*row.value, row.low, row.high);
    td = std::min(td, t);
    for (auto& layer : cloud)
        limit(layer.height, 0, max_cloud_height);
    if (ptend_type < 0 || ptend_type > 9)
        ptend_type = Const::MISS;
    return 1;
}

} // namespace ORV
