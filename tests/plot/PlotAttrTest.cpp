#include "ORV/PlotAttr.h"

#include "Table.h"
#include <gtest/gtest.h>

using namespace ORV;

namespace {
// The fields that are set, as a text.
std::string fields(const PlotAttr& a) {
    std::string all = a.color;
    const auto add = [&](const char* name, float value) {
        char text[40];
        std::snprintf(text, sizeof text, " %s=%g", name, value);
        all += value == Const::MISS ? "" : text;
    };
    add("width", a.width);
    add("height", a.height);
    add("weight", a.weight);
    add("expan", a.expan);
    add("style", static_cast<float>(a.style));
    add("shadow", static_cast<float>(a.shadow));
    add("fill", static_cast<float>(a.fill_pat));
    add("ind", static_cast<float>(a.color_ind));
    all += a.font[0] ? std::string(" font=") + a.font : "";
    all += a.label[0] ? std::string(" label=") + a.label : "";
    return all;
}
} // namespace

TEST(AttributeText, SetsWhatItNames) {
    for (const Row& c : readTable("plot/sets_what_it_names.txt"))
        EXPECT_EQ(fields(PlotAttr(c.text("text"))), c.text("fields")) << c.text("text");
}

TEST(AttributeWords, NameFillsAndMarks) {
    const struct {
        const char* text;
        int fill;
    } fills[] = {{"sol", 0},  {"ST", 1},  {"ost", 2}, {"rst", 3}, {"lst", 4},  {"||", 5},
                 {"\\\\", 6}, {"//", 7},  {"--", 8},  {"XX", 9},  {"0%", 10},  {"9%", 19},
                 {"12", 12},  {"-3", -3}, {"?", 0},   {"", 0},    {nullptr, 0}};
    for (const auto& c : fills)
        EXPECT_EQ(PlotAttr::parseFillStyle(c.text), c.fill) << (c.text ? c.text : "null");
    const struct {
        const char* text;
        int mark;
    } marks[] = {{".", 1},      {"Plus", 2},     {"*", 3}, {"o", 4},    {"circle", 4},
                 {"X", 5},      {"#", 6},        {"^", 7}, {"dot", 8},  {"v", 9},
                 {"light", 10}, {"nonsense", 2}, {"", 2},  {nullptr, 2}};
    for (const auto& c : marks)
        EXPECT_EQ(PlotAttr::parseMarker(c.text), c.mark) << (c.text ? c.text : "null");
}
