#include "ORV/PlotAttr.h"

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
    const struct {
        const char* text;
        const char* fields;
    } cases[] = {
        {"", ""},
        {"red", "red"},
        {"red:wi=2:st=dsh", "red width=2 style=2"},
        {"red,wi=2,st=dsh", "red width=2 style=2"},
        {"co=blue:wi=2", "blue width=2"},
        {"CO=Blue:WI=.5:ST=LLSDSH", "Blue width=0.5 style=4"},
        {"wi=2:red", " width=2"}, // a color without "=" comes first, or not at all
        {"a:la=Snow:sh=3:fo=bold:we=2:hi=1.5:te=0.8", "a height=1.5 weight=2 expan=0.8 shadow=3 "
                                                      "font=bold label=Snow"},
        {"a:fi=hat", "a fill=9"},
        {"a:fp=5%", "a fill=15"},
        {"a:sc=3", "a height=3"},
        {"a:w3:s4:h2:e.5:f7", "a width=3 height=2 expan=0.5 style=4 fill=7"},
        {"a:tf=bold.fnt", "a font=bold.fnt"},
        {"a:t=x", "a"},
        {"a:st=7:st=no", "a"}, // the last one counts, and is no number
        {"h=2", ""},           // the short form reads "=2"
        {"a:f5:fM", "a"},
        {"a:qq=5:zz::", "a"},
        {"a:wi=x1", "a"},
        {"a:wi=1e99", "a width=3.40282e+38"},
        {"01234567890123456789012", "0123456789012345678"},
        {":wi=2", " width=2"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(fields(PlotAttr(c.text)), c.fields) << c.text;
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
