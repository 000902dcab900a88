#include "ORV/Date.h"

#include "ORV/StrLib.h"

#include "DateScan.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace ORV {
namespace {
constexpr double day_secs = 86400;
constexpr float last_second = 59.99999F;

class Layout {
public:
    const char* pattern;
    int count; // fields that must be there
};

constexpr Layout layouts[] = {
    {"%4Y-%2m-%2dT%2H:%2M:%S", 3},
    {"%4Y%2m%2d_%2H%2M%S", 4},
    {"%4Y%2m%2d%2H%2M%S", 1},
};
} // namespace

Date::Date(long a_secs) {
    set(a_secs);
}

Date::Date(const char* text) {
    set(text);
}

Date::Date(const DateVal& vals) {
    set(vals);
}

Date::Date(int a_year, int a_month, int a_day, int a_hour, int a_min, float a_sec) {
    set(a_year, a_month, a_day, a_hour, a_min, a_sec);
}

int Date::init() {
    *this = Date();
    return 1;
}

int Date::set(long value) {
    init();
    return setFields(value);
}

int Date::set() {
    return set(static_cast<long>(std::time(nullptr)));
}

int Date::setCurrent() {
    return set();
}

int Date::set(const char* text) {
    init();
    if (!StrLib::valid(text))
        return 0;
    if (StrLib::equal(text, "cu", 2))
        return set();
    for (const Layout& layout : layouts) {
        const char* p = *text == '#' ? text + 1 : text;
        DateVal vals;
        if (DateScan::scan(p, layout.pattern, vals).count >= layout.count) {
            static_cast<DateVal&>(*this) = vals;
            return computeSecs() != Const::MISS;
        }
    }
    return 0;
}

int Date::set(const DateVal& vals) {
    return set(vals.year, vals.month, vals.day, vals.hour, vals.min, vals.sec);
}

int Date::set(int a_year, int a_month, int a_day, int a_hour, int a_min, float a_sec) {
    DateVal::set(a_year, a_month, a_day, a_hour, a_min, a_sec);
    if (year != Const::MISS && month == Const::MISS && day != Const::MISS)
        setJulian(year, day, month, day);
    return computeSecs() != Const::MISS;
}

long Date::computeSecs() {
    secs = DateVal::computeSecs();
    jday = wday = Const::MISS;
    const std::time_t time = secs;
    std::tm utc{};
    if (secs != Const::MISS && gmtime_r(&time, &utc)) {
        jday = utc.tm_yday + 1;
        wday = utc.tm_wday;
    }
    return secs;
}

/// Takes the fields from the calendar of the seconds; zone and offset stay.
int Date::setFields(long value) {
    const std::time_t time = value;
    std::tm utc{};
    if (value == Const::MISS || !gmtime_r(&time, &utc)) {
        DateVal::init();
        secs = jday = wday = Const::MISS;
        return 0;
    }
    DateVal::set(utc.tm_year + 1900, utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min,
                 static_cast<float>(utc.tm_sec));
    secs = value;
    jday = utc.tm_yday + 1;
    wday = utc.tm_wday;
    return 1;
}

int Date::setYear(int value) {
    year = value;
    if (value >= 0 && value < 50)
        year = 2000 + value;
    else if (value >= 50 && value < 200)
        year = 1900 + value;
    computeSecs();
    return 1;
}

int Date::setField(int& field, int value, int low, int high) {
    if (value != Const::MISS && (value < low || value > high))
        return 0;
    field = value;
    computeSecs();
    return 1;
}

int Date::setMonth(int value) {
    return setField(month, value, 1, 12);
}

int Date::setDay(int value) {
    return setField(day, value, 1, 31);
}

int Date::setHour(int value) {
    return setField(hour, value, 0, 23);
}

int Date::setMinute(int value) {
    return setField(min, value, 0, 59);
}

int Date::setSecond(float value) {
    if (value != Const::MISS && !(value >= 0 && value <= last_second))
        return 0;
    sec = value;
    computeSecs();
    return 1;
}

