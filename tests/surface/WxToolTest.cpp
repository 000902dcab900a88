#include "ORV/WxTool.h"

#include "Table.h"
#include <gtest/gtest.h>

using namespace ORV;

TEST(WxTool, SummaryLayerHasTheDominantCoverAndItsLowestBase) {
    for (const Row& c : readTable("surface/layers.txt")) {
        const std::vector<float> heights = c.numbers("heights");
        CloudLayer layers[4], out;
        for (std::size_t i = 0; i < heights.size(); i++) {
            layers[i].cover = c.text("layers")[i];
            layers[i].height = heights[i];
        }
        WxTool::setCloud(static_cast<int>(heights.size()), layers, out);
        EXPECT_EQ(out.cover, c.letter("cover")) << c.text("what");
        EXPECT_EQ(out.height, c.number("height")) << c.text("what");
    }
}

TEST(WxTool, OlderCodeComesAndGoes) {
    String out("as it was");
    EXPECT_EQ(WxTool::getWeather("XX", out), 0);
    EXPECT_STREQ(out.get(), "as it was");
    EXPECT_EQ(WxTool::getWeather("TRW+A", out), 1);
    EXPECT_STREQ(out.get(), "+TSGR");
    WxTool::getWeather("R-", out);
    EXPECT_STREQ(out.get(), "-RA");

    for (const Row& c : readTable("surface/older_weather.txt")) {
        WxTool::getSAWeather(c.text("weather"), out);
        EXPECT_STREQ(out.get(), c.text("older")) << c.text("weather");
    }
}

TEST(WxTool, GroupsReadAsEnglish) {
    String out;
    for (const Row& c : readTable("surface/english_weather.txt")) {
        EXPECT_EQ(WxTool::getTextFromWeather(c.text("weather"), out), 1) << c.text("weather");
        EXPECT_STREQ(out.get(), c.text("text"));
    }
    EXPECT_EQ(WxTool::getTextFromWeather("QQ", out), 0);
    EXPECT_EQ(WxTool::getTextFromWeather(nullptr, out), 0);
    EXPECT_STREQ(out.get(), "");
}

TEST(WxTool, WmoNumbersOfBothTables) {
    for (const Row& c : readTable("surface/wmo_numbers_of_both_tables.txt")) {
        EXPECT_STREQ(WxTool::getWmoWeather(c.integer("code")), c.text("present"))
            << c.integer("code");
        EXPECT_STREQ(WxTool::getWmoAutoWeather(c.integer("code")), c.text("automatic"))
            << c.integer("code");
    }
    for (const Row& c : readTable("surface/wmo_codes.txt"))
        EXPECT_EQ(WxTool::getWmoFromWeather(c.text("text")), c.integer("code")) << c.text("text");
}

TEST(WxTool, FiguresOfHeightAndVisibility) {
    for (const Row& c : readTable("surface/visibility_codes.txt"))
        EXPECT_FLOAT_EQ(WxTool::getWmoVis(c.integer("code")), c.number("miles"));
    EXPECT_EQ(WxTool::getWmoCeilingToCode(983), 3);
    EXPECT_EQ(WxTool::getWmoCeilingToCode(984), 4);
    EXPECT_EQ(WxTool::getWmoCldBase(5), 3000);
    EXPECT_EQ(WxTool::decodeDir("NNW"), 337.5f);
}
