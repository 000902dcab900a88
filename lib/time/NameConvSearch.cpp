#include "ORV/FileTool.h"
#include "ORV/NameConv.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include "DateScan.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdlib>

namespace ORV {
namespace {
constexpr int min_date = 8;          // characters of a request that may begin with a date
constexpr long most_looks = 1000000; // of a search, a few seconds

/// Layouts of a date in a request; the first one of which every field is there.
constexpr const char* layouts[] = {
    "%4Y-%2m-%2dT%2H:%2M:%S", "%4Y-%2m-%2dT%2H:%2M", "%4Y-%2m-%2dT%2H", "%4Y-%2m-%2d",
    "%4Y%2m%2d_%2H%2M%S",     "%4Y%2m%2d_%2H%2M",    "%4Y%2m%2d_%2H",   "%4Y%2m%2d%2H%2M%S",
    "%4Y%2m%2d%2H%2M",        "%4Y%2m%2d%2H",        "%4Y%2m%2d",
};

/// What a date in a request doesn't give.
DateVal getFirstDate() {
    DateVal vals;
    vals.set(1980, 1, 1, 0, 0, 0);
    return vals;
}

/// Reads the date that a request begins with, and moves the text behind it.
bool readDate(const char*& text, Date& date) {
    if (*text != '#' && StrLib::length(text) < min_date)
        return false;
    for (const char* layout : layouts) {
        const char* p = *text == '#' ? text + 1 : text;
        DateVal vals = getFirstDate();
        if (DateScan::scan(p, layout, vals).full) {
            date.set(vals);
            text = p;
            return true;
        }
    }
    return false;
}

/// Reads a sign: 1 for "+", -1 for "-" and for none.
int readSign(const char*& text) {
    const int direction = *text == '+' ? 1 : -1;
    if (*text == '+' || *text == '-')
        text++;
    return direction;
}

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

/// Reads "DdHH:MM", or "HH:MM" when the text holds no "d", as far as it goes, or ":MM". Returns
/// seconds.
int readOffset(const char*& text) {
    const bool days = StrLib::index(text, 'd') >= 0;
    int numbers[3] = {};
    int first = days ? 0 : 1;
    if (*text == ':') {
        first = 2;
        text++;
    }
    for (int i = first; i < 3 && isDigit(*text); i++) {
        text += Scan::integer(text, numbers[i]);
        const char mark = i == 0 ? 'd' : ':';
        if (i == 2 || *text != mark)
            break;
        text++;
    }
    const double seconds = numbers[0] * 86400.0 + numbers[1] * 3600.0 + numbers[2] * 60.0;
    return int(std::min(seconds, double(INT_MAX)));
}

int roundDown(int value, int step) {
    return step == 0 ? value : value / step * step;
}
} // namespace

bool NameConv::isUsable(const char* name) const {
    if (output)
        return true;
    if (min_size == Const::MISS)
        return FileTool::exist(name);
    const long size = FileTool::getSize(name);
    return size >= 0 && size >= min_size;
}

Date NameConv::findBaseDate() const {
    if (Orv::init_time != Const::MISS)
        return Date(static_cast<long>(Orv::init_time));
    if (late_date.isSet())
        return late_date;
    if (const char* text = std::getenv("orvcurtime")) {
        DateVal vals = getFirstDate();
        if (*text == '#')
            text++;
        if (DateScan::scan(text, "%4Y%2m%2d%2H%2M", vals).count > 0)
            return Date(vals);
    }
    Date now;
    now.setCurrent();
    return now;
}

void NameConv::applyFixDate(Date& base) const {
    const DateVal& fix = fix_date;
    // With its year given, the date is fixed as it stands; otherwise no part goes into the future.
    const bool exact = fix.year != Const::MISS;
    const Date now = base;
    if (exact)
        base.setYear(fix.year);
    if (fix.month >= 0) {
        if (fix.month > now.month && !exact)
            base.addYears(-1);
        base.setMonth(fix.month);
    }
    if (fix.day >= 0) {
        if (fix.day > now.day && !exact)
            base.addMonths(-1);
        base.setDay(fix.day);
    }
    if (fix.hour >= 0) {
        if (fix.hour > now.hour && !exact)
            base.addDays(-1);
        base.setHour(fix.hour);
    } else if (fix.hour != Const::MISS) {
        base.setHour(roundDown(base.hour, fix.hour));
    }
    if (fix.min >= 0) {
        if (fix.min > now.min && !exact)
            base.addHours(-1);
        base.setMinute(fix.min);
    } else if (fix.min != Const::MISS) {
        base.setMinute(roundDown(base.min, fix.min));
    }
}

/// Looks for the file of one date in each path.
bool NameConv::findFile(const Date& wanted) {
    String name;
    cpath = 0;
    do {
        if (encode(wanted, 0, name) && pexist && isUsable(name.get()))
            return true;
    } while (++cpath < npath);
    cpath = 0;
    return false;
}

/// Looks for the first file from a date on, all dates in one path before the next path.
bool NameConv::findLatest(const Date& wanted, int direction, int looks) {
    String name;
    cpath = 0;
    do {
        Date time = wanted;
        for (int i = 0; i < looks && encode(time, 0, name) && pexist; i++) {
            if (isUsable(name.get()))
                return true;
            time += direction * off;
        }
    } while (++cpath < npath);
    cpath = 0;
    return false;
}

/// Returns the files that a search looks at. A pattern without time names one file.
int NameConv::countLooks(int asked) const {
    if (off < 1)
        return 1;
    long looks = limit;
    if (asked > 0)
        looks = asked;
    else if (min_time != Const::MISS)
        looks = std::max(looks, min_time * 60L / off + 1);
    return int(std::min(looks, most_looks));
}

/// Writes the names of a date into the result.
int NameConv::complete(const Date& value, NameConvFile& result) {
    const Date wanted = value; // which may be the date that is written here
    String name;
    encodeHdr(wanted, name);
    result.setHeader(name.get());
    const int known = encodeFile(wanted, name);
    result.setFilename(name.get());
    result.setType(type);
    result.setParam(param);
    result.setOffset(off);
    result.setDate(date);
    return known;
}

int NameConv::setLatest(const char* text, NameConvFile& result) {
    return setLatest(findBaseDate(), text, result);
}

int NameConv::setLatest(const Date& base, const char* text, NameConvFile& result) {
    const char* p = text ? text : "la";
    result.init();
    if (*p == '>') {
        output = true;
        p++;
    }
    if (*p == '@')
        return result.setFilename(p + 1);

    Date time = base;
    readDate(p, time);
    applyFixDate(time);
    int direction = readSign(p);
    if (isDigit(*p) || *p == ':' || *p == 0) {
        time += direction * readOffset(p);
        if (*p == 0) {
            findFile(time);
            time = date;
        }
        direction = readSign(p);
    }
    if (*p == 'l' || *p == 'L') {
        p += p[1] == 'a' || p[1] == 'A' ? 2 : 1;
        int looks = 0;
        if (*p == '#')
            p += 1 + Scan::integer(p + 1, looks);
        findLatest(time, direction, countLooks(looks));
        direction = readSign(p);
        time = date;
    }
    if (isDigit(*p) || *p == ':')
        time += direction * readOffset(p);
    return complete(time, result);
}

int NameConv::setFile(const Date& value, NameConvFile& result) {
    const Date wanted = value;
    result.init();
    findFile(wanted);
    return complete(wanted, result);
}

} // namespace ORV
