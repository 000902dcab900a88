#include "ORV/Domain.h"
#include "ORV/DomainTool.h"
#include "ORV/Orv.h"
#include "ORV/Region.h"
#include "ORV/String.h"

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
    class Form {
    public:
        const char* text;
        DomainVal val;
    };
    const Form forms[] = {
        {"merc,3,4,11,9,2,1", makeVal(3, 3, 4, 11, 9, 2, 1)},
        {"merc,3,4,2,1", makeVal(3, 3, 4, 25, 17, 2, 1)},
        {"merc,3,4", makeVal(3, 3, 4, 25, 17, 1.2f, 1.2f)},
        {"3,4,11,9,2,1", makeVal(1, 3, 4, 11, 9, 2, 1)},
        {"3,-4.5", makeVal(1, 3, -4.5f, 25, 17, 1.2f, 1.2f)},
        {"merc,KOKC,11,9,2,1", makeVal(3, 35.389f, -97.6f, 11, 9, 2, 1)},
        {"KOKC,2", makeVal(1, 35.389f, -97.6f, 25, 17, 2, 2)},
        {"PAOM", makeVal(1, 64.511f, -165.44f, 25, 17, 1.2f, 1.2f)},
        {"ID:kokc", makeVal(1, 35.389f, -97.6f, 25, 17, 1.2f, 1.2f)},
        {"id:other.cty:EEEE", makeVal(1, -10, 20, 25, 17, 1.2f, 1.2f)},
        {"skewt,-10,700,9", makeVal(40, -10, 700, 12, 11, 9, 0.235f)},
        {"skewt,-10,700", makeVal(40, -10, 700, 12, 11, 4.5f, 0.1175f)},
        {"zoom,3,4", makeVal(50, 3, 4, 25, 17, 1, 1)},
        {"size,30,20.9", makeVal(51, miss, miss, 30, 20, miss, miss)},
        {"home", makeVal(2, 10, 20, 30, 20, 1, 1)},
    };
    for (const Form& form : forms) {
        DomainVal val;
        EXPECT_EQ(DomainTool::decode(val, form.text), 1) << form.text;
        EXPECT_TRUE(DomainVal::compare(val, form.val)) << form.text;
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
    class Corner {
    public:
        const char* region;
        float lat, lon;
        const char* what;
    };
    const Corner corners[] = {
        {"us", 24.55f, -81.78f, "Key West"},
        {"us", 49.38f, -95.15f, "the Northwest Angle"},
        {"alaska", 71.39f, -156.48f, "Point Barrow"},
        {"alaska", 51.3f, -179, "Amchitka Pass"},
        {"hawaii", 22.2f, -159.4f, "Kauai"},
        {"russia", 66, -170, "Cape Dezhnev"},
        {"russia", 54.7f, 20.5f, "Kaliningrad"},
        {"new_zealand", -34.4f, 172.7f, "Cape Reinga"},
        {"fiji", -16.8f, -179.9f, "Taveuni"},
        {"chile", -55.9f, -67.3f, "Cape Horn"},
        {"united_kingdom", 60.8f, -0.8f, "Unst"},
        {"europe", 36, -5.6f, "Tarifa"},
        {"antarctica", -63.3f, -57, "Hope Bay"},
        {"world", 89, 179, "the corner"},
        {"world_pacific", -89, 1, "the corner"},
        {"pacific", -33.9f, 151, "Sydney"},
        {"northern_hemisphere", 0, 35, "the equator"},
    };
    for (const Corner& corner : corners) {
        Domain domain;
        ASSERT_EQ(DomainTool::decode(domain, corner.region), 1) << corner.region;
        EXPECT_TRUE(domain.within(EarthPoint(corner.lat, corner.lon)))
            << corner.region << " without " << corner.what;
    }
}
