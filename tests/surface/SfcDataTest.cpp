#include "ORV/SfcData.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <string>

using namespace ORV;

namespace {
constexpr float miss = Const::MISS;

void setClouds(SfcData& data, const char* covers, float first_height) {
    for (int i = 0; covers[i]; i++) {
        data.setCldCover(i, covers[i]);
        data.setCldHeight(i, first_height * (i + 1));
    }
}
} // namespace

TEST(SfcData, BelongsToTheNextHourFromMinuteFifty) {
    const struct {
        int hour, min, belongs, time;
    } cases[] = {{23, 50, 0, 2350}, {23, 49, 23, 2349}, {12, 50, 13, 1250}, {0, 0, 0, 0}};
    SfcData data;
    EXPECT_EQ(data.getHour(), Const::MISS);
    EXPECT_EQ(data.getTime(), Const::MISS);
    for (const auto& c : cases) {
        data.setDate(Date(2025, 1, 27, c.hour, c.min, 0));
        EXPECT_EQ(data.getHour(), c.belongs);
        EXPECT_EQ(data.getTime(), c.time);
    }
    data.setDate(Date(2025, 1, 27, 6, Const::MISS, Const::MISS));
    EXPECT_EQ(data.getTime(), 600);
}

TEST(SfcData, CeilingAndSummaryCover) {
    for (const Row& c : readTable("surface/ceiling_and_summary_cover.txt")) {
        SfcData data;
        setClouds(data, c.text("covers"), 1000);
        EXPECT_EQ(data.getCldHeight(), c.number("ceiling")) << c.text("what");
        EXPECT_EQ(data.getCldCover(), c.letter("summary")) << c.text("what");
    }
}

TEST(SfcData, TableLineKeepsItsColumns) {
    SfcData data;
    data.setId("KDCA");
    data.setDate(Date(2025, 1, 27, 11, 55, 0));
    data.t = data.td = 20;
    data.dir = 270;
    data.alt = 30.12f;
    data.setWeather("!-SHRA");
    setClouds(data, "SB", 3000);
    String line;
    data.outString(line);
    // ID   TIME   T  TD  RH DIR SPD GST ALT SLP VIS CIL  COV WX
    EXPECT_EQ(std::string(line.get()).substr(0, 63),
              "KDCA   1155  20  20 100 270         012          60  BKN -SHRA ");
}

TEST(SfcData, CompareTellsTheGroupsApart) {
    const SfcData none;
    EXPECT_EQ(SfcData::compare(none, none), 0);
    const struct {
        void (*change)(SfcData&);
        int mask;
    } cases[] = {
        {[](SfcData& d) { d.date = Date(2025, 1, 27, 12, 0, 0); }, 0x0002},
        {[](SfcData& d) { d.gust = 30; }, 0x0010},
        {[](SfcData& d) { d.setWeather("!RA"); }, 0x0020},
        {[](SfcData& d) { d.cloud[4].cover = 'O'; }, 0x0040},
        {[](SfcData& d) { d.prec12 = 2; }, 0x0200},
        {[](SfcData& d) { d.prec1 = 2; }, 0},
        {[](SfcData& d) { d.cld_type[2] = '2'; }, 0x4000},
        {[](SfcData& d) { d.setComment("x"); }, 0x8000},
    };
    for (const auto& c : cases) {
        SfcData data;
        c.change(data);
        EXPECT_EQ(SfcData::compare(data, none), c.mask) << std::hex << c.mask;
    }
    testing::internal::CaptureStdout();
    SfcData::printDiff(0x8085);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "8085 type temp vis com \n");
}

TEST(SfcData, UpdateTakesWhatIsReported) {
    SfcData data, src;
    data.t = 10;
    data.vis = src.td = 5;
    data.setWeather("!RA");
    data.prec1 = 4;
    data.cld_type[1] = '7';
    data.date = Date(2025, 1, 27, 12, 0, 0);
    setClouds(data, "FBO", 1000);

    src.t = 12;
    src.prec1 = 9;
    src.vis = 8;
    src.cld_type[0] = '5';
    src.date = Date(2025, 1, 27, 13, 0, 0);
    src.setWeather(" ");
    src.setCldCover(0, 'S');
    data.update(src, 0xFFFF & ~SfcData::VIS);
    EXPECT_EQ(data.t, 12);
    EXPECT_EQ(data.td, 5);
    EXPECT_EQ(data.vis, 5) << "outside the mask";
    EXPECT_STREQ(data.weather, "!RA") << "a blank is no report";
    EXPECT_EQ(data.prec1, 4) << "has no group";
    EXPECT_EQ(data.date.hour, 12) << "the time stays";
    EXPECT_EQ(std::string(data.cld_type, 3), "57 ");
    EXPECT_EQ(data.cloud[0].cover, 'S');
    EXPECT_EQ(data.cloud[0].height, 1000) << "not reported again";
    EXPECT_EQ(data.num_cld, 1);

    src.setWeather("");
    data.update(src, SfcData::WX);
    EXPECT_STREQ(data.weather, "") << "an empty one says that there is none";
}

TEST(SfcData, SilenceOnPrecipitationCountsInASupplementarySection) {
    SfcData data, plain, section;
    data.prec6 = data.prec24 = 5;
    plain.slp = 1010;
    plain.t = 3;
    section.max_t = 9;
    section.prec24 = 7;
    data.update(plain, SfcData::PREC);
    EXPECT_EQ(data.prec6, 5);
    data.update(section, SfcData::PREC);
    EXPECT_EQ(data.prec6, miss);
    EXPECT_EQ(data.prec24, 7);
    EXPECT_EQ(data.max_t, miss) << "outside the mask";
}

TEST(SfcData, ValidateKeepsTheLimitsThemselves) {
    const struct {
        float SfcData::*field;
        float value, kept;
    } cases[] = {{&SfcData::slp, 900, 900},  {&SfcData::alt, 33.01f, miss},
                 {&SfcData::spd, 120, miss}, {&SfcData::gust, 120, 120},
                 {&SfcData::dir, 361, miss}, {&SfcData::ptend, -10, -10},
                 {&SfcData::t, -101, miss},  {&SfcData::td, 25, 20}};
    for (const auto& c : cases) {
        SfcData data;
        data.t = 20;
        data.*c.field = c.value;
        data.setCldHeight(1, 35000);
        data.setCldHeight(2, 35001);
        data.ptend_type = 10;
        data.validate();
        EXPECT_EQ(data.*c.field, c.kept) << c.value;
        EXPECT_EQ(data.cloud[1].height, 35000);
        EXPECT_EQ(data.cloud[2].height, miss);
        EXPECT_EQ(data.ptend_type, Const::MISS);
    }
    SfcData data;
    data.td = 5;
    data.validate();
    EXPECT_EQ(data.td, miss) << "no dewpoint without a temperature";
}
