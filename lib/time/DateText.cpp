#include "ORV/Date.h"
#include "ORV/DateTool.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"

#include <cstdio>
#include <iterator>
#include <string>

namespace ORV {
namespace {

/// The text of one field.
class Piece {
public:
    char text[24] = "";

    /// Return false when the value is missing.
    bool put(const char* format, int value) {
        if (value == Const::MISS)
            return false;
        std::snprintf(text, sizeof text, format, value);
        return true;
    }
    bool put(const char* value) {
        StrLib::copy(text, sizeof text, value);
        return *value != 0;
    }
};

bool putSeconds(Piece& out, float sec) {
    if (sec == Const::MISS)
        return false;
    std::snprintf(out.text, sizeof out.text, sec < 10 ? "0%6.4f" : "%7.4f", sec);
    return true;
}

int getClockHour(int hour) {
    if (hour == Const::MISS)
        return hour;
    return hour % 12 == 0 ? 12 : hour % 12;
}

const char* getHalf(int hour) {
    if (hour == Const::MISS)
        return "";
    return hour < 12 ? "AM" : "PM";
}

int roundSeconds(float sec) {
    return sec == Const::MISS ? Const::MISS : static_cast<int>(sec + 0.5);
}

class Directive {
public:
    char letter;
    const char* missing;
    bool (*put)(const Date& date, Piece& out);
};

constexpr Directive directives[] = {
    {'Y', "XXXX", [](const Date& d, Piece& out) { return out.put("%4d", d.year); }},
    {'y', "XX", [](const Date& d, Piece& out) { return out.put("%2.2d", d.getYear00()); }},
    {'m', "XX", [](const Date& d, Piece& out) { return out.put("%2.2d", d.month); }},
    {'d', "XX", [](const Date& d, Piece& out) { return out.put("%2.2d", d.day); }},
    {'e', "XX", [](const Date& d, Piece& out) { return out.put("%2d", d.day); }},
    {'H', "XX", [](const Date& d, Piece& out) { return out.put("%2.2d", d.hour); }},
    {'l', "XX", [](const Date& d, Piece& out) { return out.put("%2.2d", getClockHour(d.hour)); }},
    {'p', "XX", [](const Date& d, Piece& out) { return out.put(getHalf(d.hour)); }},
    {'M', "XX", [](const Date& d, Piece& out) { return out.put("%2.2d", d.min); }},
    {'S', "XX", [](const Date& d, Piece& out) { return out.put("%2.2d", roundSeconds(d.sec)); }},
    {'s', "XX.XXXX", [](const Date& d, Piece& out) { return putSeconds(out, d.sec); }},
    {'j', "XXX", [](const Date& d, Piece& out) { return out.put("%3d", d.jday); }},
    {'a', "XXX", [](const Date& d, Piece& out) { return out.put(DateTool::getDayWeek(d.wday)); }},
    {'b', "XXX", [](const Date& d, Piece& out) { return out.put(DateTool::getMonth(d.month)); }},
    {'u', "X", [](const Date& d, Piece& out) { return out.put("%d", d.wday); }},
    {'Z', "", [](const Date& d, Piece& out) { return out.put(d.zone); }},
};

std::string writeDirective(const Date& date, char letter) {
    for (const Directive& directive : directives)
        if (directive.letter == letter) {
            Piece piece;
            return directive.put(date, piece) ? piece.text : directive.missing;
        }
    return std::string(1, letter);
}

const char* getNamedFormat(const char* format) {
    if (StrLib::equal(format, "RFC1123"))
        return "%d %b %Y %H:%M:%S %Z";
    if (StrLib::equal(format, "ISO8601"))
        return "%Y-%m-%dT%H:%M:%S%Z";
    return format ? format : "";
}
} // namespace

int Date::toText(const char* format, String& out) const {
    std::string text;
    for (const char* p = getNamedFormat(format); *p; p++) {
        if (*p != '%')
            text += *p;
        else if (*++p)
            text += writeDirective(*this, *p);
        else
            break;
    }
    out.set(text.c_str());
    return 1;
}

int Date::toText(String& out) const {
    if (sec != Const::MISS)
        return toText("%H:%M:%S%Z %e %b %Y", out);
    if (min != Const::MISS)
        return toText("%H:%M%Z %e %b %Y", out);
    if (hour != Const::MISS)
        return toText("%H%Z %e %b %Y", out);
    return toText("%e %b %Y", out);
}

int Date::print() const {
    const struct {
        int value;
        const char* format;
        const char* missing;
    } fields[] = {
        {year, "%4.4d/", "MMMM/"}, {month, "%2.2d/", "MM/"}, {day, "%2.2d ", "MM "},
        {hour, "%2.2d:", "MM:"},   {min, "%2.2d:", "MM:"},
    };
    std::string text;
    for (const auto& field : fields) {
        Piece piece;
        text += piece.put(field.format, field.value) ? piece.text : field.missing;
    }
    char seconds[24] = "MM";
    if (sec != Const::MISS)
        std::snprintf(seconds, sizeof seconds, sec < 10 ? "0%5.3f" : "%6.3f", sec);
    return Orv::print((text + seconds).c_str());
}

} // namespace ORV
