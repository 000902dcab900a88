#include "ORV/Domain.h"
#include "ORV/DomainTool.h"
#include "ORV/Orv.h"
#include "ORV/Region.h"
#include "ORV/String.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

using namespace ORV;

namespace {
constexpr float miss = Const::MISS;

class DomainText : public ::testing::Test {
protected:
    DomainText() { Orv::setDatabasePath(ORV_TEST_DATA "/earth/db"); }
    ~DomainText() override {
        Orv::resrc.clear();
        Orv::setDatabasePath(nullptr);
    }

    // What decode says to standard error.
    static std::string warningOf(const char* text) {
        DomainVal val;
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(DomainTool::decode(val, text), 0) << text;
        return ::testing::internal::GetCapturedStderr();
    }
};

DomainVal makeVal(int proj, float clat, float clon, int nx, int ny, float dx, float dy) {
    DomainVal val;
    val.proj = proj;
    val.clat = clat;
    val.clon = clon;
    val.nx = nx;
    val.ny = ny;
    val.dx = dx;
    val.dy = dy;
    return val;
}

std::string text(const Domain& domain) {
    String out;
    domain.toString(out);
    return out.get();
}

using Regions = DomainText;
} // namespace

TEST_F(DomainText, AllFormsWithTheirDefaults) {
    for (const Row& row : readTable("earth/domain_texts.txt")) {
        const std::vector<float> at = row.numbers("center"), grid = row.numbers("grid");
        DomainVal val;
        EXPECT_EQ(DomainTool::decode(val, row.text("text")), 1) << row.text("text");
        EXPECT_TRUE(DomainVal::compare(
            val, makeVal(row.integer("proj"), at[0], at[1], grid[0], grid[1], grid[2], grid[3])))
            << row.text("text");
    }
}

TEST_F(DomainText, WarnsOfWhatItCannotRead) {
    EXPECT_EQ(warningOf("nowhere,1"), "DomainTool::decode: Invalid plot domain: nowhere,1\n");
    EXPECT_EQ(warningOf("QQQQ"), "DomainTool::setParam: Unable to find: QQQQ\n"
                                 "DomainTool::decode: Invalid plot domain: QQQQ\n");
    EXPECT_EQ(warningOf("id:QQQQ"), "Unable to open region file: " ORV_TEST_DATA
                                    "/earth/db/id\nDomainTool::decode: Invalid plot domain: "
                                    "id:QQQQ\n");
    EXPECT_EQ(warningOf("3,4,11,.5"), "DomainTool::decode: Invalid plot domain: 3,4,11,.5\n");
    EXPECT_EQ(warningOf("loop"), "DomainTool::decode: Invalid plot domain: loop\n");
}

TEST_F(DomainText, ReadsBackWhatItWrites) {
    for (const char* given :
         {"lamb:45:-95:30:60,40.5,-97.25,61,41,0.8,0.8", "merc:e:20:-80:::,0,-80,11,9,2,1",
          "skewt,-10,700", "sat:0:-75::1,0,-75,61,61,2,2"}) {
        Domain domain, back;
        ASSERT_EQ(DomainTool::decode(domain, given), 1) << given;
        ASSERT_EQ(DomainTool::decode(back, text(domain).c_str()), 1) << text(domain);
        EXPECT_TRUE(Domain::compare(domain, back)) << text(domain);
    }
    Domain domain;
    domain.set(makeVal(1, 40, -100, 25, 17, 1.2f, 1.2f));
    EXPECT_EQ(text(domain), "pstereo:40.000000:-100.000000:::,40.000000,-100.000000,25,17,"
                            "1.200000,1.200000");
    domain.ellipse = true;
    domain.proj = 23; // it has no name
    EXPECT_EQ(text(domain).substr(0, 4), ":e:4");
}

