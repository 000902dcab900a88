#include "ORV/MetarCache.h"

#include "ORV/MetarRemarks.h"
#include "ORV/MetarReport.h"

#include "Table.h"
#include "frame/FrameFixture.h"
#include <gtest/gtest.h>
#include <zlib.h>

#include <string>

using namespace ORV;

namespace {
constexpr float miss = Const::MISS;

class MetarCacheTest : public FrameFixture {
protected:
    static const std::string names;

    static std::string readStations(const char* name, std::string& error) {
        MetarCache cache;
        cache.open(name);
        std::string ids;
        while (cache.read())
            ids += std::string(cache.get(MetarCache::STATION)) + (cache.isWhole() ? " " : "! ");
        error = cache.getError();
        return ids;
    }
    static void pack(const char* name, const std::string& text, std::size_t cut_by = 0) {
        gzFile out = gzopen(name, "wb");
        gzwrite(out, text.data(), static_cast<unsigned>(text.size()));
        gzclose(out);
        std::filesystem::resize_file(name, std::filesystem::file_size(name) - cut_by);
    }
};
const std::string MetarCacheTest::names = "raw_text,station_id,observation_time\n";

// The report of one row in a table of the columns named.
MetarReport::Fault decode(const std::string& columns, const std::string& values,
                          MetarReport& report) {
    std::ofstream("row.csv") << "station_id,observation_time,raw_text," << columns << "\n"
                             << "KDCA,2025-01-27T17:55:00Z," << values << "\n";
    MetarCache cache;
    EXPECT_EQ(cache.open("row.csv"), 1) << cache.getError();
    EXPECT_EQ(cache.read(), 1);
    return report.decode(cache);
}

SfcData decodeRow(const std::string& columns, const std::string& values) {
    MetarReport report;
    EXPECT_EQ(decode(columns, values, report), MetarReport::GOOD) << values;
    return report.data;
}

std::string getSky(const SfcData& data) {
    std::string text;
    for (int i = 0; i < data.num_cld; i++)
        text +=
            std::string(i ? " " : "") + data.cloud[i].cover +
            (data.cloud[i].height == miss ? "-"
                                          : std::to_string(static_cast<int>(data.cloud[i].height)));
    return text;
}
} // namespace

TEST_F(MetarCacheTest, FindsItsColumnsByName) {
    writeFile("a.csv",
              "No errors\r\n12 ms\r\n\r\nobservation_time,sky_cover,\"raw_text\",sky_cover,"
              "extra,station_id\r\nt1,BKN,\"KDCA 1755Z, RMK \"\"X\"\"\",OVC,,KDCA\r\n");
    MetarCache cache;
    ASSERT_EQ(cache.open("a.csv"), 1);
    ASSERT_EQ(cache.read(), 1);
    EXPECT_STREQ(cache.get(MetarCache::STATION), "KDCA");
    EXPECT_STREQ(cache.get(MetarCache::RAW_TEXT), "KDCA 1755Z, RMK \"X\"");
    EXPECT_STREQ(cache.get(MetarCache::COVER, 1), "OVC");
    EXPECT_STREQ(cache.get(MetarCache::COVER, 2), "");
    EXPECT_STREQ(cache.get(MetarCache::BASE), "");
    EXPECT_EQ(cache.getFloat(MetarCache::TEMP), miss);
    EXPECT_EQ(cache.getLine(), 5);
    EXPECT_EQ(cache.read(), 0);
    EXPECT_STREQ(cache.getError(), "");
}

TEST_F(MetarCacheTest, AnyLineEndAndPackedTextAreTheSameTable) {
    const std::string rows = names + "a,AAAA,t\nb,BBBB,t\n\nc,CCCC,t";
    std::string error;
    const auto expectBoth = [&error](const std::string& text, const std::string& ids) {
        writeFile("a.csv", text);
        pack("a.gz", text);
        EXPECT_EQ(readStations("a.csv", error), ids);
        EXPECT_EQ(readStations("a.gz", error), ids);
        EXPECT_EQ(error, "");
    };
    for (const char* end : {"\n", "\r\n", "\r"}) {
        std::string text;
        for (const char c : rows)
            text += c == '\n' ? std::string(end) : std::string(1, c);
        expectBoth(text, "AAAA BBBB CCCC ");
    }
    // Long enough to be read in several pieces, with line ends at their borders.
    std::string text = names, ids;
    for (int i = 0; i < 20000; i++) {
        text += std::string(i % 17, 'x') + ",ABCD,t\r\n";
        ids += "ABCD ";
    }
    expectBoth(text, ids);
}

