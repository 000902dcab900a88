// The maps of the database, drawn on the whole world in each projection.
#include "ORV/MapFile.h"

#include "MapFixture.h"
#include "Table.h"

#include <numeric>

namespace ORV {
namespace {

constexpr double land_share = 0.292; // of the earth: 149 of 510 million square km

class MapDataTest : public MapTest {
protected:
    MapDataTest() { Orv::resrc.set("file_path", ORV_DATA); }

    void draw(const char* items, const char* domain) {
        show(domain);
        MapPlot map;
        map.setMapFiles(items);
        map.draw(plot);
    }
};

TEST_F(MapDataTest, NoLineRunsAcrossTheWorld) {
    for (const Row& world : readTable("map/worlds.txt")) {
        const char* domain = world.text("domain");
        draw("orv.map[red],coast_low.map[red],border_low.map[red]", domain);
        const auto drawn = lines();
        EXPECT_GT(drawn.size(), 400u) << domain;
        // The longest steps of the coarse coast are some 5 degrees; maps stretch them at their rim.
        const double limit = plot.getProj() == 8 ? 0.16 : 0.09;
        EXPECT_LT(longest(drawn), limit * plot.getDomVert()) << domain;
    }
}

TEST_F(MapDataTest, LandCoversAsMuchOfTheMapAsOfTheEarth) {
    for (const Row& world : readTable("map/worlds.txt")) {
        const char* domain = world.text("domain");
        if (world.real("earth") == 0)
            continue;
        draw("land_low.map[red:fill]", domain);
        const auto polygons = fills();
        const double land =
            std::accumulate(polygons.begin(), polygons.end(), 0.0,
                            [](double sum, const Shape& shape) { return sum + area(shape); });
        const double radius = Const::EARTH_MEAN;
        EXPECT_NEAR(land / (4 * Const::PI * radius * radius * world.real("earth")), land_share,
                    0.01)
            << domain;
    }
}

TEST_F(MapDataTest, PolygonsAreClosedAndBoxesHoldTheirPoints) {
    for (const char* name : {"land_low", "land_mid", "lake_fill", "orv", "county_us"}) {
        MapFile file((std::string(ORV_DATA "/") + name + ".map").c_str());
        ASSERT_TRUE(file.isOpen()) << name;
        const bool is_fill = std::strncmp(name, "la", 2) == 0;
        MapFileHeader header;
        int open = 0, outside = 0, points = 0;
        while (file.readHeader(header)) {
            EarthPoint first, point;
            for (int i = 0; file.readData(point); i++) {
                if (i == 0)
                    first = point;
                outside += point.lat < header.min_lat || point.lat > header.max_lat ||
                           point.lon < header.min_lon || point.lon > header.max_lon;
                points++;
            }
            open += is_fill && (first.lat != point.lat || first.lon != point.lon);
        }
        EXPECT_GT(points, 1000) << name;
        EXPECT_EQ(open, 0) << name;
        EXPECT_EQ(outside, 0) << name;
    }
}

// Natural Earth's land in another form, from the package libmagics++-data.
TEST_F(MapDataTest, PublicShapefileLiesOnTheNativeMap) {
    const char* path = "/usr/share/magics/110m/ne_110m_land.shp";
    if (!std::filesystem::exists(path))
        GTEST_SKIP() << path << " isn't installed";
    MapFile shapes(path);
    ASSERT_TRUE(shapes.isOpen());
    std::vector<EarthPoint> native;
    MapFileHeader header;
    EarthPoint point;
    for (MapFile file(ORV_DATA "/coast_low.map"); file.readHeader(header);)
        while (file.readData(point))
            native.push_back(point);
    int points = 0, far = 0;
    while (shapes.readHeader(header))
        while (shapes.readData(point)) {
            double nearest = 1000;
            for (const EarthPoint& other : native)
                nearest = std::min<double>(
                    nearest, std::hypot(other.lat - point.lat,
                                        std::remainder(other.lon - point.lon, 360.0)));
            points++;
            far += nearest > 0.1;
        }
    EXPECT_GT(points, 4000);
    // It has the large lakes as well, and the way along the date line to the pole.
    EXPECT_LT(far, points / 10);
}

} // namespace
} // namespace ORV
