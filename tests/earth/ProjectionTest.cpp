#include "ORV/Domain.h"
#include "ORV/DomainTool.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
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
    const std::string path = std::string(ORV_BINARY_DIR) + "/proj-places." +
                             ::testing::UnitTest::GetInstance()->current_test_info()->name();
    std::ofstream out(path);
    out.precision(12);
    for (const Place& place : places)
        out << place.lon << ' ' << place.lat << '\n';
    out.close();
    const std::string command = "proj -f %.8f " + args + " < " + path + " 2> /dev/null";
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::vector<Image> images;
    char line[200];
    while (std::fgets(line, sizeof line, pipe.get())) {
        Image image;
        image.visible = std::sscanf(line, "%lf %lf", &image.x, &image.y) == 2;
        images.push_back(image);
    }
    std::filesystem::remove(path);
    return images;
}

// What the satellite's domain makes of PROJ's coordinates, which are scan angles times the height.
double asAngle(double v) {
    return v / (421.64 - 63.7122) * 421.64;
}
double asTangent(double v) {
    return std::tan(v / (421.64 - 63.7122)) * 421.64;
}
double asAngleEllipsoid(double v) {
    return v / (421.64 - 63.78137) * 421.64;
}
// The Mollweide world is drawn 4 radii wide.
double asMollweide(double v) {
    return v / std::sqrt(2.0);
}
double same(double v) {
    return v;
}

class Case {
public:
    const char* name;
    const char* domain;
    const char* proj;
    double tolerance = 3e-5; ///< plot units, and this part of large values
    double (*scaled)(double) = same;
    double south = -91, north = 91; ///< only places between
};

const Case cases[] = {
    {"polar stereographic, north", "ps:90:-100,40,-100",
     "+proj=stere +lat_0=90 +lat_ts=60 +lon_0=-100 +R=63.7122", 3e-5, same, -60},
    {"polar stereographic, south", "ps:-90:30,-60,30",
     "+proj=stere +lat_0=-90 +lat_ts=-60 +lon_0=30 +R=63.7122", 3e-5, same, -91, 60},
    {"polar stereographic, true at 40, radius given", "ps:90:170:40::63.78137,40,170",
     "+proj=stere +lat_0=90 +lat_ts=40 +lon_0=170 +R=63.78137", 3e-5, same, -60},
    {"latitude-longitude", "ll:0:-160,0,-160", "+proj=eqc +lon_0=-160 +R=57.29577951308232"},
    {"Mercator", "merc:0:100,0,100", "+proj=merc +lon_0=100 +R=63.7122", 3e-5, same, -86, 86},
    {"Mercator on the ellipsoid", "merc:e:20:-80,0,-80",
     "+proj=merc +lat_ts=20 +lon_0=-80 +a=63.78137 +b=63.56752", 3e-5, same, -86, 86},
    {"Lambert conformal", "lamb:45:-95,40,-95",
     "+proj=lcc +lat_0=90 +lat_1=30 +lat_2=60 +lon_0=-95 +R=63.7122", 3e-5, same, -75},
    {"Lambert conformal, tangent cone", "lamb:25:-95:25:25,40,-95",
     "+proj=lcc +lat_0=90 +lat_1=25 +lat_2=25 +lon_0=-95 +R=63.7122", 3e-5, same, -75},
    {"Lambert conformal, south", "lamb:-40:135,-30,135",
     "+proj=lcc +lat_0=-90 +lat_1=-30 +lat_2=-60 +lon_0=135 +R=63.7122", 3e-5, same, -91, 75},
    {"orthographic", "ortho:40:-100,40,-100", "+proj=ortho +lat_0=40 +lon_0=-100 +R=63.7122"},
    {"orthographic at a pole", "ortho:-90:0,-90,0", "+proj=ortho +lat_0=-90 +lon_0=0 +R=63.7122"},
    // Single precision in the solution for theta.
    {"Mollweide", "moll:0:150,0,150", "+proj=moll +lon_0=150 +R=63.7122", 3e-3, asMollweide, -89.5,
     89.5},
    {"Lambert azimuthal", "lambaz:52:10,52,10", "+proj=laea +lat_0=52 +lon_0=10 +R=63.7122", 2e-4},
    {"Lambert azimuthal at the north pole", "la:90:-45,90,-45",
     "+proj=laea +lat_0=90 +lon_0=-45 +R=63.7122", 2e-4, same, -80},
    {"Lambert azimuthal at the south pole", "la:-90:20,-90,20",
     "+proj=laea +lat_0=-90 +lon_0=20 +R=63.7122", 2e-4, same, -91, 80},
    {"Albers", "albers:23:-96:29.5:45.5,38,-96",
     "+proj=aea +lat_0=23 +lat_1=29.5 +lat_2=45.5 +lon_0=-96 +R=63.7122", 3e-5, same, -89.9},
    {"Albers, south", "albers:-20:135,-25,135",
     "+proj=aea +lat_0=-20 +lat_1=-30 +lat_2=-60 +lon_0=135 +R=63.7122", 3e-5, same, -91, 89.9},
    // PROJ looks for the horizon only on an ellipsoid.
    {"satellite, scan angles", "sat:0:-75::1,0,-75",
     "+proj=geos +sweep=x +lon_0=-75 +h=357.9278 +a=63.7122 +b=63.7121999", 3e-5, asAngle},
    {"satellite, tangents", "sat:0:140,0,140",
     "+proj=geos +sweep=x +lon_0=140 +h=357.9278 +a=63.7122 +b=63.7121999", 3e-5, asTangent},
    {"satellite over the ellipsoid", "sat:e:0:0::1,0,0",
     "+proj=geos +sweep=x +lon_0=0 +h=357.85863 +a=63.78137 +b=63.56752", 3e-5, asAngleEllipsoid},
};

