#include "ORV/Scan.h"

#include "ORV/Format.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <string>

using namespace ORV;

TEST(Scan, TakesTheLongestDecimalNumber) {
    const struct {
        const char* text;
        int used;
        double value;
    } cases[] = {
        {"0.5eta", 3, 0.5}, {"2e", 1, 2},          {"2e+", 1, 2},
        {"1e-2x", 4, 0.01}, {"  -3.25", 7, -3.25}, {"+4", 2, 4},
        {".5", 2, 0.5},     {"5.", 2, 5},          {"1.2.3", 3, 1.2},
        {"inf", 0, -1},     {"nan", 0, -1},        {"-", 0, -1},
        {".", 0, -1},       {"0x10", 1, 0},        {"", 0, -1},
        {"--1", 0, -1},     {"1e999", 5, DBL_MAX}, {"-1e999", 6, -DBL_MAX},
        {"1e-999", 6, 0},
    };
    for (const auto& c : cases) {
        double value = -1;
        EXPECT_EQ(Scan::number(c.text, value), c.used) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
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
    const struct {
        const char *format, *kinds;
        bool fits;
    } cases[] = {
        {"%.0f", "f", true},      {"%5.1f mb", "f", true},   {"%lf", "f", true},
        {"%g%%", "f", true},      {"%d", "f", false},        {"%s", "f", false},
        {"%n", "f", false},       {"%*f", "f", false},       {"%1$f", "f", false},
        {"%f%f", "f", false},     {"none", "f", false},      {"%", "f", false},
        {"%9999f", "f", false},   {"%.9999f", "f", false},   {"%-+08.2e", "f", true},
        {"plain", "", true},      {"100%%", "", true},       {"100%", "", false},
        {"%s at %d", "sd", true}, {"%d at %s", "sd", false}, {"%ld", "l", true},
        {"%ld", "d", false},      {"%ls", "s", false},       {"%Lf", "f", false},
        {nullptr, "", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Format::check(c.format, c.kinds), c.fits) << (c.format ? c.format : "(null)");
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
