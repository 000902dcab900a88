#include "ORV/Grids.h"

#include "ORV/FloatArray.h"
#include "ORV/GridPiece.h"
#include "ORV/GridStats.h"
#include "ORV/GridTool.h"
#include "ORV/Orv.h"
#include "ORV/VarList.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace ORV;

namespace {
class GridSpecTest : public testing::Test {
protected:
    GridSpecTest() { Orv::setDatabasePath(ORV_DATA); }
    ~GridSpecTest() override { Orv::setDatabasePath(nullptr); }
};

/// A key from time, level type, level and variable.
GridSpec makeSpec(int time, int ltype, int level, int var) {
    GridSpec spec;
    spec.set(Const::MISS, Const::MISS, time, ltype, level, var);
    return spec;
}

TEST_F(GridSpecTest, Texts) {
    // Index numbers 7, 11, 61: geopotential height, temperature, total precipitation (WMO table 2).
    constexpr int none = Const::MISS;
    const struct {
        const char* text;
        int num, time, ltype, level, var;
        const char* units;
    } cases[] = {
        {"#3:mb", 3, none, none, none, none, "mb"},
        {"#12", 12, none, none, none, none, ""},
        {"temp", none, none, none, none, 11, ""},
        {"+temp[F]", none, none, none, none, 11, "F"},
        {"11[F,plot,size=2]", none, none, none, none, 11, "F"},
        {"temp[,plot]", none, none, none, none, 11, ""},
        {"12hr:500mb:hght", none, 12, 100, 500, 7, ""},
        {"12hr:500mb:hght:dam", none, 12, 100, 500, 7, "dam"},
        {"12hr:500mb:hght:dam[ft]", none, 12, 100, 500, 7, "ft"},
        {"max_temp[C]", none, none, none, none, 3011, "C"},
        {"500mb:temp", none, none, none, none, none, ""},
        {"nosuchname", none, none, none, none, none, ""},
        {"", none, none, none, none, none, ""},
        {"[", none, none, none, none, none, ""},
    };
    for (const auto& c : cases) {
        const GridSpec spec(c.text);
        EXPECT_EQ(spec.num, c.num) << c.text;
        EXPECT_EQ(spec.time, c.time) << c.text;
        EXPECT_EQ(spec.ltype, c.ltype) << c.text;
        EXPECT_EQ(spec.level, c.level) << c.text;
        EXPECT_EQ(spec.var[0], c.var) << c.text;
        EXPECT_STREQ(spec.units, c.units) << c.text;
    }
    EXPECT_STREQ(GridSpec("prob[>5]temp[%,plot]").units, "%") << "behind the statistic's bracket";
    EXPECT_STREQ(GridSpec("6hr:sfc:ensmean[]temp[K]").units, "K");
    EXPECT_EQ(GridSpec("prob[>5]temp").var[0], 11 * 10000 + 1940002000 + 50) << "5.0 in tenths";
}

TEST_F(GridSpecTest, KeyOfAListItem) {
    VarList list;
    ASSERT_EQ(list.decode("500mb:temp[F],dewp"), 1);
    GridSpec spec("#3");
    ASSERT_EQ(list.get(0, spec), 1);
    EXPECT_EQ(spec.num, Const::MISS);
    EXPECT_EQ(spec.model, Const::MISS);
    EXPECT_EQ(spec.ltype, 100);
    EXPECT_EQ(spec.level, 500);
    EXPECT_EQ(spec.var[0], 11);
    EXPECT_STREQ(spec.units, "F");
    EXPECT_EQ(list.get(2, spec), 0);
}

TEST(GridSpec, Matching) {
    constexpr int none = Const::MISS;
    const struct {
        GridSpec a, b;
        bool equal;
        const char* what;
    } cases[] = {
        {makeSpec(12, 100, 500, 7), makeSpec(12, 100, 500, 7), true, "all the same"},
        {makeSpec(12, 100, 500, 7), GridSpec(), true, "nothing asked"},
        {makeSpec(12, 100, 500, 7), makeSpec(18, 100, 500, 7), false, "time"},
        {makeSpec(4000006, 1, 0, 61), makeSpec(4003006, 1, 0, 61), false, "start of a period"},
        {makeSpec(4799006, 1, 0, 61), makeSpec(4003006, 1, 0, 61), true, "start not given"},
        {makeSpec(2000006, 1, 0, 61), makeSpec(4003006, 1, 0, 61), true, "kinds differ: the end"},
        {makeSpec(9000006, 1, 0, 61), makeSpec(9000007, 1, 0, 61), false, "any kind: the end"},
        {makeSpec(12, 100, 500, 7), makeSpec(12, 103, 500, 7), false, "level type"},
        {makeSpec(12, 100, 500, 7), makeSpec(12, 100, 700, 7), false, "level"},
        {makeSpec(12, none, 500, 7), makeSpec(12, 100, 700, 7), true, "a level without type"},
        {makeSpec(12, 100, 500, 7), makeSpec(12, 100, 500, 11), false, "variable"},
        {makeSpec(12, 100, 500, none), makeSpec(12, 100, 500, 11), true, "any variable"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(GridSpec::equal(c.a, c.b), c.equal) << c.what;

    GridSpec a, b;
    a.setVar(7);
    EXPECT_EQ(a.setVar(4, 156), 1);
    EXPECT_EQ(a.setVar(5, 1), 0);
    b.setVar(156);
    EXPECT_TRUE(GridSpec::equal(a, b)) << "an alternative of the table";
    EXPECT_FALSE(GridSpec::equal(b, a)) << "but not of the key asked for";

    a.model = 1;
    b.model = 2;
    EXPECT_FALSE(GridSpec::equal(a, b));
    a.type = b.type = 211;
    EXPECT_TRUE(GridSpec::equal(a, b)) << "the type decides";
    b.type = 212;
    EXPECT_FALSE(GridSpec::equal(a, b));
}

TEST(GridSpec, DefaultsFillWhatIsMissing) {
    GridSpec spec;
    EXPECT_FALSE(spec.isSet());
    VarNameItem item;
    item.ind[0] = 7;
    item.ind[2] = 156;
    GridTool::updateSpec(spec, ForeTime(), Level(), item);
    EXPECT_EQ(spec.time, Const::MISS);
    EXPECT_EQ(spec.var[0], Const::MISS);
    EXPECT_EQ(spec.var[2], 156);
    GridTool::updateSpec(spec, ForeTime("12hr"), Level("500mb"));
    EXPECT_EQ(spec.time, 12);
    EXPECT_EQ(spec.level, 500);
    GridTool::updateSpec(spec, ForeTime("24hr"), Level("700mb"));
    EXPECT_EQ(spec.time, 12) << "set already";
    EXPECT_EQ(spec.level, 500);

    spec.time = 974799006; // 3 hours earlier, accumulated over 6 hours
    GridTool::updateSpec(spec, ForeTime("24hr"));
    EXPECT_EQ(spec.time, 974024024);
    EXPECT_EQ(spec.getTimeType(), 4);
    EXPECT_EQ(spec.getTimeOffset(), 97);
    EXPECT_EQ(spec.getTime1(), 24);
    spec.time = 4799006;
    GridTool::updateSpec(spec, ForeTime("anal-24"));
    EXPECT_EQ(spec.time, 2024000) << "a period replaces it";
}

TEST(Grids, GrowAndKeepTheirGrids) {
    Grids grids(2);
    Grid grid(2, 2);
    for (int k = 0; k < 3; k++) {
        grid.setValue(1, 1, static_cast<float>(k));
        EXPECT_EQ(grids.add(k == 2 ? grids.grd[1] : grid), 1);
    }
    EXPECT_EQ(grids.max, 12);
    EXPECT_EQ(grids.getNum(), 3);
    EXPECT_EQ(grids.getValue(2, 1, 1), 1) << "from inside the table, while it moves";
    EXPECT_TRUE(grids.isSet(1));
    EXPECT_FALSE(grids.isSet(3));
    EXPECT_EQ(grids.addSpec("#5"), 3);
    EXPECT_EQ(grids.getSpec(3).num, 5);
    EXPECT_FALSE(grids.isSet(3));

    grids.init();
    EXPECT_EQ(grids.max, 12);
    EXPECT_EQ(grids.num, 0);
    EXPECT_FALSE(grids.grd[0].isData());
}

TEST(Grids, OutsideTheTable) {
    Grids grids(3);
    for (const int i : {-1, 3, 1000}) {
        EXPECT_EQ(grids.setSpec(i, GridSpec()), 0);
        EXPECT_EQ(grids.setGrid(i, Grid()), 0);
        Grid grid;
        EXPECT_EQ(grids.getGrid(i, grid), 0);
        EXPECT_EQ(grids.getValue(i, 0, 0), 0);
        EXPECT_EQ(grids.getProj(i), Const::MISS);
        EXPECT_STREQ(grids.getSpecUnits(i), "");
        EXPECT_FALSE(grids.isVarSet(i));
        EXPECT_FALSE(grids.equal(i, GridSpec()));
    }
    EXPECT_EQ(grids.equal(GridSpec()), -1) << "none in use";
    EXPECT_EQ(grids.setGrid(1, Grid(1, 1)), 1);
    EXPECT_EQ(grids.num, 2);
    grids.setNum(50);
    EXPECT_EQ(grids.num, 3);
    EXPECT_EQ(Grids(-5).max, 0);
}

TEST(Grids, DomainForAllButConstants) {
    Grids grids(4);
    Grid constant;
    GridTool::valueGrid(constant, 5);
    grids.addSpec(GridSpec());
    grids.add(constant);
    grids.addSpec(GridSpec());
    grids.setDomain(Domain("ll,40,-100,5,3,1,1"));
    grids.allocData();
    EXPECT_EQ(grids.grd[0].getValid(), 0);
    EXPECT_EQ(grids.getValue(1, 4, 2), 5);
    EXPECT_EQ(grids.grd[3].nx, 5);
    EXPECT_FALSE(grids.grd[3].isData()) << "not in use";

    grids.setValue(2, 4, 2, 9);
    FloatArray values;
    grids.getValue(EarthPoint(39, -98), values);
    ASSERT_EQ(values.getNum(), 3);
    EXPECT_EQ(values.get(2), 9);
}

TEST(GridPiece, MosaicOfSharedEdges) {
    Grid piece(3, 2);
    piece.setDomain(Domain("ll,45,-100,3,2,2,1"));
    piece.allocData();
    Grid mosaic;
    GridPiece pieces;
    ASSERT_EQ(pieces.set(mosaic, 2, 3, piece), 1);
    EXPECT_EQ(mosaic.nx, 5);
    EXPECT_EQ(mosaic.ny, 4);
    EarthPoint corner;
    mosaic.tran(GridPoint(0, 0), corner);
    EXPECT_NEAR(corner.lat, 45.5, 1e-5) << "the corner of the piece";
    EXPECT_NEAR(corner.lon, -102, 1e-5);

    for (int k = 0; k < 6; k++) {
        piece.setData(std::vector<float>(6, static_cast<float>(k)).data());
        EXPECT_EQ(pieces.add(mosaic, k % 2, k / 2, piece), 1);
    }
    const float expected[] = {0, 0, 1, 1, 1, 2, 2, 3, 3, 3, 4, 4, 5, 5, 5, 4, 4, 5, 5, 5};
    for (int k = 0; k < 20; k++)
        EXPECT_EQ(mosaic.data[k], expected[k]) << k;

    EXPECT_EQ(pieces.add(mosaic, 2, 0, piece), 0);
    EXPECT_EQ(pieces.add(mosaic, 0, 3, piece), 0);
    EXPECT_EQ(pieces.add(mosaic, -1, 0, piece), 0);
    EXPECT_EQ(pieces.add(mosaic, std::numeric_limits<int>::max(), 0, piece), 0);
    EXPECT_EQ(pieces.set(mosaic, 1 << 30, 1 << 30, piece), 0);
    EXPECT_EQ(pieces.set(mosaic, 0, 1, piece), 0);
}

TEST(GridTool, StatisticsAtPoints) {
    Grid grid(3, 1);
    const float values[] = {-3, 1, Const::MISS};
    grid.setData(values);
    GridPoints points;
    for (const float gx : {0.0F, 0.5F, 1.5F, 2.0F, 9.0F})
        points.add(GridPoint(gx, 0));
    GridStats stats;
    GridTool::getStats(grid, points, stats);
    EXPECT_EQ(stats.num, 2);
    EXPECT_EQ(stats.min, -3);
    EXPECT_EQ(stats.max, -1);
    EXPECT_EQ(stats.avg, -2);
    EXPECT_EQ(GridTool::getCoverage(grid, points, -1, 5), 0.5F);

    GridTool::getStats(Grid(), points, stats);
    EXPECT_EQ(stats.avg, Const::MISS);
    EXPECT_EQ(stats.num, 0);
    EXPECT_EQ(GridTool::getCoverage(Grid(), points, -1, 5), Const::MISS);
}
} // namespace
