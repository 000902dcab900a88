#include "MapFixture.h"
#include "Table.h"
namespace ORV {
namespace {

class MapLatLonTest : public MapTest {
protected:
    /// The texts of labels, in order.
    std::string draw(const char* domain, float dlat, float dlon) {
        show(domain);
        plot.setLine();
        plot.setText();
        plot.setFont("#plain"); // one that the device has, so that labels come as texts
        device->take();
        MapPlot map;
        map.drawLatLon(plot, dlat, dlon);
        std::string labels;
        for (const std::string& call : device->calls)
            if (call.rfind("text ", 0) == 0)
                labels += call.substr(call.rfind(' ') + 1) + " ";
        return labels;
    }
};

TEST_F(MapLatLonTest, LinesStandAtTheSpacingsAndAreLabelledAtTheEdge) {
    // 40 wide and 20 high around the origin: labels 0.4 inside the left and the lower edge.
    EXPECT_EQ(draw("ll:0:0,0,0,41,21,1,1", 5, 10), "5S EQ 5N 10W PM 10E ");
    int at_edge = 0;
    for (const Shape& line : lines())
        for (const Point& point : line)
            at_edge += std::fabs(point.x - 10) < 0.1;
    EXPECT_GT(at_edge, 4) << "the meridian of 10 east";
}

TEST_F(MapLatLonTest, TheDateLineIsDrawnTwiceOnlyWhereTheMapHasBothEnds) {
    EXPECT_EQ(draw("ll:0:0,0,0,73,37,5,5", 30, 90),
              "60S 60S 30S 30S EQ EQ 30N 30N 60N 60N DL 90W PM 90E DL ")
        << "parallels also have labels in the middle, where the row of the meridians' is";
    EXPECT_EQ(draw("moll:0:0,0,0,73,37,3.6,3.6", 30, 90), "60S 30S EQ 30N 60N DL 90W PM 90E ");
}

TEST_F(MapLatLonTest, NoLineCrossesTheMapAtItsCut) {
    for (const Row& c : readTable("map/no_line_crosses_the_map_at_its_cut.txt")) {
        draw(c.text("domain"), 10, 10);
        const auto drawn = lines();
        EXPECT_GT(drawn.size(), 30u) << c.text("domain");
        double most = 0;
        for (const Shape& line : drawn)
            for (size_t i = 1; i < line.size(); i++)
                if (plot.withinDomain(line[i - 1]) && plot.withinDomain(line[i]))
                    most = std::max(most, longest({{line[i - 1], line[i]}}));
        EXPECT_LT(most, c.real("longest")) << c.text("domain");
    }
}

} // namespace
} // namespace ORV
