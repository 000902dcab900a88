#pragma once

#include "ORV/Date.h"
#include "ORV/Timezone.h"

namespace ORV {

/// Date texts: the labels of plots and file headers, and the parser that reads them back.
class DateTool {
public:
    DateTool() = delete;

    static constexpr const char* day_of_week[7] = {"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"};
    static constexpr const char* months[12] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                               "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    static constexpr const char* months_lc[12] = {"jan", "feb", "mar", "apr", "may", "jun",
                                                  "jul", "aug", "sep", "oct", "nov", "dec"};

    /// Reads the date text of a header, such as "18Z 12 JAN 07", "1830Z 12 JAN 2007" or
    /// "12 JAN 07", some of them behind any other text. A two-digit year lies in 1950 to 2049.
    /// Returns 0 and an unset date when the text fits no layout.
    static int decode(const char* text, Date& date);
    /// Returns 1 to 12 for a month name in capitals or in lower case, of which only the letters
    /// that tell the months apart are looked at; otherwise 0.
    static int decodeMonth(const char* text);
    /// Returns the absolute seconds of a text as Date::set reads it, Const::MISS when it can't.
    static long getSeconds(const char* text);

    /// Names of month 1 to 12 and of day of the week 0 to 6; an empty text out of range.
    static const char* getMonth(int n);
    static const char* getMonthLower(int n);
    static const char* getMonthLong(int n);
    static const char* getDayWeek(int n);

    /// Writes the current time as "07 JAN 12  18:00:00Z", or in the format "RFC1123" or "ISO8601".
    static int getCurrent(String& out);
    static int getCurrent(const char* format, String& out);

    /// Writes the standard label of a date to the precision that is known, "18Z 12 JAN 07", behind
    /// the text when that isn't empty, and with the day of the week when dow is non-zero. With a
    /// zone the time is that of the zone. Returns 0 and an empty label when the date isn't set.
    static int createLabel(const char* text, const Date& date, const Timezone& zone, int dow,
                           String& out);
    static int createLabel(const char* text, const Date& date, const Timezone& zone, String& out);
    static int createLabel(const Date& date, const Timezone& zone, String& out);
    static int createLabel(const Date& date, String& out);
    /// The same for the date moved forward by some hours; Const::MISS moves nothing.
    static int createLabel(const Date& date, const Timezone& zone, float hours, String& out);
    /// Writes the label of a forecast of some hours from the date: "12 hour valid 06Z SAT 13 JAN
    /// 07", "Analysis for 18Z 12 JAN 07"; without forecast hours "Data for ...". The text goes in
    /// front.
    static int createLabel(const Date& date, const Timezone& zone, const char* text, float fore,
                           String& out);

    /// Writes a length of time as "6 hour", or in days, "1.5 day", when that is whole or half:
    /// above 60 hours always, up to there only when days is non-zero. 0 and Const::MISS are empty.
    static int createHourLabel(float hours, int days, String& out);
};

} // namespace ORV
