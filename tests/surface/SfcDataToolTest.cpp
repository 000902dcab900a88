#include "ORV/SfcDataTool.h"

#include "ORV/Const.h"
#include "ORV/Datum.h"
#include "ORV/Orv.h"
#include "ORV/SfcData.h"
#include "ORV/VarSpec.h"

#include "Table.h"
#include <gtest/gtest.h>

using namespace ORV;

namespace {
constexpr float missing = Const::MISS;

class SfcDataToolTest : public testing::Test {
protected:
    SfcDataToolTest() {
        Orv::setDatabasePath(ORV_TEST_DATA "/surface/db");
        report.setId("KDCA");
        report.date.set(2025, 1, 27, 12, 55, 0);
        report.t = 20;
        report.td = 10;
        report.dir = 270;
        report.spd = 20;
        report.gust = 31;
        report.slp = 1013.2F;
        report.alt = 29.92F;
        report.vis = 2.5F;
        report.elev = 100;
        setLayer('S', 3000);
        setLayer('B', 8000);
        report.setWeather("!-RA");
    }
    ~SfcDataToolTest() override { Orv::setDatabasePath(nullptr); }

    void setLayer(char cover, float height) {
        const int i = report.num_cld;
        report.setCldHeight(i, height);
        report.setCldCover(i, cover);
    }

    /// Computes what a text such as "anal-6acc:sfc:prec:mm" asks for.
    const Datum& compute(const char* text) {
        datum = Datum();
        result = SfcDataTool::compute(report, VarSpec(text), datum);
        return datum;
    }

