#include "ORV/ForeTime.h"

#include <gtest/gtest.h>

namespace ORV {
namespace {

constexpr float none = Const::MISS;

class Reading {
public:
    const char* text;
    int type;
    float tim1;
    float tim2 = none;
    float off = none;
    float type_off = none;
};

void expectReading(const ForeTime& time, const Reading& row) {
    EXPECT_EQ(time.type, row.type);
    EXPECT_FLOAT_EQ(time.tim1, row.tim1);
    EXPECT_FLOAT_EQ(time.tim2, row.tim2);
    EXPECT_FLOAT_EQ(time.off, row.off);
    EXPECT_FLOAT_EQ(time.type_off, row.type_off);
}

TEST(ForeTime, ReadsFixedTimes) {
    const Reading rows[] = {
        {"anal", 1, 0},          {"OBS", 1, 0},
        {"init", 1, 0},          {"in", 1, 0},
        {"h12", 0, 12},          {"12hr", 0, 12},
        {"12", 9, 12},           {"d2", 0, 48},
        {"e2", 0, 60},           {"2e", 9, 60},
        {"2day", 0, 48},         {"2d", 0, 48},
        {"anal-24", 2, -24, 0},  {"obs-6acc", 4, -6, 0},
        {"anal-6dif", 5, -6, 0}, {"12hr-6avg", 3, 6, 12},
        {"h12-6max", 6, 6, 12},  {"12hr-6MIN", 7, 6, 12},
        {"12hr-6", 2, 6, 12},
    };
    for (const Reading& row : rows) {
        SCOPED_TRACE(row.text);
        ForeTime time;
        EXPECT_EQ(time.decode(row.text), 1);
        expectReading(time, row);
    }
}

TEST(ForeTime, ReadsTimesRelativeToAnother) {
    const Reading rows[] = {
        {"time", Const::MISS, none, none, 0},   {"time-acc", 4, none, none, 0},
        {"time-3", Const::MISS, none, none, 3}, {"time-6acc", 4, none, none, 0, 6},
        {"time-3-6acc", 4, none, none, 3, 6},   {"time-3-6avg", 3, none, none, 3, 6},
        {"time-3-acc", 4, none, none, 3},
    };
    for (const Reading& row : rows) {
        SCOPED_TRACE(row.text);
        ForeTime time;
        EXPECT_EQ(time.decode(row.text), 0);
        expectReading(time, row);
    }
}

TEST(ForeTime, LeavesWhatItCannotReadUnset) {
    ForeTime time("12hr");
    EXPECT_EQ(time.decode("miss"), 0);
    EXPECT_EQ(time.decode(""), 0);
    EXPECT_EQ(time.decode("tomorrow"), 1);
    EXPECT_FALSE(time.isSet());
    EXPECT_EQ(time.tim1, none);
}

TEST(ForeTime, PacksIntoCodes) {
    class Row {
    public:
        const char* text;
        int code;
    };
    const Row rows[] = {
        {"anal", 0},
        {"12hr", 12},
        {"12", 9000012},
        {"anal-24", 2024000},
        {"anal-6", 2006000},
        {"anal-3acc", 4003000},
        {"anal-12acc", 4012000},
        {"12hr-6avg", 3006012},
        {"miss", Const::MISS},
        // (3 + 100) * 10^7 + 4 * 10^6 + 799000 + 6
        {"time-3-6acc", 1034799006},
        {"time-3-acc", 1034799799},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ForeTime(row.text).toCode(), row.code) << row.text;

    ForeTime days;
    days.set(4, 2, 1, 3);
    EXPECT_EQ(days.toCode(), 4801803);
    days.set(4801803);
    EXPECT_EQ(days.unit, 2);
    EXPECT_EQ(ForeTime(0, 6, Const::MISS).toCode(), 6);
}

TEST(ForeTime, ReadsCodes) {
    expectReading(ForeTime(12), {"", 0, 12, 0});
    expectReading(ForeTime(2024000), {"", 2, -24, 0});
    expectReading(ForeTime(3006012), {"", 3, 6, 12});
    EXPECT_FALSE(ForeTime(Const::MISS).isSet());
}

TEST(ForeTime, WritesTheTextItReads) {
    for (const char* word : {"anal", "12hr", "12", "12hr-6avg", "12hr-6rng", "anal-24acc"}) {
        String out;
        ForeTime(word).toString(out);
        EXPECT_STREQ(out.get(), word);
    }
    String out;
    ForeTime("time-3-6acc").toString(out);
    EXPECT_STREQ(out.get(), "hr-3-6acc");
    ForeTime days;
    days.set(4, 2, 1, 3);
    days.toString(out);
    EXPECT_STREQ(out.get(), "3day-2acc");
    days.set(0, 3, 2, none);
    days.toString(out);
    EXPECT_STREQ(out.get(), "2month");
    days.set(9, 1, none, 6);
    days.toString(out);
    EXPECT_STREQ(out.get(), "hr-6any");
}

TEST(ForeTime, GivesTheEndOfAPeriodAsItsTime) {
    EXPECT_FLOAT_EQ(ForeTime("12hr-6acc").getFore(), 12);
    EXPECT_FLOAT_EQ(ForeTime("12hr-6max").getFore(), 6);
    EXPECT_FLOAT_EQ(ForeTime("d2").getHours(), 48);
    EXPECT_EQ(ForeTime("12hr-6acc").getSeconds(), 43200);
    ForeTime time;
    EXPECT_FLOAT_EQ(time.getHours(), none);
    EXPECT_EQ(time.getSeconds(), Const::MISS);
    time.set(0, 0, 90, none);
    EXPECT_FLOAT_EQ(time.getHours(), 1.5f);
    time.set(0, 3, 1, none);
    EXPECT_FLOAT_EQ(time.getHours(), 720);
    time.set(0, 1, 1e30f, none);
    EXPECT_GT(time.getSeconds(), 0);
}

TEST(ForeTime, WritesLabels) {
    class Row {
    public:
        float hours;
        const char* label;
        const char* day_label;
    };
    const Row rows[] = {
        {0, "analysis", "0 day"},   {6, "6 hour", "6 hour"}, {36, "36 hour", "1.5 day"},
        {48, "48 hour", "2 day"},   {72, "3 day", "3 day"},  {84, "3.5 day", "3.5 day"},
        {85, "85 hour", "85 hour"}, {none, "", ""},
    };
    for (const Row& row : rows) {
        String out;
        ForeTime::toTimeLabel(row.hours, out);
        EXPECT_STREQ(out.get(), row.label);
        ForeTime time;
        time.set(0, row.hours, none);
        time.toTimeLabelDay(out);
        EXPECT_STREQ(out.get(), row.day_label);
    }

    // A text without room grows.
    String out("");
    ForeTime minutes;
    minutes.set(0, 0, 90, none);
    minutes.toTimeLabel(out);
    EXPECT_STREQ(out.get(), "1.50 hour");
    minutes.setTime1(45);
    minutes.toTimeLabel(out);
    EXPECT_STREQ(out.get(), "45 min");
}

TEST(ForeTime, LabelsPeriodsByLengthAndStatistic) {
    String out;
    ForeTime("12hr-6acc").toVarLabel(out);
    EXPECT_STREQ(out.get(), "6 hour acc");
    ForeTime("anal-24").toVarLabel(out);
    EXPECT_STREQ(out.get(), "24 hour rng");
    ForeTime(4801803).toVarLabel(out);
    EXPECT_STREQ(out.get(), "2 day acc");
    ForeTime("12hr").toVarLabel(out);
    EXPECT_STREQ(out.get(), "");
}

} // namespace
} // namespace ORV
