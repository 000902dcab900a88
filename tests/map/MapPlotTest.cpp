#include "ORV/MapPlot.h"

#include "MapFixture.h"
#include "Table.h"

namespace ORV {
namespace {

constexpr const char* square = "ll:0:0,0,0,121,61,1,1"; // 120 wide, 60 high

class MapPlotTest : public MapTest {
protected:
    MapPlotTest() {
        for (const char* name : {"a.map", "b.map", "c.map"})
            writeLine(name);
    }

    /// Draws a list on a fresh plot and returns the names of the map files that were drawn.
    std::string draw(MapPlot& map, const char* list, const char* domain = square) {
        show(domain);
        map.setMapFiles(list);
        map.draw(plot);
        std::string names;
        for (const std::string& call : device->calls)
            if (call.rfind("message Map: ", 0) == 0)
                names += call.substr(13, 1);
        return names;
    }
    std::string draw(const char* list, const char* domain = square) {
        MapPlot map;
        return draw(map, list, domain);
    }
    /// The last color of a context, as red, green, blue in hexadecimal digits; empty without one.
    std::string color(int context) const {
        const std::string start = "color " + std::to_string(context) + " ";
        char text[20] = "";
        for (const std::string& call : device->calls)
            if (call.rfind(start, 0) == 0)
                std::snprintf(text, sizeof text, "%06x", std::atoi(call.c_str() + start.size()));
        return text;
    }
};

TEST_F(MapPlotTest, MarksChooseTheLayer) {
    write("list.mpl", "a.map\n-b.map +c.map\n");
    for (const Row& c : readTable("map/marks_choose_the_layer.txt")) {
        MapPlot map(c.text("param"));
        EXPECT_EQ(draw(map, c.text("list")), c.text("drawn"))
            << c.text("param") << " " << c.text("list");
    }
}

TEST_F(MapPlotTest, SizePrefixesTestTheHeightOfTheDomain) {
    const struct {
        const char* prefix;
        const char* drawn; // on domains of 20, 60 and 80 degrees, by letters
    } cases[] = {{"s-60:", "ab"},    {"s+60:", "c"},    {">20<60:", "b"},    {">20:", "bc"},
                 {"<60>40:", "b"},   {"<60:", "ab"},    {"s+20:s-70:", "b"}, {">10<70:s-30:", "a"},
                 {"<70:s+30:", "b"}, {"<70:>30:", "b"}, {"s-70:>30:", "b"}};
    const char* domains[] = {"ll:0:0,0,0,41,21,1,1", square, "ll:0:0,0,0,161,81,1,1"};
    for (const auto& c : cases) {
        std::string drawn;
        for (int i = 0; i < 3; i++)
            if (!draw((std::string(c.prefix) + "a.map").c_str(), domains[i]).empty())
                drawn += static_cast<char>('a' + i);
        EXPECT_EQ(drawn, c.drawn) << c.prefix;
    }
}

TEST_F(MapPlotTest, ConditionsChooseByTheCentreAndTheSize) {
    const char* inside = "ll:0:-100,40,-100,61,31,1,1";
    for (const Row& c : readTable("map/conditions.txt"))
        EXPECT_EQ(draw(c.text("list"), *c.text("domain") == 'i' ? inside : square), c.text("drawn"))
            << c.text("list");

    MapPlot map;
    draw(map, "[30,50,-130,-60],a.map,[],b.map", inside);
    EXPECT_EQ(map.cond, -1);
    EXPECT_EQ(draw(map, "c.map", inside), "") << "the state lives on";
}

TEST_F(MapPlotTest, AttributesColorAndFill) {
    for (const Row& c : readTable("map/attributes_color_and_fill.txt")) {
        MapPlot map(c.text("param"));
        draw(map, c.text("list"));
        EXPECT_EQ(device->count("line 1"), c.integer("lines")) << c.text("list");
        EXPECT_EQ(device->count("fill 3"), c.integer("fills")) << c.text("list");
        if (*c.text("line")) {
            EXPECT_EQ(color(1), c.text("line")) << c.text("list");
        }
        if (*c.text("fill")) {
            EXPECT_EQ(color(3), c.text("fill")) << c.text("list");
        }
    }
    Orv::resrc.set("color_fmap", "#0000ff");
    MapPlot map("fc");
    draw(map, "a.map");
    EXPECT_EQ(color(1), "0000ff") << "below filled contours";
}

TEST_F(MapPlotTest, OtherKindsOfItemsDraw) {
    draw("mk:10:20:#0000ff");
    EXPECT_EQ(device->count("line 2"), 2) << "a cross";
    EXPECT_EQ(color(2), "0000ff");
    draw("MK:10");
    EXPECT_EQ(device->count("line"), 0) << "no place";

    draw("bg[#0000ff]");
    EXPECT_EQ(device->count("fill 3"), 1);
    EXPECT_EQ(color(3), "0000ff");
    draw("bg:");
    EXPECT_EQ(device->count("fill 3"), 0);

    draw("grid", "ll:0:0,0,0,5,4,10,10");
    EXPECT_EQ(lines().size(), 9u) << "5 columns and 4 rows";
    draw("grid:ll,0,0,3,2,20,20:#0000ff");
    EXPECT_EQ(lines().size(), 0u) << "a domain with commas needs quotes";
    draw("\"grid:ll,0,0,3,2,20,20:#0000ff\"");
    EXPECT_EQ(lines().size(), 5u);
    EXPECT_EQ(color(1), "0000ff");
    draw("\"grid:ll,0,0,1000000000,2,1,1\"");
    EXPECT_EQ(lines().size(), 0u);

    draw("lalo:10[#0000ff]");
    EXPECT_EQ(device->count("message Map-lalo: 10.0,10.0"), 1);
    EXPECT_EQ(color(1), "0000ff");
    draw("lalo:10:20:red");
    EXPECT_EQ(device->count("message Map-lalo: 10.0,20.0"), 1);
    EXPECT_EQ(color(1), "ff0000");
    MapPlot map("lalo=30,coll=#0000ff");
    draw(map, "a.map:off");
    EXPECT_GT(device->count("line 1"), 10) << "a grid behind the list";
    EXPECT_EQ(color(1), "0000ff");
}

TEST_F(MapPlotTest, SegmentsOutsideTheDomainAreLeftOut) {
    const char* europe = "ll:0:0,50,10,31,21,1,1";
    for (const Row& c : readTable("map/segments_outside_the_domain_are_left_out.txt")) {
        write("a.map", std::string(c.text("header")) + "\n45 0 50 20\n");
        draw("a.map", europe);
        EXPECT_EQ(device->count("line 1"), c.integer("lines")) << c.text("what");
        MapPlot map("map_in");
        draw(map, "a.map", europe);
        EXPECT_EQ(device->count("line 1"), 1) << c.text("what");
    }
    // All four corners of a box around the pole are the same two places on the map.
    write("a.map", "3 -70 -90 180 -180 1\n-75 -90 -75 0 -75 90\n");
    draw("a.map", "ps:-90:0:-60,-75,0,21,21,1,1");
    EXPECT_EQ(device->count("line 1"), 1);
}

TEST_F(MapPlotTest, PlacesAreNamed) {
    write("p.kml", "<?xml version=\"1.0\"?><kml><Placemark><name>Paris</name><Point><coordinates>"
                   "2.3,48.9</coordinates></Point></Placemark></kml>");
    write("a.map", "1 48.9 48.9 2.3 2.3 1\n48.9 2.3\n");
    show("ll:0:0,50,10,31,21,1,1");
    plot.setFont("#plain"); // one of the device's own, so that texts come as such
    MapPlot map;
    map.setMapFiles("p.kml,a.map");
    map.draw(plot);
    ASSERT_EQ(device->count("text "), 2);
    const std::string texts = device->take();
    EXPECT_NE(texts.find(" Paris\n"), std::string::npos);
    EXPECT_NE(texts.find(" +\n"), std::string::npos) << "without a name";
}

} // namespace
} // namespace ORV
