#include "ContFixture.h"

using namespace ORV;

namespace {

class ContPlotTest : public ContTest {};

TEST_F(ContPlotTest, KindsOfPlotHaveTheirNames) {
    const struct {
        const char* name;
        int type, dash;
    } rows[] = {
        {"none", 0, 0}, {"value", 1, 0}, {"gvalue", 1, 0}, {"ln", 2, 0},
        {"dln", 2, 1},  {"ndln", 2, -1}, {"cf", 3, 0},     {"lcf", 4, 0},
        {"LCF", 0, 0},  {"lc", 0, 0},    {"", 0, 0},
    };
    for (const auto& row : rows) {
        ContPlot cont;
        cont.setType(row.name);
        EXPECT_EQ(cont.type, row.type) << row.name;
        EXPECT_EQ(cont.dash, row.dash) << row.name;
        EXPECT_EQ(ContPlot::decodeType(row.name), row.type) << row.name;
    }
    EXPECT_EQ(ContPlot::decodeType(nullptr), 0);
}

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

TEST_F(ContPlotTest, LabelSettingsHaveThreeForms) {
    const struct {
        const char* text;
        int skipval, extrad, skipx, skipy;
    } rows[] = {
        {"lab=23", 2, 3, Const::MISS, Const::MISS},
        {"lab=2:3", 2, 3, Const::MISS, Const::MISS},
        {"lab=2.3.7", 2, 3, 7, 7},
        {"lab=2:3:7:8", 2, 3, 7, 8},
        {"lab=4", 0, 4, Const::MISS, Const::MISS},
        {"lab=", 2, 2, Const::MISS, Const::MISS},
        {"lab", 2, 2, Const::MISS, Const::MISS},
    };
    for (const auto& row : rows) {
        const ContPlot cont(row.text);
        EXPECT_EQ(cont.skipval, row.skipval) << row.text;
        EXPECT_EQ(cont.extrad, row.extrad) << row.text;
        EXPECT_EQ(cont.skipx, row.skipx) << row.text;
        EXPECT_EQ(cont.skipy, row.skipy) << row.text;
    }
}

TEST_F(ContPlotTest, StartsFromTheSettings) {
    for (const auto& [name, value] : {std::pair("plot_type", "dln"),
                                      {"color_table", "rain.clr"},
                                      {"con_interval", "4"},
                                      {"con_base", "2,>0"},
                                      {"color_cont", "red"},
                                      {"color_fill", "blue,green"},
                                      {"color_clabel", "cyan"},
                                      {"format", "%.1f"},
                                      {"parameter", "ci=5,bar"}})
        Orv::setResrc(name, value);
    ContPlot cont("lab=0:0");
    EXPECT_EQ(cont.dash, 1);
    EXPECT_STREQ(cont.color_table.get(), "rain.clr");
    EXPECT_EQ(cont.intrvl, 5) << "parameters come last";
    EXPECT_EQ(cont.base, 2);
    EXPECT_EQ(cont.dpy_min, 0);
    EXPECT_STREQ(cont.color_line.get(), "red");
    EXPECT_STREQ(cont.color_fill.get(), "blue,green");
    EXPECT_STREQ(cont.color_label.get(), "cyan");
    EXPECT_STREQ(cont.tform, "%.1f");
    EXPECT_EQ(cont.bar, 1);
    EXPECT_EQ(cont.skipval, 0);

    Orv::resrc.clear();
    cont.init();
    EXPECT_EQ(cont.type, 2);
    EXPECT_EQ(cont.intrvl, Const::MISS);
    EXPECT_EQ(cont.dash, 0);
    EXPECT_EQ(cont.skipval, 2);
    EXPECT_FALSE(cont.color_line.valid());
}

TEST_F(ContPlotTest, TheBarCoversTheLevels) {
    Grid grid = makeGrid(2, 2, {3, 96, 3, 96});
    ContPlot cont("cf,ci=10");
    cont.draw(plot, grid);
    EXPECT_EQ(plot.bar_set, 0);
    cont.setParam("bar");
    cont.draw(plot, grid);
    EXPECT_EQ(plot.bar_set, 1);
    EXPECT_EQ(plot.bar.range.min, 0);
    EXPECT_EQ(plot.bar.range.max, 100);
    cont.setColorFill("0:red,50:blue");
    cont.draw(plot, grid);
    EXPECT_EQ(plot.bar.range.min, Const::MISS);
    EXPECT_EQ(plot.bar.fill.getNum(), 2);
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
