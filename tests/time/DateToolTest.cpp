#include "ORV/DateTool.h"

#include <gtest/gtest.h>

#include <string>

using namespace ORV;

namespace {
constexpr int miss = Const::MISS;

std::string label(const Date& date, const char* zone = "", int dow = 0, const char* text = "") {
    String out;
    DateTool::createLabel(text, date, Timezone(zone), dow, out);
    return out.get();
}

std::string read(const char* text) {
    Date date;
    String out;
    DateTool::decode(text, date);
    date.toText(out);
    return out.get();
}

std::string forecast(const char* text, float hours) {
    String out;
    DateTool::createLabel(Date(2007, 1, 12, 18, miss, miss), Timezone(), text, hours, out);
    return out.get();
}

std::string hours(float value, int days) {
    String out;
    DateTool::createHourLabel(value, days, out);
    return out.get();
}
} // namespace

TEST(DateTool, LabelsShowWhatIsKnown) {
    EXPECT_EQ(label(Date(2007, miss, miss, miss, miss, miss)), "07");
    EXPECT_EQ(label(Date(2007, 1, miss, miss, miss, miss)), "JAN 07");
    EXPECT_EQ(label(Date(2007, 1, 2, miss, miss, miss)), " 2 JAN 07");
    EXPECT_EQ(label(Date(2007, 1, 12, miss, miss, miss), "", 1), "FRI 12 JAN 07");
    EXPECT_EQ(label(Date(2007, 1, 12, 18, miss, miss)), "18Z 12 JAN 07");
    EXPECT_EQ(label(Date(2007, 1, 12, 18, 5, miss), "", 1), "1805Z FRI 12 JAN 07");
    EXPECT_EQ(label(Date(2007, 1, 12, 18, 5, 9.6F)), "18:05:10Z 12 JAN 07");
    EXPECT_EQ(label(Date(2007, 1, 12, 18, miss, miss), "", 0, "Surface"), "Surface 18Z 12 JAN 07");
    String out("old");
    EXPECT_EQ(DateTool::createLabel(Date(), out), 0);
    EXPECT_STREQ(out.get(), "");
}

