#include "ORV/Datum.h"

#include "ORV/DatumAttr.h"
#include "ORV/PlotAttr.h"

#include <gtest/gtest.h>

using namespace ORV;

namespace {
DatumAttr parse(const char* text) {
    DatumAttr attr;
    attr.parse(text);
    return attr;
}
} // namespace

TEST(DatumAttr, SeparatorIsTheColonWhereThereIsOne) {
    for (const char* text : {"co=red:ul:%4.1f", "red,ul,%4.1f", "%4.1f,red,UL"}) {
        const DatumAttr attr = parse(text);
        EXPECT_STREQ(attr.color, "red") << text;
        EXPECT_STREQ(attr.form, "%4.1f") << text;
        EXPECT_FLOAT_EQ(attr.dx, -0.012f) << text;
        EXPECT_FLOAT_EQ(attr.dy, 0.02f) << text;
        EXPECT_EQ(attr.halign, 3) << text; // the text ends at the place, left of the station
        EXPECT_EQ(attr.valign, 3) << text;
    }
}

TEST(DatumAttr, KeysSetTheirFieldAlone) {
    struct Row {
        const char* text;
        float DatumAttr::*field;
        float expected;
    };
    const Row rows[] = {
        {"sc=2", &DatumAttr::scale, 2},       {"sc=0", &DatumAttr::scale, 1},
        {"sc=1001", &DatumAttr::scale, 1},    {"te=2", &DatumAttr::expan, 2},
        {"exp=2", &DatumAttr::expan, 2},      {"we=3", &DatumAttr::weight, 3},
        {"hi=1.5", &DatumAttr::height, 1.5},  {"WI=2", &DatumAttr::width, 2},
        {"mn=-3", &DatumAttr::min, -3},       {"mx=6", &DatumAttr::max, 6},
        {"xy=-1 2", &DatumAttr::dx, -0.012f}, {"xy=-1+2", &DatumAttr::dy, 0.04f},
        {"xy=", &DatumAttr::dx, 0.012f},      {"zz=3", &DatumAttr::scale, Const::MISS},
        {"sc=", &DatumAttr::scale, 1},
    };
    for (const Row& row : rows) {
        const DatumAttr attr = parse(row.text);
        EXPECT_FLOAT_EQ(attr.*row.field, row.expected) << row.text;
        EXPECT_STREQ(attr.color, "") << row.text;
    }
    EXPECT_EQ(parse("xy=-1 2").halign, 3);
    EXPECT_EQ(parse("xy=0 2").halign, 2);
}

TEST(DatumAttr, MarkersAlignmentsAndKinds) {
    struct Row {
        const char* text;
        int marker;
    };
    for (const Row& row : {Row{"mk=plus", 2}, Row{"mk=PLUSES", 2}, Row{"mk=circle", 4},
                           Row{"mk=itri", 9}, Row{"mk=10", 10}, Row{"mk=xyz", 5}})
        EXPECT_EQ(parse(row.text).marker, row.marker) << row.text;
    EXPECT_EQ(parse("ta=RB").halign, 3);
    EXPECT_EQ(parse("ta=rb").valign, 5);
    EXPECT_EQ(parse("ta=").halign, 2);
    EXPECT_EQ(parse("ta=L").valign, 3);
    EXPECT_EQ(parse("WX").type, Datum::SYMB);
    EXPECT_EQ(parse("cbarb").type, Datum::CBARB);
    // Words of the plot list that choose the drawing are no colors.
    EXPECT_STREQ(parse("plot,red").color, "red");
    EXPECT_STREQ(parse("red,plot").color, "red");
}

TEST(Datum, BoundsAndMissingValues) {
    Datum datum(40, -100, Datum::WBARB, 270, 15, "red");
    EXPECT_EQ(datum.setValue(5, 1), 0);
    EXPECT_EQ(datum.setValue(-1, 1), 0);
    EXPECT_EQ(datum.getValue(7), Const::MISS);
    EXPECT_EQ(datum.offsetValue(0, 10), 1);
    EXPECT_EQ(datum.getValue(0), 280);
    datum.scaleValue(4, 3);
    EXPECT_EQ(datum.getValue(4), Const::MISS);
    datum.addFormat("ul");
    EXPECT_STREQ(datum.format, "red,ul");
    datum.setData("a text that is much longer than the forty characters there are");
    EXPECT_EQ(std::string(datum.data).size(), 39u);
    datum.setId("KOKC");
    datum.set(10, 20, Datum::TEXT, "x", "");
    EXPECT_STREQ(datum.id, "KOKC");
    EXPECT_EQ(datum.value[1], Const::MISS);
    EXPECT_STREQ(datum.format, "");
}
