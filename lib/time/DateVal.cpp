#include "ORV/DateVal.h"

namespace ORV {
namespace {
constexpr long day_secs = 86400;
constexpr long year_secs = 365 * day_secs;

void repair(int& field, int low, int high) {
    if (field != Const::MISS && (field < low || field > high))
        field = low;
}

/// Returns the leap days from 1970 to the start of the month. A month that isn't known counts as
/// the first one.
long countLeapDays(int year, int month) {
    const long leaps = (year - 1900) / 4 - 17;
    return year % 4 == 0 && month < 3 ? leaps - 1 : leaps;
}
} // namespace

int DateVal::init() {
    *this = DateVal();
    return 1;
}

int DateVal::set(int a_year, int a_month, int a_day, int a_hour, int a_min, float a_sec) {
    year = a_year;
    month = a_month;
    day = a_day;
    hour = a_hour;
    min = a_min;
    sec = a_sec;
    return 1;
}

int DateVal::validate() {
    if (year != Const::MISS) {
        if (year < 0)
            year = 1980;
        else if (year < 50)
            year += 2000;
        else if (year < 200)
            year += 1900;
    }
    repair(month, 1, 12);
    repair(day, 1, 31);
    repair(hour, 0, 23);
    repair(min, 0, 60);
    if (sec != Const::MISS && !(sec >= 0 && sec <= 60)) // so written, a NaN is out of range too
        sec = 0;
    return year != Const::MISS || month != Const::MISS || day != Const::MISS ||
           hour != Const::MISS || min != Const::MISS || sec != Const::MISS;
}

long DateVal::computeSecs() {
    if (!validate())
        return Const::MISS;
    long secs = 0;
    if (sec != Const::MISS)
        secs += static_cast<long>(sec);
    if (min != Const::MISS)
        secs += min * 60;
    if (hour != Const::MISS)
        secs += hour * 3600;
    if (day != Const::MISS)
        secs += (day - 1) * day_secs;
    if (month != Const::MISS)
        secs += num_day[month - 1] * day_secs;
    if (year != Const::MISS)
        secs += (year - 1970) * year_secs + countLeapDays(year, month) * day_secs;
    return secs;
}

int DateVal::setYear(int value) {
    year = value;
    return 1;
}

int DateVal::setMonth(int value) {
    month = value;
    return 1;
}

int DateVal::setDay(int value) {
    day = value;
    return 1;
}

int DateVal::setHour(int value) {
    hour = value;
    return 1;
}

int DateVal::setMinute(int value) {
    min = value;
    return 1;
}

int DateVal::setSecond(float value) {
    sec = value;
    return 1;
}

} // namespace ORV
