#include "ORV/Level.h"

#include "ORV/VCoord.h"

#include "Table.h"
#include <gtest/gtest.h>

namespace ORV {
namespace {

/// Kind and value of each bound, as they stand in a table.
Level makeLevel(const std::vector<float>& bounds) {
    Level level;
    if (bounds.size() >= 2) {
        level.l1.type = bounds[0];
        level.l1.lev = bounds[1];
    }
    if (bounds.size() >= 4) {
        level.l2.type = bounds[2];
        level.l2.lev = bounds[3];
    }
    return level;
}

void expectLevel(const Level& level, const Level& expected) {
    EXPECT_EQ(level.l1.type, expected.l1.type);
    EXPECT_FLOAT_EQ(level.l1.lev, expected.l1.lev);
    EXPECT_EQ(level.l2.type, expected.l2.type);
    EXPECT_FLOAT_EQ(level.l2.lev, expected.l2.lev);
}

TEST(Level, ReadsItsTexts) {
    for (const Row& row : readTable("variable/levels.txt")) {
        SCOPED_TRACE(row.text("text"));
        Level level;
        EXPECT_EQ(level.decode(row.text("text")), 1);
        expectLevel(level, makeLevel(row.numbers("bounds")));
    }
}

TEST(Level, WritesTextsAndLabels) {
    for (const Row& row : readTable("variable/level_labels.txt")) {
        const Level level = makeLevel(row.numbers("bounds"));
        String out;
        level.toString(out);
        EXPECT_STREQ(out.get(), row.text("text"));
        level.toLabel(out);
        EXPECT_STREQ(out.get(), row.text("label"));
    }
}

TEST(Level, PacksKindAndValuesIntoCodes) {
    for (const Row& row : readTable("variable/level_codes.txt")) {
        const Level level = makeLevel(row.numbers("bounds"));
        EXPECT_EQ(level.toTypeCode(), row.number("kind")) << row.text("bounds");
        EXPECT_EQ(level.toLevelCode(), row.number("values")) << row.text("bounds");
    }
}

TEST(Level, ReadsCodesOfGridFiles) {
    for (const Row& row : readTable("variable/level_grib.txt")) {
        SCOPED_TRACE(row.text("codes"));
        Level level;
        EXPECT_EQ(level.decode(static_cast<int>(row.numbers("codes")[0]),
                               static_cast<int>(row.numbers("codes")[1])),
                  1);
        expectLevel(level, makeLevel(row.numbers("bounds")));
    }
}

TEST(Level, GivesItsBoundsAsCoordinates) {
    VCoord coordinate;
    EXPECT_EQ(Level("sfc-500mb").getLower(coordinate), 1);
    EXPECT_EQ(coordinate.type, 0);
    EXPECT_EQ(Level("sfc-500mb").getUpper(coordinate), 1);
    EXPECT_EQ(coordinate.type, 5);
    EXPECT_FLOAT_EQ(coordinate.val, 500);
    EXPECT_EQ(Level("10m_ag").getLower(coordinate), 0);
    // A single height has no upper bound, but keeps its kind.
    EXPECT_EQ(Level("5000m").getUpper(coordinate), 1);
    EXPECT_EQ(coordinate.type, 6);
    EXPECT_FLOAT_EQ(coordinate.val, Const::MISS);
}

} // namespace
} // namespace ORV
