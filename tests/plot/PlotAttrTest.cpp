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
    for (const Row& c : readTable("plot/fill_words.txt"))
        EXPECT_EQ(PlotAttr::parseFillStyle(c.text("text")), c.integer("fill")) << c.text("text");
    for (const Row& c : readTable("plot/mark_words.txt"))
        EXPECT_EQ(PlotAttr::parseMarker(c.text("text")), c.integer("mark")) << c.text("text");
    EXPECT_EQ(PlotAttr::parseFillStyle(nullptr), 0);
    EXPECT_EQ(PlotAttr::parseMarker(nullptr), 2);
}
