#include "ORV/SfcGrid.h"

#include "ORV/GridTool.h"
#include "ORV/Grids.h"
#include "ORV/Orv.h"
#include "ORV/SfcData.h"
#include "ORV/SfcFile.h"

#include "TempDir.h"
#include <gtest/gtest.h>

#include <string>

using namespace ORV;

namespace {
class SfcGridTest : public testing::Test {
protected:
    SfcGridTest() {
        Orv::setDatabasePath(ORV_TEST_DATA "/surface/db:" ORV_DATA);
        Orv::putResrc("city_file", "stations.cty");
    }
    ~SfcGridTest() override {
        Orv::resrc.clear();
        Orv::setDatabasePath(nullptr);
    }

    /// Two ships, 2 degrees apart.
    std::string writeHour() {
        const std::string path = dir.path + "/hour";
        SfcFile file;
        file.setDate(Date(2025, 1, 27, 12, 0, 0));
        file.open(path.c_str(), 1, SfcFile::ORV);
        for (const int n : {0, 1}) {
            SfcData ship;
            ship.setId(n ? "EAST" : "WEST");
            ship.setLoc(30, -40 + 2 * n);
            ship.t = 10.0F + 10 * n;
            file.write(ship);
        }
        file.close();
        return "@" + path;
    }
    TempDir dir;
};

TEST_F(SfcGridTest, AnalysesEachItemOnItsDomain) {
    SfcGrid sfc("loc_pr=0,filter=0.5,rad_inf=1,min_sta=1");
    sfc.setVariable("temp,null,temp[F]");
    sfc.setDomain(Domain("ll,30,-39,5,3,1,1"));
    sfc.setFilename(writeHour().c_str());
    Grids grids;
    Grid constant;
    GridTool::valueGrid(constant, 4);
    grids.setGrid(1, constant);
    ASSERT_EQ(sfc.compute(grids), 1);
    ASSERT_EQ(grids.num, 3);
    EXPECT_EQ(grids.getValue(0, 1, 1), 10);
    EXPECT_EQ(grids.getValue(0, 3, 1), 20);
    EXPECT_FLOAT_EQ(grids.getValue(0, 2, 1), 15) << "between the two, at distance 1 from both";
    EXPECT_EQ(grids.getValue(0, 0, 0), Const::MISS) << "beyond the radius";
    EXPECT_EQ(grids.getValue(1, 4, 2), 4);
    EXPECT_NEAR(grids.getValue(2, 1, 1), 50, 1e-3);
    EXPECT_STREQ(grids.grd[2].getUnits(), "F");
    EXPECT_EQ(grids.grd[0].date.hour, 12);
}

TEST_F(SfcGridTest, RefinesTheGrid) {
    const struct {
        const char* param;
        int nx, ny;
    } cases[] = {{"grid=2", 9, 5},  {"grid=1", 5, 3},      {"grid=0", 5, 3},
                 {"grid=-3", 5, 3}, {"grid=x,grid", 5, 3}, {"grid=2000000000", 5, 3}};
    for (const auto& c : cases) {
        SfcGrid sfc(c.param);
        sfc.setParam("loc_pr=0");
        sfc.setVariable("temp");
        sfc.setDomain(Domain("ll,30,-39,5,3,1,1"));
        sfc.setFilename(writeHour().c_str());
        Grids grids;
        for (int call = 0; call < 2; call++) {
            ASSERT_EQ(sfc.compute(grids), 1);
            EXPECT_EQ(grids.grd[0].nx, c.nx) << c.param << " call " << call;
            EXPECT_EQ(grids.grd[0].ny, c.ny) << c.param;
            EXPECT_NEAR(grids.grd[0].getValue(EarthPoint(30, -41)), 10, 0.01) << c.param;
        }
    }
}

} // namespace
