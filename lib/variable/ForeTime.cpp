#include "ORV/ForeTime.h"

#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include "TextOut.h"

#include <algorithm>
#include <cctype>
#include <cstdint>

namespace ORV {

namespace {

constexpr int missing_code = 799;
constexpr int day_code = 800;   // added to days in a code
constexpr int month_code = 900; // added to months
constexpr float hours_per_day = 24;

class Suffix {
public:
    int type;
    const char* text;
};

constexpr Suffix suffixes[] = {
    {2, "rng"}, {3, "avg"}, {4, "acc"}, {5, "dif"}, {6, "max"}, {7, "min"},
};

// Minutes, hours, days, months.
constexpr double seconds_per_unit[] = {60, 3600, 86400, 2592000};
constexpr double hours_per_unit[] = {1.0 / 60, 1, 24, 720};

// The statistic of a suffix, up to the last type that the form of text allows; else a range.
int findType(const char* suffix, int last) {
    for (const Suffix& row : suffixes)
        if (row.type <= last && StrLib::iequal(suffix, row.text))
            return row.type;
    return 2;
}

const char* findSuffix(int type) {
    for (const Suffix& row : suffixes)
        if (row.type == type)
            return row.text;
    return "";
}

// The name, the number and the suffix of a text; `parts` of them are there.
class Parts {
public:
    char name[10] = "";
    float number = Const::MISS;
    char suffix[10] = "";
    int parts = 0;

    explicit Parts(const char* text) {
        parts = Scan::text(text, "%9[^-]-%f%9s", name, &number, suffix);
    }

    bool is(const char* word) const { return StrLib::iequal(name, word); }
    bool hasDigitAfter(char letter) const {
        return std::tolower(static_cast<unsigned char>(name[0])) == letter && digit(name[1]);
    }
    bool hasNumber() const { return parts >= 2; }

