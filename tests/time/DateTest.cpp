#include "ORV/Date.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <cmath>
#include <string>

using namespace ORV;

namespace {
constexpr int miss = Const::MISS;

std::string write(const Date& date) {
    String text;
    date.toText(text);
    return text.get();
}

std::string write(const char* format, const Date& date) {
    String text;
    date.toText(format, text);
    return text.get();
}
} // namespace

// Seconds by Python's calendar.timegm, day of the year and of the week by its datetime.
TEST(Date, FieldsAndSecondsAgree) {
    for (const Row& c : readTable("time/fields_and_seconds_agree.txt")) {
        const Date fields(c.integer("year"), c.integer("month"), c.integer("day"),
                          c.integer("hour"), c.integer("min"), float(c.integer("sec")));
        EXPECT_EQ(fields.secs, c.real("secs")) << c.integer("year");
        EXPECT_EQ(fields.jday, c.integer("jday")) << c.integer("year");
        EXPECT_EQ(fields.wday, c.integer("wday")) << c.integer("year");
        const Date secs(c.real("secs"));
        EXPECT_EQ(write("%Y%m%d%H%M%S", secs), write("%Y%m%d%H%M%S", fields)) << c.integer("year");
        EXPECT_EQ(secs.jday, c.integer("jday")) << c.integer("year");
    }
}

TEST(Date, BadFieldsAreRepaired) {
    const struct {
        DateVal given, repaired;
    } cases[] = {
        {{5, 13, 32, 24, 61, 60.5F}, {2005, 1, 1, 0, 0, 0}},
        {{99, 0, 0, -1, -1, -1}, {1999, 1, 1, 0, 0, 0}},
        {{-1, 12, 31, 23, 60, 60}, {1980, 12, 31, 23, 60, 60}},
        {{107, miss, 3, miss, miss, NAN}, {2007, miss, 3, miss, miss, 0}},
    };
    for (const auto& c : cases) {
        DateVal vals = c.given;
        EXPECT_EQ(vals.validate(), 1);
        EXPECT_EQ(vals.year, c.repaired.year);
        EXPECT_EQ(vals.month, c.repaired.month) << vals.year;
        EXPECT_EQ(vals.day, c.repaired.day) << vals.year;
        EXPECT_EQ(vals.hour, c.repaired.hour) << vals.year;
        EXPECT_EQ(vals.min, c.repaired.min) << vals.year;
        EXPECT_EQ(vals.sec, c.repaired.sec) << vals.year;
    }
    DateVal nothing;
    EXPECT_EQ(nothing.validate(), 0);
    EXPECT_EQ(nothing.computeSecs(), miss);
}

TEST(Date, ReadsTexts) {
    for (const Row& c : readTable("time/reads_texts.txt"))
        EXPECT_EQ(write(Date(c.text("text"))), c.text("written")) << c.text("text");
    EXPECT_GT(Date("current").secs, 1700000000);
}

TEST(Date, AddingKeepsWhatIsMissing) {
    Date date(2007, 1, 31, 23, miss, miss);
    date.addHours(6);
    EXPECT_EQ(write(date), "05Z  1 FEB 2007");
    date.addDays(-32);
    EXPECT_EQ(write(date), "05Z 31 DEC 2006");
    date.addMinutes(90);
    EXPECT_EQ(write(date), "06Z 31 DEC 2006");
    date.addYears(2);
    EXPECT_EQ(write(date), "06Z 31 DEC 2008");
    date.addMonths(2);
    EXPECT_EQ(write(date), "06Z 31 FEB 2009");
    date.addMonths(-27);
    EXPECT_EQ(write(date), "06Z 31 NOV 2006");
    date.addMonths(-11);
    EXPECT_EQ(write(date), "06Z 31 DEC 2005");

    Date month(2007, 12, miss, miss, miss, miss);
    month.addDays(40);
    EXPECT_EQ(write(month), "XX JAN 2008");

    Date unset;
    EXPECT_EQ(unset.addHours(6), 0);
    EXPECT_FALSE(unset.isSet());
    EXPECT_EQ(Date(2007, 1, 1, 0, 0, 0).addSeconds(1e30F), 0);
}

TEST(Date, HoursGoToTheNearestDay) {
    for (const Row& c : readTable("time/hours_go_to_the_nearest_day.txt")) {
        Date date(2007, 1, 12, c.integer("at"), miss, miss);
        EXPECT_EQ(date.adjustHour(c.integer("hour")), 1);
        EXPECT_EQ(write(date), c.text("date")) << c.integer("at") << " to " << c.integer("hour");
    }
}

TEST(Date, DaysGoToTheNearestMonth) {
    Date back(2007, 1, 1, 0, miss, miss);
    EXPECT_EQ(back.adjustMinute(31, 23, 55), 1);
    EXPECT_EQ(write(back), "23:55Z 31 DEC 2006");
    Date forward(2006, 12, 31, 23, miss, miss);
    EXPECT_EQ(forward.adjustHour(1, 0), 1);
    EXPECT_EQ(write(forward), "00Z  1 JAN 2007");
    Date same(2007, 1, 12, 18, miss, miss);
    EXPECT_EQ(same.adjustHour(11, 23), 1);
    EXPECT_EQ(write(same), "23Z 11 JAN 2007");

    EXPECT_EQ(same.adjustHour(24), 0);
    EXPECT_EQ(same.adjustHour(32, 0), 0);
    EXPECT_EQ(write(same), "23Z 11 JAN 2007") << "bad values change nothing";
    Date day(2007, 1, 12, miss, miss, miss);
    day.adjustSecond(23, 5, 30);
    EXPECT_EQ(write(day), "23:05:30Z 12 JAN 2007") << "no hour to be near to";
}

TEST(Date, WritesEachDirective) {
    const Date date(2007, 1, 2, 13, 4, 5.678F);
    EXPECT_EQ(write("%Y|%y|%m|%d|%e|%H|%l|%p|%M|%S|%s|%j|%a|%b|%u|%Z|%%|%q", date),
              "2007|07|01|02| 2|13|01|PM|04|06|05.6780|  2|TUE|JAN|2|Z|%|q");
    EXPECT_EQ(write("%Y|%y|%m|%d|%e|%H|%l|%p|%M|%S|%s|%j|%a|%b|%u|%", Date()),
              "XXXX|XX|XX|XX|XX|XX|XX|XX|XX|XX|XX.XXXX|XXX|XXX|XXX|X|");
    EXPECT_EQ(write("%l%p %l%p", Date(2007, 1, 2, 0, 0, 0)), "12AM 12AM");
    EXPECT_EQ(write("%l%p", Date(2007, 1, 2, 12, 0, 0)), "12PM");
    EXPECT_EQ(write("%s", Date(2007, 1, 2, 12, 0, 45.25F)), "45.2500");
    EXPECT_EQ(write("RFC1123", date), "02 JAN 2007 13:04:06 Z");
    EXPECT_EQ(write("ISO8601", date), "2007-01-02T13:04:06Z");
}
