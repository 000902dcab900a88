#include "GraphFixture.h"
#include "Table.h"

#include <algorithm>
#include <cstdio>

using namespace ORV;

namespace {
class GraphText : public GraphFixture {
protected:
    // The box of all strokes, in window units of openInPixels.
    Rect drawn() {
        Rect box;
        box.setu(1e9f, 1e9f, -1e9f, -1e9f);
        for (const auto& call : device->calls) {
            if (call.rfind("line 4", 0) != 0)
                continue;
            float x, y;
            int used = 0;
            for (const char* at = call.c_str() + 6; std::sscanf(at, "%f,%f%n", &x, &y, &used) == 2;
                 at += used) {
                box.xmin = std::min(box.xmin, x);
                box.xmax = std::max(box.xmax, x);
                box.ymin = std::min(box.ymin, 500 - y);
                box.ymax = std::max(box.ymax, 500 - y);
            }
        }
        device->calls.clear();
        return box;
    }
};
constexpr double near = 0.11; // of the recorded digits
} // namespace

// "H" is 70 wide in the font and stands on the baseline; with a height of 105 a font unit is one
// device unit.
TEST_F(GraphText, PutsALineWhereItsAlignmentSays) {
    openInPixels();
    graph.setTextHeight(105);
    const struct {
        int h, v;
        float left, foot;
    } cases[] = {
        {0, 0, 500, 200}, {1, 4, 500, 200}, {2, 0, 465, 200}, {3, 0, 430, 200},
        {1, 1, 500, 75},  {1, 2, 500, 95},  {1, 3, 500, 150}, {1, 5, 500, 235},
    };
    for (const auto& c : cases) {
        graph.setTextAlign(c.h, c.v);
        graph.drawText(500, 200, "H");
        const Rect box = drawn();
        EXPECT_NEAR(box.xmin, c.left, near) << c.h;
        EXPECT_NEAR(box.xmax, c.left + 70, near) << c.h;
        EXPECT_NEAR(box.ymin, c.foot, near) << c.v;
        EXPECT_NEAR(box.ymax, c.foot + 105, near) << c.v;
    }
}

TEST_F(GraphText, StepsFromCharacterToCharacter) {
    openInPixels();
    graph.setTextHeight(105);
    for (const Row& c : readTable("graphics/text_steps.txt")) {
        std::string text = c.text("text");
        if (const auto odd = text.find("~~"); odd != std::string::npos)
            text.replace(odd, 2, "\x01");
        graph.setTextSpacing(c.number("spacing"));
        graph.setTextExpansion(c.number("expansion"));
        graph.setTextCharWidth(c.number("char_width"));
        graph.setTextAlign(c.integer("halign"), 0);
        graph.drawText(300, 200, text.c_str());
        const Rect box = drawn();
        EXPECT_NEAR(box.xmin, c.number("left"), near) << text << " " << c.number("spacing");
        EXPECT_NEAR(box.xmax, c.number("right"), near) << text << " " << c.number("spacing");
    }
}

TEST_F(GraphText, TurnsWithItsDirection) {
    openInPixels();
    graph.setTextHeight(105);
    graph.setTextDirection(-3, 0); // stands up to the left: the text runs upward
    EXPECT_FLOAT_EQ(graph.dir_x, -1);
    graph.drawText(300, 200, "HH");
    Rect box = drawn();
    EXPECT_NEAR(box.xmin, 195, near);
    EXPECT_NEAR(box.xmax, 300, near);
    EXPECT_NEAR(box.ymin, 200, near);
    EXPECT_NEAR(box.ymax, 365, near);
    EXPECT_EQ(graph.setTextDirection(0, 0), 0);
    EXPECT_FLOAT_EQ(graph.dir_x, -1);
    graph.drawText(300, 200, "H\nH"); // the second line stands to the right of the first
    graph.setTextAlign(0, 1);
    device->calls.clear();
    graph.drawText(300, 200, "H\nH");
    box = drawn();
    EXPECT_NEAR(box.xmax - box.xmin, 105 + 1.3 * 105, near);
}

TEST_F(GraphText, PlacesABlockOfLines) {
    openInPixels();
    graph.setTextHeight(10);
    for (const Row& c : readTable("graphics/places_a_block_of_lines.txt")) {
        graph.setTextAlign(1, c.integer("valign"));
        graph.drawText(300, 200, "H");
        const float top = drawn().ymax;
        graph.drawText(300, 200, c.text("text"));
        EXPECT_NEAR(drawn().ymax, top + 13 * c.number("lift"), near)
            << c.integer("valign") << c.text("text");
    }
    graph.drawText(0, 200, std::string(150, 'H').c_str());
    const int strokes = 3;
    EXPECT_EQ(device->count("line 4"), 100 * strokes);
}
