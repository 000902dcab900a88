#include "ORV/ObsConv.h"

#include "ORV/SfcFile.h"
#include "ORV/Strings.h"

#include "frame/FrameFixture.h"
#include <gtest/gtest.h>

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

TEST_F(ObsConvTest, BadInputWritesNothing) {
    const std::string good = "KDCA,2025-01-27T17:55:00Z,METAR,10,4,1,1,5,x\n";
    writeFile("good.csv", names + good);
    writeFile("cut.csv", names + good + "KIAD,2025-01-27T17");
    writeFile("empty.csv", "");
    writeFile("foreign.csv", "a,b\n1,2\n");
    writeFile("nothing.csv", names + ",,,,,,,,\n");
    writeFile("out/keep", "kept");
    const struct {
        const char* file;
        Orv::Error status;
        const char* word;
    } cases[] = {
        {"absent.csv", Orv::NOFILE, "absent.csv: can't be opened"},
        {"cut.csv", Orv::NOINPUT, "cut.csv: line 3: "},
        {"empty.csv", Orv::NOINPUT, "empty.csv: line 0: "},
        {"foreign.csv", Orv::NOINPUT, "foreign.csv: line 2: "},
        {"nothing.csv", Orv::NODATA, "nothing.csv: line 2: "},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(convert({"good.csv", c.file}), c.status) << c.file;
        EXPECT_NE(errors.find(c.word), std::string::npos) << errors;
        EXPECT_EQ(printed, "");
        EXPECT_EQ(countFiles(), 1) << c.file;
    }
    EXPECT_EQ(convert({}), Orv::BADPARAM);
    Orv::putResrc("type", "xml");
    EXPECT_EQ(convert({"good.csv"}), Orv::BADPARAM);
    Orv::putResrc("type", "orv");
    Orv::putResrc("city_file", "absent.cty");
    EXPECT_EQ(convert({"good.csv"}), Orv::NODBASE);
    Orv::putResrc("city_file", "none");
    EXPECT_EQ(convert({"good.csv"}), Orv::NOERR) << errors;
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
/// What a reader of a report finds in it.
class Expected {
public:
    const char* id;
    int hhmm;
    double t, td; // C
    double dir, spd, gust;
    double alt, slp, vis;
    const char* sky; // cover and hundreds of feet
    const char* weather;
    double ptend = miss, prec1 = miss, max_t = miss, min_t = miss; // mb in 3 hours, mm, C
};

const Expected hours_2014[] = {
    // KADW 180758Z 27005KT 10SM BKN048 02/M06 A3008 RMK AO2A SLP191 T00221056
    {"KADW", 758, 2.2, -5.6, 270, 5, miss, 30.08, 1019.1, 10, "B48", ""},
    // KNUW 180756Z 11006KT 10SM -RA SCT012 SCT024 BKN055 08/06 A2992 RMK AO2 SLP134 P0001
    // T00830056 401060056 $
    {"KNUW", 756, 8.3, 5.6, 110, 6, miss, 29.92, 1013.4, 10, "S12 S24 B55", "!-RA", miss, 0.254,
     10.6, 5.6},
    // KHVR 180753Z AUTO 00000KT 1/2SM FZFG VV003 M05/M06 A2992 RMK AO2 SLP167 I1001 T10501056
    {"KHVR", 753, -5, -5.6, 0, 0, miss, 29.92, 1016.7, 0.5, "X3", "!FZFG"},
    // LGKL 180750Z 00004KT 2000 -TSRA BR FEW020CB SCT025 BKN080 11/10 Q1016
    {"LGKL", 750, 11, 10, miss, 4, miss, 30.00, miss, 1.24, "F20 S25 B80", "!-TSRA_BR"},
    // ESUD 180750Z AUTO 13003KT 100V170 9000 OVC004/// M08/M09 Q0992
    {"ESUD", 750, -8, -9, 130, 3, miss, 29.29, miss, 5.59, "O4", ""},
    // BGSF 180750Z AUTO 08011KT 9999NDV NCD M27/M31 Q1003
    {"BGSF", 750, -27, -31, 80, 11, miss, 29.62, miss, 6.21, "C", ""},
    // CXMY 180700Z AUTO 07/06 RMK AO1 5PAST HR M P0021 T00660059 50055
    {"CXMY", 700, 6.6, 5.9, miss, miss, miss, miss, miss, miss, "", "", 5.5, 5.334},
    // CWIY 180700Z AUTO 01003KT M03/M03 RMK AO1 SLP060 T10301032 56016
    {"CWIY", 700, -3, -3.2, 10, 3, miss, miss, 1006, miss, "", "", -1.6},
    // WMKD 180700Z 33005KT 0300 +TSRA FEW000 FEW017CB SCT023 OVC140 25/23 Q1009 NOSIG
    {"WMKD", 700, 25, 23, 330, 5, miss, 29.79, miss, 0.19, "F0 F17 S23 O140", "!+TSRA"},
    // KMWN 180652Z 33038KT 1/16SM -SN FZFG BLSN VV000 M09/M09 RMK VRY LGT ICG
    {"KMWN", 652, -9, -9, 330, 38, miss, miss, miss, 0.0625, "X0", "!-SN_FZFG_BLSN"},
};

const Expected hours_2025[] = {
    // KIKT 272225Z AUTO VRB04KT 10SM SCT028 BKN033 OVC050 22/12 A3011 RMK A01
    {"KIKT", 2225, 22, 12, miss, 4, miss, 30.11, miss, 10, "S28 B33 O50", ""},
    // CYZE 272224Z AUTO 27027G34KT 4SM -SN BKN015 OVC020 M01/M02 A2925 RMK SLP914
    {"CYZE", 2224, -1, -2, 270, 27, 34, 29.25, 991.4, 4, "B15 O20", "!-SN"},
    // URRP 272223Z 13002MPS 0100 0050NE R05/0400N FG VV000 00/00 Q1025 R05/CLRD70 NOSIG RMK ...
    {"URRP", 2223, 0, 0, 130, 4, miss, 30.27, miss, 0.06, "X0", "!FG"},
    // LSMD 272220Z AUTO 21005KT 160V250 9999NDV -SHRA SCT032 BKN037 OVC048 06/04 Q1003 RMK
    {"LSMD", 2220, 6, 4, 210, 5, miss, 29.62, miss, 6.21, "S32 B37 O48", "!-SHRA"},
    // K40B 272216Z AUTO 20015G24KT 170V280 M02/M06 A2920 RMK AO1 PK WND 20029/2155 WSHFT 2155
    // SLP913 T10191064 56036
    {"K40B", 2216, -1.9, -6.4, 200, 15, 24, 29.20, 991.3, miss, "", "", -3.6},
    // KZPH 272215Z AUTO 29011KT 10SM CLR 21/11 A3014 RMK A02 T02070108
    {"KZPH", 2215, 20.7, 10.8, 290, 11, miss, 30.14, miss, 10, "C", ""},
    // SGES 272200Z 12006KT 9999 SCT030 FEW040TCUBKN070 27/25 Q1009
    {"SGES", 2200, 27, 25, 120, 6, miss, 29.79, miss, 6, "S30 F40 B70", ""},
    // CYKY 272200Z 27017KT 15SM FEW060 FEW070 FEW110 SCT210 SCT240 M01/M05 A2988 RMK ... SLP152
    {"CYKY", 2200, -1, -5, 270, 17, miss, 29.88, 1015.2, 15, "F60 F70 F110 S210 S240", ""},
    // EQYG 272157Z AUTO 00000KT 10SM CLR 12/ A3021 RMK AO2 SLP224 T0122 401890083 PWINO $
    {"EQYG", 2157, 12.2, miss, 0, 0, miss, 30.21, 1022.4, 10, "C", "", miss, miss, 18.9, 8.3},
    // KMWN 272149Z 25063G72KT 80SM SCT030 BKN080 M13/M18 RMK BLSN AT STA
    {"KMWN", 2149, -13, -18, 250, 63, 72, miss, miss, 80, "S30 B80", ""},
};

std::string getSky(const SfcData& data) {
    std::string text;
    for (int i = 0; i < data.num_cld; i++) {
        text += std::string(i ? " " : "") + data.cloud[i].cover;
        if (data.cloud[i].height != miss)
            text += std::to_string(static_cast<int>(data.cloud[i].height / 100));
    }
    return text;
}

void expectReport(const Expected& e, const SfcData& data) {
    SCOPED_TRACE(e.id);
    EXPECT_EQ(data.getTime(), e.hhmm);
    EXPECT_NEAR(data.t, e.t, 0.06);
    EXPECT_NEAR(data.td, e.td, 0.06);
    EXPECT_EQ(data.dir, e.dir);
    EXPECT_EQ(data.spd, e.spd);
    EXPECT_EQ(data.gust, e.gust);
    EXPECT_NEAR(data.alt, e.alt, 0.011); // millibars are cut to hundredths of an inch
    EXPECT_NEAR(data.slp, e.slp, 0.01);
    EXPECT_NEAR(data.vis, e.vis, 0.011);
    EXPECT_EQ(getSky(data), e.sky);
    EXPECT_STREQ(data.weather, e.weather);
    EXPECT_NEAR(data.ptend, e.ptend, 0.01);
    EXPECT_NEAR(data.prec1, e.prec1, 0.01);
    EXPECT_NEAR(data.max_t, e.max_t, 0.06);
    EXPECT_NEAR(data.min_t, e.min_t, 0.06);
}
} // namespace

// Real hours, each value read by eye in the text of the report that stands above it.
TEST_F(ObsConvTest, RealHoursSayWhatTheirReportsSay) {
    const struct {
        const char* name;
        long rows;
        const Expected (&reports)[10];
    } caches[] = {
        {"metars-20141218-0758.csv", 4538, hours_2014},
        {"metars-20250127-2225.csv", 4909, hours_2025},
    };
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
        for (const Expected& expected : cache.reports)
            expectReport(expected, reports[expected.id]);
    }
}
