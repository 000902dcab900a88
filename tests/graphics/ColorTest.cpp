#include "ORV/ColorFile.h"
#include "ORV/Orv.h"

#include "Table.h"
#include "TempDir.h"
#include <gtest/gtest.h>

#include <string>

using namespace ORV;

namespace {
class ColorFileTest : public testing::Test {
protected:
    int read(const std::string& text) {
        return ColorFile::readFile(dir.write("colors", text).c_str(), map);
    }
    TempDir dir;
    ColorMap map;
};

void expectColor(ColorMap& map, const char* name, float red, float grn, float blu) {
    RGB c;
    map.get(map.getInd(name), c);
    EXPECT_NEAR(c.red, red, 1e-6) << name;
    EXPECT_NEAR(c.grn, grn, 1e-6) << name;
    EXPECT_NEAR(c.blu, blu, 1e-6) << name;
}
} // namespace

TEST(ColorNames, GiveIndexes) {
    ColorMap map;
    map.add("red", 1, 0, 0);
    map.add("sky", 0.5f, 0.7f, 1);
    for (const Row& c : readTable("graphics/color_names.txt"))
        EXPECT_EQ(map.getInd(c.text("name")), c.integer("ind")) << c.text("name");
    EXPECT_EQ(map.getInd(nullptr), Const::MISS);
    expectColor(map, "#255128000", 1, 128 / 255.0f, 0);
    map.add("12", 0, 0, 0);
    EXPECT_EQ(map.getInd("12"), 4);
    EXPECT_EQ(map.getNum(), 5);
}

TEST(ColorMap, AnIndexBeyondTheTableIsTheLastColor) {
    ColorMap map(3);
    float r, g, b;
    EXPECT_EQ(map.getRGB(0, r, g, b), 0); // empty
    EXPECT_EQ(map.getValue(0), -1);
    map.add("a", 0, 0, 0);
    map.add("b", 0.5f, 0.25f, 1);
    map.setValue(1, 77);
    EXPECT_EQ(map.setValue(2, 5), 0);
    int ir, ig, ib;
    map.getIRGB(500, ir, ig, ib);
    EXPECT_EQ(ir * 1000000 + ig * 1000 + ib, 127063255);
    EXPECT_EQ(map.getValue(500), 77);
    EXPECT_EQ(map.getValue(-3), -1); // that of the first, not allocated
    RGB off;
    map.get(-1, off);
    EXPECT_TRUE(off.isOff());
    EXPECT_STREQ(map.getName(9), "b");
    RGB near;
    near.set(0.5f, 0.255f, 0.998f);
    EXPECT_TRUE(map.isColorNear(1, near));
    EXPECT_FALSE(map.isColorNear(0, near));
    EXPECT_FALSE(map.isColorNear(-1, off));
}

TEST_F(ColorFileTest, ReadsBothFormsOfALine) {
    EXPECT_EQ(read("# colors\n  red 1 0 0\n3 rot #FF0000 \n\nhalf .5 0.5 2\n12 gray 0.5 0.5 0.5\n"
                   "broken 1 0\nname\nend\nblack 0 0 0\nEND\nblack 0.1 0 0"),
              1);
    expectColor(map, "red", 1, 0, 0);
    expectColor(map, "rot", 1, 0, 0);
    expectColor(map, "half", 0.5f, 0.5f, 1);
    expectColor(map, "gray", 0.5f, 0.5f, 0.5f);
    expectColor(map, "black", 0.1f, 0, 0);
    EXPECT_EQ(map.getNum(), 5);
    EXPECT_EQ(map.getNumFill(), 4);
}
