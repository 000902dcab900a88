#include "ORV/Scan.h"

#include "ORV/Format.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <string>

using namespace ORV;

TEST(Scan, TakesTheLongestDecimalNumber) {
    for (const Row& c : readTable("frame/numbers.txt")) {
        double value = -1;
        EXPECT_EQ(Scan::number(c.text("text"), value), c.integer("used")) << c.text("text");
        EXPECT_EQ(value, c.real("value")) << c.text("text");
    }
    double value = 0;
    EXPECT_EQ(Scan::number("12345", value, 3), 3);
    EXPECT_EQ(value, 123);
    EXPECT_EQ(Scan::number("1e99", value, 3), 3);
    EXPECT_EQ(value, 1e9);
    // The digits and the exponent decide together whether a number is huge or tiny.
    const std::string zeros(500, '0');
    Scan::number(("0." + zeros + "1e100").c_str(), value);
    EXPECT_EQ(value, 0);
    Scan::number(("1" + zeros + "e-100").c_str(), value);
    EXPECT_EQ(value, DBL_MAX);
}

TEST(Scan, NumbersBeyondTheirTypeSaturate) {
    int whole = 0;
    short narrow = 0;
    unsigned natural = 0;
    float real = 0;
    EXPECT_EQ(
        Scan::text("5000000000 -70000 -3 1e39", "%d %hd %u %f", &whole, &narrow, &natural, &real),
        4);
    EXPECT_EQ(whole, INT_MAX);
    EXPECT_EQ(narrow, SHRT_MIN);
    EXPECT_EQ(natural, 0u);
    EXPECT_EQ(real, FLT_MAX);
    EXPECT_EQ(Scan::toInt(1e30), INT_MAX);
    EXPECT_EQ(Scan::toInt(-2.9), -2);
    EXPECT_EQ(Scan::toInt(std::nan("")), 0);
}

TEST(Scan, ReadsRecords) {
    int hour = 0, minute = 0, used = 0;
    EXPECT_EQ(Scan::text("1830Z", "%2d%2dZ%n", &hour, &minute, &used), 2);
    EXPECT_EQ(hour * 100 + minute, 1830);
    EXPECT_EQ(used, 5);

    char name[5], units[20], rest[40];
    EXPECT_EQ(Scan::text("temperature [deg C] the rest\nnext", "%4s%*s [%19[^]]] %39[^\n]", name,
                         units, rest),
              3);
    EXPECT_STREQ(name, "temp");
    EXPECT_STREQ(units, "deg C");
    EXPECT_STREQ(rest, "the rest");

    char letters[8];
    EXPECT_EQ(Scan::text("a-f12", "%7[a-f-]%d", letters, &hour), 2);
    EXPECT_STREQ(letters, "a-f");
    EXPECT_EQ(hour, 12);
    EXPECT_EQ(Scan::text("]x", "%7[]x]", letters), 1);
    EXPECT_STREQ(letters, "]x");

    unsigned color = 0;
    EXPECT_EQ(Scan::text("#0fA07c", "#%x", &color), 1);
    EXPECT_EQ(color, 0x0fa07cu);
    char pair[2] = {'-', '-'};
    EXPECT_EQ(Scan::text("x", "%2c", pair), 0);
    EXPECT_EQ(Scan::text("100% 7", "%d%% %d", &hour, &minute), 2);
    EXPECT_EQ(minute, 7);
}

TEST(Format, AcceptsTheExpectedConversionsOnly) {
    for (const Row& c : readTable("frame/formats.txt"))
        EXPECT_EQ(Format::check(c.text("format"), c.text("kinds")), c.integer("fits"))
            << c.text("format");
    EXPECT_FALSE(Format::check(nullptr, ""));
}

TEST(Format, WritesOrLeavesTheTextEmpty) {
    char label[8] = "old";
    EXPECT_EQ(Format::print(label, sizeof label, "%.1f %s", 12.34f, "degrees"), 1);
    EXPECT_STREQ(label, "12.3 de");
    EXPECT_EQ(Format::print(label, sizeof label, "%s", 12.34f), 0);
    EXPECT_STREQ(label, "");
    String text(1);
    EXPECT_EQ(Format::print(text, "%s of %03d: %ld%%", "hour", 7, 90L), 1);
    EXPECT_STREQ(text.get(), "hour of 007: 90%");
    EXPECT_EQ(Format::print(text, "<%s>", static_cast<const char*>(nullptr)), 1);
    EXPECT_STREQ(text.get(), "<>");
    EXPECT_EQ(Format::print(text, "%d", "text"), 0);
    EXPECT_FALSE(text.valid());
}
