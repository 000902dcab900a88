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
    for (const Row& c : readTable("time/header_texts.txt"))
        EXPECT_EQ(read(c.text("text")), c.text("date")) << c.text("text");
    EXPECT_EQ(read(nullptr), "XX XXX XXXX");
}
