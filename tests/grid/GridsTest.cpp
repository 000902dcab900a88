#include "ORV/Grids.h"

#include "ORV/FloatArray.h"
#include "ORV/GridPiece.h"
#include "ORV/GridStats.h"
#include "ORV/GridTool.h"
#include "ORV/Orv.h"
#include "ORV/VarList.h"

#include "Table.h"
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
GridSpec makeSpec(const std::vector<float>& key) {
    GridSpec spec;
    spec.set(Const::MISS, Const::MISS, key[0], key[1], key[2], key[3]);
    return spec;
}

TEST(GridSpec, Matching) {
    for (const Row& c : readTable("grid/keys.txt"))
        EXPECT_EQ(GridSpec::equal(makeSpec(c.numbers("a")), makeSpec(c.numbers("b"))),
                  c.integer("equal"))
            << c.text("what");

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

} // namespace
