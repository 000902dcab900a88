#include "ORV/ColorFill.h"

#include "ORV/ColorFile.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"

#include "Table.h"
#include "TempDir.h"
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>

using namespace ORV;

namespace {
class ColorFillTest : public testing::Test {
protected:
    ColorFillTest() : path(Orv::getDatabasePath()) {
        Orv::setDatabasePath((dir.path + ":" ORV_DATA).c_str());
        map.init(40);
        for (int i = 0; i < 20; i++)
            map.add(("c" + std::to_string(i)).c_str(), 0, 0, 0);
        map.add("red", 1, 0, 0);
        map.add("blue", 0, 0, 1);
        map.add("green", 0, 1, 0);
        map.setNumFill(20);
    }
    ~ColorFillTest() override { Orv::setDatabasePath(path.c_str()); }
    // The entries as "value:index".
    static std::string entries(const ColorFill& fill) {
        std::string all;
        for (int i = 0; i < fill.getNum(); i++) {
            char text[60];
            const float v = fill.getValue(i);
            std::snprintf(text, sizeof text, v == Const::MISS ? ":%d " : "%2$g:%1$d ",
                          fill.getColor(i), v);
            all += text;
        }
        return all;
    }

    TempDir dir;
    ColorMap map;

private:
    std::string path;
};
} // namespace

TEST_F(ColorFillTest, ReadsStepTablesCyclesAndRanges) {
    for (const Row& c : readTable("contour/reads_step_tables_cycles_and_ranges.txt")) {
        ColorFill fill(map, c.text("text"));
        EXPECT_EQ(entries(fill), c.text("entries")) << c.text("text");
    }
    ColorFill range(map, "c2:wi=3-c4");
    EXPECT_STREQ(range.getColorName(1), "3");
    EXPECT_EQ(range.get(1).width, 3);
}

TEST_F(ColorFillTest, FindsTheStepOfAValue) {
    ColorFill fill(map, "0:red,10:blue,20:green");
    const struct {
        float value;
        int ind, color;
    } cases[] = {{5, 0, 20},  {0, 0, 20},    {10, 1, 21},  {19.99f, 1, 21},
                 {20, 2, 22}, {1000, 2, 22}, {-1, -1, -1}, {Const::MISS, Const::MISS, -1}};
    for (const auto& c : cases) {
        EXPECT_EQ(fill.getInd(c.value), c.ind) << c.value;
        EXPECT_EQ(fill.getColor(c.value), c.color) << c.value;
        EXPECT_EQ(fill.get(c.value).validColor(), c.color >= 0) << c.value;
    }
    EXPECT_EQ(ColorFill(map, "0:red").getInd(7.0f), 0);
}

TEST_F(ColorFillTest, GoesRoundItsCycleInBothDirections) {
    ColorFill fill(map, "red,blue,green");
    fill.setBase(0);
    fill.setInterval(10);
    const struct {
        float value;
        int ind;
    } cases[] = {{0, 0},      {25, 2},    {30, 0},   {-5, 2},    {-10, 2},
                 {-10.5f, 1}, {9.95f, 1}, {9.8f, 0}, {1e30f, -1}}; // any, but one of the table
    for (const auto& c : cases) {
        const int ind = fill.getInd(c.value);
        EXPECT_GE(ind, 0) << c.value;
        EXPECT_LT(ind, 3) << c.value;
        if (c.ind >= 0) {
            EXPECT_EQ(ind, c.ind) << c.value;
        }
    }
    EXPECT_EQ(fill.getInd(INFINITY), 0);
    fill.setInterval(0);
    EXPECT_EQ(fill.getColor(99.0f), 20);
    EXPECT_EQ(ColorFill().getInd(5.0f), Const::MISS);
}

TEST_F(ColorFillTest, ReadsAFile) {
    dir.write("a.fill",
              "# comment\n@label deg C\n@other x\n\n  0:red,wi=2  \nblue\n10:green\n20:red:la=" +
                  std::string(200, 'x') + "\n30:blue");
    ColorFill fill;
    EXPECT_EQ(fill.set(map, "a.fill"), 1);
    EXPECT_EQ(entries(fill), "0:20 5:21 10:22 20:20 30:21 ");
    EXPECT_STREQ(fill.getLabel(), "deg C");
    EXPECT_EQ(fill.get(0).width, 2);
    EXPECT_TRUE(fill.validLabel(3));
    EXPECT_EQ(fill.set(map, "b.fill"), 0);
    EXPECT_FALSE(fill.isSet());
    ColorFill plain;
    EXPECT_EQ(plain.set("a.fill"), 1);
    EXPECT_EQ(plain.attr[0].color_ind, Const::MISS);
}

// Every fill file of the database has a label, rising values and colors that can be found.
TEST_F(ColorFillTest, TheFillsOfTheDatabaseAreStepTables) {
    ColorMap colors(512);
    ASSERT_EQ(ColorFile::readFile(ORV_DATA "/orv.clr", colors), 1);
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ORV_DATA)) {
        if (entry.path().extension() != ".fill")
            continue;
        count++;
        const std::string name = entry.path().filename();
        ColorFill fill;
        ASSERT_EQ(fill.set(colors, name.c_str()), 1) << name;
        EXPECT_GT(fill.getNum(), 3) << name;
        EXPECT_STRNE(fill.getLabel(), "") << name;
        for (int i = 0; i < fill.getNum(); i++) {
            EXPECT_TRUE(i == 0 || fill.value[i] > fill.value[i - 1]) << name << i;
            EXPECT_TRUE(colors.isColor(fill.getColor(i)) ||
                        StrLib::equal(fill.getColorName(i), "off"))
                << name << " " << fill.getColorName(i);
        }
    }
    EXPECT_GE(count, 8);
}
