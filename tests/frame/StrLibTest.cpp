#include "ORV/StrLib.h"

#include "Table.h"
#include <gtest/gtest.h>

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
    for (const Row& c : readTable("frame/decimals.txt")) {
        EXPECT_EQ(StrLib::getInt(c.text("text")), c.integer("whole")) << c.text("text");
        EXPECT_EQ(StrLib::getFloat(c.text("text")), c.number("number")) << c.text("text");
    }
    EXPECT_EQ(StrLib::toInt("lev 850", 3), 850);
    EXPECT_EQ(StrLib::toInt("abc", 0), 0);
    EXPECT_EQ(StrLib::toInt("abc", 4), Const::MISS);
    EXPECT_EQ(StrLib::toFloat("x-2.5e1", 1), -25);
}

TEST(StrLib, ChecksByPattern) {
    for (const Row& c : readTable("frame/patterns.txt"))
        EXPECT_EQ(StrLib::check(c.text("text"), c.text("pattern")), c.integer("matches"))
            << c.text("text") << " by " << c.text("pattern");
    EXPECT_TRUE(StrLib::check("\x01z", "cg"));
    EXPECT_FALSE(StrLib::check("\xE9", "a"));
    EXPECT_FALSE(StrLib::check(nullptr, ""));
}
