#pragma once

#include "ORV/Const.h"

namespace ORV {

/// A calendar time as plain fields, each of which may be Const::MISS: not known. Observations are
/// often dated in part: an hour without a minute, a month without a day.
class DateVal {
public:
    int year = Const::MISS;  ///< four digits
    int month = Const::MISS; ///< 1 to 12
    int day = Const::MISS;   ///< 1 to 31
    int hour = Const::MISS;  ///< 0 to 23
    int min = Const::MISS;   ///< minute, 0 to 59
    float sec = Const::MISS; ///< second, 0 to below 60

    /// Days of the year before month m + 1, in a common year; entry 12 is the length of the year.
    static constexpr int num_day[13] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
    /// The same in a leap year.
    static constexpr int num_day_leap[13] = {0,   31,  60,  91,  121, 152, 182,
                                             213, 244, 274, 305, 335, 366};

    int init();
    int set(int year, int month, int day, int hour, int min, float sec);

    /// Repairs what is out of range: a year below 0 becomes 1980, one of two digits is placed in
    /// 1950 to 2049, one from 100 to 199 counts from 1900; a month or day becomes 1, an hour,
    /// minute or second 0. Minute and second may be 60. Missing fields stay missing. Returns 0
    /// only when all are.
    int validate();

    /// Returns the seconds since 1 January 1970 of the fields that are known, after validate; what
    /// isn't known counts as its first value, so an hour alone gives seconds within a day. Every
    /// fourth year is a leap year here. Const::MISS when nothing is known.
    long computeSecs();

    int getYear() const { return year; }
    int getMonth() const { return month; }
    int getDay() const { return day; }
    int getHour() const { return hour; }
    int getMinute() const { return min; }
    float getSecond() const { return sec; }

    int setYear(int value);
    int setMonth(int value);
    int setDay(int value);
    int setHour(int value);
    int setMinute(int value);
    int setSecond(float value);
};

} // namespace ORV
