#include "ORV/SfcFile.h"

#include "ORV/SfcOrvFile.h"

#include "Table.h"
#include "frame/FrameFixture.h"
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

using namespace ORV;

namespace {
constexpr float miss = Const::MISS;
const std::string head = "ORVSFC\n12Z 27 JAN 25\n";

class SfcFileTest : public FrameFixture {
protected:
    static std::string readAll(const char* path) {
        std::ifstream in(path);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    // The report of one line in a file of 12 hours UTC.
    static SfcData readLine(const std::string& line) {
        writeFile("line.cvt", head + line + "\n");
        SfcFile file("line.cvt");
        SfcData data;
        file.read(data);
        return data;
    }
    // The line that a report is written as.
    static std::string writeLine(const SfcData& data) {
        SfcFile file("out.cvt", 1, SfcFile::ORV);
        file.setDate(Date(2025, 1, 27, 12, Const::MISS, Const::MISS));
        file.write(data);
        EXPECT_EQ(file.close(), 1);
        const std::string text = readAll("out.cvt");
        EXPECT_EQ(text.substr(0, head.size()), head);
        return text.substr(head.size());
    }
    static std::vector<std::string> readIds(const char* path) {
        SfcFile file(path);
        SfcData data;
        std::vector<std::string> ids;
        while (file.read(data))
            ids.push_back(data.id);
        return ids;
    }
};

SfcData makeReport() {
    SfcData data;
    data.setId("KDCA");
    data.setDate(Date(2025, 1, 27, 11, 55, 0));
    data.t = 22.8f;
    data.td = 18.3f;
    data.dir = 270;
    data.spd = 12;
    data.alt = 30.12f;
    data.slp = 1020.1f;
    data.vis = 10;
    data.setCldCover(0, 'S');
    data.setCldHeight(0, 3000);
    data.setCldCover(1, 'B');
    data.setCldHeight(1, 12000);
    data.setWeather("RA");
    data.setLoc(38.9f, -77.0f);
    return data;
}

SfcData makeFullReport() {
    SfcData data = makeReport();
    data.ptend_type = 6;
    data.ptend = -1.4f;
    data.prec1 = 0.508f;
    data.prec3 = 2.54f;
    data.prec6 = 0;
    data.prec12 = 25.4f;
    data.prec24 = 50.8f;
    data.max_t = 25;
    data.max6_t = 23;
    data.min_t = -1;
    data.min6_t = 15;
    data.snow_cov = 25.4f;
    data.setCldType(0, '5');
    data.setCldType(2, '2');
    data.gust = 25;
    data.solar = 120;
    data.sst = 17.5f;
    data.wav_hgt = 2.5f;
    data.wav_per = 8;
    data.elev = 20;
    data.setComment("PK WND 28035/1132 ");
    return data;
}
} // namespace

TEST_F(SfcFileTest, WritesTheLineThatPeopleRead) {
    EXPECT_EQ(writeLine(makeReport()),
              "KDCA 730 649 2712  12 201 10.0 30S,120B RA @1155 L389,-770 $\n");
    SfcData data;
    data.setId("X");
    EXPECT_EQ(writeLine(data), "X -99 -99 -999 -99 -99 -99 -99M - $\n");
    // 2.54 mm are 10 hundredths of an inch, 25.4 cm of snow 10 inches.
    EXPECT_EQ(writeLine(makeFullReport()),
              "KDCA 730 649 2712  12 201 10.0 30S,120B RA @1155 L389,-770 P6-14 p 2 Q10 r 0 q100 "
              "R200 X77.0 x73.4 N30.2 n59.0 S10.0 C5/2 G 25 s120 t17.5 h2.5 e20 w8 "
              "#PK WND 28035/1132 $\n");
}

TEST_F(SfcFileTest, FullReportComesBack) {
    const SfcData wrote = makeFullReport();
    writeLine(wrote);
    SfcFile file("out.cvt");
    SfcData read;
    ASSERT_EQ(file.read(read), 1);
    // Everything but the comment, which keeps the blank before the end mark.
    EXPECT_STREQ(read.comment, "PK WND 28035/1132 ");
    EXPECT_STREQ(read.area, "SHIP");
    float SfcData::*values[] = {
        &SfcData::t,     &SfcData::td,     &SfcData::max_t,  &SfcData::min_t,   &SfcData::max6_t,
        &SfcData::prec1, &SfcData::prec24, &SfcData::prec12, &SfcData::wav_per, &SfcData::wav_hgt,
        &SfcData::sst,   &SfcData::solar,  &SfcData::gust,   &SfcData::elev,    &SfcData::snow_cov,
        &SfcData::lat,   &SfcData::lon,    &SfcData::slp,    &SfcData::alt,     &SfcData::ptend,
    };
    for (const auto value : values)
        EXPECT_NEAR(read.*value, wrote.*value, 0.03);
    EXPECT_EQ(std::string(read.cld_type, 3), "5 2");
    EXPECT_EQ(read.ptend_type, 6);
    EXPECT_EQ(read.date.getSeconds(), wrote.date.getSeconds());
    // A copy of a copy is the same file.
    SfcData again = read;
    const std::string first = writeLine(read);
    file.rewind();
    EXPECT_EQ(writeLine(again), first);
}

TEST_F(SfcFileTest, WindForms) {
    for (const Row& c : readTable("surface/wind_forms.txt")) {
        const SfcData data =
            readLine(std::string("KDCA 730 649 ") + c.text("text") + " 12 201 10 -99M - $");
        EXPECT_EQ(data.dir, c.number("dir")) << c.text("text");
        EXPECT_EQ(data.spd, c.number("spd")) << c.text("text");
        EXPECT_NEAR(data.slp, 1020.1, 0.01) << c.text("text");
    }
    const struct {
        float dir, spd;
        const char* text;
    } writes[] = {
        {278, 12, " 2712 "},   {278, 105, " 275105 "}, {3, 105, " 000105 "},
        {360, 9.7f, " 3609 "}, {270, miss, " -7299 "}, {miss, 12, " -999 "},
    };
    for (const auto& c : writes) {
        SfcData data = makeReport();
        data.dir = c.dir;
        data.spd = c.spd;
        EXPECT_NE(writeLine(data).find(c.text), std::string::npos) << c.text;
    }
    // A wind of variable direction keeps its speed.
    SfcData data = makeReport();
    data.dir = miss;
    data.spd = 4;
    EXPECT_EQ(readLine(writeLine(data)).spd, 4);
}

TEST_F(SfcFileTest, PressuresFindTheirLeadingDigits) {
    for (const Row& c : readTable("surface/pressures_find_their_leading_digits.txt")) {
        const SfcData data = readLine(std::string("KDCA ") + c.text("temp") + " 1 2712 " +
                                      c.text("alt") + " " + c.text("slp") + " 10 -99M - $");
        EXPECT_FLOAT_EQ(data.alt, c.number("inches")) << c.text("alt");
        EXPECT_FLOAT_EQ(data.slp, c.number("mb")) << c.text("slp");
    }
    // In hard frost without an altimeter setting the last digits alone would read as 1098.1.
    const struct {
        float t, alt, slp;
        const char* text;
    } writes[] = {{22.8f, 30.12f, 1063.2f, " 10632 "},
                  {-12, miss, 998.1f, " 9981 "},
                  {5, miss, 998.1f, " 981 "},
                  {5, miss, 940, " 9400 "}};
    for (const auto& c : writes) {
        SfcData data = makeReport();
        data.t = c.t;
        data.alt = c.alt;
        data.slp = c.slp;
        EXPECT_NE(writeLine(data).find(c.text), std::string::npos) << c.text;
    }
}

TEST_F(SfcFileTest, CloudTokens) {
    for (const Row& c : readTable("surface/cloud_tokens.txt")) {
        const SfcData data =
            readLine(std::string("KDCA 730 649 2712 12 201 10 ") + c.text("text") + " !HZ @1155 $");
        EXPECT_EQ(data.num_cld, c.integer("num")) << c.text("text");
        EXPECT_STREQ(data.weather, "!HZ") << c.text("text");
        for (int i = 0; i < 2; i++) {
            EXPECT_EQ(data.cloud[i].cover, c.text("covers")[i]) << c.text("text");
            EXPECT_EQ(data.cloud[i].height, c.numbers("heights")[i]) << c.text("text");
        }
    }
    SfcData data = makeReport();
    data.setCldCover(0, '4');
    data.setCldHeight(1, miss);
    EXPECT_NE(writeLine(data).find(" 30:4,-99B RA "), std::string::npos);
}

TEST_F(SfcFileTest, ReportTimeLiesAroundTheHourOfTheFile) {
    for (const Row& c : readTable("surface/report_time_lies_around_the_hour_of_the_file.txt")) {
        writeFile("a.cvt", std::string("ORVSFC\n") + c.text("file") + "\nKDCA 1 1 1 1 1 1 1 - " +
                               c.text("group") + " $\n");
        SfcFile file("a.cvt");
        SfcData data;
        ASSERT_EQ(file.read(data), 1);
        EXPECT_EQ(data.date.day, c.integer("day")) << c.text("group");
        EXPECT_EQ(data.date.hour, c.integer("hour")) << c.text("group");
        EXPECT_EQ(data.date.min, c.integer("min")) << c.text("group");
    }
}

TEST_F(SfcFileTest, OddLinesGiveWhatTheyHold) {
    SfcData data = readLine("72403 -99 -99");
    EXPECT_EQ(data.wmo, 72403);
    EXPECT_EQ(data.t, miss);
    EXPECT_EQ(readLine("ABCDE 1").wmo, 0);
    EXPECT_EQ(readLine("KDCA 1").wmo, Const::MISS);

    // Each bad group ends its line; what stands before it is kept.
    for (const char* bad : {"Gx G30", "? G30", "Linf,2 G30", "P G30", "G", "L5;6 G30"}) {
        data = readLine(std::string("KDCA 730 649 2712 12 201 10 -99M - s 60 ") + bad);
        EXPECT_EQ(data.solar, 60) << bad;
        EXPECT_EQ(data.gust, miss) << bad;
    }
    data = readLine("KDCA 730 649 2712 12 201 10 -99M - T50 #A=1$ G30 $");
    EXPECT_FLOAT_EQ(data.min_t, 10) << "a file of 12 hours has the minimum";
    EXPECT_STREQ(data.comment, "A=1");
    EXPECT_EQ(data.gust, miss);

    // A line that is too long doesn't become a second report.
    writeFile("long.cvt", head + "KDCA 730 649 2712 12 201 10 -99M - G 30 #" +
                              std::string(500, 'x') + " $\nKIAD 1 1 1 1 1 1 1 - $\n");
    EXPECT_EQ(readIds("long.cvt"), (std::vector<std::string>{"KDCA", "KIAD"}));
}

TEST_F(SfcFileTest, LinesNeverOutgrowTheReader) {
    SfcData data = makeFullReport();
    for (int i = 0; i < SfcData::max_cloud; i++) {
        data.setCldCover(i, '8');
        data.setCldHeight(i, 35000);
    }
    data.setWeather("!+TSRAGR_VCFZFG_BLSN");
    data.setComment((std::string(60, 'a') + "$ \n" + std::string(60, 'b')).c_str());
    data.solar = 1e9f;
    const std::string line = writeLine(data);
    EXPECT_LE(line.size(), 199u);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
    EXPECT_EQ(line.substr(line.size() - 3), " $\n");
    EXPECT_EQ(line.find('$'), line.size() - 2);

    const float wild[] = {miss, 1e30f, -1e30f, INFINITY, NAN, 0};
    for (const float value : wild) {
        data.t = data.dir = data.spd = data.alt = data.slp = data.vis = data.lat = value;
        data.cloud[0].height = data.prec1 = data.ptend = value;
        EXPECT_LE(writeLine(data).size(), 400u);
        EXPECT_EQ(readIds("out.cvt").size(), 1u) << value;
    }
}

TEST_F(SfcFileTest, FormatsAreToldByTheirFirstBytes) {
    writeFile("cdf", "CDF\001xxxxxxxx");
    writeFile("xml", "<?xml version=\"1.0\"?>");
    writeFile("gz", "\x1F\x8B\x08");
    writeFile("orv", "ORVSFC");
    writeFile("short", "ORVS");
    writeFile("empty", "");
    const struct {
        const char* name;
        int type, orv_type;
    } cases[] = {{"cdf", 2, 0},   {"xml", 3, 0},     {"gz", 4, 0},      {"orv", 1, 1},
                 {"short", 0, 0}, {"empty", -1, -1}, {"absent", -1, -1}};
    for (const auto& c : cases) {
        EXPECT_EQ(SfcFile::checkType(c.name), c.type) << c.name;
        EXPECT_EQ(SfcOrvFile::checkType(c.name), c.orv_type) << c.name;
        EXPECT_EQ(SfcFile(c.name).isOpen(), c.type == 1) << c.name;
    }
    EXPECT_EQ(SfcFile::getType("XmlC"), 4);
    EXPECT_EQ(SfcFile::getType("txt"), 0);

    SfcData data;
    EXPECT_EQ(SfcOrvFile("empty").read(data), 0);
    SfcFile plain("xml", 0, SfcFile::PLAIN);
    EXPECT_EQ(plain.read(data) + plain.write(data), 0);
    EXPECT_FALSE(SfcFile("orv", 0, 9).isOpen() || SfcFile("orv", 3, 1).isOpen());
}

TEST_F(SfcFileTest, AppendingKeepsOneHeader) {
    const SfcData data = makeReport();
    EXPECT_EQ(SfcFile("a.cvt", 2, SfcFile::UNKNOWN).isOpen(), false) << "its format is unknown";
    for (int i = 0; i < 2; i++) {
        SfcOrvFile file("a.cvt", 2);
        file.setDate(Date(2025, 1, 27, 12, Const::MISS, Const::MISS));
        EXPECT_EQ(file.write(data), 1);
    }
    EXPECT_EQ(readIds("a.cvt").size(), 2u);
    EXPECT_EQ(readAll("a.cvt").rfind("ORVSFC"), 0u);
    writeFile("b.cvt", "something else\n");
    EXPECT_EQ(SfcOrvFile("b.cvt", 2).isOpen(), false);
    EXPECT_EQ(readAll("b.cvt"), "something else\n");

    EXPECT_EQ(SfcOrvFile("a.cvt", 2).rewind(), 0);

    SfcFile full("/dev/full", 1, SfcFile::ORV);
    ASSERT_TRUE(full.isOpen());
    full.write(data);
    EXPECT_EQ(full.close(), 0) << "a full disk is told at the end";
}
