#include "ORV/MetarRemarks.h"

#include "ORV/Convert.h"

#include "MetarText.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace ORV {
namespace {
using std::string_view;

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c));
}

// Whether the group has the form: '#' is a digit, '~' the sign of a temperature, '*' a digit or a
// slash, anything else itself.
bool fits(string_view group, string_view form) {
    return std::equal(group.begin(), group.end(), form.begin(), form.end(), [](char c, char f) {
        switch (f) {
        case '#':
            return isDigit(c);
        case '~':
            return c == '0' || c == '1';
        case '*':
            return isDigit(c) || c == '/';
        default:
            return c == f;
        }
    });
}

int getNumber(string_view group, int start, int length) {
    int value = 0;
    for (const char c : group.substr(start, length))
        value = value * 10 + (c - '0');
    return value;
}

// A sign and three digits: tenths of a degree, below zero behind a 1.
float getTemp(string_view group, int start) {
    const float t = static_cast<float>(getNumber(group, start + 1, 3) / 10.0);
    return group[start] == '1' ? -t : t;
}

// Hundredths of an inch.
float getPrecip(string_view group) {
    return Convert::INtoMM(static_cast<float>(getNumber(group, 1, 4) / 100.0));
}

void readTendency(string_view group, MetarRemarks& out) {
    constexpr int unknown = 999;
    const int type = group[1] - '0';
    const int tenths = getNumber(group, 2, 3);
    if (type > 8 || tenths == unknown)
        return;
    out.ptend_type = type;
    out.ptend = static_cast<float>((type >= 5 ? -tenths : tenths) / 10.0);
}

class Group {
public:
    const char* form;
    void (*read)(string_view, MetarRemarks&);
};
constexpr Group groups[] = {
    {"T~###~###",
     [](string_view g, MetarRemarks& out) {
         out.t = getTemp(g, 1);
         out.td = getTemp(g, 5);
     }},
    {"T~###", [](string_view g, MetarRemarks& out) { out.t = getTemp(g, 1); }},
    {"5####", readTendency},
    {"1~###", [](string_view g, MetarRemarks& out) { out.max6_t = getTemp(g, 1); }},
    {"2~###", [](string_view g, MetarRemarks& out) { out.min6_t = getTemp(g, 1); }},
    {"4~###~###",
     [](string_view g, MetarRemarks& out) {
         out.max_t = getTemp(g, 1);
         out.min_t = getTemp(g, 5);
     }},
    {"P####", [](string_view g, MetarRemarks& out) { out.prec1 = getPrecip(g); }},
    {"6####", [](string_view g, MetarRemarks& out) { out.prec = getPrecip(g); }},
    {"7####", [](string_view g, MetarRemarks& out) { out.prec24 = getPrecip(g); }},
    {"4/###",
     [](string_view g, MetarRemarks& out) {
         out.snow_cov = Convert::INtoCM(static_cast<float>(getNumber(g, 2, 3)));
     }},
    {"8/***",
     [](string_view g, MetarRemarks& out) {
         for (int i = 0; i < 3; i++)
             out.cld_type[i] = g[i + 2] == '/' ? ' ' : g[i + 2];
     }},
};

bool isAutoMark(string_view group) {
    constexpr const char* forms[] = {"AO1", "AO2", "AO1A", "AO2A", "A01", "A02", "A01A", "A02A"};
    return std::find(std::begin(forms), std::end(forms), group) != std::end(forms);
}

float completeSlp(int digits, float alt) {
    const float low = static_cast<float>(900 + digits / 10.0), high = low + 100;
    if (alt == Const::MISS)
        return digits < 500 ? high : low;
    constexpr double mb_per_inch = 33.86389;
    const double near = alt * mb_per_inch;
    return std::fabs(high - near) < std::fabs(low - near) ? high : low;
}
} // namespace

int MetarRemarks::decode(const char* raw_text) {
    *this = MetarRemarks();
    MetarText words(raw_text);
    bool remarks = false, automatic = false;
    int found = 0;
    for (string_view word = words.next(); !word.empty(); word = words.next()) {
        if (!remarks) {
            remarks = word == "RMK";
            continue;
        }
        if (fits(word, "SLP###")) {
            slp = getNumber(word, 3, 3);
            found++;
        }
        if (!automatic) {
            automatic = isAutoMark(word);
            continue;
        }
        for (const auto& group : groups)
            if (fits(word, group.form)) {
                group.read(word, *this);
                found++;
                break;
            }
    }
    return found;
}

int MetarRemarks::apply(SfcData& data) const {
    class Value {
    public:
        float MetarRemarks::*from;
        float SfcData::*to;
    };
    constexpr Value values[] = {
        {&MetarRemarks::t, &SfcData::t},           {&MetarRemarks::td, &SfcData::td},
        {&MetarRemarks::ptend, &SfcData::ptend},   {&MetarRemarks::prec1, &SfcData::prec1},
        {&MetarRemarks::prec24, &SfcData::prec24}, {&MetarRemarks::max6_t, &SfcData::max6_t},
        {&MetarRemarks::min6_t, &SfcData::min6_t}, {&MetarRemarks::max_t, &SfcData::max_t},
        {&MetarRemarks::min_t, &SfcData::min_t},   {&MetarRemarks::snow_cov, &SfcData::snow_cov},
    };
    for (const auto& row : values)
        if (this->*row.from != Const::MISS)
            data.*row.to = this->*row.from;
    if (ptend_type != Const::MISS)
        data.ptend_type = ptend_type;
    if (slp != Const::MISS)
        data.slp = completeSlp(slp, data.alt);
    if (prec != Const::MISS && data.getHour() % 6 == 0)
        data.prec6 = prec;
    else if (prec != Const::MISS && data.getHour() % 6 == 3)
        data.prec3 = prec;
    std::copy(std::begin(cld_type), std::end(cld_type), data.cld_type);
    return 1;
}

} // namespace ORV
