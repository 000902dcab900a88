#include "ORV/Domain.h"
#include "ORV/DomainTool.h"

#include "Table.h"
#include "TempDir.h"
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace ORV;

namespace {
class Place {
public:
    double lat, lon;
};

class Image {
public:
    bool visible = false;
    double x = 0, y = 0;
};

Domain domainOf(const char* text) {
    Domain domain;
    EXPECT_EQ(DomainTool::decode(domain, text), 1) << text;
    return domain;
}

// The places of a mesh over the world, exact in floats, off the lines where a rounding decides.
std::vector<Place> worldMesh() {
    std::vector<Place> mesh;
    for (double lat = -89; lat < 90; lat += 7.25)
        for (double lon = -179; lon < 180; lon += 11.75)
            mesh.push_back({lat, lon});
    mesh.push_back({89.9375, 30});
    mesh.push_back({-89.9375, 30});
    return mesh;
}

bool haveProj() {
    return std::system("command -v proj > /dev/null 2>&1") == 0;
}

std::vector<Image> runProj(const std::string& args, const std::vector<Place>& places) {
    std::ostringstream list;
    list.precision(12);
    for (const Place& place : places)
        list << place.lon << ' ' << place.lat << '\n';
    const TempDir dir;
    const std::string path = dir.write("places", list.str());
    const std::string command = "proj -f %.8f " + args + " < " + path + " 2> /dev/null";
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::vector<Image> images;
    char line[200];
    while (std::fgets(line, sizeof line, pipe.get())) {
        Image image;
        image.visible = std::sscanf(line, "%lf %lf", &image.x, &image.y) == 2;
        images.push_back(image);
    }
    return images;
}

// What the domain makes of PROJ's coordinates.
double scaled(const std::string& scale, double v) {
    const double radius = 63.7122, axis = 63.78137, distance = 421.64;
    if (scale == "angle")
        return v / (distance - radius) * distance;
    if (scale == "tangent")
        return std::tan(v / (distance - radius)) * distance;
    if (scale == "ellipsoid")
        return v / (distance - axis) * distance;
    return scale == "mollweide" ? v / std::sqrt(2.0) : v; // a world of 4 radii
}

double lonDifference(double a, double b) {
    return std::remainder(a - b, 360);
}
} // namespace

TEST(Projection, AgreesWithPROJ) {
    if (!haveProj())
        GTEST_SKIP() << "no proj command";
    for (const Row& c : readTable("earth/projections.txt")) {
        SCOPED_TRACE(c.text("name"));
        const Domain domain = domainOf(c.text("domain"));
        std::vector<Place> places;
        for (const Place& place : worldMesh())
            if (place.lat > c.number("south") && place.lat < c.number("north"))
                places.push_back(place);
        const std::vector<Image> images = runProj(c.text("proj"), places);
        ASSERT_EQ(images.size(), places.size());
        int num_visible = 0;
        for (std::size_t i = 0; i < places.size(); i++) {
            EarthPoint earth(static_cast<float>(places[i].lat), static_cast<float>(places[i].lon));
            Point plot;
            const bool visible = domain.tran(earth, plot);
            ASSERT_EQ(visible, images[i].visible) << places[i].lat << ' ' << places[i].lon;
            if (!visible)
                continue;
            num_visible++;
            const double x = scaled(c.text("scale"), images[i].x);
            const double y = scaled(c.text("scale"), images[i].y);
            const double tolerance = c.real("tolerance") * std::max(1.0, std::hypot(x, y) / 64);
            ASSERT_NEAR(plot.x, x, tolerance) << places[i].lat << ' ' << places[i].lon;
            ASSERT_NEAR(plot.y, y, tolerance) << places[i].lat << ' ' << places[i].lon;
        }
        EXPECT_GT(num_visible, 250);
    }
}

TEST(Projection, ComesBackToThePlace) {
    for (const Row& c : readTable("earth/projections.txt")) {
        SCOPED_TRACE(c.text("name"));
        const Domain domain = domainOf(c.text("domain"));
        for (const Place& place : worldMesh()) {
            EarthPoint earth(static_cast<float>(place.lat), static_cast<float>(place.lon)), back;
            Point plot;
            // Close to a pole, and where a cone or a disc is drawn out, single precision tells.
            if (place.lat < c.number("south") || place.lat > c.number("north") ||
                std::abs(place.lat) > 85 || !domain.tran(earth, plot))
                continue;
            ASSERT_EQ(domain.tran(plot, back), 1) << place.lat << ' ' << place.lon;
            const double tolerance = domain.proj == 10 ? 0.1 : 0.005; // degrees; the limb is steep
            ASSERT_NEAR(back.lat, place.lat, tolerance) << place.lat << ' ' << place.lon;
            ASSERT_NEAR(lonDifference(back.lon, place.lon), 0, tolerance)
                << place.lat << ' ' << place.lon;
            ASSERT_LE(std::abs(back.lon), 180);
        }
    }
}

