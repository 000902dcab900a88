#include "ORV/SfcRaw.h"

#include "ORV/Datum.h"
#include "ORV/Orv.h"
#include "ORV/Raw.h"
#include "ORV/SfcData.h"
#include "ORV/SfcFile.h"

#include "Table.h"
#include "frame/FrameFixture.h"
#include <gtest/gtest.h>

#include <string>

using namespace ORV;

namespace {
TEST(Data, CellsOutsideAreMissingAndStaySo) {
    Data data;
    for (const int row : {-1, 0, 399, 400, 100000}) {
        EXPECT_EQ(data.getValue(row), Const::MISS) << row;
        EXPECT_EQ(data.getString(row), nullptr) << row;
        EXPECT_EQ(data.getId(row), nullptr) << row;
        EXPECT_EQ(data.getLoc(row).lat, Const::MISS) << row;
    }
    EXPECT_EQ(data.setValue(-1, 5), 0);
    EXPECT_EQ(data.setValue(0, 1, 5), 0) << "no such field";
    EXPECT_EQ(data.getNum(), 0);
    EXPECT_EQ(data.setValue(601, 5), 0) << "grows once, to 600 rows";
    EXPECT_EQ(data.limit, 600);
    EXPECT_EQ(data.getIndex("x"), -1);
}

TEST(Data, RowsOfOtherTables) {
    Data from(3);
    from.setType(1, Data::STRINGS);
    from.add("A", EarthPoint(1, 2), 10, 20);
    from.setString(0, 1, "text");
    from.setValue(0, 2, 30);
    Data to(2);
    to.setType(1, Data::STRINGS);
    EXPECT_EQ(to.add(from, 0), 1);
    EXPECT_EQ(to.add(from, 0, 1), 1);
    EXPECT_EQ(to.add(from, 0, 2), 0) << "no third field here";
    EXPECT_EQ(to.add(from, 1), 0);
    ASSERT_EQ(to.getNum(), 2);
    EXPECT_STREQ(to.getId(0), "A");
    EXPECT_EQ(to.getLoc(0).lon, 2);
    EXPECT_EQ(to.getValue(0, 0), 10);
    EXPECT_STREQ(to.getString(0, 1), "text");
    EXPECT_EQ(to.getValue(1, 0), Const::MISS) << "only the field asked for";
    EXPECT_STREQ(to.getString(1, 1), "text");
    EXPECT_EQ(to.add(to, 0), 1) << "of the table itself";
    EXPECT_STREQ(to.getString(2, 1), "text");

    EXPECT_EQ(to.setValue(3, 1, 5), 0) << "a field of texts";
    EXPECT_EQ(to.getNum(), 4) << "the row is used all the same";
    EXPECT_EQ(to.setString(3, 0, "x"), 0);
    to.setType(0, Data::FLOATS);
    EXPECT_EQ(to.getValue(0), Const::MISS) << "emptied";
}

class SfcRawTest : public FrameFixture {
protected:
    SfcRawTest() {
        Orv::setDatabasePath(ORV_TEST_DATA "/surface/db:" ORV_DATA);
        Orv::putResrc("city_file", "stations.cty");
    }

    static SfcData makeReport(const char* id, float t) {
        SfcData report;
        report.setId(id);
        report.t = t;
        report.dir = 180;
        report.spd = 10;
        return report;
    }

    /// An hour of reports: from the list under two names, from a ship, and three that have no place
    /// on the map.
    static const char* writeHour() {
        SfcFile file;
        file.setDate(Date(2025, 1, 27, 12, 0, 0));
        file.open("hour.cvt", 1, SfcFile::ORV);
        file.write(makeReport("KAAA", 20));
        file.write(makeReport("72001", 21));
        file.write(makeReport("KBBB", 22));
        SfcData ship = makeReport("SHIP", 23);
        ship.setLoc(38, -75);
        file.write(ship);
        file.write(makeReport("XUNK", 24));
        file.write(makeReport("CFAR", 25));
        SfcData far_ship = makeReport("FARS", 26);
        far_ship.setLoc(0, -30);
        file.write(far_ship);
        file.close();
        return "@hour.cvt";
    }

