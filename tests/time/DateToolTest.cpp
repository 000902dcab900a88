#include "ORV/DateTool.h"

#include "Table.h"
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
    for (const Row& c : readTable("time/labels_of_a_zone.txt"))
        EXPECT_EQ(label(Date(2007, 1, 12, c.integer("hour"), c.integer("min"), c.number("sec")),
                        c.text("zone")),
                  c.text("text"))
            << c.text("zone");
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
