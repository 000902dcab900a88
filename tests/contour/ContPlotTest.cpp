#include "ContFixture.h"

using namespace ORV;

namespace {

class ContPlotTest : public ContTest {};

TEST_F(ContPlotTest, EachParameterFindsItsSetting) {
    ContPlot cont("ndln,ci=2.5,cb=>1,cb=<9,base=4,wi=2,sc=1.5,fill=xx,ct=rain.clr,coln=red:wi=2,"
                  "cof=10-15,cola=blue,fm=%.2f,BARS,lab=3:4:5:6,map,va=temp,zz");
    EXPECT_EQ(cont.type, 2);
    EXPECT_EQ(cont.dash, -1);
    EXPECT_EQ(cont.intrvl, 2.5f);
    EXPECT_EQ(cont.base, 4);
    EXPECT_EQ(cont.dpy_min, 1);
    EXPECT_EQ(cont.dpy_max, 9);
    EXPECT_EQ(cont.line_width, 2);
    EXPECT_EQ(cont.scale, 1.5f);
    EXPECT_EQ(cont.fill_pat, 9);
    EXPECT_STREQ(cont.color_table.get(), "rain.clr");
    EXPECT_STREQ(cont.color_line.get(), "red:wi=2");
    EXPECT_STREQ(cont.color_fill.get(), "10-15");
    EXPECT_STREQ(cont.color_label.get(), "blue");
    EXPECT_STREQ(cont.tform, "%.2f");
    EXPECT_EQ(cont.bar, 1);
    EXPECT_EQ(cont.skipval, 3);
    EXPECT_EQ(cont.extrad, 4);
    EXPECT_EQ(cont.skipx, 5);
    EXPECT_EQ(cont.skipy, 6);

    cont.setParam("pl=cf,int=,NoBar,coco=green,co=off,fm=,sc=-1,ty=gvalue");
    EXPECT_EQ(cont.type, 1);
    EXPECT_EQ(cont.intrvl, Const::MISS);
    EXPECT_EQ(cont.bar, 0);
    EXPECT_STREQ(cont.color_line.get(), "off");
    EXPECT_STREQ(cont.tform, "");
    EXPECT_EQ(cont.scale, 1.5f) << "a size has to be above 0";
}

TEST_F(ContPlotTest, TypeChoosesWhatIsDrawn) {
    Grid grid = makeGrid(2, 2, {0, 10, 0, 10});
    const struct {
        const char* type;
        bool fill, lines, texts;
    } rows[] = {
        {"ln", false, true, false},    {"cf", true, false, false},   {"lcf", true, true, false},
        {"value", false, false, true}, {"none", true, false, false},
    };
    plot.graph.hfont = 1;
    for (const auto& row : rows) {
        ContPlot cont("lab=0:0,ci=4");
        cont.setType(row.type);
        device->take();
        cont.draw(plot, grid);
        EXPECT_EQ(device->count("fill 3") > 0, row.fill) << row.type;
        EXPECT_EQ(device->count("line 1") > 0, row.lines) << row.type;
        EXPECT_EQ(device->count("text ") > 0, row.texts) << row.type;
    }
}

} // namespace
