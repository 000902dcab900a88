#include "ORV/ForeTime.h"

#include "Table.h"
#include <gtest/gtest.h>

namespace ORV {
namespace {

constexpr float none = Const::MISS;

void expectTimes(const char* table, int result) {
    for (const Row& row : readTable(table)) {
        SCOPED_TRACE(row.text("text"));
        ForeTime time;
        EXPECT_EQ(time.decode(row.text("text")), result);
        EXPECT_EQ(time.type, row.number("type"));
        EXPECT_FLOAT_EQ(time.tim1, row.number("tim1"));
        EXPECT_FLOAT_EQ(time.tim2, row.number("tim2"));
        EXPECT_FLOAT_EQ(time.off, row.number("off"));
        EXPECT_FLOAT_EQ(time.type_off, row.number("length"));
    }
}

TEST(ForeTime, ReadsFixedAndRelativeTimes) {
    expectTimes("variable/times.txt", 1);
    expectTimes("variable/relative_times.txt", 0);
}

TEST(ForeTime, PacksIntoCodes) {
    for (const Row& row : readTable("variable/time_codes.txt"))
        EXPECT_EQ(std::to_string(ForeTime(row.text("text")).toCode()), row.text("code"))
            << row.text("text");

    ForeTime days;
    days.set(4, 2, 1, 3);
    EXPECT_EQ(days.toCode(), 4801803);
    days.set(4801803);
    EXPECT_EQ(days.unit, 2);
    EXPECT_EQ(ForeTime(0, 6, Const::MISS).toCode(), 6);
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
    for (const Row& row : readTable("variable/time_labels.txt")) {
        String out;
        ForeTime::toTimeLabel(row.number("hours"), out);
        EXPECT_STREQ(out.get(), row.text("label"));
        ForeTime time;
        time.set(0, row.number("hours"), none);
        time.toTimeLabelDay(out);
        EXPECT_STREQ(out.get(), row.text("day_label"));
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
