#include "ORV/CityFile.h"
#include "ORV/CityHash.h"
#include "ORV/CityTool.h"
#include "ORV/Domain.h"
#include "ORV/EarthPoint.h"
#include "ORV/Orv.h"
#include "ORV/StatPrior.h"
#include "ORV/Strings.h"

#include "Table.h"
#include "frame/FrameFixture.h"
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

using namespace ORV;

namespace {
const char small_db[] = ORV_TEST_DATA "/surface/db";

class City : public FrameFixture {
protected:
    City() { Orv::setDatabasePath(small_db); }

    std::string write(const std::string& text) const {
        writeFile("list.cty", text);
        return (folder / "list.cty").string();
    }

    std::vector<CityData> readAll(const std::string& text) const {
        std::vector<CityData> found;
        CityFile file(write(text).c_str());
        CityData city;
        while (file.read(city))
            found.push_back(city);
        return found;
    }

    /// Ten degrees square around 40 N 77 W.
    Domain domain{"ll,40,-77,11,11,1,1"};
};

TEST_F(City, FieldsOfALine) {
    const auto found = readAll("Fort_Nowhere CO US KXYZ 4 -39.5 104.25 9000 72469 17\n"
                               "High -- -- KHGH *2 1 2 9001 99999\n");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_STREQ(found[0].name, "Fort_Nowhere");
    EXPECT_STREQ(found[0].state, "CO");
    EXPECT_STREQ(found[0].region, "US");
    EXPECT_STREQ(found[0].id, "KXYZ");
    EXPECT_EQ(found[0].prior, 4);
    EXPECT_EQ(found[0].lat, -39.5F);
    EXPECT_EQ(found[0].lon, 104.25F);
    EXPECT_EQ(found[0].el, 9000);
    EXPECT_STREQ(found[0].wmo, "72469");
    EXPECT_EQ(found[0].num, 17);
    EXPECT_EQ(found[1].prior, 2) << "behind the mark";
    EXPECT_EQ(found[1].el, Const::MISS);
    EXPECT_STREQ(found[1].wmo, "");
    EXPECT_EQ(found[1].num, 17) << "an absent number stays";
}

TEST_F(City, DamagedLinesDontTakeValuesOfTheLineBefore) {
    const std::string good = "Good CO US KGUD 4 39 104 50 72469 17\n";
    for (const char* line : {"Cut CO US KCUT 3\n", "Cut CO US KCUT 3 north 105 60 72470\n",
                             "Cut CO US KCUT 3 inf 105 60 72470\n"}) {
        const auto found = readAll(good + "\n   \n" + line + good);
        ASSERT_EQ(found.size(), 3U) << line;
        EXPECT_STREQ(found[1].id, "KCUT") << line;
        EXPECT_EQ(found[1].lat, Const::MISS) << line;
        EXPECT_STREQ(found[1].wmo, "") << line;
        EXPECT_EQ(found[1].num, 0) << line;
        EXPECT_EQ(found[2].lat, 39) << line;
    }
}

TEST_F(City, TableHoldsTheStationsOfTheMap) {
    CityHash table;
    CityHashData found;
    EXPECT_EQ(table.setup("none.such", domain, 8), 0);
    EXPECT_EQ(table.setup("stations.cty", domain, 8), 1);
    EXPECT_EQ(table.getNum(), 3);
    EXPECT_EQ(table.get("KNEA", found), 1) << "within three grid steps";
    EXPECT_EQ(table.get("CFAR", found), 0) << "off the map";
    EXPECT_EQ(table.get("KHID", found), 0) << "priority 9";
    EXPECT_EQ(table.setup("stations.cty"), 1);
    EXPECT_EQ(table.getNum(), 5);
    EXPECT_EQ(table.setup("none.such"), 0);
    EXPECT_EQ(table.getNum(), 0) << "nothing is left of the last file";
}

TEST_F(City, TableIsFoundByEachKey) {
    CityHash table("stations.cty");
    for (const Row& row : readTable("surface/keys.txt")) {
        CityHashData found;
        EXPECT_EQ(table.get(row.text("text"), found), *row.text("id") != 0) << row.text("text");
        EXPECT_STREQ(found.getId(), row.text("id")) << row.text("text");
    }
    CityHashData found;
    EXPECT_EQ(table.get(2, "  400  -770", found), 1);
    EXPECT_STREQ(found.getId(), "KAAA");
    EXPECT_EQ(table.get(0, "72001", found), 0);
    EXPECT_EQ(table.get(1, "", found), 1) << "one of those without a number";

    CityHash five(write("A -- -- ABCDE 1 1 2 3 99999\n").c_str());
    EXPECT_EQ(five.get("bABCDE", found), 1) << "the five characters behind a b";
    EXPECT_EQ(five.get("bABCD", found), 0);
}

TEST_F(City, SelectionResourceChoosesStations) {
    Orv::putResrc("identifier", "P<0:Lat<41,Fifth_");
    CityHash table;
    table.setup("stations.cty", domain, 8);
    EXPECT_EQ(table.getNum(), 2);
    Orv::putResrc("identifier", "XXXX");
    table.setup("stations.cty", domain, 8);
    EXPECT_EQ(table.getNum(), 0);
    table.setup("stations.cty");
    EXPECT_EQ(table.getNum(), 5) << "the resource is for maps";
}

TEST_F(City, Query) {
    CityData city = readAll("Denver_Intl CO US KDEN 2 39.85 -104.65 1640 72565 1\n").at(0);
    const auto compare = [&city](const char* list) {
        return CityTool::compareData(Strings(list, ','), city);
    };
    for (const Row& row : readTable("surface/queries.txt"))
        EXPECT_EQ(compare(row.text("query")), row.integer("answer")) << row.text("query");
    EXPECT_EQ(compare("X,Y,KDEN,Denver"), 2);
    EXPECT_EQ(compare("ST=NM,ST=CO"), 1);

    city.el = city.lat = Const::MISS;
    for (const char* test : {"Elev<1639", "Lat<39.8", "Ra<40.01:-105.04:45"})
        EXPECT_EQ(compare(test), -1) << test << ", not known";
}

TEST_F(City, SearchTakesTheFirstStationThatAnswers) {
    CityData city;
    EXPECT_EQ(CityTool::search("stations.cty", "far_north", city), 1);
    EXPECT_STREQ(city.id, "CFAR");
    EXPECT_EQ(CityTool::search("stations.cty", "72001", city), 1);
    EXPECT_STREQ(city.id, "KAAA");
    EXPECT_EQ(CityTool::search("stations.cty", "", city), 0) << "not a station without a number";
    EXPECT_EQ(CityTool::search("None", "KAAA", city), 0);

    EarthPoint point(1, 2, 3);
    EXPECT_EQ(CityTool::locate("stations.cty", "kbbb", point), 1);
    EXPECT_EQ(point.lat, 41);
    EXPECT_EQ(point.lon, -76);
    EXPECT_EQ(point.elev, 50);
    EXPECT_EQ(CityTool::locate("stations.cty", "XXXX", point), 0);
    EXPECT_EQ(point.lat, Const::MISS);
    Orv::putResrc("city_file", "stations.cty");
    EXPECT_EQ(CityTool::locate(nullptr, "KBBB", point), 1);
}

TEST_F(City, CallLettersAndWmoNumbers) {
    char id[6], wmo[6];
    for (const Row& row : readTable("surface/ids.txt")) {
        EXPECT_EQ(CityTool::toId(row.text("wmo"), id), 1);
        EXPECT_STREQ(id, row.text("id")) << row.text("wmo");
    }
    for (const Row& row : readTable("surface/numbers.txt")) {
        EXPECT_EQ(CityTool::toWmo(row.text("id"), wmo), 1) << row.text("id");
        EXPECT_STREQ(wmo, row.text("wmo")) << row.text("id");
    }
    for (const char* other : {"72403", "K240", "K24033", "KDEN1", "KQ1X3", ""})
        EXPECT_EQ(CityTool::toWmo(other, wmo), 0) << other;
}

TEST(StatPrior, LimitFollowsTheHeightOfTheArea) {
    const struct {
        float size;
        int limit;
    } rows[] = {{100.5F, 0}, {100, 1},  {50, 2},   {25.1F, 2}, {12.5F, 4},      {6.6F, 4},
                {6.5F, 5},   {3.2F, 6}, {1.6F, 7}, {0, 7},     {Const::MISS, 7}};
    StatPrior prior;
    for (const auto& row : rows) {
        prior.setSize(row.size);
        EXPECT_EQ(prior.get(), row.limit) << row.size;
    }
}

TEST(StatPrior, TextMovesOrFixesTheLimit) {
    const struct {
        const char* text;
        int limit;
        bool fixed;
    } rows[] = {{"+2", 3, false}, {"-1", 0, false},  {"-2", -1, false}, {"6", 6, true},
                {"+", 1, false},  {"all", 1, false}, {"", 1, false}};
    StatPrior prior;
    for (const auto& row : rows) {
        EXPECT_EQ(prior.set(60, row.text), 1);
        EXPECT_EQ(prior.get(), row.limit) << row.text;
        EXPECT_EQ(prior.fixed, row.fixed) << row.text;
    }
    prior.set(200, "-1");
    EXPECT_FALSE(prior.check(0));
    EXPECT_EQ(prior.set(60, nullptr), 0);
    EXPECT_STREQ(prior.param, "-1");
    prior.set(4);
    EXPECT_TRUE(prior.check(4));
    EXPECT_FALSE(prior.check(5));
}

TEST(StationList, HoldsEveryStationWithItsKeys) {
    CityHash table(ORV_DATA "/sao.cty");
    EXPECT_EQ(table.getNum(), 7443);
    CityHashData washington;
    ASSERT_EQ(table.get("72405", washington), 1);
    EXPECT_STREQ(washington.getId(), "KDCA");
    EXPECT_NEAR(washington.getLat(), 38.85, 0.01);
    EXPECT_NEAR(washington.getLon(), -77.03, 0.01);
    int main_stations = 0;
    for (const char* found = table.first(); found; found = table.hash.next())
        main_stations += reinterpret_cast<const CityHashData*>(found)->city.prior == 0;
    EXPECT_EQ(main_stations, 207);
}
} // namespace