// Round trips, for the diagrams as well: a place, to be met again to a part in 20,000.
class Trip {
public:
    const char* domain;
    std::vector<Place> places;
};

double lonDifference(double a, double b) {
    return std::remainder(a - b, 360);
}
} // namespace

TEST(Projection, AgreesWithPROJ) {
    if (!haveProj())
        GTEST_SKIP() << "no proj command";
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Domain domain = domainOf(c.domain);
        std::vector<Place> places;
        for (const Place& place : worldMesh())
            if (place.lat > c.south && place.lat < c.north)
                places.push_back(place);
        const std::vector<Image> images = runProj(c.proj, places);
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
            const double x = c.scaled(images[i].x), y = c.scaled(images[i].y);
            const double tolerance = c.tolerance * std::max(1.0, std::hypot(x, y) / 64);
            ASSERT_NEAR(plot.x, x, tolerance) << places[i].lat << ' ' << places[i].lon;
            ASSERT_NEAR(plot.y, y, tolerance) << places[i].lat << ' ' << places[i].lon;
        }
        EXPECT_GT(num_visible, 250);
    }
}

TEST(Projection, ComesBackToThePlace) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Domain domain = domainOf(c.domain);
        for (const Place& place : worldMesh()) {
            EarthPoint earth(static_cast<float>(place.lat), static_cast<float>(place.lon)), back;
            Point plot;
            // Close to a pole, and where a cone or a disc is drawn out, single precision tells.
            if (place.lat < c.south || place.lat > c.north || std::abs(place.lat) > 85 ||
                !domain.tran(earth, plot))
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
    class Input {
    public:
        float lat, lon;
        int result;
        float lon_after;
    };
    const Input inputs[] = {
        {40, 3600, 1, 0},   {40, 3601, 0, 3601},   {40, -190, 1, 170},
        {40, 180, 1, 180},  {40, -180, 1, -180},   {91, 0, 0, 0},
        {-90.5f, 0, 0, 0},  {NAN, 0, 0, 0},        {40, INFINITY, 0, INFINITY},
        {-9999, 10, 1, 10}, {40, -9999, 1, -9999},
    };
    const Domain domain = domainOf("ll:0:0,0,0");
    for (const Input& in : inputs) {
        EarthPoint earth(in.lat, in.lon);
        Point p(1, 1);
        EXPECT_EQ(domain.tran(earth, p), in.result) << in.lat << ' ' << in.lon;
        EXPECT_EQ(earth.lon, in.lon_after);
        const bool shown = in.result == 1 && in.lat != Const::MISS && in.lon != Const::MISS;
        EXPECT_EQ(p.x != Const::MISS, shown) << in.lat << ' ' << in.lon;
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
