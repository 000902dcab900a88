#include "ORV/GFont.h"

#include "TempDir.h"
#include <gtest/gtest.h>

#include <memory>

using namespace ORV;

namespace {
class FontTest : public testing::Test {
protected:
    int read(const std::string& text) { return font->read(dir.write("file", text).c_str()); }
    // The glyph as "2:x,y 1:x,y".
    std::string glyph(char c) {
        std::string all;
        Point p;
        if (!font->setChar(c))
            return "none";
        while (const int kind = font->get(p))
            all += std::to_string(kind) + ":" + std::to_string(static_cast<int>(p.x)) + "," +
                   std::to_string(static_cast<int>(p.y)) + " ";
        return all;
    }
    TempDir dir;
    std::unique_ptr<GFont> font = std::make_unique<GFont>(nullptr);
};
} // namespace

TEST_F(FontTest, ReadsGlyphsStrokeByStroke) {
    EXPECT_EQ(read("255A 128 35 35 140 70 35 145 70 52 70\n255 1 128 -5 0 140 254 255 x 9 9"), 1);
    EXPECT_EQ(glyph('A'), "2:0,35 1:35,140 1:70,35 2:17,70 1:52,70 ");
    EXPECT_EQ(glyph('1'), "2:0,-5 1:0,140 ");
    EXPECT_EQ(glyph('x'), "none");
    EXPECT_EQ(glyph(' '), "none");
    EXPECT_EQ(font->getWidth('A'), 70);
    EXPECT_EQ(font->getWidth('1'), 0);
    EXPECT_EQ(font->getWidth(' '), 40);
    EXPECT_EQ(read("0\xe9 1 2 3 4 255"), 1); // a first number other than 255, an accented letter
    EXPECT_EQ(glyph('\xe9'), "1:1,2 1:3,4 ");
    EXPECT_EQ(glyph('A'), "none");
}

TEST_F(FontTest, TheFontsOfTheDatabaseFillTheirCells) {
    for (const char* name : {"modern.fnt", "bold.fnt", "italic.fnt", "boldital.fnt"}) {
        ASSERT_EQ(font->read((std::string(ORV_DATA "/") + name).c_str()), 1) << name;
        for (int c = '!'; c <= '~'; c++) {
            ASSERT_TRUE(font->setChar(static_cast<char>(c))) << name << " " << c;
            Point p;
            int points = 0;
            for (; font->get(p); points++) {
                EXPECT_GE(p.x, 0) << name << c;
                EXPECT_LE(p.x, 125) << name << c;
                EXPECT_GE(p.y, -5) << name << c;
                EXPECT_LE(p.y, 165) << name << c;
            }
            EXPECT_GE(points, 2) << name << c;
        }
        // Capitals and digits stand on the baseline and are 105 high.
        for (const char c : {'H', 'E', 'T', '1', '7'}) {
            float low = 1000, top = 0;
            Point p;
            for (font->setChar(c); font->get(p);) {
                low = std::min(low, p.y);
                top = std::max(top, p.y);
            }
            EXPECT_EQ(low, 35) << name << c;
            EXPECT_EQ(top, 140) << name << c;
        }
    }
}