    static std::string ids(const Raw& raw) {
        std::string all;
        for (int row = 0; row < raw.getNum(); row++)
            all += std::string(row ? " " : "") + raw.getId(row);
        return all;
    }

    /// Ten degrees high, so that priorities up to 4 are plotted.
    Domain domain{"ll,40,-77,11,11,1,1"};
};

TEST_F(SfcRawTest, StationsByPriority) {
    for (const Row& row : readTable("surface/stations_by_priority.txt")) {
        SfcRaw sfc;
        sfc.setDomain(domain);
        sfc.setVariable("temp");
        sfc.setParam(row.text("params"));
        sfc.setFilename(writeHour());
        Raw raw;
        EXPECT_EQ(sfc.compute(raw), 1) << row.text("params");
        EXPECT_EQ(ids(raw), row.text("ids")) << row.text("params");
    }
}

TEST_F(SfcRawTest, PlaceAndElevationOfAReport) {
    SfcRaw sfc;
    sfc.setDomain(domain);
    sfc.createHash();
    Datum datum;
    SfcData report = makeReport("KAAA", 20);
    EXPECT_TRUE(sfc.getInfo(report, datum));
    EXPECT_EQ(datum.ept.lon, -77);

    report.setLoc(41.5F, -78);
    report.elev = 5;
    EXPECT_TRUE(sfc.getInfo(report, datum));
    EXPECT_EQ(datum.ept.lat, 41.5F) << "its own place";
    EXPECT_EQ(report.elev, 100) << "the elevation of the list";

    report = makeReport("SHIP", 20);
    report.setLoc(38, -75);
    EXPECT_FALSE(sfc.getInfo(report, datum)) << "default priority 5";
    EXPECT_EQ(report.elev, 0);
    EXPECT_STREQ(datum.id, "SHIP");
}

TEST_F(SfcRawTest, ColumnsTakeUnitsTextAndDescription) {
    SfcRaw sfc("va=x,loc_pr=0");
    sfc.setDomain(domain);
    sfc.setVariable("temp[F],pres,id[,data],uwndg,vwndg");
    sfc.setFilename(writeHour());
    Raw raw;
    ASSERT_EQ(sfc.compute(raw), 1);
    ASSERT_EQ(raw.getFields(), 5);
    ASSERT_EQ(raw.getNum(), 3);
    EXPECT_NEAR(raw.getValue(0, 0), 68, 0.1);
    EXPECT_EQ(raw.getValue(0, 1), Const::MISS);
    EXPECT_STREQ(raw.getString(2, 2), "SHIP");
    EXPECT_NEAR(raw.getValue(0, 3), 0, 1e-4);
    EXPECT_NEAR(raw.getValue(0, 4), 5.144, 1e-3);
    EXPECT_STREQ(raw.getUnits(0), "F");
    EXPECT_STREQ(raw.getUnits(1), "mb");
    EXPECT_EQ(raw.vs[0].level.l1.type, 1) << "surface";
    EXPECT_EQ(raw.vs[1].level.l1.type, 101) << "sea level";
    EXPECT_NE(std::string(raw.getInfo(0)).find("Temperature"), std::string::npos);
    EXPECT_EQ(raw.getDate().hour, 12);
}

TEST_F(SfcRawTest, WindsFollowTheGrid) {
    SfcRaw sfc;
    // North is up at 100 W, so 23 degrees further east a wind to the north leans to the left.
    sfc.setDomain(Domain("ps:90:-100,40,-77,11,11,1,1"));
    sfc.setVariable("wind");
    sfc.setFilename(writeHour());
    Raw raw;
    ASSERT_EQ(sfc.compute(raw), 1);
    ASSERT_EQ(raw.getFields(), 2) << "by its name in the variable file";
    EXPECT_NEAR(raw.getValue(0, 0), -2.010, 0.01);
    EXPECT_NEAR(raw.getValue(0, 1), 4.735, 0.01);

    // A speed in knots is knots in the table.
    sfc.setVariable("vwndg[knt]");
    ASSERT_EQ(sfc.compute(raw), 1);
    EXPECT_NEAR(raw.getValue(0, 0), 9.205, 0.02);
    EXPECT_STREQ(raw.getUnits(0), "knt");
}

} // namespace
