#include "ORV/TextBuffer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>

using namespace ORV;

namespace {
std::string fixed(double value, int decimals) {
    return std::string(TextBuffer().fixed(value, decimals).get());
}

std::string printed(double value, int decimals) {
    char text[400];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

// Compares the two writers on many values with one buffer each; stops at the first difference.
template <class Next>
void compare(int count, int decimals, Next next) {
    TextBuffer out;
    for (int i = 0; i < count; i++) {
        const double value = next();
        out.clear();
        out.fixed(value, decimals);
        ASSERT_EQ(out.get(), printed(value, decimals)) << "decimals " << decimals;
    }
}
} // namespace

TEST(FixedPoint, WritesWhatPrintfDoesForAnyBitPattern) {
    std::mt19937_64 random(11);
    for (const int decimals : {0, 1, 2, 4, 9}) {
        compare(60000, decimals, [&] {
            float value;
            const auto bits = static_cast<std::uint32_t>(random());
            std::memcpy(&value, &bits, sizeof value);
            return value;
        });
        compare(60000, decimals, [&] {
            double value;
            const std::uint64_t bits = random();
            std::memcpy(&value, &bits, sizeof value);
            return value;
        });
    }
}

TEST(FixedPoint, RoundsTiesToEvenAndNearTiesByTheirExactValue) {
    // Ties: multiples of 1/8 have an exact third decimal of 5.
    int i = -400000;
    compare(800000, 2, [&] { return i++ / 8.0; });
    // Decimal ties that binary cannot hold, and their neighbours on both sides.
    int j = -100000;
    compare(200000, 2, [&] { return (2 * j++ + 1) / 200.0; });
    int k = 0;
    compare(100000, 2, [&] { return std::nextafter((2 * k++ + 1) / 200.0, 1e9); });
    int l = 0;
    compare(100000, 1, [&] { return std::nextafter((2 * l++ + 1) / 20.0, -1e9); });
    EXPECT_EQ(fixed(0.125, 2), "0.12");
    EXPECT_EQ(fixed(0.375, 2), "0.38");
    EXPECT_EQ(fixed(1.005, 2), "1.00"); // just below the tie
    EXPECT_EQ(fixed(2.5, 0), "2");
}

TEST(IntegersOfAPage, AreWrittenInFull) {
    TextBuffer out;
    const long long least = std::numeric_limits<long long>::min();
    for (const long long value : {0LL, 7LL, 10LL, 99LL, 100LL, -1LL, 1234567890123LL, least})
        out.integer(value).put(' ');
    EXPECT_EQ(out.get(), "0 7 10 99 100 -1 1234567890123 -9223372036854775808 ");
    out.clear();
    EXPECT_EQ(out.hex(0).hex(10).hex(255).get(), "000AFF");
    for (int i = 0; i < 100000; i++) {
        out.clear();
        ASSERT_EQ(out.integer(i).get(), std::to_string(i));
    }
}
