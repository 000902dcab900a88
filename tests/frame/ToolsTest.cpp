#include "ORV/Tools.h"

#include "ORV/FloatArray.h"
#include "ORV/IntArray.h"
#include "ORV/Range.h"
#include "ORV/String.h"
#include "ORV/Timer.h"

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

TEST(Range, WidthNeedsBothEnds) {
    EXPECT_EQ((Range{1013.5f, 980.25f}).getRange(), -33.25f);
    EXPECT_EQ((Range{Const::MISS, 980.25f}).getRange(), Const::MISS);
    EXPECT_EQ((Range{1013.5f, Const::MISS}).getRange(), Const::MISS);
}

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
        {100, 0, 10, 10, "tens"},
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

TEST(Tools, KnowsWhatBeginsANumber) {
    const struct {
        const char* text;
        bool whole, number;
    } cases[] = {
        {"1", true, true},     {"-1x", true, true},     {"12abc", true, true}, {".5", false, true},
        {"-.5", false, true},  {"-", false, false},     {".", false, false},   {"-.", false, false},
        {"--1", false, false}, {"+1", false, false},    {" 1", false, false},  {"", false, false},
        {".-5", false, false}, {nullptr, false, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Tools::isInt(c.text), c.whole) << (c.text ? c.text : "(null)");
        EXPECT_EQ(Tools::isFloat(c.text), c.number) << (c.text ? c.text : "(null)");
    }
}

TEST(Tools, WritesNumbersForLabels) {
    const struct {
        float x;
        const char* text;
    } cases[] = {
        {0, "0"},
        {1013.5f, "1013.5"},
        {1000, "1000"},
        {0.5f, "0.5"},
        {-9999, "-9999"},
        {123456, "123456"},
        {1234567, "1.234567e+06"},
        {0.25f, "0.25"},
        {29.92f, "29.92"},
        {3.14159265f, "3.1416"},
        {-0.001f, "-0.001"},
        {0.99999f, "1"},
        {100, "100"},
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

TEST(Tools, PacksNumbers) {
    const struct {
        float x;
        int code;
        const char* what;
    } cases[] = {
        {0, 0, "zero"},
        {5.5f, 55, "ones: two digits"},
        {55, 155, "tens"},
        {850, 285, "hundreds"},
        {-850, -285, "negative"},
        {1000, 310, "thousands"},
        {0.7f, 900, "tenths keep three digits, of which the last two count"},
        {0.995f, 995, "the same"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Tools::toInt(c.x), c.code) << c.what;
    EXPECT_EQ(Tools::toInt(std::numeric_limits<float>::infinity()), 0);
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

TEST(FloatArray, HoldsWhatItIsGiven) {
    FloatArray list;
    EXPECT_EQ(list.get(-1), Const::MISS);
    for (int i = 0; i < 60; i++)
        list.add(static_cast<float>(i));
    EXPECT_EQ(list.get(-1), 59);
    EXPECT_EQ(list.max, 65); // from 25 by 10
    list.set(70, 1.5f);
    EXPECT_EQ(list.getNum(), 71);
    EXPECT_EQ(list.get(65), Const::MISS);
    EXPECT_EQ(list.set(-1, 1.0f), 0);
    list.offset(70, 2);
    list.offset(65, 2);
    EXPECT_EQ(list.get(70), 3.5f);
    EXPECT_EQ(list.get(65), Const::MISS);
    float value = 0;
    EXPECT_EQ(list.get(71, value), 0);
    EXPECT_EQ(value, Const::MISS);
    const FloatArray copied = list;
    list.clear();
    EXPECT_EQ(copied.get(59), 59);
}

TEST(IntArray, SumsAndProductsStayInRange) {
    IntArray list;
    EXPECT_EQ(list.sum(), 0);
    EXPECT_EQ(list.product(), 1);
    for (const int value : {2, 3, -4})
        list.add(value);
    EXPECT_EQ(list.sum(), 1);
    EXPECT_EQ(list.product(), -24);
    list.add(INT_MAX);
    list.add(INT_MAX);
    EXPECT_EQ(list.sum(), INT_MAX);
    EXPECT_EQ(list.product(), INT_MIN);
    list.offset(3, 10);
    EXPECT_EQ(list.get(3), INT_MAX);
}

TEST(Timer, CountsWhatItSlept) {
    Timer timer;
    EXPECT_EQ(timer.sleep(-1), 0);
    EXPECT_EQ(timer.sleep(0.01f), 0.01f);
    EXPECT_GE(timer.elapsed(), 0.009f);
    EXPECT_LT(timer.elapsed(), 60.0f);
    timer.init();
    EXPECT_EQ(timer.slept, 0);
}