    SfcData report;
    Datum datum;
    int result = 0;
};

TEST_F(SfcDataToolTest, EveryQuantityOfAReport) {
    report.ptend = -1.5F;
    report.ptend_type = 7;
    report.cld_low = '4';
    report.setCldType(1, 'm');
    report.setCldType(2, 'h');
    report.snow_cov = 12;
    report.wav_hgt = 3;
    // Vapour pressures of 20 and 10 C: 23.37 and 12.27 mb (Smithsonian Meteorological Tables).
    // Station pressure of 29.92 in at 100 m: 1000.96 mb.
    for (const Row& row : readTable("surface/every_quantity_of_a_report.txt")) {
        compute(row.text("text"));
        EXPECT_EQ(result, 1) << row.text("text");
        EXPECT_NEAR(datum.value[0], row.number("value"), row.real("tolerance")) << row.text("text");
        EXPECT_STREQ(datum.data, row.text("data")) << row.text("text");
        EXPECT_STREQ(datum.id, "KDCA") << row.text("text");
    }
    compute("wbrbc");
    EXPECT_EQ(datum.value[0], 270);
    EXPECT_EQ(datum.value[1], 20);
}

TEST_F(SfcDataToolTest, NothingReportedIsMissing) {
    report = SfcData();
    for (const Row& row : readTable("surface/keywords.txt")) {
        const char* text = row.text("keyword");
        compute(text);
        EXPECT_EQ(datum.value[0], missing) << text;
        EXPECT_EQ(datum.value[1], missing) << text;
        EXPECT_STREQ(datum.data, "") << text;
    }
    EXPECT_EQ(compute("wx").value[0], 1);
    EXPECT_STREQ(compute("fr").data, "VFR");
    for (const char* text : {"", "none_such", "temperature", "tem", "zzz"}) {
        compute(text);
        EXPECT_EQ(result, 0) << text;
        EXPECT_EQ(datum.value[0], missing) << text;
    }
    EXPECT_STREQ(SfcDataTool::getUnits("CLDCL"), "100 ft");
    for (const char* text : {"wx", "none_such", static_cast<const char*>(nullptr)})
        EXPECT_STREQ(SfcDataTool::getUnits(text), "");
}

TEST_F(SfcDataToolTest, UnitsConvertTheMainValue) {
    EXPECT_FLOAT_EQ(compute("temp[F]").value[0], 68);
    EXPECT_EQ(compute("temp[C]").value[0], 20);
    EXPECT_EQ(compute("temp[furlong]").value[0], missing);
    compute("wind[m/s]");
    EXPECT_EQ(datum.value[0], 270);
    EXPECT_NEAR(datum.value[1], 10.288, 1e-3);
    compute("ttd[F]");
    EXPECT_FLOAT_EQ(datum.value[0], 68);
    EXPECT_EQ(datum.value[1], 10);
    EXPECT_EQ(compute("cldcl[ft]").value[0], 8000);
    EXPECT_STREQ(datum.data, "80");
    compute("vis[km]");
    EXPECT_NEAR(datum.value[0], 4.02336, 1e-4);
    EXPECT_STREQ(datum.data, "4");
    compute("clds");
    EXPECT_EQ(result, 0);
    EXPECT_EQ(datum.value[1], 8000);
    EXPECT_EQ(datum.value[2], missing);
    EXPECT_STREQ(datum.data, "SB   ");
}

TEST_F(SfcDataToolTest, ShortNumbersOfAStationModel) {
    for (const Row& row : readTable("surface/short_numbers.txt")) {
        const std::string keyword = row.text("keyword");
        (keyword == "vis"   ? report.vis
         : keyword == "alt" ? report.alt
                            : report.slp) = row.number("value");
        EXPECT_STREQ(compute(keyword.c_str()).data, row.text("data")) << row.text("value");
    }
    report.slp = missing;
    report.alt = 29.92F;
    EXPECT_NEAR(compute("pralt").value[0], 1012.91, 0.01);
    EXPECT_STREQ(datum.data, "129");
}

TEST_F(SfcDataToolTest, WeatherInItsThreeNotations) {
    for (const Row& row : readTable("surface/weather_in_its_three_notations.txt")) {
        report.setWeather(row.text("weather"));
        EXPECT_EQ(compute("wx").value[0], row.number("wx")) << row.text("weather");
        EXPECT_STREQ(datum.data, row.text("metar")) << row.text("weather");
        EXPECT_EQ(compute("sawx").value[0], row.number("sawx")) << row.text("weather");
        EXPECT_STREQ(datum.data, row.text("older")) << row.text("weather");
    }
    for (const char* weather : {"!+SN", "S+", "75"}) {
        report.setWeather(weather);
        EXPECT_STREQ(compute("txtwx").data, "heavy snow") << weather;
    }
}

TEST_F(SfcDataToolTest, FlightCategoryIsTheWorseOfCeilingAndVisibility) {
    for (const Row& row :
         readTable("surface/flight_category_is_the_worse_of_ceiling_and_visibility.txt")) {
        report.num_cld = 0;
        setLayer(row.letter("cover"), row.number("height"));
        report.vis = row.number("vis");
        EXPECT_STREQ(compute("fr").data, row.text("category"))
            << row.letter("cover") << row.number("height") << " " << row.number("vis");
    }
}

TEST_F(SfcDataToolTest, PeriodsChooseTheField) {
    report.prec3 = 3;
    report.prec6 = 6;
    report.prec24 = 24;
    report.max6_t = 26;
    report.min_t = -24;
    report.min6_t = -6;
    for (const Row& row : readTable("surface/periods_choose_the_field.txt")) {
        EXPECT_EQ(compute(row.text("text")).value[0], row.number("value")) << row.text("text");
    }
    report.prec24 = report.prec6 = missing;
    EXPECT_EQ(compute("prec").value[0], missing) << "three hours are too few to stand for a day";

    // The hour of the report tells which extreme it brings.
    report.min_t = missing;
    const struct {
        int hour, minute;
        float value;
    } hours[] = {{6, 0, -6}, {5, 50, -6}, {12, 0, -6}, {18, 0, 26}, {23, 55, 26}, {9, 0, missing}};
    for (const auto& row : hours) {
        report.date.set(2025, 1, 27, row.hour, row.minute, 0);
        EXPECT_EQ(compute("extt").value[0], row.value) << row.hour << ":" << row.minute;
    }
    report.min_t = -24;
    EXPECT_EQ(compute("extt").value[0], -24);
    report.max_t = 30;
    EXPECT_EQ(compute("extt").value[0], 30);
}

} // namespace