TEST_F(DomainText, StrictFormHasNoDefaults) {
    Domain domain;
    EXPECT_EQ(domain.set("merc:0:5:1:2:3,3,4,11,9,2,1"), 1);
    EXPECT_EQ(domain.param[2], 3);
    EXPECT_EQ(domain.ny, 9);
    EXPECT_EQ(domain.set("merc:e:0:5,3,4,11,9,2,1"), 1);
    EXPECT_TRUE(domain.ellipse);
    EXPECT_EQ(domain.plon, 5);
    EXPECT_EQ(domain.set("lamb,3,4,11,9,2,1"), 1);
    EXPECT_EQ(domain.plat, 3);
    EXPECT_EQ(domain.set("ps:90:-100"), 1); // no window
    EXPECT_EQ(domain.limits.xmin, miss);
    Point plot;
    EXPECT_EQ(domain.tran(EarthPoint(60, -100), plot), 1);
    for (const char* bad : {"", "merc,3", "merc,3,4,11.5,9,2,1", "merc,3,4,11,9,2",
                            "merc,3,4,99999999999,9,2,1", ",1,2,3,4,5,6"})
        EXPECT_EQ(domain.set(bad), 0) << bad;
    EXPECT_EQ(domain.set(("merc" + std::string(5000, ':') + ",3,4,11,9,2,1").c_str()), 1);
}

TEST_F(Regions, AreFoundByName) {
    String out;
    EXPECT_EQ(Region::get(nullptr, "HOME", out), 1);
    EXPECT_STREQ(out.get(), "latlon,10,20,30,20,1,1"); // the first of that name
    EXPECT_EQ(Region::get("orv.reg", nullptr, out), 1);
    EXPECT_STREQ(out.get(), "latlon,10,20,30,20,1,1");
    EXPECT_EQ(Region::get(nullptr, "trap", out), 0); // in the tail of a long comment
    EXPECT_EQ(Region::get("single.reg", "any", out), 1);
    EXPECT_STREQ(out.get(), "merc:0:5,3,4,11,9,2,1");
    EXPECT_EQ(Region::get("broken.reg", "else", out), 1); // no number in third place
    EXPECT_STREQ(out.get(), "odd");
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(Region::get("none.reg", "x", out), 0);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Unable to open region file: " ORV_TEST_DATA "/earth/db/none.reg\n");
}

// The regions that come with the program.

class DataRegions : public ::testing::Test {
protected:
    DataRegions() { Orv::setDatabasePath(ORV_DATA); }
    ~DataRegions() override { Orv::setDatabasePath(nullptr); }
};

TEST_F(DataRegions, AllHaveAWindow) {
    std::ifstream in(ORV_DATA "/orv.reg");
    std::string line;
    std::map<std::string, int> times;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        const std::string name = line.substr(0, line.find(' '));
        EXPECT_EQ(++times[name], 1) << name << " comes twice";
        EXPECT_LT(line.size(), 159u) << name;
        Domain domain;
        ASSERT_EQ(DomainTool::decode(domain, name.c_str()), 1) << name;
        EXPECT_GT(domain.getVert(), 0) << name;
        EXPECT_TRUE(domain.within(EarthPoint(domain.clat, domain.clon))) << name;
        // The plot takes its shape from the grid, so cells have to be square.
        EXPECT_EQ(domain.dx, domain.dy) << name;
        const float aspect = domain.getAspect();
        if (name.compare(0, 5, "world") != 0 && name.compare(0, 7, "tropics") != 0) {
            EXPECT_TRUE(aspect > 0.75f && aspect < 1.7f) << name << ' ' << aspect;
        }
    }
    EXPECT_GT(times.size(), 400u);
    for (const char* name : {"us", "globe", "world", "europe", "north_america", "tx", "texas"})
        EXPECT_EQ(times[name], 1) << name;
}

TEST_F(DataRegions, ShowTheCornersOfTheirAreas) {
    for (const Row& corner : readTable("earth/region_corners.txt")) {
        Domain domain;
        ASSERT_EQ(DomainTool::decode(domain, corner.text("region")), 1) << corner.text("region");
        EXPECT_TRUE(domain.within(EarthPoint(corner.number("lat"), corner.number("lon"))))
            << corner.text("region") << " without " << corner.text("what");
    }
}
