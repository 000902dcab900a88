#include "ORV/Symbol.h"

#include "TempDir.h"
#include <gtest/gtest.h>

#include <cstring>
#include <memory>

using namespace ORV;

namespace {
class SymbolTest : public testing::Test {
protected:
    int read(const std::string& text) { return symbol->read(dir.write("file", text).c_str()); }
    // The steps of a symbol: points as they are, L and F.
    std::string steps(const char* name) {
        if (!symbol->setSymb(name))
            return "none";
        std::string all;
        Point p;
        while (const int step = symbol->get(p)) {
            char text[60];
            std::snprintf(text, sizeof text, "%g,%g ", p.x, p.y);
            all += step == 1 ? text : step == 2 ? "L " : "F ";
        }
        return all;
    }
    TempDir dir;
    std::unique_ptr<Symbol> symbol = std::make_unique<Symbol>();
};
} // namespace

TEST_F(SymbolTest, ReadsPointsLinesAndFills) {
    EXPECT_EQ(read("cloud 0.1,0.2 0.5,1 L\n0,0 .25 F $ end 1,1 0,1 Line $"), 1);
    EXPECT_EQ(symbol->num, 2);
    EXPECT_EQ(steps("cloud"), "0.1,0.2 0.5,1 L 0,0 0.25,0 F ");
    EXPECT_EQ(steps("end"), "1,1 0,1 L ");
    EXPECT_EQ(steps("none"), "none");
    Point p;
    EXPECT_EQ(symbol->get(p), 0);
}

TEST_F(SymbolTest, EveryWeatherSymbolIsFoundByItsOwnName) {
    ASSERT_EQ(symbol->read(ORV_DATA "/wx.smb"), 1);
    EXPECT_GT(symbol->num, 150);
    for (int i = 0; i < symbol->num; i++) {
        ASSERT_EQ(symbol->setSymb(symbol->names[i]), 1);
        EXPECT_EQ(symbol->cur, symbol->start[i]) << symbol->names[i];
        Point p;
        int strokes = 0, step;
        while ((step = symbol->get(p)) != 0) {
            strokes += step > 1;
            EXPECT_TRUE(step > 1 || (p.x >= 0 && p.x <= 1 && p.y >= 0 && p.y <= 1))
                << symbol->names[i];
        }
        EXPECT_GT(strokes, 0) << symbol->names[i];
    }
}
