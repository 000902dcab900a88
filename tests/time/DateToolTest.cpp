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
} // namespace

TEST(DateTool, LabelsOfAZone) {
    const struct {
        int hour, min;
        float sec;
        const char* zone;
        const char* text;
    } cases[] = {
        {18, miss, miss, "EST:-5", "13EST 12 JAN 07"},
        {18, 30, miss, "EST:-5", "1330 EST 12 JAN 07"},
        {18, miss, miss, "+EST:-5", "1 PM EST 12 JAN 07"},
        {5, miss, miss, "+EST:-5", "12 AM EST 12 JAN 07"},
        {17, 5, miss, "+EST:-5", "12:05 PM EST 12 JAN 07"},
        {3, 5, 7, "+EST:-5", "10:05:07 PM EST 11 JAN 07"},
        {18, miss, miss, "-EST:-5", "1 PM EST [18Z] 12 JAN 07"},
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

TEST(DateTool, ReadsHeaderTexts) {
    const struct {
        const char* text;
        const char* date;
    } cases[] = {
        {"18Z 12 JAN 07", "18Z 12 JAN 2007"},
        {"18Z 12 JAN 1962", "18Z 12 JAN 1962"},
        {"06Z  2 dec 99", "06Z  2 DEC 1999"},
        {"1830Z 12 JAN 2007", "18:30Z 12 JAN 2007"},
        {"Surface 1830Z 12 JAN 07", "18:30Z 12 JAN 2007"},
        {" 630Z 12 JAN 2007", "06:30Z 12 JAN 2007"},
        {"18:30:15Z 12 JAN 2007", "18:30:15Z 12 JAN 2007"},
        {"Data 18:30:15Z 12 JAN 07", "18:30:15Z 12 JAN 2007"},
        {"12 hour valid 06Z SAT 13 JAN 07", "06Z 13 JAN 2007"},
        {"Mean of 12 JAN 2007", "12 JAN 2007"},
        {"Surface reports", "XX XXX XXXX"},
        {"", "XX XXX XXXX"},
        {nullptr, "XX XXX XXXX"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(read(c.text), c.date) << (c.text ? c.text : "null");
}
