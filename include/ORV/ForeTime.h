#pragma once

#include "ORV/Const.h"
#include "ORV/DateVal.h"
#include "ORV/String.h"

namespace ORV {

/// The time of a forecast or analysis, or a period with a statistic over it.
///
/// Texts: "anal" or "obs" (the analysis or observation time), "12hr", "h12", "d2", "e2" (two and a
/// half days), "12" (any kind of time at 12 hours), "2e". A period ends at its time and has a
/// length in hours and the statistic: "12hr-6acc", "anal-24max"; without a statistic it is a range.
/// Times relative to one that is filled in later: "time-3" (three hours earlier), "time-6acc" (the
/// period of 6 hours up to it), "time-3-6acc" (both), "time-3-acc" (since three hours earlier).
class ForeTime {
public:
    int type = Const::MISS;   ///< 0 forecast, 1 analysis, 2 range, 3 average, 4 accumulation,
                              ///< 5 difference, 6 maximum, 7 minimum, 9 any; missing while unset
    int unit = 1;             ///< 0 minutes, 1 hours, 2 days, 3 months
    float tim1 = Const::MISS; ///< the time, or the start of a period
    float tim2 = Const::MISS; ///< the end of a period
    float type_off = Const::MISS; ///< the length of a relative period
    float off = Const::MISS;      ///< how much earlier a relative time lies
    DateVal end;                  ///< the end of a period as a date

    ForeTime() = default;
    ForeTime(int type, int tim1, int tim2) { set(type, tim1, tim2); }
    explicit ForeTime(int code) { set(code); }
    explicit ForeTime(const char* text) { decode(text); }

    int init();
    /// Whether a kind is known; valid says the same. A relative time may have none.
    bool isSet() const { return type != Const::MISS; }
    bool valid() const { return isSet(); }

    /// Reads a text. Returns 1 for a fixed time, also for a text that can't be understood, which
    /// leaves the time unset; 0 for a relative one, and for null, an empty text and "miss".
    int decode(const char* text);
    int set(const char* text) { return decode(text); }
    int set(int type, float tim1, float tim2);
    int set(int type, int unit, float tim1, float tim2);
    /// Reads a code without a relative part. Days and months keep the 800 or 900 that the code
    /// added to them. A missing code gives 0 and an unset time.
    int set(int code);

    int setEnd(const DateVal& date);
    const DateVal& getEnd() const { return end; }
    bool validEnd() const { return end.year != Const::MISS; }
    int setOffset(float hours);
    float getOffset() const { return off; }
    int setTypeOffset(float hours);
    float getTypeOffset() const { return type_off; }
    int setType(int kind);
    int getType() const { return type; }
    /// Whether it is a period: types 2 to 8.
    bool isTypeComplex() const { return type >= 2 && type <= 8; }
    int setTime1(float time);
    float getTime1() const { return tim1; }
    int setTime2(float time);
    float getTime2() const { return tim2; }

    /// Packs the time into one integer, the key of grid data: "anal-24" is 2024000, "anal-6acc"
    /// 4006000. Times that don't fit wrap around in 32 bits.
    int toCode() const;
    /// Writes the text that decode reads.
    int toString(String& out) const;

    /// The time, or the end of a period of types 2 to 5, in its unit.
    float getFore() const;
    /// The same in hours, months counted as 30 days; 0 for a period that starts at 0.
    float getHours() const;
    /// The time, or the end of a period of types 2 to 5, in whole seconds.
    int getSeconds() const;

    /// Write the time as a label: "6 hour"; "3 day" for whole and half days from 61 hours on;
    /// "analysis" for 0 hours; empty when missing.
    int toTimeLabel(String& out) const;
    static int toTimeLabel(float hours, String& out);
    /// The same with days from the start: "1.5 day", and "0 day" for 0 hours.
    int toTimeLabelDay(String& out) const;
    /// Writes the length and the statistic of a period, "6 hour acc"; other times are empty.
    int toVarLabel(String& out) const;

    int print() const;
};

} // namespace ORV
