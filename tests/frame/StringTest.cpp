#include "ORV/String.h"

#include <gtest/gtest.h>

#include <string>

using namespace ORV;

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
