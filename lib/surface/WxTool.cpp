#include "ORV/WxTool.h"

#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <cctype>
#include <cstring>
#include <iterator>
#include <string>

namespace ORV {
namespace {
class CodeText {
public:
    int code;
    const char* text;
};

class TextPair {
public:
    const char* from;
    const char* to;
};

constexpr TextPair older_codes[] = {
    {"K", "FU"},      {"H", "HZ"},       {"BD", "BLDU"},    {"D", "DU"},      {"GF", "MIFG"},
    {"IF", "FZFG"},   {"F", "FG"},       {"T+", "+TS"},     {"T", "TS"},      {"L-", "-DZ"},
    {"L+", "+DZ"},    {"L", "DZ"},       {"ZL-", "-FZDZ"},  {"ZL+", "+FZDZ"}, {"ZL", "FZDZ"},
    {"RW-", "-SHRA"}, {"RW+", "+SHRA"},  {"RW", "SHRA"},    {"R", "RA"},      {"ZR-", "-FZRA"},
    {"ZR+", "+FZRA"}, {"ZR", "FZRA"},    {"SW-", "-SHSN"},  {"SW+", "+SHSN"}, {"SW", "SHSN"},
    {"S-", "-SN"},    {"S+", "+SN"},     {"S", "SN"},       {"IP", "PE"},     {"IC", "IC"},
    {"SG", "SG"},     {"TRW-", "-TSRA"}, {"TRW+", "+TSRA"}, {"TRW", "TSRA"},  {"TRW+A", "+TSGR"},
    {"R-", "-RA"},    {"R+", "+RA"},
};

// WMO code table 4677.
constexpr CodeText present_weather[] = {
    {4, "FU"},     {5, "HZ"},     {6, "DU"},     {7, "SA"},     {8, "PO"},       {9, "VCSS"},
    {10, "BR"},    {12, "MIFG"},  {13, "VCTS"},  {14, "VIRGA"}, {16, "VCSH"},    {17, "TS"},
    {18, "SQ"},    {19, "FC"},    {31, "SS"},    {35, "+SS"},   {36, "BLSN"},    {37, "+BLSN"},
    {38, "DRSN"},  {39, "+DRSN"}, {40, "VCFG"},  {41, "BCFG"},  {44, "PRFG"},    {45, "FG"},
    {49, "FZFG"},  {50, "-DZ"},   {51, "-DZ"},   {52, "DZ"},    {53, "DZ"},      {54, "+DZ"},
    {55, "+DZ"},   {56, "-FZDZ"}, {57, "FZDZ"},  {58, "-DZRA"}, {59, "DZRA"},    {60, "-RA"},
    {61, "-RA"},   {62, "RA"},    {63, "RA"},    {64, "+RA"},   {65, "+RA"},     {66, "-FZRA"},
    {67, "FZRA"},  {68, "-RASN"}, {69, "RASN"},  {70, "-SN"},   {71, "-SN"},     {72, "SN"},
    {73, "SN"},    {74, "+SN"},   {75, "+SN"},   {76, "UP"},    {77, "SG"},      {78, "IC"},
    {79, "PL"},    {80, "-SHRA"}, {81, "SHRA"},  {82, "+SHRA"}, {83, "-SHRASN"}, {84, "SHRASN"},
    {85, "-SHSN"}, {86, "SHSN"},  {87, "-GS"},   {88, "GS"},    {89, "-GR"},     {90, "GR"},
    {95, "TSRA"},  {96, "TSGR"},  {97, "+TSRA"}, {98, "TSSA"},  {99, "+TSGR"},
};

// WMO code table 4680.
constexpr CodeText automatic_weather[] = {
    {4, "HZ"},     {5, "HZ"},     {18, "SQ"},    {27, "BS"},    {28, "BS"},    {29, "BS"},
    {31, "BCFG"},  {32, "FG"},    {33, "FG"},    {34, "FG"},    {35, "FZFG"},  {41, "-RA"},
    {42, "+RA"},   {43, "-RA"},   {44, "+RA"},   {45, "-SN"},   {46, "+SN"},   {47, "-FZRA"},
    {48, "+FZRA"}, {51, "-DZ"},   {52, "DZ"},    {53, "+DZ"},   {54, "-FZDZ"}, {55, "FZDZ"},
    {56, "+FZDZ"}, {57, "-DZRA"}, {58, "DZRA"},  {61, "-RA"},   {62, "RA"},    {63, "+RA"},
    {64, "-FZRA"}, {65, "FZRA"},  {66, "+FZRA"}, {67, "-RASN"}, {68, "RASN"},  {71, "-SN"},
    {72, "SN"},    {73, "+SN"},   {74, "-PE"},   {75, "PE"},    {76, "+PE"},   {81, "-SHRA"},
    {82, "SHRA"},  {83, "+SHRA"}, {84, "+SHRA"}, {85, "-SHSN"}, {86, "SHSN"},  {87, "+SHSN"},
    {91, "TS"},    {92, "TSRA"},  {93, "TSGR"},  {94, "TS"},    {95, "+TSRA"}, {96, "+TSGR"},
};

// The first that a text begins with decides: a longer group stands before its own beginning.
constexpr CodeText weather_numbers[] = {
    {4, "FU"},     {5, "HZ"},     {44, "FG"},   {12, "MIFG"},  {99, "+TSGR"}, {97, "+TSRA"},
    {95, "-TSRA"}, {95, "TSRA"},  {17, "TS"},   {81, "+SHRA"}, {80, "-SHRA"}, {81, "SHRA"},
    {65, "+RA"},   {61, "-RA"},   {63, "RA"},   {86, "+SHSN"}, {86, "SHSN"},  {75, "+SN"},
    {71, "-SN"},   {77, "SG"},    {73, "SN"},   {55, "+DZ"},   {51, "-DZ"},   {53, "DZ"},
    {67, "+FZRA"}, {66, "-FZRA"}, {67, "FZRA"}, {57, "+FZDZ"}, {56, "-FZDZ"}, {57, "FZDZ"},
    {7, "BLDU"},   {38, "DRSN"},  {36, "BLSN"}, {79, "PL"},    {78, "IC"},    {44, "FZFG"},
    {6, "DU"},
};

// The place of a word in the English text.
enum Place {
    IN_ORDER,
    WITH_STRENGTH, // "moderate" goes in front when the group has no sign
    AT_END,
};

class Word {
public:
    const char* group;
    const char* word;
    Place place;
};

constexpr Word words[] = {
    {"NSW", "none significant", AT_END},
    {"VC", "in vicinty", AT_END},
    {"MI", "shallow", IN_ORDER},
    {"BC", "patches", IN_ORDER},
    {"DR", "low drifting", IN_ORDER},
    {"BL", "blowing", IN_ORDER},
    {"TSRA", "thunderstorms", WITH_STRENGTH},
    {"TS", "thunder", WITH_STRENGTH},
    {"SH", "showers", AT_END},
    {"FZ", "freezing", IN_ORDER},
    {"DZ", "drizzle", WITH_STRENGTH},
    {"RA", "rain", WITH_STRENGTH},
    {"SN", "snow", WITH_STRENGTH},
    {"SG", "snow grains", WITH_STRENGTH},
    {"GS", "small hail/pellets", WITH_STRENGTH},
    {"PE", "ice pellets", WITH_STRENGTH},
    {"IC", "ice crystals", WITH_STRENGTH},
    {"BR", "light fog", IN_ORDER},
    {"FG", "fog", IN_ORDER},
    {"HZ", "haze", IN_ORDER},
    {"SA", "sand", IN_ORDER},
    {"DU", "dust", IN_ORDER},
    {"FU", "smoke", IN_ORDER},
};

constexpr const char* compass[] = {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE",
                                   "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};

template <int n>
const char* findCode(const CodeText (&table)[n], int code) {
    for (const auto& row : table)
        if (row.code == code)
            return row.text;
    return " ";
}

bool begins(const char* text, const char* group) {
    return std::strncmp(text, group, std::strlen(group)) == 0;
}

bool isOneOf(char c, const char* set) {
    return c != '\0' && std::strchr(set, c);
}

constexpr const char* separators = "_ "; // between the groups of one report

void addWord(std::string& text, const char* word) {
    if (!text.empty())
        text += ' ';
    text += word;
}

// The English of one group, added to the text; moves past what was understood.
void addGroup(const char*& p, std::string& text) {
    bool has_sign = true;
    if (*p == '-')
        addWord(text, "light");
    else if (*p == '+')
        addWord(text, "heavy");
    else
        has_sign = false;
    if (has_sign)
        p++;

    const char* at_end = nullptr;
    for (const auto& row : words) {
        if (!begins(p, row.group))
            continue;
        p += std::strlen(row.group);
        if (row.place == AT_END) {
            at_end = at_end && begins(row.group, "SH") ? "showers in vicinity" : row.word;
            continue;
        }
        if (row.place == WITH_STRENGTH && !has_sign)
            addWord(text, "moderate");
        addWord(text, row.word);
    }
    if (at_end)
        addWord(text, at_end);
}

// What a METAR group comes to in the older code.
class OlderParts {
public:
    std::string sign, kind, precip, obstruction;

    // Takes one piece from the text; false when there is nothing that it knows.
    bool take(const char*& p);

private:
    bool takePair(const char* p);
};

bool OlderParts::take(const char*& p) {
    if (*p == '-' || *p == '+') {
        sign = *p++;
        return true;
    }
    if (!takePair(p))
        return false;
    p += 2;
    return true;
}

bool OlderParts::takePair(const char* p) {
    constexpr TextPair kinds[] = {{"MI", nullptr}, {"BC", nullptr}, {"DR", "B"}, {"BL", "B"},
                                  {"TS", "T"},     {"SH", "W"},     {"FZ", "Z"}};
    constexpr TextPair precips[] = {{"DZ", "L"},  {"RA", "R"},  {"SN", "S"},
                                    {"SG", "SG"}, {"GS", "IP"}, {"PE", "IP"},
                                    {"PL", "IP"}, {"IC", "IC"}, {"UP", "IC"}};
    constexpr TextPair obstructions[] = {{"FG", "F"}, {"BR", "F"}, {"HZ", "H"},
                                         {"SA", "D"}, {"DU", "D"}, {"FU", "K"}};
    for (const auto& row : kinds)
        if (begins(p, row.from)) {
            if (row.to)
                kind = row.to;
            return true;
        }
    for (const auto& row : precips)
        if (precip.empty() && begins(p, row.from)) {
            precip = row.to;
            return true;
        }
    for (const auto& row : obstructions)
        if (begins(p, row.from)) {
            obstruction = row.to;
            return true;
        }
    return false;
}

// Lets the summary take a layer that ranks above the covers listed in lower.
void takeLayer(const CloudLayer& layer, const char* lower, CloudLayer& out) {
    if (isOneOf(out.cover, lower))
        out.height = layer.height;
    out.cover = layer.cover;
}
} // namespace

int WxTool::setCloud(int num, const CloudLayer* layers, CloudLayer& out) {
    if (num < 0)
        return 1;
    out.init();
    out.cover = ' ';
    if (num == 1)
        out = layers[0];
    if (num <= 1)
        return 1;

    for (int i = 0; i < num; i++) {
        const char cover = layers[i].cover;
        if (isOneOf(cover, "F1"))
            takeLayer(layers[i], "C ", out);
        else if (isOneOf(cover, "23S"))
            takeLayer(layers[i], " CF", out);
        else if (isOneOf(cover, "45678BO"))
            takeLayer(layers[i], " CFS", out);
        else if (isOneOf(cover, "9X"))
            out = layers[i];

        if (!isOneOf(cover, "23456789BOSX") && out.cover <= '1') {
            out.init();
            out.cover = 'C';
        }
    }
    return 1;
}

int WxTool::getWeather(const char* text, String& out) {
    for (const auto& row : older_codes)
        if (StrLib::equal(text, row.from))
            return out.set(row.to);
    return 0;
}

int WxTool::getSAWeather(const char* text, String& out) {
    out.clear();
    const char* p = text ? text : "";
    if (*p == '!')
        p++;

    OlderParts parts;
    do {
        if (begins(p, "VC"))
            return 0;
    } while (parts.take(p));

    if (parts.precip.empty())
        out.set(!parts.obstruction.empty() ? parts.obstruction.c_str()
                : parts.kind == "T"        ? "T"
                                           : "");
    else if (parts.kind == "W")
        out.set((parts.precip + parts.kind + parts.sign).c_str());
    else
        out.set((parts.kind + parts.precip + parts.sign).c_str());
    return out.valid();
}

int WxTool::getTextFromWeather(const char* text, String& out) {
    out.clear();
    const char* p = text ? text : "";
    if (*p == '!')
        p++;

    std::string english;
    while (*p) {
        p += std::strspn(p, separators);
        addGroup(p, english);
        p += std::strcspn(p, separators);
    }
    out.set(english.c_str());
    return !english.empty();
}

const char* WxTool::getWmoWeather(int code) {
    return findCode(present_weather, code);
}

const char* WxTool::getWmoAutoWeather(int code) {
    return findCode(automatic_weather, code);
}

int WxTool::getWmoFromWeather(const char* text) {
    if (!StrLib::valid(text))
        return 0;
    int number = 0;
    if (std::isdigit(static_cast<unsigned char>(*text))) {
        Scan::integer(text, number);
        return number;
    }
    String group;
    if (*text == '!')
        group.set(text + 1);
    else
        getWeather(text, group);
    for (const auto& row : weather_numbers)
        if (begins(group.get(), row.text))
            return row.code;
    return 0;
}

int WxTool::getWmoCeilingToCode(float height) {
    constexpr float limits[] = {164, 328, 656, 984, 1968, 3281, 4921, 6562, 8202}; // feet
    constexpr int highest = static_cast<int>(std::size(limits));
    for (int code = 0; code < highest; code++)
        if (height < limits[code])
            return code;
    return height >= limits[highest - 1] ? highest : Const::MISS;
}

float WxTool::getWmoCldBase(int code) {
    constexpr float bases[] = {100, 200, 400, 700, 1500, 3000, 4500, 6000, 7500, 12000}; // feet
    return code >= 0 && code < static_cast<int>(std::size(bases)) ? bases[code] : Const::MISS;
}

float WxTool::getWmoVis(int code) {
    constexpr float from_ship[] = {0.03125f, 0.125f, 0.3125f, 0.625f, 1.25f,
                                   2.5f,     6.25f,  12.5f,   31.25f}; // miles, from code 91 on
    constexpr double km_per_mile = 1.6;
    if (code < 0 || code > 99 || code == 90)
        return Const::MISS;
    if (code < 51)
        return code * 0.0625f;
    if (code <= 80)
        return static_cast<float>((code - 50) / km_per_mile);
    if (code <= 89)
        return static_cast<float>(((code - 80) * 5 + 30) / km_per_mile);
    return from_ship[code - 91];
}

float WxTool::decodeDir(const char* text) {
    for (int i = 0; i < static_cast<int>(std::size(compass)); i++)
        if (StrLib::equal(text, compass[i]))
            return i * 22.5f;
    return Const::MISS;
}

const char* WxTool::getCloudStr(const char* text) {
    constexpr TextPair covers[] = {{"B", "broken"},   {"C", "clear"},     {"F", "few"},
                                   {"O", "overcast"}, {"S", "scattered"}, {"X", "obscured"}};
    for (const auto& row : covers)
        if (text && *text == *row.from)
            return row.to;
    return "";
}

} // namespace ORV
