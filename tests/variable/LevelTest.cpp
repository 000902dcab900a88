#include "ORV/Level.h"

#include "ORV/VCoord.h"

#include <gtest/gtest.h>

namespace ORV {
namespace {

constexpr float none = Const::MISS;

std::string text(const Level& level) {
    String out;
    level.toString(out);
    return out.get();
}

std::string label(const Level& level) {
    String out;
    level.toLabel(out);
    return out.get();
}

class Reading {
public:
    const char* text;
    int type1;
    float lev1;
    int type2 = Const::MISS;
    float lev2 = none;
};

TEST(Level, ReadsItsTexts) {
    const Reading rows[] = {
        {"500mb", 100, 500},
        {"500", 100, 500},
        {"500mb_ag", 108, 500},
        {"2pv", 109, 2},
        {"100ft", 102, 30.48f},
        {"100FT_AG", 103, 30.48f},
        {"330K", 107, 330},
        {"0.5eta", 111, 0.5f},
        {"0.9sig", 104, 0.9f},
        {"3hyb", 105, 3},
        {"p500", 100, 500},
        {"a10", 103, 10},
        {"k330", 107, 330},
        {"s0.995", 104, 0.995f},
        {"p700-500", 100, 700, 100, 500},
        {"p500-700", 100, 700, 100, 500},
        {"h1000-500", 102, 500, 102, 1000},
        {"k310-330", 107, 330, 107, 310},
        {"s0.9-0.5", 104, 0.5f, 104, 0.9f},
        {"500-700mb", 100, 500, 100, 700},
        {"500-700", 100, 500, 100, 700},
        {"2-10m_ag", 103, 2, 103, 10},
        {"sfc-500mb", 1, 0, 100, 500},
        {"SFC", 1, 0},
        {"sea", 1, 0},
        {"sfc[3]", 1, 3},
        {"sl", 101, 0},
        {"snd", 0, 0},
        {"hcld_bot", 232, 0},
        {"pbl", 220, 0},
        {"-", 199, 0},
    };
    for (const Reading& row : rows) {
        SCOPED_TRACE(row.text);
        Level level;
        EXPECT_EQ(level.decode(row.text), 1);
        EXPECT_EQ(level.l1.type, row.type1);
        EXPECT_FLOAT_EQ(level.l1.lev, row.lev1);
        EXPECT_EQ(level.l2.type, row.type2);
        EXPECT_FLOAT_EQ(level.l2.lev, row.lev2);
    }
}

TEST(Level, LeavesWhatItCannotReadUnset) {
    for (const char* word : {"", "level", "NONE", "miss"}) {
        Level level(100, 500);
        EXPECT_EQ(level.decode(word), 0) << word;
        EXPECT_FALSE(level.isSet()) << word;
    }
    for (const char* word : {"foo", "top", "-500", "inf", "p", "foo-500mb"}) {
        Level level(100, 500);
        EXPECT_EQ(level.decode(word), 1) << word;
        EXPECT_FALSE(level.isSet()) << word;
    }
    EXPECT_EQ(Level().decode(static_cast<const char*>(nullptr)), 0);
}

TEST(Level, WritesTextsAndLabels) {
    class Row {
    public:
        Level level;
        const char* text;
        const char* label;
    };
    const Row rows[] = {
        {Level(100, 500), "500mb", "500 mb"},
        {Level(103, 10), "10m_ag", "10 m AG"},
        {Level(104, 0.98f), "0.98sig", "0.980 sigma"},
        {Level(109, 2), "2.00*10^-6 Km2/kgs", "2.00*10^-6 Km2/kgs"},
        {Level(111, 0.5f), "0.5eta", "0.5 eta"},
        {Level(100, 500, 700), "500-700mb", "500-700 mb"},
        {Level(104, 0.5f, 0.75f), "0.500-0.75sig", "0.500-0.750 sigma"},
        {Level(1, 0, 100, 500), "sfc-500mb", "Surface-500 mb"},
        {Level(1, 2), "sfc[2]", "Surface[2]"},
        {Level(1, 2003), "sfc[3]", "Surface[3]"},
        {Level(8, 0), "top", "Top"},
        {Level(7, 0), "trop", "Tropopause"},
        {Level(199, 0), "", ""},
        {Level(0, 0), "", ""},
        {Level(100, 2000), "sfc", "Sfc"},
        {Level(100, 1950), "trop", "Trop"},
        {Level(100, 2002), "sfc[2]", "Sfc[2]"},
        {Level(102, 5000, 99500), "5000-trop", "5000-trop"},
        {Level(102, 99500), "99500m", "99500 m"},
        {Level(150, 3), "", "Unknown lvl: 150"},
        {Level(), "", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(text(row.level), row.text);
        EXPECT_EQ(label(row.level), row.label);
    }
}

TEST(Level, KeepsItsMeaningThroughItsText) {
    for (const char* word : {"500mb", "10m_ag", "330K", "0.5eta", "500-700mb", "sfc[2]",
                             "sfc-500mb", "lcld_bot-lcld_top", "30mb_ag", "trop", "sl", "2-10m_ag"})
        EXPECT_EQ(text(Level(word)), word);
}

TEST(Level, OrdersLayersUpward) {
    const Level pressure(100, 500, 100, 700);
    EXPECT_FLOAT_EQ(pressure.getLev1(), 700);
    const Level mixed(1, 0, 100, 500);
    EXPECT_EQ(mixed.getType1(), 1);
    const Level height(103, 50, 102, 10);
    EXPECT_EQ(height.getType1(), 102);
    EXPECT_FALSE(Level(100, 500, Const::MISS, 700).isLayer());
    EXPECT_FALSE(Level(102, 500, none).isLayer());
}

TEST(Level, PacksKindAndValuesIntoCodes) {
    class Row {
    public:
        Level level;
        int type;
        int code;
    };
    const Row rows[] = {
        {Level(100, 500), 100, 500},
        {Level(100, 1000, 100, 500), 101, 50100},
        {Level(101, 0), 102, 0},
        {Level(102, 5600), 103, 5600},
        {Level(102, 1000, 2000), 104, 20010},
        {Level(104, 0.9f), 107, 9000},
        {Level(104, 0.5f, 0.75f), 108, 75050},
        {Level(105, 3, 7), 109, 7003},
        {Level(107, 310, 330), 114, 330310},
        {Level(109, 2), 109, 2},
        {Level(111, 0.5f), 117, 5000},
        {Level(111, 0.25f, 0.5f), 118, 500250},
        {Level(7, 0), 7, 0},
        {Level(245, 0), 245, 0},
        {Level(150, 3), 150, Const::MISS},
        {Level(), Const::MISS, Const::MISS},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.type);
        EXPECT_EQ(row.level.toTypeCode(), row.type);
        EXPECT_EQ(row.level.toLevelCode(), row.code);
    }
}

TEST(Level, ReadsCodesOfGridFiles) {
    class Row {
    public:
        int type;
        int code;
        Reading expected;
    };
    const Row rows[] = {
        {100, 850, {"", 100, 850}},
        {101, 100050, {"", 100, 500, 100, 1000}},
        {102, 0, {"", 101, 0}},
        {104, 20010, {"", 102, 1000, 102, 2000}},
        {107, 9950, {"", 104, 0.995f}},
        {108, 75050, {"", 104, 0.5f, 104, 0.75f}},
        {116, 30000, {"", 108, 0, 108, 30}},
        {119, 5000, {"", 111, 0.5f}},
        {130, 2, {"", 109, 2}},
        {117, 5, {"", 117, 5}},
        {220, 7, {"", 220, 7}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.type);
        Level level;
        EXPECT_EQ(level.decode(row.type, row.code), 1);
        EXPECT_EQ(level.l1.type, row.expected.type1);
        EXPECT_FLOAT_EQ(level.l1.lev, row.expected.lev1);
        EXPECT_EQ(level.l2.type, row.expected.type2);
        EXPECT_FLOAT_EQ(level.l2.lev, row.expected.lev2);
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
    EXPECT_FLOAT_EQ(coordinate.val, none);
}

} // namespace
} // namespace ORV
