#include "ORV/Tools.h"

#include "ORV/FloatArray.h"
#include "ORV/IntArray.h"
#include "ORV/String.h"

#include "Table.h"
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
    for (const Row& c : readTable("frame/rounds_the_step_up_within_its_decade.txt"))
        EXPECT_EQ(Tools::calcInterval(c.number("max"), c.number("min"), c.integer("n")),
                  c.number("interval"))
            << c.text("what");
}

TEST(Tools, WritesNumbersForLabels) {
    for (const Row& c : readTable("frame/writes_numbers_for_labels.txt")) {
        String text;
        Tools::toString(c.number("x"), text);
        EXPECT_STREQ(text.get(), c.text("text"));
    }
}

TEST(Tools, WritesNumbersWithChosenDigits) {
    for (const Row& c : readTable("frame/writes_numbers_with_chosen_digits.txt")) {
        String text;
        Tools::toString(c.number("x"), c.integer("digits"), text);
        EXPECT_STREQ(text.get(), c.text("text"))
            << c.number("x") << " with " << c.integer("digits");
    }
    String text;
    Tools::toString(std::numeric_limits<float>::infinity(), 3, text);
    EXPECT_STREQ(text.get(), "inf");
    Tools::toString(1.5f, INT_MAX, text);
    EXPECT_STREQ(text.get(), "1.5");
}

TEST(FloatArray, ReadsListsAndSeries) {
    for (const Row& c : readTable("frame/reads_lists_and_series.txt")) {
        FloatArray list;
        list.set(c.text("text"));
        EXPECT_EQ(valuesOf(list), c.numbers("values")) << c.text("text");
    }
    FloatArray tenths;
    tenths.set("0-1/0.1");
    EXPECT_EQ(tenths.getNum(), 11); // the end isn't lost to rounding
    FloatArray endless;
    endless.set("0-1e30/1e-30");
    EXPECT_EQ(endless.getNum(), 100000);
}