TEST_F(MetarCacheTest, BadRowSpoilsNoOther) {
    std::string error;
    writeFile("a.csv", names + "a,AAAA,t\n\"open,BBBB,t\nc,CCCC,t\nd,DDDD\ne,EEEE,t,more\n" +
                           std::string("f\0,FFFF,t\n", 10) + std::string(100000, 'g') +
                           ",GGGG,t\nh,HHHH,t\n");
    EXPECT_EQ(readStations("a.csv", error), "AAAA ! CCCC DDDD! EEEE! FFFF! ! HHHH ");
    EXPECT_EQ(error, "");
}

TEST_F(MetarCacheTest, CutAndForeignInputIsNamed) {
    writeFile("empty", "");
    writeFile("other", "id,name\nKDCA,Washington\n");
    writeFile("binary", std::string("\0\1\2\377,,\n\0", 9));
    writeFile("cut", names + "a,AAAA,t\nb,BB");
    writeFile("fewer", "No errors\n3 results\n" + names + "a,AAAA,t\nb,BBBB,t\n");
    pack("packed", names + "a,AAAA,t\nb,BBBB,t\nc,CCCC,t\n", 12);
    pack("broken", names + "a,AAAA,t\n");
    {
        std::fstream file("broken", std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(12);
        file.write("\377\377\377\377\377", 5);
    }
    const struct {
        const char *name, *word;
    } cases[] = {
        {"empty", "empty"},           {"other", "column names"},     {"binary", "column names"},
        {"cut", "within this row"},   {"fewer", "after 2 of its 3"}, {"packed", "damaged or cut"},
        {"broken", "damaged or cut"}, {"absent", "can't be opened"},
    };
    for (const auto& c : cases) {
        std::string error;
        readStations(c.name, error);
        EXPECT_NE(error.find(c.word), std::string::npos) << c.name << ": " << error;
    }
}

TEST_F(MetarCacheTest, SkyComesFromTheText) {
    for (const Row& c : readTable("surface/sky_comes_from_the_text.txt"))
        EXPECT_EQ(
            getSky(decodeRow("sky_cover,cloud_base_ft_agl,sky_cover,cloud_base_ft_agl,"
                             "vert_vis_ft,temp_c",
                             std::string(c.text("raw")) + "," + c.text("columns") + ",600,10")),
            c.text("sky"))
            << c.text("raw");
}

TEST_F(MetarCacheTest, WeatherComesFromTheTextToo) {
    for (const Row& c : readTable("surface/weather_comes_from_the_text_too.txt"))
        EXPECT_STREQ(decodeRow("wx_string,temp_c",
                               std::string(c.text("raw")) + "," + c.text("column") + ",1")
                         .weather,
                     c.text("weather"))
            << c.text("raw");
}

TEST_F(MetarCacheTest, ValuesThatAreMarksOrFloorsOrMisread) {
    const struct {
        const char* values;
        float dir, spd;
    } winds[] = {{"VRB,4", miss, 4}, {"0,4", miss, 4},        {"0,0", 0, 0},
                 {"360,9", 360, 9},  {"210,210", miss, miss}, {"250,105", 250, 105}};
    for (const auto& wind : winds) {
        const SfcData data = decodeRow("wind_dir_degrees,wind_speed_kt,temp_c",
                                       std::string(",") + wind.values + ",5");
        EXPECT_EQ(data.dir, wind.dir) << wind.values;
        EXPECT_EQ(data.spd, wind.spd) << wind.values;
    }

    const std::string columns = "temp_c,dewpoint_c,visibility_statute_mi,altim_in_hg,"
                                "sea_level_pressure_mb,latitude,longitude,elevation_m";
    SfcData data = decodeRow(columns, "KDCA 271755Z,null,3,10+,0.00,,-99.99,-99.99,9999");
    EXPECT_EQ(data.t, miss);
    EXPECT_EQ(data.td, miss);
    EXPECT_EQ(data.vis, 10);
    EXPECT_EQ(data.alt, miss);
    EXPECT_EQ(data.lat, miss);
    EXPECT_EQ(data.elev, miss);
    data = decodeRow(columns,
                     "LIRQ 271755Z 0400 R05/0500/ 07/M01 Q1019,0,,,30.079725,1019.0,41.8,,86");
    EXPECT_EQ(data.t, 7);
    EXPECT_EQ(data.td, -1);
    EXPECT_NEAR(data.vis, 0.249, 0.001) << "400 m";
    EXPECT_FLOAT_EQ(data.alt, 30.08f);
    EXPECT_EQ(data.slp, miss) << "the altimeter setting over again";
    EXPECT_EQ(data.lat, miss) << "no position without a longitude";
    EXPECT_EQ(data.elev, 86);
    data = decodeRow(columns,
                     "CYPH 271755Z 03019KT M25/M29 A2901 RMK SLP830,-25,-29,3,29.01,983,1,2,3");
    EXPECT_FLOAT_EQ(data.slp, 983);
    data = decodeRow(columns, "LSMD 271755Z 9999NDV,6,4,,29.62,990.2,47,8,436");
    EXPECT_NEAR(data.vis, 6.21, 0.01) << "10 km";
    EXPECT_FLOAT_EQ(data.slp, 990.2f);
}

TEST_F(MetarCacheTest, FaultsOfARow) {
    std::ofstream("bad.csv") << "station_id,observation_time,raw_text,temp_c\n"
                                ",2025-01-27T17:55:00Z,x,1\n"
                                "a b,2025-01-27T17:55:00Z,x,1\n"
                                "KDCA,,x,1\n"
                                "KDCA,2025-02-29T17:55:00Z,x,1\n"
                                "KDCA,2025-01-27T24:55:00Z,x,1\n"
                                "KDCA,2025-01-27T17:55:00Z,KDCA 271755Z NIL,\n"
                                "KDCA,2024-02-29T17:55:00.000Z,KDCA 271755Z,1\n"
                                "KDCA,2025-01-27T17:55:00Z,1\n";
    const MetarReport::Fault faults[] = {MetarReport::NO_STATION, MetarReport::NO_STATION,
                                         MetarReport::NO_TIME,    MetarReport::NO_TIME,
                                         MetarReport::NO_TIME,    MetarReport::NO_VALUE,
                                         MetarReport::GOOD,       MetarReport::DAMAGED};
    MetarCache cache;
    MetarReport report;
    ASSERT_EQ(cache.open("bad.csv"), 1);
    for (const auto fault : faults) {
        ASSERT_EQ(cache.read(), 1);
        EXPECT_EQ(report.decode(cache), fault) << cache.getLine();
    }
}

TEST_F(MetarCacheTest, HourAndRankOfAReport) {
    const auto make = [](int hour, int min, bool routine, bool corrected) {
        MetarReport report;
        report.data.date = Date(2024, 12, 31, hour, min, 0);
        report.routine = routine;
        report.corrected = corrected;
        return report;
    };
    const auto hourOf = [](const MetarReport& report) { return Date(report.getHourSeconds()); };
    EXPECT_EQ(hourOf(make(23, 50, true, false)).year, 2025);
    EXPECT_EQ(hourOf(make(23, 50, true, false)).hour, 0);
    EXPECT_EQ(hourOf(make(23, 49, true, false)).hour, 23);

    const MetarReport at55 = make(17, 55, true, false), at10 = make(18, 10, true, false);
    const MetarReport special = make(18, 0, false, false), later = make(18, 40, false, false);
    const MetarReport corrected = make(17, 55, true, true);
    EXPECT_TRUE(at55.isBetter(special) && !special.isBetter(at55)) << "routine";
    EXPECT_TRUE(at55.isBetter(at10) && !at10.isBetter(at55)) << "nearer";
    EXPECT_TRUE(later.isBetter(special) && !special.isBetter(later)) << "latest";
    EXPECT_TRUE(corrected.isBetter(at55) && !at55.isBetter(corrected)) << "corrected";
}

// The forms are those of the handbook, the values worked out from it.
TEST(MetarRemarks, ReadsTheCodedGroups) {
    MetarRemarks r;
    EXPECT_EQ(
        r.decode("KDCA 271755Z 08/06 A2992 RMK AO2 PK WND 11025/1732 SLP134 P0021 60123 70250 "
                 "T00831056 10106 21056 401060056 52014 4/012 8/6// TSNO $"),
        11);
    const struct {
        float MetarRemarks::*field;
        float value;
    } groups[] = {{&MetarRemarks::t, 8.3f},         {&MetarRemarks::td, -5.6f},
                  {&MetarRemarks::prec1, 5.334f},   {&MetarRemarks::prec, 31.242f},
                  {&MetarRemarks::prec24, 63.5f},   {&MetarRemarks::max6_t, 10.6f},
                  {&MetarRemarks::min6_t, -5.6f},   {&MetarRemarks::max_t, 10.6f},
                  {&MetarRemarks::min_t, 5.6f},     {&MetarRemarks::ptend, 1.4f},
                  {&MetarRemarks::snow_cov, 30.48f}};
    for (const auto& group : groups)
        EXPECT_FLOAT_EQ(r.*group.field, group.value);
    EXPECT_EQ(r.slp, 134);
    EXPECT_EQ(r.ptend_type, 2);
    EXPECT_EQ(std::string(r.cld_type, 3), "6  ");

    r.decode("KDCA RMK A02 58033 T0122");
    EXPECT_FLOAT_EQ(r.ptend, -3.3f) << "a fall";
    EXPECT_FLOAT_EQ(r.t, 12.2f);
    EXPECT_EQ(r.td, miss) << "a sensor without dewpoint";
    r.decode("KDCA RMK AO2 54000 60000");
    EXPECT_EQ(r.ptend, 0);
    EXPECT_EQ(r.prec, 0) << "a trace";
}

TEST(MetarRemarks, LooksNowhereElse) {
    for (const char* text : {"OPLA T00831056 10106 52014 P0021", "LFPG RMK T00831056 10106 52014",
                             "KDCA RMK T00831056 AO2",
                             "KDCA RMK AO2 T0083105 T008310567 11018/0614 6//// 59014 52999 "
                             "P000 4/01 30490245 1000 I1001 PRESRR SLPNO T22831056"}) {
        MetarRemarks r;
        r.decode(text);
        EXPECT_EQ(r.t, miss) << text;
        EXPECT_EQ(r.ptend, miss) << text;
        EXPECT_EQ(r.max6_t, miss) << text;
        EXPECT_EQ(r.prec1, miss) << text;
        EXPECT_EQ(r.snow_cov, miss) << text;
    }
    MetarRemarks r;
    r.decode("ROTM RMK WND 28010 SLP258 T01500072");
    EXPECT_EQ(r.slp, 258) << "bears its name";
    EXPECT_EQ(r.t, miss);
}

TEST(MetarRemarks, HourAndAltimeterCompleteThem) {
    MetarRemarks r;
    r.decode("KDCA RMK AO2 SLP552 60010");
    for (const Row& c : readTable("surface/hour_and_altimeter_complete_them.txt")) {
        SfcData data;
        data.date = Date(2025, 1, 27, c.integer("hour") - 1, 55, 0);
        data.alt = c.number("alt");
        r.apply(data);
        EXPECT_FLOAT_EQ(data.prec3, c.number("prec3")) << c.integer("hour");
        EXPECT_FLOAT_EQ(data.prec6, c.number("prec6")) << c.integer("hour");
        EXPECT_FLOAT_EQ(data.slp, c.number("slp")) << c.integer("hour");
    }
}
