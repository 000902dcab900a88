#include "ORV/String.h"

#include <gtest/gtest.h>

#include <string>

using namespace ORV;

TEST(String, GrowsToWhatIsAdded) {
    String text(1);
    std::string expected;
    for (int i = 0; i < 300; i++) {
        text.append("ab");
        text.append('c');
        expected += "abc";
    }
    EXPECT_STREQ(text.get(), expected.c_str());
    EXPECT_EQ(text.length(), 900);
    text.copy("a much longer text than there is room for in a string of this size");
    EXPECT_STREQ(text.get(-4), "size");
}

TEST(String, CopyMakesTheExactRoom) {
    String text("abc");
    EXPECT_EQ(text.maxLength(), 4);
    text.copy("abcdefgh");
    EXPECT_EQ(text.maxLength(), 9);
    text.copy("x");
    EXPECT_EQ(text.maxLength(), 9);
    EXPECT_EQ(String().maxLength(), 80);
}

TEST(String, TakesTextsThatLieInItself) {
    String text("0123456789");
    text.copy(text.get(4));
    EXPECT_STREQ(text.get(), "456789");
    text.append(text);
    text.append(text.get(), 3);
    EXPECT_STREQ(text.get(), "456789456789456");
    String line;
    line.copy("noon");
    line.printf("%s map", line.get());
    EXPECT_STREQ(line.get(), "noon map");
    line.aprintf(" of %s", line.get());
    EXPECT_STREQ(line.get(), "noon map of noon map");
}

TEST(String, PositionsCountFromEitherEnd) {
    const String text("abcd");
    const struct {
        int i;
        const char* rest;
    } cases[] = {{0, "abcd"}, {2, "cd"}, {4, ""},      {5, "d"},
                 {900, "d"},  {-1, "d"}, {-4, "abcd"}, {-9, "abcd"}};
    for (const auto& c : cases) {
        EXPECT_STREQ(text.get(c.i), c.rest) << c.i;
        EXPECT_EQ(text.getChar(c.i), *c.rest) << c.i;
    }
    const String empty;
    EXPECT_EQ(empty.getChar(-1), '\0');
    EXPECT_EQ(empty.getChar(7), '\0');
}

TEST(String, CountsBelowZeroLeaveOutTheEnd) {
    String text;
    text.copy("abcd", 2);
    EXPECT_STREQ(text.get(), "ab");
    text.copy("abcd", -1);
    EXPECT_STREQ(text.get(), "abcd");
    text.copy("abcd", -2);
    EXPECT_STREQ(text.get(), "abc");
    text.append("xyz", -9);
    EXPECT_STREQ(text.get(), "abc");
    text.copy(static_cast<const char*>(nullptr));
    EXPECT_FALSE(text.valid());
    const char unterminated[] = {'a', 'b', 'c'};
    text.copy(unterminated, 3);
    EXPECT_STREQ(text.get(), "abc");
}

TEST(String, TruncCutsButNeverExtends) {
    const struct {
        int n;
        const char* left;
    } cases[] = {{2, "ab"}, {0, ""}, {4, "abcd"}, {9, "abcd"}, {-1, "abc"}, {-4, ""}, {-9, ""}};
    for (const auto& c : cases) {
        String text("abcd");
        text.trunc(c.n);
        EXPECT_STREQ(text.get(), c.left) << c.n;
        EXPECT_EQ(text.length(), static_cast<int>(std::string(c.left).size())) << c.n;
    }
}

TEST(String, FormattingIsCutAtTheCapacity) {
    String text(6);
    text.printf("%s", "temperature");
    EXPECT_STREQ(text.get(), "tempe");
    EXPECT_EQ(text.length(), 5);
    text.copy("ab");
    text.aprintf("%d", 12345);
    EXPECT_STREQ(text.get(), "ab123");
    text.aprintf("more");
    EXPECT_STREQ(text.get(), "ab123");
}

TEST(String, WhiteSpaceAndCase) {
    String text(" a\tB  \n");
    text.trimWS();
    EXPECT_STREQ(text.get(), " a\tB");
    text.stripWS();
    EXPECT_STREQ(text.get(), "aB");
    EXPECT_EQ(text.length(), 2);
    text.copy("Zo\xC3\x8B [");
    text.lowCase();
    EXPECT_STREQ(text.get(), "zo\xC3\x8B ["); // beyond ASCII as it was
    text.upCase();
    EXPECT_STREQ(text.get(), "ZO\xC3\x8B [");
    text.chop();
    EXPECT_STREQ(text.get(), "ZO\xC3\x8B ");
    text.clear();
    EXPECT_EQ(text.chop(), 0);
}

TEST(String, CopiesAreIndependent) {
    String first("abc");
    String second(first);
    String third;
    third = first;
    first.copy("x");
    EXPECT_STREQ(second.get(), "abc");
    EXPECT_STREQ(third.get(), "abc");
    second.ptr = second.get(2);
    second.append(" a text that needs new room, which moves the cursor along");
    EXPECT_EQ(*second.ptr, 'c');
}