int Date::getYear00() const {
    return year == Const::MISS ? Const::MISS : year % 100;
}

int Date::getVals(DateVal& vals) const {
    vals = *this;
    return 1;
}

Date& Date::operator+=(int seconds) {
    if (isSet())
        setFields(secs + seconds);
    return *this;
}

bool Date::isLeap() const {
    return isYearLeap(year);
}

bool Date::isYearLeap(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int Date::setJulian(int year, int jday, int& month, int& day) {
    const auto& before = isYearLeap(year) ? num_day_leap : num_day;
    if (jday < 1 || jday > before[12])
        return 0;
    const int n = int(std::lower_bound(before, before + 13, jday) - before);
    month = n;
    day = jday - before[n - 1];
    return 1;
}

int Date::addYears(int n) {
    constexpr int most = 100000; // years, far beyond any date, within int
    if (year == Const::MISS || std::abs(static_cast<long>(n)) > most)
        return 0;
    year += n;
    computeSecs();
    return 1;
}

int Date::addMonths(int n) {
    constexpr int most = 1000000;
    if (month == Const::MISS || std::abs(static_cast<long>(n)) > most)
        return 0;
    const int index = month - 1 + n;
    const int years = index >= 0 ? index / 12 : -((11 - index) / 12);
    month = index - 12 * years + 1;
    if (year != Const::MISS)
        year += years;
    computeSecs();
    return 1;
}

int Date::addTime(double seconds) {
    constexpr double most = 1e15; // seconds that every calendar holds
    if (!isSet() || !(std::abs(seconds) < most))
        return 0;
    const DateVal before = *this;
    if (!setFields(secs + static_cast<long>(seconds)))
        return 0;
    if (before.sec == Const::MISS)
        sec = Const::MISS;
    if (before.min == Const::MISS)
        min = Const::MISS;
    if (before.hour == Const::MISS)
        hour = Const::MISS;
    if (before.day == Const::MISS)
        day = Const::MISS;
    return 1;
}

int Date::addDays(int n) {
    return addTime(n * day_secs);
}

int Date::addHours(int n) {
    return addTime(n * 3600.0);
}

int Date::addMinutes(int n) {
    return addTime(n * 60.0);
}

int Date::addSeconds(float seconds) {
    return addTime(seconds);
}

int Date::changeTimezone(int offset, const char* name) {
    if (!addTime(double(offset) - off))
        return 0;
    off = offset;
    StrLib::copy(zone, 4, name);
    return 1;
}

int Date::adjustHour(int h) {
    const int before = hour;
    if (h == Const::MISS || !setHour(h))
        return 0;
    if (before != Const::MISS && before + 12 < h)
        addDays(-1);
    else if (before != Const::MISS && before - 12 > h)
        addDays(1);
    return validate();
}

int Date::adjustHour(int a_day, int h) {
    if (a_day < 1 || a_day > 31 || h == Const::MISS || !setHour(h))
        return 0;
    const int before = day;
    if (before == Const::MISS) {
        setDay(a_day);
    } else if (before + 5 < a_day) {
        setDay(a_day);
        addMonths(-1);
    } else if (before - 5 > a_day) {
        setDay(a_day);
        addMonths(1);
    } else {
        addDays(a_day - before);
    }
    return validate();
}

int Date::adjustMinute(int h, int m) {
    return adjustHour(h) && setMinute(m) && validate();
}

int Date::adjustMinute(int a_day, int h, int m) {
    return adjustHour(a_day, h) && setMinute(m) && validate();
}

int Date::adjustSecond(int h, int m, float s) {
    return adjustHour(h) && setMinute(m) && setSecond(s) && validate();
}

int Date::fix() {
    if (sec == Const::MISS)
        sec = 0;
    if (min == Const::MISS)
        min = 0;
    if (day == Const::MISS)
        day = 1;
    if (month == Const::MISS)
        month = 1;
    if (year == Const::MISS)
        year = 1970;
    computeSecs();
    return 1;
}

} // namespace ORV
