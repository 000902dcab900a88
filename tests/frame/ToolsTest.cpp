#include "ORV/Tools.h"

#include "ORV/FloatArray.h"
#include "ORV/IntArray.h"
#include "ORV/String.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <vector>

using namespace ORV;

namespace {
std::vector<float> valuesOf(const FloatArray& list) {
    return {list.vals + 0, list.vals + list.num};
}
} // namespace

TEST(CalcInterval, RoundsTheStepUpWithinItsDecade) {
    const struct {
        float max, min;
        int n;
        float interval;
        const char* what;
    } cases[] = {
        {5400, 0, 4, 1350, "heights, m"},
        {107, 0, 1, 108, "whole step lifted by float rounding"},
        {1031.2f, 984.6f, 9, 6, "pressures, mb"},
        {10, 0, 100, 0.1f, "tenths"},
        {0.25f, 0.02f, 10, 0.03f, "hundredths"},
        {0.00002f, 0, 1, 0.00002f, "finer than the finest decade"},
        {5, 5, 10, 1, "flat field"},
        {0, 7.5f, 2, -3.75f, "negative"},
        {39.5f, 0, 0, 40, "n below 1"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Tools::calcInterval(c.max, c.min, c.n), c.interval) << c.what;
}

TEST(Tools, WritesNumbersForLabels) {
    const struct {
        float x;
        const char* text;
    } cases[] = {
        {0, "0"},
        {-9999, "-9999"},
        {1234567, "1.234567e+06"},
        {3.14159265f, "3.1416"},
        {-0.001f, "-0.001"},
        {0.99999f, "1"},
        {2.5e-5f, "0.000025"},
        {1e-7f, "1.000000e-07"},
    };
    for (const auto& c : cases) {
        String text;
        Tools::toString(c.x, text);
        EXPECT_STREQ(text.get(), c.text);
    }
}

TEST(Tools, WritesNumbersWithChosenDigits) {
    const struct {
        float x;
        int digits;
        const char* text;
    } cases[] = {
        {1013.5f, 3, "1014"},     {29.92f, 3, "29.9"},   {29.92f, 2, "30"},
        {0.5f, 3, "0.5"},         {0, 3, "0"},           {5, 3, "5"},
        {1234567, 3, "1.23e+06"}, {1234567, 1, "1e+06"}, {1234567, -4, "1e+06"},
        {12345, -2, "12345"},     {0.0123f, 2, "0.012"}, {-7.25f, 2, "-7.2"},
    };
    for (const auto& c : cases) {
        String text;
        Tools::toString(c.x, c.digits, text);
        EXPECT_STREQ(text.get(), c.text) << c.x << " with " << c.digits;
    }
    String text;
    Tools::toString(std::numeric_limits<float>::infinity(), 3, text);
    EXPECT_STREQ(text.get(), "inf");
    Tools::toString(1.5f, INT_MAX, text);
    EXPECT_STREQ(text.get(), "1.5");
}

TEST(FloatArray, ReadsListsAndSeries) {
    constexpr float miss = Const::MISS;
    const struct {
        const char* text;
        std::vector<float> values;
    } cases[] = {
        {"1,2,10-30/10", {1, 2, 10, 20, 30}},
        {"0-1/0.5", {0, 0.5f, 1}},
        {"-10--5/2", {-10, -8, -6}},
        {"30-10/-10", {30, 20, 10}},
        {"30-10/5", {}},
        {"5-9/0", {5}},
        {"1,x,,inf", {1, miss, miss, miss}},
        {"", {}},
    };
    for (const auto& c : cases) {
        FloatArray list;
        list.set(c.text);
        EXPECT_EQ(valuesOf(list), c.values) << c.text;
    }
    FloatArray tenths;
    tenths.set("0-1/0.1");
    EXPECT_EQ(tenths.getNum(), 11); // the end isn't lost to rounding
    FloatArray endless;
    endless.set("0-1e30/1e-30");
    EXPECT_EQ(endless.getNum(), 100000);
}
