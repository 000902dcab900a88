#include "ORV/StrLib.h"

#include "ORV/Const.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <memory>

using namespace ORV;

TEST(StrLib, CopiesAreCutAndTerminated) {
    char field[6];
    std::memset(field, 'x', sizeof field);
    StrLib::copy(field, 4, "abcdef");
    EXPECT_STREQ(field, "abc");
    EXPECT_EQ(field[4], 'x');
    StrLib::append(field, sizeof field, "defg");
    EXPECT_STREQ(field, "abcde");
    EXPECT_EQ(StrLib::append(field, sizeof field, "h"), 1);
    EXPECT_STREQ(field, "abcde");
    StrLib::copy(field, 5, "abcdef", 2);
    EXPECT_STREQ(field, "ab");
    StrLib::copy(field, 5, "abcd", -2);
    EXPECT_STREQ(field, "abc");
    StrLib::aprintf(field, sizeof field, "%d", 123456);
    EXPECT_STREQ(field, "abc12");
    StrLib::copy(field, sizeof field, nullptr);
    EXPECT_STREQ(field, "");
    EXPECT_EQ(StrLib::copy(field, 0, "a"), 0);

    const std::unique_ptr<char[]> copied(StrLib::acopy("abc", 2));
    EXPECT_STREQ(copied.get(), "ab");
    EXPECT_EQ(StrLib::acopy(nullptr), nullptr);
}

TEST(StrLib, ReadsDecimalNumbersOnly) {
    const struct {
        const char* text;
        int whole;
        float number;
    } cases[] = {
        {"12abc", 12, 12},
        {"-7", -7, -7},
        {".5", Const::MISS, 0.5f},
        {"-.25x", Const::MISS, -0.25f},
        {"0x1F", 0, 0},
        {"inf", Const::MISS, Const::MISS},
        {"nan", Const::MISS, Const::MISS},
        {" 3", Const::MISS, Const::MISS},
        {"", Const::MISS, Const::MISS},
        {"99999999999999999999", INT_MAX, 1e20f},
        {"-99999999999999999999", INT_MIN, -1e20f},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(StrLib::getInt(c.text), c.whole) << c.text;
        EXPECT_EQ(StrLib::getFloat(c.text), c.number) << c.text;
    }
    EXPECT_EQ(StrLib::toInt("lev 850", 3), 850);
    EXPECT_EQ(StrLib::toInt("abc", 0), 0);
    EXPECT_EQ(StrLib::toInt("abc", 4), Const::MISS);
    EXPECT_EQ(StrLib::toFloat("x-2.5e1", 1), -25);
}

TEST(StrLib, ChecksByPattern) {
    const struct {
        const char *text, *pattern;
        bool matches;
    } cases[] = {
        {"AB12", "aadd", true},  {"AB1", "aadd", false},
        {"AB123", "aadd", true}, {"", "", true},
        {"x", "", true},         {"", "c", false},
        {"KORD", "uuuu", true},  {"KORd", "uuuu", false},
        {"a1.", "AAp", true},    {"b3", "[abc][0123]", true},
        {"d3", "[abc]d", false}, {"x", "[]", false},
        {" \t", "bs", true},     {"\x01z", "cg", true},
        {"1-2", "d-d", true},    {"1+2", "d-d", false},
        {"\xE9", "a", false},    {"b", "[ab", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(StrLib::check(c.text, c.pattern), c.matches) << c.text << " by " << c.pattern;
    EXPECT_FALSE(StrLib::check(nullptr, ""));
}