    static bool digit(char c) { return std::isdigit(static_cast<unsigned char>(c)); }
};

void setPeriod(const Parts& text, ForeTime& time) {
    if (!text.hasNumber())
        return;
    time.tim2 = time.tim1;
    time.tim1 -= text.number;
    time.type = findType(text.suffix, 7);
}

void setAnalysis(const Parts& text, ForeTime& time) {
    time.type = 1;
    time.tim1 = 0;
    if (!text.hasNumber())
        return;
    time.tim1 = 0 - text.number;
    time.tim2 = 0;
    time.type = findType(text.suffix, 5);
}

void setNumber(const Parts& text, ForeTime& time) {
    char unit[10] = "";
    Scan::text(text.name, "%f%9s", &time.tim1, unit);
    const bool half_day = StrLib::iequal(unit, "e");
    if (half_day)
        time.tim1 = hours_per_day * time.tim1 + 12;
    else if (StrLib::iequal(unit, "day") || StrLib::iequal(unit, "d"))
        time.tim1 *= hours_per_day;
    time.type = half_day || !*unit ? 9 : 0;
    setPeriod(text, time);
}

void setRelative(const char* whole, const Parts& text, ForeTime& time) {
    float length = Const::MISS;
    char suffix[10] = "";
    if (!text.hasNumber()) {
        char word[10] = "";
        Scan::text(whole, "%*9[^-]-%9s", word);
        time.off = 0;
        if (StrLib::iequal(word, "acc"))
            time.type = 4;
    } else if (Scan::text(whole, "%*9[^-]-%*f-%f%9s", &length, suffix) > 0) {
        time.off = text.number;
        time.type_off = length;
        time.type = findType(suffix, 5);
    } else if (StrLib::iequal(text.suffix, "-acc")) {
        time.off = text.number;
        time.type = 4;
    } else if (*text.suffix) {
        time.off = 0;
        time.type_off = text.number;
        time.type = findType(text.suffix, 5);
    } else {
        time.off = text.number;
    }
}

// 32 bits that wrap around, as the keys of grid data always did.
int wrap(std::int64_t code) {
    return static_cast<int>(static_cast<std::uint32_t>(code));
}

std::int64_t offsetCode(float off) {
    return (std::int64_t{Scan::toInt(off)} + 100) * 10000000;
}

std::int64_t unitCode(std::int64_t time, int unit) {
    if (time <= 0)
        return time;
    return time + (unit == 2 ? day_code : unit == 3 ? month_code : 0);
}

void appendNumber(double value, const char* word, String& out) {
    appendText(out, "%.0f%s", value, word);
}

const char* unitWord(int unit, const char* hours, const char* days, const char* months) {
    return unit == 2 ? days : unit == 3 ? months : hours;
}

void appendRelative(const ForeTime& time, String& out) {
    if (time.off != Const::MISS) {
        out.append(unitWord(time.unit, "hr-", "day-", "mon-"));
        appendNumber(time.off, "", out);
    }
    if (time.type_off != Const::MISS) {
        out.append('-');
        appendNumber(time.type_off, findSuffix(time.type), out);
    }
}

void appendEnd(const ForeTime& time, String& out) {
    out.append(unitWord(time.unit, "hr-", "day-", "mon-"));
    if (time.off != Const::MISS)
        appendNumber(time.off, "-", out);
    appendNumber(time.tim2, time.type == 9 ? "any" : findSuffix(time.type), out);
}

void appendPeriod(const ForeTime& time, String& out) {
    const char* word = unitWord(time.unit, "hr", "day", "mon");
    if (time.tim2 == Const::MISS) {
        appendNumber(time.tim1, word, out);
        return;
    }
    if (time.unit == 1 && time.tim2 == 0)
        out.append("anal");
    else
        appendNumber(time.tim2, word, out);
    out.append('-');
    appendNumber(double{time.tim2} - time.tim1, findSuffix(time.type), out);
}

int labelHours(int hours, int first_day, String& out) {
    if (hours >= first_day && hours % 24 == 0)
        return setText(out, "%d day", hours / 24);
    if (hours >= first_day && hours % 24 == 12)
        return setText(out, "%d.5 day", hours / 24);
    return setText(out, "%d hour", hours);
}

} // namespace

int ForeTime::init() {
    *this = ForeTime();
    return 1;
}

int ForeTime::decode(const char* text) {
    init();
    if (!StrLib::valid(text))
        return 0;
    const Parts parts(text);
    if (parts.is("miss"))
        return 0;
    if (parts.is("time")) {
        setRelative(text, parts, *this);
        return 0;
    }
    if (parts.is("anal") || parts.is("obs")) {
        setAnalysis(parts, *this);
    } else if (parts.is("init") || parts.is("in")) {
        type = 1;
        tim1 = 0;
    } else if (parts.hasDigitAfter('h')) {
        type = 0;
        tim1 = StrLib::toInt(parts.name, 1);
        setPeriod(parts, *this);
    } else if (parts.hasDigitAfter('d') || parts.hasDigitAfter('e')) {
        type = 0;
        tim1 = hours_per_day * StrLib::toInt(parts.name, 1) + (parts.hasDigitAfter('e') ? 12 : 0);
    } else if (Parts::digit(parts.name[0])) {
        setNumber(parts, *this);
    }
    return 1;
}

int ForeTime::set(int kind, float time1, float time2) {
    return set(kind, 1, time1, time2);
}

int ForeTime::set(int kind, int units, float time1, float time2) {
    init();
    type = kind;
    unit = units;
    tim1 = time1;
    tim2 = time2;
    return 1;
}

int ForeTime::set(int code) {
    init();
    if (code == Const::MISS)
        return 0;
    type = code / 1000000;
    const int a = code / 1000 % 1000;
    const int b = code % 1000;
    tim1 = type == 0 ? b : a > b ? -a : a;
    tim2 = type == 0 ? 0 : b;
    if (a >= month_code)
        unit = 3;
    else if (a >= day_code)
        unit = 2;
    return 1;
}

int ForeTime::setEnd(const DateVal& date) {
    end = date;
    return 1;
}

int ForeTime::setOffset(float hours) {
    off = hours;
    return 1;
}

int ForeTime::setTypeOffset(float hours) {
    type_off = hours;
    return 1;
}

int ForeTime::setType(int kind) {
    type = kind;
    return 1;
}

int ForeTime::setTime1(float time) {
    tim1 = time;
    return 1;
}

int ForeTime::setTime2(float time) {
    tim2 = time;
    return 1;
}

int ForeTime::toCode() const {
    const bool relative = (tim1 == Const::MISS && tim2 == Const::MISS) || type == Const::MISS;
    if (relative) {
        if (off == Const::MISS)
            return Const::MISS;
        const std::int64_t length =
            type_off == Const::MISS ? missing_code : std::int64_t{Scan::toInt(type_off)};
        return wrap(offsetCode(off) + std::int64_t{type} * 1000000 + missing_code * 1000 + length);
    }
    const std::int64_t offset = off == Const::MISS ? 0 : offsetCode(off);
    std::int64_t a = tim1 == Const::MISS ? missing_code : Scan::toInt(tim1);
    std::int64_t b = tim2 == Const::MISS ? missing_code : Scan::toInt(tim2);
    if (a < 0)
        a = b - a;
    a = unitCode(a, unit);
    b = unitCode(b, unit);
    if (type >= 2 && type <= 7)
        return wrap(offset + type * 1000000 + a * 1000 + b);
    return wrap(offset + (type == 9 ? 9000000 : 0) + a);
}

int ForeTime::toString(String& out) const {
    out.clear();
    if (tim1 == Const::MISS && tim2 == Const::MISS)
        appendRelative(*this, out);
    else if (tim1 == Const::MISS)
        appendEnd(*this, out);
    else if (type == 9)
        appendNumber(tim1, "", out);
    else if (type >= 2)
        appendPeriod(*this, out);
    else if (tim1 == 0)
        out.append("anal");
    else
        appendNumber(tim1, unitWord(unit, "hr", "day", "month"), out);
    return 1;
}

float ForeTime::getFore() const {
    if (type < 2 || type > 5)
        return tim1;
    if (tim2 != Const::MISS)
        return tim2;
    return tim1 == 0 ? 0 : Const::MISS;
}

float ForeTime::getHours() const {
    const float time = type >= 2 && type <= 5 && tim1 != 0 ? tim2 : tim1;
    if (time == Const::MISS)
        return Const::MISS;
    return static_cast<float>(time * hours_per_unit[std::clamp(unit, 0, 3)]);
}

int ForeTime::getSeconds() const {
    const float time = type >= 2 && type <= 5 ? tim2 : tim1;
    if (time == Const::MISS)
        return Const::MISS;
    return Scan::toInt(time * seconds_per_unit[std::clamp(unit, 0, 3)]);
}

int ForeTime::toTimeLabel(String& out) const {
    const float time = getFore();
    out.clear();
    if (time == Const::MISS)
        return 0;
    const int whole = Scan::toInt(time);
    switch (unit) {
    case 0:
        return whole < 60 ? setText(out, "%d min", whole) : setText(out, "%.2f hour", time / 60);
    case 2:
        return setText(out, "%d day", whole);
    case 3:
        return setText(out, "%d month", whole);
    default:
        return toTimeLabel(time, out);
    }
}

int ForeTime::toTimeLabel(float hours, String& out) {
    out.clear();
    if (hours == Const::MISS)
        return 0;
    const int whole = Scan::toInt(hours);
    if (whole == 0)
        return out.set("analysis");
    return labelHours(whole, 61, out);
}

int ForeTime::toTimeLabelDay(String& out) const {
    const float time = getFore();
    out.clear();
    if (time == Const::MISS)
        return 0;
    const int whole = Scan::toInt(time);
    switch (unit) {
    case 0:
        return setText(out, "%d min", whole);
    case 2:
        return setText(out, "%d day", whole);
    case 3:
        return setText(out, "%d month", whole);
    default:
        return labelHours(whole, 0, out);
    }
}

int ForeTime::toVarLabel(String& out) const {
    out.clear();
    if (!isTypeComplex())
        return 0;
    if (tim1 != Const::MISS && tim2 != Const::MISS) {
        const bool days = unit == 2 || (tim2 >= day_code && tim2 < month_code);
        const bool months = unit == 3 || tim2 >= month_code;
        appendNumber(double{tim2} - tim1, days ? " day " : months ? " month " : " hour ", out);
    }
    out.append(findSuffix(type));
    return 1;
}

int ForeTime::print() const {
    String text;
    toString(text);
    return Orv::outMessage("ForeTime: %s\n", text.get());
}

} // namespace ORV