TEST(DateTool, LabelsOfAZone) {
    const struct {
        int hour, min;
        float sec;
        const char* zone;
        const char* text;
    } cases[] = {
        {18, miss, miss, "EST:-5", "13EST 12 JAN 07"},
        {18, 30, miss, "EST:-5", "1330 EST 12 JAN 07"},
        {18, 30, 15, "EST:-5", "13:30:15 EST 12 JAN 07"},
        {18, miss, miss, "+EST:-5", "1 PM EST 12 JAN 07"},
        {5, miss, miss, "+EST:-5", "12 AM EST 12 JAN 07"},
        {17, 5, miss, "+EST:-5", "12:05 PM EST 12 JAN 07"},
        {3, 5, 7, "+EST:-5", "10:05:07 PM EST 11 JAN 07"},
        {18, miss, miss, "-EST:-5", "1 PM EST [18Z] 12 JAN 07"},
        {18, 30, miss, "-EST:-5", "1:30 PM EST [1830Z] 12 JAN 07"},
        {18, 30, 15, "-EST:-5", "1:30:15 PM EST [183015Z] 12 JAN 07"},
        {18, miss, miss, "IST:5.5", "23IST 12 JAN 07"},
        {18, 40, miss, "ACST:9.5", "0410 ACST 13 JAN 07"},
        {18, miss, miss, "EST", "18Z 12 JAN 07"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(label(Date(2007, 1, 12, c.hour, c.min, c.sec), c.zone), c.text) << c.zone;
}

TEST(DateTool, ZoneTexts) {
    Timezone zone("-EST:-5");
    EXPECT_EQ(zone.offset, -18000);
    EXPECT_EQ(zone.pm, -1);
    EXPECT_STREQ(zone.name, "EST");
    for (const char* text : {"", "EST", ":5", "EASTER:5", "X:", "X:1e30", "X:nan"}) {
        zone.set("EST:-5");
        EXPECT_EQ(zone.set(text), 0) << text;
        EXPECT_FALSE(zone.isSet()) << text;
        EXPECT_STREQ(zone.name, "") << text;
    }
}

TEST(DateTool, LabelsOfForecasts) {
    EXPECT_EQ(forecast("", 0), "Analysis for 18Z 12 JAN 07");
    EXPECT_EQ(forecast("", 12), "12 hour valid 06Z SAT 13 JAN 07");
    EXPECT_EQ(forecast("NAM", 0), "NAM analysis for 18Z 12 JAN 07");
    EXPECT_EQ(forecast("NAM", miss), "NAM data for 18Z 12 JAN 07");
    EXPECT_EQ(forecast("", miss), "Data for 18Z 12 JAN 07");
    EXPECT_EQ(forecast("", -6), "-6 hour for 12Z FRI 12 JAN 07");
    String out;
    DateTool::createLabel(Date(2007, 1, 12, 18, miss, miss), Timezone(), 12.0F, out);
    EXPECT_STREQ(out.get(), "06Z 13 JAN 07");
}

TEST(DateTool, LabelsOfHours) {
    const struct {
        float hours;
        int days;
        const char* text;
    } cases[] = {
        {12, 1, "0.5 day"},           {24, 1, "1 day"},   {36, 1, "1.5 day"}, {60, 1, "2.5 day"},
        {12, 0, "12 hour"},           {60, 0, "60 hour"}, {18, 1, "18 hour"}, {72, 0, "3 day"},
        {84, 0, "3.5 day"},           {78, 1, "78 hour"}, {0, 1, ""},         {miss, 0, ""},
        {1e9F, 1, "1000000000 hour"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(hours(c.hours, c.days), c.text) << c.hours;
}

TEST(DateTool, ReadsHeaderTexts) {
    const struct {
        const char* text;
        const char* date;
    } cases[] = {
        {"18Z 12 JAN 07", "18Z 12 JAN 2007"},
        {"18Z 12 JAN 1962", "18Z 12 JAN 1962"},
        {"06Z  2 dec 99", "06Z  2 DEC 1999"},
        {"1830Z 12 JAN 2007", "18:30Z 12 JAN 2007"},
        {"1830Z 12 JAN 07", "18:30Z 12 JAN 2007"},
        {"Surface 1830Z 12 JAN 07", "18:30Z 12 JAN 2007"},
        {" 630Z 12 JAN 2007", "06:30Z 12 JAN 2007"},
        {" 630Z 12 JAN 07", "06:30Z 12 JAN 2007"},
        {"18:30:15Z 12 JAN 2007", "18:30:15Z 12 JAN 2007"},
        {"Data 18:30:15Z 12 JAN 07", "18:30:15Z 12 JAN 2007"},
        {"12 hour valid 06Z SAT 13 JAN 07", "06Z 13 JAN 2007"},
        {"valid 06Z SAT 13 JAN 2007", "06Z 13 JAN 2007"},
        {"12 JAN 07", "12 JAN 2007"},
        {"Mean of 12 JAN 2007", "12 JAN 2007"},
        {"Surface reports", "XX XXX XXXX"},
        {"", "XX XXX XXXX"},
        {nullptr, "XX XXX XXXX"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(read(c.text), c.date) << (c.text ? c.text : "null");
}

TEST(DateTool, ReadsBackItsLabels) {
    for (const Date& date : {Date(2007, 1, 2, 8, miss, miss), Date(1987, 11, 30, 0, 5, miss),
                             Date(2026, 9, 9, 23, 59, 58), Date(2000, 2, 29, miss, miss, miss)}) {
        Date back;
        EXPECT_EQ(DateTool::decode(label(date).c_str(), back), 1);
        EXPECT_EQ(label(back), label(date));
        EXPECT_EQ(back.secs, date.secs) << label(date);
    }
}

TEST(DateTool, MonthsByTheirLetters) {
    for (int i = 0; i < 12; i++) {
        EXPECT_EQ(DateTool::decodeMonth(DateTool::months[i]), i + 1);
        EXPECT_EQ(DateTool::decodeMonth(DateTool::months_lc[i]), i + 1);
    }
    for (const char* text : {"", "M", "Mar", "X", "JX"})
        EXPECT_EQ(DateTool::decodeMonth(text), 0) << text;
    EXPECT_STREQ(DateTool::getMonthLong(9), "September");
    EXPECT_STREQ(DateTool::getMonthLong(13), "");
}