TEST(Projection, DiagramsAgainstHandValues) {
    Point p;
    EarthPoint place(-10, 700);
    domainOf("skewt,-10,700").tran(place, p); // the centre stays upright
    EXPECT_NEAR(p.x, -10, 1e-5);
    EXPECT_NEAR(p.y, -6.551080, 1e-5); // ln 700
    place.set(-10, 350);               // an octave up, the skew of 4.5/0.1175 degrees a unit
    domainOf("skewt,-10,700").tran(place, p);
    EXPECT_NEAR(p.x, -10 + 0.6931472 * 4.5 / 0.1175, 1e-4);
    place.set(0, 1000);
    domainOf("stuve,0,500").tran(place, p);
    EXPECT_NEAR(p.y, -7.196846, 1e-4); // 1000^(2/7) = 7.19686
    domainOf("rteph,0,850").tran(place, p);
    EXPECT_NEAR(p.y, 5.610021, 1e-5); // ln 273.15
    place.set(90, 10);
    domainOf("hodo,0,0").tran(place, p);
    EXPECT_NEAR(p.x, 10, 1e-5);
    EXPECT_NEAR(p.y, 0, 1e-5);
    place.set(3, 4);
    domainOf("pix,0,0").tran(place, p);
    EXPECT_EQ(p.y, -4);
    place.set(0, 0); // no pressure
    EXPECT_EQ(domainOf("skewt,-10,700").tran(place, p), 0);
    EXPECT_EQ(p.x, Const::MISS);
    EXPECT_EQ(domainOf("teph,0,850").tran(place, p), 0);
}

TEST(Projection, RadarGivesAzimuthAndRange) {
    const Domain domain = domainOf("rad:90:-97,35.3,-97.3,361,231,1,0.01");
    Point p;
    EarthPoint radar(35.3f, -97.3f);
    EXPECT_EQ(domain.tran(radar, p), 1);
    EXPECT_EQ(p.x, 0);
    EXPECT_EQ(p.y, 0);
    // One degree north and one east. The stereographic scale there, true at 60 degrees, is
    // 1.8660/(1 + sin 35.8) = 1.1775; the degree is 1.11198 units; north turns with the longitude.
    EarthPoint north(36.3f, -97.3f), east(35.3f, -96.3f);
    domain.tran(north, p);
    EXPECT_NEAR(p.y, 1.11198 * 1.1775, 2e-3);
    EXPECT_NEAR(std::remainder(p.x - 0.3, 360), 0, 0.05);
    domain.tran(east, p);
    EXPECT_NEAR(p.y, 1.11198 * std::cos(35.3 * M_PI / 180) * 1.1826, 2e-3);
    EXPECT_NEAR(p.x, 90, 1);

    EarthPoint back;
    EXPECT_EQ(domain.tran(p, back), 1);
    EXPECT_NEAR(back.lat, 35.3, 1e-3);
    EXPECT_NEAR(back.lon, -96.3, 1e-3);
    // Its grid has azimuths along x and ranges along y, from 0.
    GridPoint grid;
    domain.tran(Point(90, 1.5f), grid);
    EXPECT_FLOAT_EQ(grid.gx, 90);
    EXPECT_FLOAT_EQ(grid.gy, 150);
    // Latitudes are not checked.
    EarthPoint beyond(91, 0);
    EXPECT_EQ(domain.tran(beyond, p), 1);
}

TEST(Projection, CutsWhatItCannotReach) {
    Point p;
    EarthPoint far(-80, 20);
    domainOf("ps:90:-100,40,-100").tran(far, p);
    EXPECT_EQ(far.lat, -75);
    far.set(80, 20);
    domainOf("ps:-90:0,-60,0").tran(far, p);
    EXPECT_EQ(far.lat, 75);
    for (const char* cone : {"lamb:40:0,40,0", "albers:40:0,40,0"}) {
        far.set(-90, 20);
        EXPECT_EQ(domainOf(cone).tran(far, p), 1);
        EXPECT_EQ(far.lat, -89.99f) << cone;
    }
    far.set(90, 20);
    EXPECT_EQ(domainOf("merc:0:0,0,0").tran(far, p), 1);
    EXPECT_EQ(far.lat, 90);
    const EarthPoint kept(-80, 400);
    domainOf("ps:90:-100,40,-100").tran(kept, p);
    EXPECT_EQ(kept.lat, -80);
}

TEST(Projection, ChecksAndNormalizesPlaces) {
    const Domain domain = domainOf("ll:0:0,0,0");
    for (const Row& in : readTable("earth/places.txt")) {
        const float lat = in.number("lat"), lon = in.number("lon");
        EarthPoint earth(lat, lon);
        Point p(1, 1);
        EXPECT_EQ(domain.tran(earth, p), in.integer("result")) << lat << ' ' << lon;
        EXPECT_EQ(earth.lon, in.number("lon_after"));
        const bool shown = in.integer("result") == 1 && lat != Const::MISS && lon != Const::MISS;
        EXPECT_EQ(p.x != Const::MISS, shown) << lat << ' ' << lon;
    }
}

TEST(Projection, HasNoImageBeyondTheLimb) {
    const char* discs[] = {"ortho:40:-100,40,-100", "sat:0:-75,0,-75", "moll:0:0,0,0",
                           "lambaz:40:0,40,0"};
    for (const char* text : discs) {
        EarthPoint earth;
        EXPECT_EQ(domainOf(text).tran(Point(0, 130), earth), 0) << text;
        EXPECT_EQ(earth.lat, Const::MISS);
        EXPECT_EQ(earth.lon, Const::MISS);
    }
    Point p;
    EarthPoint antipode(-40, 80);
    EXPECT_EQ(domainOf(discs[0]).tran(antipode, p), 0);
    EXPECT_EQ(domainOf(discs[1]).tran(antipode, p), 0);
    EXPECT_EQ(p.y, Const::MISS);
    EarthPoint off;
    EXPECT_EQ(domainOf("albers:23:-96,38,-96").tran(Point(0, 500), off), 0);

    // What the projection draws on the limb comes back, though it is rounded to a float.
    for (int lon = -180; lon <= 180; lon += 5) {
        EarthPoint limb(0, static_cast<float>(lon)), back;
        const Domain globe = domainOf("ortho:90:0,90,0");
        if (globe.tran(limb, p)) {
            EXPECT_EQ(globe.tran(p, back), 1) << lon;
        }
    }
}
