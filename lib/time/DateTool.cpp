#include "ORV/DateTool.h"

#include "ORV/StrLib.h"

#include "DateScan.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>

namespace ORV {
namespace {
constexpr const char* month_names[12] = {"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};

/// A layout of a header's date: where it stands, counted from the end of the text or 0 for the
/// start, and its fields. Behind a blank, the second pattern reads an hour of one digit.
class Layout {
public:
    int back;
    const char* pattern;
    const char* short_hour;
};

constexpr Layout layouts[] = {
    {0, "%2HZ %2d %3b %4Y", nullptr},
    {0, "%2HZ %2d %3b %2Y", nullptr},
    {17, "%2H%2MZ %2d %3b %4Y", "%1H%2MZ %2d %3b %4Y"},
    {15, "%2H%2MZ %2d %3b %2Y", "%1H%2MZ %2d %3b %2Y"},
    {21, "%2H:%2M:%2SZ %2d %3b %4Y", nullptr},
    {19, "%2H:%2M:%2SZ %2d %3b %2Y", nullptr},
    {19, "%2HZ %3w %2d %3b %4Y", nullptr},
    {17, "%2HZ %3w %2d %3b %2Y", nullptr},
    {0, "%2d %3b %2Y", nullptr},
    {11, "%2d %3b %4Y", nullptr},
};

bool readLayout(const Layout& layout, const char* text, int length, DateVal& vals) {
    if (length < layout.back)
        return false;
    const char* p = layout.back > 0 ? text + length - layout.back : text;
    const bool shifted = layout.short_hour && *p == ' ';
    vals.init();
    return shifted ? DateScan::scan(++p, layout.short_hour, vals).full
                   : DateScan::scan(p, layout.pattern, vals).full;
}

/// A month that is told by its first letter, or by another one of the second or third place.
class MonthLetter {
public:
    char first;
    int place;
    char letter;
    int month;
};

constexpr MonthLetter month_letters[] = {
    {'D', 0, 'D', 12}, {'F', 0, 'F', 2}, {'N', 0, 'N', 11}, {'O', 0, 'O', 10},
    {'S', 0, 'S', 9},  {'J', 1, 'A', 1}, {'J', 2, 'N', 6},  {'J', 2, 'L', 7},
    {'M', 2, 'R', 3},  {'M', 2, 'Y', 5}, {'A', 2, 'R', 4},  {'A', 2, 'G', 8},
};

const char* getEntry(const char* const* names, int count, int i) {
    return i >= 0 && i < count ? names[i] : "";
}

const char* getCurrentFormat(const char* name) {
    if (StrLib::equal(name, "RFC1123"))
        return "%d %b %Y %H:%M:%S GMT";
    if (StrLib::equal(name, "ISO8601"))
        return "%Y-%m-%dT%H:%M:%SZ";
    return "%y %b %d  %H:%M:%SZ";
}

constexpr int time_size = 25; // of a time text

template <class... Args>
std::string format(const char* pattern, Args... args) {
    char text[80];
    std::snprintf(text, sizeof text, pattern, args...);
    return text;
}

int roundSeconds(float sec) {
    return static_cast<int>(sec + 0.5);
}

std::string writeUtc(const Date& date) {
    if (date.min == Const::MISS)
        return format("%2.2dZ", date.hour);
    if (date.sec == Const::MISS)
        return format("%2.2d%2.2dZ", date.hour, date.min);
    return format("%2.2d:%2.2d:%2.2dZ", date.hour, date.min, roundSeconds(date.sec));
}

std::string writeZone(const Date& date, const char* zone) {
    if (date.min == Const::MISS)
        return format("%2.2d%s", date.hour, zone);
    if (date.sec == Const::MISS)
        return format("%2.2d%2.2d %s", date.hour, date.min, zone);
    return format("%2.2d:%2.2d:%2.2d %s", date.hour, date.min, roundSeconds(date.sec), zone);
}

std::string writeHalfDay(const Date& date, const char* zone) {
    const int hour = date.hour % 12 == 0 ? 12 : date.hour % 12;
    const char* half = date.hour < 12 ? "AM" : "PM";
    if (date.min == Const::MISS)
        return format("%d %s %s", hour, half, zone);
    if (date.sec == Const::MISS)
        return format("%d:%2.2d %s %s", hour, date.min, half, zone);
    return format("%d:%2.2d:%2.2d %s %s", hour, date.min, roundSeconds(date.sec), half, zone);
}

std::string writeBracket(const Date& utc) {
    if (utc.min == Const::MISS)
        return format(" [%2.2dZ]", utc.hour);
    if (utc.sec == Const::MISS)
        return format(" [%2.2d%2.2dZ]", utc.hour, utc.min);
    return format(" [%2.2d%2.2d%2.2dZ]", utc.hour, utc.min, roundSeconds(utc.sec));
}

std::string writeTime(const Date& local, const Date& utc, const Timezone& zone) {
    if (!zone.isSet())
        return writeUtc(utc);
    if (zone.pm == 0)
        return writeZone(local, zone.name);
    std::string text = writeHalfDay(local, zone.name);
    if (zone.pm < 0)
        text += writeBracket(utc);
    return text.substr(0, time_size - 1);
}

std::string writeMonth(const Date& date) {
    const int year = date.getYear00();
    const char* month = date.month == Const::MISS ? "XXX" : DateTool::getMonth(date.month);
    return format("%3s ", month) + (year == Const::MISS ? "XX" : format("%2.2d", year));
}

std::string writeDay(const Date& date, bool dow) {
    const std::string day = date.day == Const::MISS ? "XX" : format("%2d", date.day);
    const std::string week = dow ? format("%s ", DateTool::getDayWeek(date.wday)) : "";
    return week + day + " " + writeMonth(date);
}

std::string writeDate(const Date& local, const Date& utc, const Timezone& zone, bool dow) {
    if (local.hour != Const::MISS)
        return writeTime(local, utc, zone) + " " + writeDay(local, dow);
    if (local.day != Const::MISS)
        return writeDay(local, dow);
    if (local.month != Const::MISS)
        return writeMonth(local);
    return local.year != Const::MISS ? format("%2.2d", local.getYear00()) : "";
}
} // namespace

int DateTool::decode(const char* text, Date& date) {
    date.init();
    const int length = StrLib::length(text);
    DateVal vals;
    for (const Layout& layout : layouts)
        if (length > 0 && readLayout(layout, text, length, vals))
            return date.set(vals);
    return 0;
}

int DateTool::decodeMonth(const char* text) {
    if (!StrLib::valid(text))
        return 0;
    const bool lower = std::islower(static_cast<unsigned char>(*text)) != 0;
    const std::size_t length = std::strlen(text);
    for (const MonthLetter& month : month_letters) {
        const int shift = lower ? 'a' - 'A' : 0;
        if (text[0] == month.first + shift && length > std::size_t(month.place) &&
            text[month.place] == month.letter + shift)
            return month.month;
    }
    return 0;
}

long DateTool::getSeconds(const char* text) {
    return Date(text).secs;
}

const char* DateTool::getMonth(int n) {
    return getEntry(months, 12, n - 1);
}

const char* DateTool::getMonthLower(int n) {
    return getEntry(months_lc, 12, n - 1);
}

const char* DateTool::getMonthLong(int n) {
    return getEntry(month_names, 12, n - 1);
}

const char* DateTool::getDayWeek(int n) {
    return getEntry(day_of_week, 7, n);
}

int DateTool::getCurrent(String& out) {
    return getCurrent("", out);
}

int DateTool::getCurrent(const char* name, String& out) {
    Date now;
    now.setCurrent();
    return now.toText(getCurrentFormat(name), out);
}

int DateTool::createLabel(const char* text, const Date& date, const Timezone& zone, int dow,
                          String& out) {
    out.clear();
    if (!date.isSet())
        return 0;
    Date local = date;
    if (zone.isSet())
        local.changeTimezone(zone.offset, zone.name);
    const std::string front = StrLib::valid(text) ? std::string(text) + " " : "";
    out.set((front + writeDate(local, date, zone, dow != 0)).c_str());
    return 1;
}

int DateTool::createLabel(const char* text, const Date& date, const Timezone& zone, String& out) {
    return createLabel(text, date, zone, 0, out);
}

int DateTool::createLabel(const Date& date, const Timezone& zone, String& out) {
    return createLabel("", date, zone, 0, out);
}

int DateTool::createLabel(const Date& date, String& out) {
    return createLabel(date, Timezone(), out);
}

int DateTool::createLabel(const Date& date, const Timezone& zone, float hours, String& out) {
    Date moved = date;
    if (hours != Const::MISS)
        moved.addSeconds(hours * 3600);
    return createLabel(moved, zone, out);
}

int DateTool::createLabel(const Date& date, const Timezone& zone, const char* text, float fore,
                          String& out) {
    const bool plain = StrLib::valid(text);
    String word;
    if (fore == Const::MISS)
        word.set(plain ? "data" : "Data");
    else if (fore == 0)
        word.set(plain ? "analysis" : "Analysis");
    else
        createHourLabel(fore, 0, word);

    String label;
    int result = 0;
    if (fore == Const::MISS || fore == 0) {
        result = createLabel(date, zone, label);
    } else {
        Date valid = date;
        valid.addSeconds(fore * 3600);
        result = createLabel("", valid, zone, 1, label);
    }
    out.set(text);
    if (out.valid())
        out.append(" ");
    out.append(word.get());
    out.append(fore > 0 ? " valid " : " for ");
    out.append(label.get());
    return result;
}

int DateTool::createHourLabel(float hours, int days, String& out) {
    out.clear();
    if (hours == 0 || hours == Const::MISS)
        return 1;
    constexpr float day = 24;
    constexpr float longest_hours = 60; // above, days are clearer
    constexpr float most = 1e6;         // hours that still count as days
    const bool in_days = days != 0 && hours >= day / 2 && hours <= longest_hours;
    const float rest = std::fmod(hours, day);
    const bool fits = in_days || (hours > longest_hours && hours < most);
    std::string text;
    if (fits && rest == 0)
        text = format("%d day", static_cast<int>(hours / day));
    else if (fits && rest == day / 2)
        text = format("%d.5 day", static_cast<int>(hours / day));
    else
        text = format("%.0f hour", hours);
    out.set(text.c_str());
    return 1;
}

} // namespace ORV
