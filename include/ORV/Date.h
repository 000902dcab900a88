#pragma once

#include "ORV/DateVal.h"
#include "ORV/String.h"

namespace ORV {

/// A calendar time with its absolute time. The fields are UTC until changeTimezone shifts them.
/// A field that isn't known is Const::MISS, and a date of which nothing is known isn't set.
class Date : public DateVal {
public:
    int wday = Const::MISS;  ///< day of the week, 0 is Sunday
    int jday = Const::MISS;  ///< day of the year, from 1
    long secs = Const::MISS; ///< seconds since 1 January 1970, in the zone of the fields
    int off = 0;             ///< offset of the fields from UTC, seconds
    char dtype = ' ';        ///< daylight rule letter, stored only
    char zone[14] = "Z";     ///< zone name

    Date() = default;
    explicit Date(long secs);
    explicit Date(const char* text);
    explicit Date(const DateVal& vals);
    Date(int year, int month, int day, int hour, int min, float sec);

    int init();
    bool isSet() const { return secs != Const::MISS; }

    /// Takes all fields from the UTC calendar of the seconds; Const::MISS unsets the date.
    int set(long secs);
    /// Takes the current time.
    int set();
    int setCurrent();
    /// Reads a date text, behind an optional "#": "YYYY-MM-DD" with "THH", ":MM" and ":SS" as far
    /// as they go, "YYYYMMDD_HH" with MM and SS, or the digits YYYYMMDDHHMMSS as far as they go. A
    /// text beginning with "cu" is the current time. What isn't reached stays missing. Returns 0
    /// when the text holds no date.
    int set(const char* text);
    /// Recomputes the seconds, the day of the week and the day of the year from the fields.
    long computeSecs();
    /// Copies the fields and repairs them by validate. With the year and day known but no month,
    /// the day is the day of the year. Returns 0 when all are missing.
    int set(const DateVal& vals);
    int set(int year, int month, int day, int hour, int min, float sec);

    /// A year below 50 counts from 2000, one from 50 to 199 from 1900.
    int setYear(int value);
    /// These take a value in range or Const::MISS, and recompute the seconds; any other value
    /// returns 0 and changes nothing.
    int setMonth(int value);
    int setDay(int value);
    int setHour(int value);
    int setMinute(int value);
    int setSecond(float value);

    /// Returns the year of the century, or Const::MISS.
    int getYear00() const;
    long getSeconds() const { return secs; }
    long get() const { return secs; }
    int getVals(DateVal& vals) const;
    int getJulian() const { return jday; }
    int getDayOfWeek() const { return wday; }

    bool operator>(const Date& other) const { return secs > other.secs; }
    bool operator<(const Date& other) const { return secs < other.secs; }
    /// Returns the seconds from the other date to this one.
    long operator-(const Date& other) const { return secs - other.secs; }
    /// Moves by seconds; every field is known afterwards.
    Date& operator+=(int seconds);

    bool isLeap() const;
    /// Gregorian leap rule.
    static bool isYearLeap(int year);
    /// Turns a day of the year, from 1, into month and day. Returns 0 and leaves both alone when
    /// the year has no such day.
    static int setJulian(int year, int jday, int& month, int& day);

    /// Move by whole years or months; the day stays as it is, so 31 January and a month is 31
    /// February, whose seconds are those of 3 March. Return 0 when the year or month is missing.
    int addYears(int n);
    int addMonths(int n);
    /// Move by units of fixed length. A second, minute, hour or day that was missing stays missing.
    /// Return 0 when the date isn't set.
    int addDays(int n);
    int addHours(int n);
    int addMinutes(int n);
    int addSeconds(float seconds);

    /// Shifts the fields to a zone, offset in seconds from UTC; the name keeps 3 characters.
    int changeTimezone(int offset, const char* name);

    /// Set the time of a report that gives only an hour, or a day of the month and an hour, to the
    /// nearest such time around this date. Values out of range return 0 and change nothing; on a
    /// date without the field, the value is taken as it is.
    int adjustHour(int h);
    int adjustHour(int day, int h);
    int adjustMinute(int h, int m);
    int adjustMinute(int day, int h, int m);
    int adjustSecond(int h, int m, float s);

    /// Fills missing fields with those of the start of 1970, except the hour, which stays missing.
    int fix();

    /// Writes the date with the parts that are known, such as "18Z 12 JAN 2007".
    int toText(String& out) const;
    /// Writes the date by a format of directives, %Y %y %m %d %e %H %l %p %M %S %s %j %a %b %u %Z
    /// %%, or by one of the names "RFC1123" and "ISO8601". A missing field shows as X's.
    int toText(const char* format, String& out) const;
    /// Prints "YYYY/MM/DD HH:MM:SS.SSS" to standard output, without a newline; a missing field
    /// shows as M's.
    int print() const;

private:
    int addTime(double seconds);
    int setFields(long seconds);
    int setField(int& field, int value, int low, int high);
};

} // namespace ORV
