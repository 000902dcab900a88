#include "ORV/WxTool.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <cmath>

using namespace ORV;

namespace {
constexpr float miss = Const::MISS;

class Layer {
public:
    char cover;
    float height = miss;
};
} // namespace

TEST(WxTool, SummaryLayerHasTheDominantCoverAndItsLowestBase) {
    const struct {
        int num;
        Layer layers[4];
        char cover;
        float height;
        const char* what;
    } cases[] = {
        {0, {}, ' ', miss, "no layers"},
        {1, {{'1', 900}}, '1', 900, "one layer stands as it is"},
        {4, {{'F', 3000}, {'S', 5000}, {'B', 10000}, {'O', 20000}}, 'O', 10000, "rising cover"},
        {2, {{'B', 5000}, {'F', 8000}}, 'F', 5000, "the last cover stands"},
        {2, {{'X'}, {'S', 500}}, 'S', miss, "obscured is no lower class"},
        {2, {{'3', 2000}, {'6', 7000}}, '6', 2000, "digits are no lower class"},
        {2, {{' '}, {'1', 2000}}, 'C', miss, "a figure 1 ends as clear"},
        {2, {{'F', 2000}, {'F', 4000}}, 'F', 2000, "two few layers"},
        {2, {{'S', 1000}, {'9', 200}}, '9', 200, "obscured takes over"},
        {2, {{'0'}, {'O', 700}}, 'O', 700, "overcast behind a clear one"},
    };
    for (const auto& c : cases) {
        CloudLayer layers[4], out;
        for (int i = 0; i < c.num; i++) {
            layers[i].cover = c.layers[i].cover;
            layers[i].height = c.layers[i].height;
        }
        WxTool::setCloud(c.num, layers, out);
        EXPECT_EQ(out.cover, c.cover) << c.what;
        EXPECT_EQ(out.height, c.height) << c.what;
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

    const char* cases[][2] = {
        {"!-SHRA", "RW-"}, {"+FZRA", "ZR+"}, {"VCTS", ""},   {"-VCSH", ""}, {"HZ", "H"},
        {"TS", "T"},       {"TSRA", "TR"},   {"BLSN", "BS"}, {"BLDU", "D"}, {"FZFG", "F"},
        {"!-SN_BR", "S-"}, {"PL", "IP"},     {"", ""},       {"RASN", "R"}, {"XYZ", ""},
    };
    for (const auto& c : cases) {
        WxTool::getSAWeather(c[0], out);
        EXPECT_STREQ(out.get(), c[1]) << c[0];
    }
}

TEST(WxTool, GroupsReadAsEnglish) {
    const char* cases[][2] = {{"-RA", "light rain"},
                              {"RA", "moderate rain"},
                              {"+TSRA", "heavy thunderstorms"},
                              {"BLSN", "blowing moderate snow"},
                              {"VCSH", "showers in vicinity"},
                              {"!_-FZDZ", "light freezing drizzle"},
                              {"-SHSN", "light snow showers"},
                              {"MIFG", "shallow fog"},
                              {"TSSN", "moderate thunder moderate snow"},
                              {"!-SN_BR", "light snow light fog"},
                              {"!VCXX_HZ", "in vicinty haze"}};
    String out;
    for (const auto& c : cases) {
        EXPECT_EQ(WxTool::getTextFromWeather(c[0], out), 1) << c[0];
        EXPECT_STREQ(out.get(), c[1]);
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
    const struct {
        const char* text;
        int code;
    } back[] = {{"63", 63}, {"!+SN", 75}, {"R-", 61}, {"!FZFG", 44}, {"!-SHRA", 80}, {"", 0},
                {"XX", 0},  {"!VCTS", 0}, {"T", 17},  {"!SNDZ", 73}, {"!-RA_BR", 61}};
    for (const auto& c : back)
        EXPECT_EQ(WxTool::getWmoFromWeather(c.text), c.code) << c.text;
}
