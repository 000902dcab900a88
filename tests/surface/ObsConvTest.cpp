#include "ORV/ObsConv.h"

#include "ORV/SfcFile.h"
#include "ORV/Strings.h"

#include "Table.h"
#include "frame/FrameFixture.h"
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <string>
#include <vector>

using namespace ORV;

namespace {
constexpr float miss = Const::MISS;
namespace fs = std::filesystem;

// The columns of the rows below: id, time, type, temperature, speed, position, elevation, text.
const std::string names = "station_id,observation_time,metar_type,temp_c,wind_speed_kt,latitude,"
                          "longitude,elevation_m,raw_text\n";

class ObsConvTest : public FrameFixture {
protected:
    ObsConvTest() {
        writeFile("base/name.cnv", "sfc_cvt  %C/%Y%m%d%h_sfc.cvt  -  1,sfc\n");
        writeFile("base/sao.cty", "Washington DC US KDCA 0 38.85 -77.03 5 72405 1\n");
        Orv::setDatabasePath("base");
        Orv::putResrc("file_path", "base");
        Orv::putResrc("con_path", "out");
    }

    Orv::Error convert(const std::vector<std::string>& files) {
        Strings list;
        for (const auto& file : files)
            list.add(file.c_str());
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        ObsConv converter;
        const Orv::Error status = converter.run(list);
        printed = testing::internal::GetCapturedStdout();
        errors = testing::internal::GetCapturedStderr();
        return status;
    }
    Orv::Error convertRows(const std::string& rows) {
        writeFile("in.csv", names + rows);
        return convert({"in.csv"});
    }
    static std::map<std::string, SfcData> readHour(const char* name) {
        std::map<std::string, SfcData> reports;
        SfcFile file(name);
        SfcData data;
        while (file.read(data))
            reports[data.id] = data;
        return reports;
    }
    static std::string readAll(const fs::path& path) {
        std::ifstream in(path);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static int countFiles() {
        int count = 0;
        if (fs::exists("out"))
            for (const auto& entry : fs::recursive_directory_iterator("out"))
                count += entry.is_regular_file();
        return count;
    }

    std::string printed, errors;
};
} // namespace

TEST_F(ObsConvTest, ReportsFindTheirHours) {
    EXPECT_EQ(convertRows("KDCA,2024-12-31T23:50:00Z,METAR,5,3,38.85,-77.03,5,x\n"
                          "EGLL,2024-12-31T23:49:00Z,METAR,7,4,51.48,-0.46,24,x\n"
                          "KDCA,2024-12-31T23:20:00Z,SPECI,6,4,38.85,-77.03,5,x\n"
                          "XXXX,2025-01-01T00:10:00Z,METAR,5,3,-99.99,,5,x\n"
                          "YYYY,2025-01-01T00:10:00Z,METAR,,,1,2,5,x\n"
                          "ZZZZ,yesterday,METAR,5,3,1,2,5,x\n"),
              Orv::NOERR)
        << errors;
    EXPECT_EQ(printed, "out/2024123123_sfc.cvt: 2 reports, 2 stations, 1 not in the city file\n"
                       "out/2025010100_sfc.cvt: 1 reports, 1 stations, 0 not in the city file\n"
                       "3 reports rejected: 1 without a time, 1 without a value, 1 of no known "
                       "place\n");
    const auto late = readHour("out/2025010100_sfc.cvt");
    EXPECT_EQ(late.at("KDCA").date.getSeconds(), Date(2024, 12, 31, 23, 50, 0).getSeconds());
    EXPECT_EQ(late.at("KDCA").lat, miss) << "the city file has its place";
    EXPECT_EQ(late.at("KDCA").elev, miss);
    const auto early = readHour("out/2024123123_sfc.cvt");
    EXPECT_FLOAT_EQ(early.at("EGLL").lat, 51.5f);
    EXPECT_FLOAT_EQ(early.at("EGLL").lon, -0.5f);
    EXPECT_EQ(early.at("EGLL").elev, 24);
    EXPECT_EQ(countFiles(), 2) << "nothing is left beside them";
}

TEST_F(ObsConvTest, OneReportStandsForAStation) {
    convertRows("KDCA,2025-01-27T18:20:00Z,SPECI,1,3,1,1,5,x\n"
                "KDCA,2025-01-27T18:10:00Z,METAR,2,3,1,1,5,x\n"
                "KDCA,2025-01-27T17:55:00Z,METAR,3,3,1,1,5,x\n"
                "KIAD,2025-01-27T18:20:00Z,SPECI,4,3,1,1,5,x\n"
                "KIAD,2025-01-27T18:30:00Z,SPECI,5,3,1,1,5,x\n");
    const auto hour = readHour("out/2025012718_sfc.cvt");
    EXPECT_NEAR(hour.at("KDCA").t, 3, 0.05);
    EXPECT_NEAR(hour.at("KIAD").t, 5, 0.05);
    EXPECT_NE(printed.find("3 outranked"), std::string::npos) << printed;

    // -23.3 C are -9.94 F, and -99 tenths of a degree mean a missing value.
    convertRows("KDCA,2025-01-28T17:55:00Z,METAR,-23.3,4,1,1,5,x\n");
    EXPECT_NEAR(readHour("out/2025012818_sfc.cvt").at("KDCA").t, -23.3, 0.06);
}

TEST_F(ObsConvTest, HourFileThatIsThereIsMergedWith) {
    writeFile("out/2025012718_sfc.cvt",
              "ORVSFC\n18Z 27 JAN 25\n"
              "KDCA 320 300 2720  12 201 10.0 30S,120B !RA @1755 p 5 r50 G 30 t17.5 $\n\n"
              "KIAD 320 300 2720  12 201 10.0 30S - @1802 $\n"
              "72405 320 300 2720  12 201 10.0 30S - @1800 $\n");
    EXPECT_EQ(convertRows("KDCA,2025-01-27T17:55:00Z,METAR,10,4,1,1,5,KDCA 271755Z 10/\n"
                          "KIAD,2025-01-27T18:25:00Z,SPECI,10,4,1,1,5,KIAD 271825Z 10/\n"
                          "KNEW,2025-01-27T18:00:00Z,METAR,10,4,1,1,5,x\n"),
              Orv::NOERR);
    const auto hour = readHour("out/2025012718_sfc.cvt");
    EXPECT_EQ(hour.size(), 4u) << "a blank line loses nothing";
    const SfcData& kdca = hour.at("KDCA");
    EXPECT_EQ(kdca.t, 10);
    EXPECT_EQ(kdca.spd, 4);
    EXPECT_EQ(kdca.gust, miss) << "of another wind";
    EXPECT_EQ(kdca.dir, miss);
    EXPECT_EQ(kdca.num_cld, 2) << "nothing new of the sky";
    EXPECT_STREQ(kdca.weather, "") << "none any more";
    EXPECT_NEAR(kdca.prec6, 12.7, 0.01);
    EXPECT_NEAR(kdca.sst, 17.5, 0.01);
    EXPECT_EQ(hour.at("KIAD").t, 0) << "a later special doesn't replace it";
    EXPECT_NE(printed.find("2 reports, 4 stations"), std::string::npos) << printed;

    const std::string once = readAll("out/2025012718_sfc.cvt");
    convert({"in.csv", "in.csv"});
    EXPECT_EQ(readAll("out/2025012718_sfc.cvt"), once) << "again changes nothing";
}

TEST_F(ObsConvTest, ForeignFileInThePlaceStaysAsItIs) {
    const std::string rows = "KDCA,2025-01-27T16:55:00Z,METAR,10,4,1,1,5,x\n"
                             "KDCA,2025-01-27T17:55:00Z,METAR,10,4,1,1,5,x\n";
    for (const char* text : {"a letter\n", "ORVSFC\n17Z 27 JAN 25\nKIAD 1 1 1 1 1 1 1 - $\n"}) {
        writeFile("out/2025012718_sfc.cvt", text);
        EXPECT_EQ(convertRows(rows), Orv::NOWRITE);
        EXPECT_EQ(readAll("out/2025012718_sfc.cvt"), text);
        EXPECT_EQ(countFiles(), 1) << "the hour before isn't written either";
    }
    writeFile("base/name.cnv", "sfc_cvt  %C/%Y%m%d_sfc_day.cvt  -  1,sfc\n");
    EXPECT_EQ(convertRows(rows), Orv::NODBASE) << "one name for two hours";
    Orv::putResrc("con_path", "base/name.cnv");
    writeFile("base/name.cnv", "sfc_cvt  %C/%Y%m%d%h_sfc.cvt  -  1,sfc\n");
    EXPECT_EQ(convertRows(rows), Orv::NOWRITE) << "a file in the place of the directory";
}

namespace {
std::string getSky(const SfcData& data) {
    std::string text;
    for (int i = 0; i < data.num_cld; i++) {
        text += std::string(i ? " " : "") + data.cloud[i].cover;
        if (data.cloud[i].height != miss)
            text += std::to_string(static_cast<int>(data.cloud[i].height / 100));
    }
    return text;
}

void expectReport(const Row& e, const SfcData& data) {
    SCOPED_TRACE(e.text("id"));
    EXPECT_EQ(data.getTime(), e.integer("hhmm"));
    EXPECT_NEAR(data.t, e.number("t"), 0.06);
    EXPECT_NEAR(data.td, e.number("td"), 0.06);
    EXPECT_EQ(data.dir, e.number("dir"));
    EXPECT_EQ(data.spd, e.number("spd"));
    EXPECT_EQ(data.gust, e.number("gust"));
    EXPECT_NEAR(data.alt, e.number("alt"), 0.011); // millibars are cut to hundredths of an inch
    EXPECT_NEAR(data.slp, e.number("slp"), 0.01);
    EXPECT_NEAR(data.vis, e.number("vis"), 0.011);
    EXPECT_EQ(getSky(data), e.text("sky"));
    EXPECT_STREQ(data.weather, e.text("weather"));
    EXPECT_NEAR(data.ptend, e.number("ptend"), 0.01);
    EXPECT_NEAR(data.prec1, e.number("prec1"), 0.01);
    EXPECT_NEAR(data.max_t, e.number("max_t"), 0.06);
    EXPECT_NEAR(data.min_t, e.number("min_t"), 0.06);
}
} // namespace

// Real hours, each value read by eye in the text of the report that stands above it.
TEST_F(ObsConvTest, RealHoursSayWhatTheirReportsSay) {
    const struct {
        const char* name;
        const char* year;
        long rows;
    } caches[] = {{"metars-20141218-0758.csv", "2014", 4538},
                  {"metars-20250127-2225.csv", "2025", 4909}};
    Orv::setDatabasePath(ORV_DATA);
    Orv::putResrc("file_path", ORV_DATA);
    for (const auto& cache : caches) {
        const fs::path path = fs::path(ORV_SHARED_DATA) / cache.name;
        if (!fs::exists(path))
            GTEST_SKIP() << path << " isn't there";
        fs::remove_all("out");
        ASSERT_EQ(convert({path.string()}), Orv::NOERR) << errors;

        std::map<std::string, SfcData> reports;
        long accounted = 0;
        for (const auto& entry : fs::directory_iterator("out")) {
            const auto hour = readHour(entry.path().c_str());
            accounted += static_cast<long>(hour.size());
            reports.insert(hour.begin(), hour.end());
        }
        const auto last = printed.rfind('\n', printed.size() - 2) + 1;
        accounted += std::stol(printed.substr(last));
        EXPECT_EQ(accounted, cache.rows) << printed;
        for (const Row& expected : readTable("surface/reports.txt"))
            if (!std::strcmp(expected.text("year"), cache.year))
                expectReport(expected, reports[expected.text("id")]);
    }
}
