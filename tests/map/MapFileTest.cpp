#include "ORV/MapFile.h"

#include "MapFixture.h"
#include <zlib.h>

#include <limits>
#include <sstream>

namespace ORV {
namespace {

constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();

/// What a reader finds in a file: "name id num: lat,lon lat,lon" for each segment.
std::string contentOf(const std::string& path) {
    MapFile file(path.c_str());
    MapFileHeader header;
    EarthPoint point;
    std::ostringstream out;
    while (file.readHeader(header)) {
        out << header.name << ' ' << header.id << ' ' << header.num << ':';
        while (file.readData(point))
            out << ' ' << point.lat << ',' << point.lon;
        out << '\n';
    }
    return out.str();
}

/// A binary segment without its points.
Bytes& segment(Bytes& bytes, unsigned num, int id = 1) {
    return bytes.big2(num).bigFloat(20).bigFloat(10).bigFloat(40).bigFloat(30).big4(id);
}

Bytes& shapeHeader(Bytes& bytes) {
    return bytes.big4(9994).zeros(96);
}

/// A record of lines, without its points.
Bytes& shapeRecord(Bytes& bytes, int shape, std::vector<int> starts, int points, int words = -1) {
    const int parts = static_cast<int>(starts.size());
    bytes.big4(7).big4(words >= 0 ? words : 22 + 2 * parts + 8 * points).little4(shape);
    bytes.littleDouble(-20).littleDouble(-10).littleDouble(20).littleDouble(10);
    bytes.little4(parts).little4(points);
    for (const int start : starts)
        bytes.little4(start);
    return bytes;
}

std::string kml(const std::string& body) {
    return "<?xml version=\"1.0\"?>\n<kml xmlns=\"http://www.opengis.net/kml/2.2\"><Document>" +
           body + "</Document></kml>\n";
}

class MapFileTest : public MapTest {};

TEST_F(MapFileTest, TextFormIsWrittenFourPairsToALine) {
    const std::string path = folder / "a.txt";
    MapOrvFile out;
    ASSERT_TRUE(out.open(path.c_str(), 1, MapOrvFile::TEXT));
    MapFileHeader header;
    header.num = 5;
    header.max_lat = 48.25f;
    header.min_lat = -3;
    header.max_lon = 7.5f;
    header.min_lon = -179.5f;
    header.id = 12;
    EXPECT_TRUE(out.writeHeader(header));
    for (int i = 0; i < 5; i++)
        EXPECT_TRUE(out.writeData(EarthPoint(i, -i - 0.5f)));
    EXPECT_FALSE(out.writeData(EarthPoint(0, 0))) << "beyond the count";
    out.close();

    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_EQ(text.str(),
              "   5   48.2500   -3.0000    7.5000 -179.5000    12\n"
              "  0.0000   -0.5000   1.0000   -1.5000   2.0000   -2.5000   3.0000   -3.5000\n"
              "  4.0000   -4.5000\n");
    EXPECT_EQ(MapFile::checkType(path.c_str()), MapFile::NATIVE);
    EXPECT_EQ(MapOrvFile::checkType(path.c_str()), MapOrvFile::TEXT);
    EXPECT_EQ(contentOf(path), " 12 5: 0,-0.5 1,-1.5 2,-2.5 3,-3.5 4,-4.5\n");

    MapOrvFile back;
    ASSERT_TRUE(back.open(path.c_str()));
    ASSERT_TRUE(back.readHeader(header));
    EXPECT_EQ(header.max_lat, 48.25f);
    EXPECT_EQ(header.min_lat, -3);
    EXPECT_EQ(header.max_lon, 7.5f);
    EXPECT_EQ(header.min_lon, -179.5f);
}

TEST_F(MapFileTest, BinaryFormIsBigEndian) {
    const std::string path = folder / "a.map";
    MapFile out;
    ASSERT_TRUE(out.open(path.c_str(), 1));
    MapFileHeader header;
    header.num = 1;
    header.max_lat = header.min_lat = 1;
    header.max_lon = header.min_lon = -2;
    header.id = 258;
    EXPECT_TRUE(out.writeHeader(header));
    EXPECT_TRUE(out.writeData(EarthPoint(1, -2)));
    header.num = 65535;
    EXPECT_FALSE(out.writeHeader(header)) << "that count means that another follows";
    out.close();

    std::ifstream in(path, std::ios::binary);
    std::stringstream bytes;
    bytes << in.rdbuf();
    const std::string one("\x3f\x80\0\0", 4), minus_two("\xc0\0\0\0", 4); // IEEE 754
    EXPECT_EQ(bytes.str(), std::string("\0\1", 2) + one + one + minus_two + minus_two +
                               std::string("\0\0\1\2", 4) + one + minus_two);
}

TEST_F(MapFileTest, CompanionNamesTheSegmentsOfABinaryFile) {
    Bytes bytes;
    for (int id = 1; id <= 3; id++)
        segment(bytes, 1, id).bigFloat(10).bigFloat(30);
    const std::string path = write("rivers.map", bytes.text);
    write("rivers.mdb", "number points name\n1 1 Rhine\n2 1\n3 1 " + std::string(100, 'x') + "\n");
    EXPECT_EQ(contentOf(path),
              "Rhine 1 1: 10,30\n 2 1: 10,30\n" + std::string(49, 'x') + " 3 1: 10,30\n");
    std::filesystem::remove(folder / "rivers.mdb");
    EXPECT_EQ(contentOf(path), " 1 1: 10,30\n 2 1: 10,30\n 3 1: 10,30\n");
}

TEST_F(MapFileTest, CountOf65535GoesOnInTheNextTwoBytes) {
    Bytes bytes;
    bytes.big2(65535);
    segment(bytes, 4465);
    for (int i = 0; i < 70000; i++)
        bytes.bigFloat(i).bigFloat(0);
    segment(bytes, 1, 2).bigFloat(5).bigFloat(6);
    MapFile file(write("long.map", bytes.text).c_str());
    MapFileHeader header;
    ASSERT_TRUE(file.readHeader(header));
    EXPECT_EQ(header.num, 70000);
    EarthPoint point;
    int count = 0;
    while (file.readData(point))
        count++;
    EXPECT_EQ(count, 70000);
    EXPECT_EQ(point.lat, 69999);
    EXPECT_TRUE(file.readHeader(header));
    EXPECT_EQ(header.id, 2);
}

TEST_F(MapFileTest, DamagedNativeFilesGiveWhatIsWhole) {
    Bytes cut_header, cut_points, nan_points, three_counts;
    cut_header.big2(5).bigFloat(1);
    segment(cut_points, 60000).bigFloat(1).bigFloat(2).bigFloat(3);
    segment(nan_points, 3).bigFloat(nan_value).bigFloat(1).bigFloat(1).bigFloat(nan_value);
    nan_points.bigFloat(4).bigFloat(5);
    three_counts.big2(65535).big2(65535).big2(65535);
    const struct {
        const char* what;
        std::string bytes, content;
    } cases[] = {
        {"empty", "", ""},
        {"cut header", cut_header.text, ""},
        {"cut points", cut_points.text, " 1 60000: 1,2\n"},
        {"coordinates that are no numbers", nan_points.text, " 1 3: 4,5\n"},
        {"counts to the end", three_counts.text, ""},
        {"cut text", "4 1 0 1 0 3\n1 2 3", " 3 4: 1,2\n"},
        {"negative count", "-2 1 0 1 0 3\n1 2 3 4\n", ""},
        {"huge count", "99999999999 1 0 1 0 3\n1 2\n", " 3 2147483647: 1,2\n"},
        {"words among numbers", "2 1 0 1 0 3\n1 2 x 4\n", " 3 2: 1,2\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(contentOf(write("bad.map", c.bytes)), c.content) << c.what;
    EXPECT_EQ(MapFile::checkType((folder / "none.map").c_str()), -1);
    EXPECT_FALSE(MapFile((folder / "none.map").c_str()).isOpen());
}

TEST_F(MapFileTest, PartsOfAShapeShareItsBox) {
    Bytes bytes;
    shapeRecord(shapeHeader(bytes), 5, {0, 2, 3}, 6);
    for (int i = 0; i < 6; i++)
        bytes.littleDouble(100 + i).littleDouble(i);
    bytes.big4(8).big4(2).little4(0);                                      // nothing
    bytes.big4(9).big4(10).little4(1).littleDouble(-5).littleDouble(60.5); // a point
    const std::string path = write("a.shp", bytes.text);
    EXPECT_EQ(MapFile::checkType(path.c_str()), MapFile::SHAPE);
    EXPECT_EQ(contentOf(path), " 7 2: 0,100 1,101\n 7 1: 2,102\n 7 3: 3,103 4,104 5,105\n"
                               " 9 1: 60.5,-5\n");
    MapFile file(path.c_str());
    MapFileHeader header;
    for (int part = 0; part < 3; part++) {
        ASSERT_TRUE(file.readHeader(header));
        EXPECT_EQ(header.min_lat, -10);
        EXPECT_EQ(header.max_lat, 10);
        EXPECT_EQ(header.min_lon, -20);
        EXPECT_EQ(header.max_lon, 20);
    }
    ASSERT_TRUE(file.readHeader(header));
    EXPECT_EQ(header.max_lon, -5);
}

TEST_F(MapFileTest, ShapesThatContradictThemselvesEndTheFile) {
    const int most = std::numeric_limits<int>::max();
    Bytes cut, many, falling, beyond, negative, unknown, endless, nan_point;
    shapeRecord(shapeHeader(cut), 3, {0}, 2).littleDouble(1);
    shapeRecord(shapeHeader(many), 3, std::vector<int>(5001), 1, most).littleDouble(1).zeros(8);
    shapeRecord(shapeHeader(falling), 3, {0, 2, 1}, 3).zeros(48);
    shapeRecord(shapeHeader(beyond), 3, {0, 9}, 3).zeros(48);
    shapeHeader(negative).big4(1).big4(50).little4(3).zeros(32).little4(-1).little4(-1);
    shapeHeader(unknown).big4(1).big4(10).little4(31).zeros(16);
    shapeRecord(shapeHeader(endless), 3, {0}, 1, most).littleDouble(1).littleDouble(2);
    shapeRecord(shapeHeader(nan_point), 3, {0}, 2).littleDouble(nan_value).littleDouble(1);
    nan_point.littleDouble(4).littleDouble(3);
    const struct {
        const char* what;
        const Bytes& bytes;
        const char* content;
    } cases[] = {
        {"cut points", cut, ""},           {"more than 5000 parts", many, ""},
        {"starts that fall", falling, ""}, {"a start beyond the points", beyond, ""},
        {"negative counts", negative, ""}, {"unknown shape", unknown, ""},
        {"endless record", endless, ""},   {"no number", nan_point, " 7 1: 3,4\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(contentOf(write("bad.shp", c.bytes.text)), c.content) << c.what;
}

TEST_F(MapFileTest, KmlGivesEachCoordinatesElementWithItsName) {
    const std::string path = write(
        "a.kml",
        kml("<name>all</name>"
            "<Placemark><name>Zugspitze</name><Point><coordinates>10.98,47.42,2962</coordinates>"
            "</Point></Placemark>"
            "<Placemark><LineString><coordinates> 1,2 3,4\n5,6,7 </coordinates></LineString>"
            "</Placemark>"
            "<Placemark><name>a &amp; b</name><Polygon><outerBoundaryIs><LinearRing><coordinates>"
            "0,0,0 0,1,0 1,1,0 0,0,0 oops 9,9</coordinates></LinearRing></outerBoundaryIs>"
            "</Polygon></Placemark><Placemark><coordinates/></Placemark>"));
    EXPECT_EQ(MapFile::checkType(path.c_str()), MapFile::KML);
    EXPECT_EQ(contentOf(path), "Zugspitze 0 1: 47.42,10.98\n 0 3: 2,1 4,3 6,5\n"
                               "a & b 0 4: 0,0 1,0 1,1 0,0\n 0 0:\n");
    KmlFile file;
    KmlData data;
    ASSERT_TRUE(file.open(path.c_str()));
    ASSERT_TRUE(file.read(data));
    EXPECT_EQ(data.type, 0);
    ASSERT_TRUE(file.read(data));
    EXPECT_EQ(data.type, 1) << "a line";
    ASSERT_TRUE(file.read(data));
    EXPECT_EQ(data.type, 0);
}

TEST_F(MapFileTest, HostileKmlStaysSmall) {
    std::string bomb = "<?xml version=\"1.0\"?><!DOCTYPE kml [<!ENTITY a0 \"1,2 \">";
    for (int i = 1; i < 20; i++) {
        const std::string inner = "&a" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY a" + std::to_string(i) + " \"";
        for (int k = 0; k < 10; k++)
            bomb += inner;
        bomb += "\">";
    }
    bomb += "]><kml><Placemark><coordinates>3,4 &a19;</coordinates></Placemark></kml>";
    const std::string content = contentOf(write("bomb.kml", bomb));
    EXPECT_LT(content.size(), 100u) << "nothing, or the point that isn't in an entity";

    write("secret.txt", "9,9");
    const std::string outside = contentOf(
        write("outside.kml", "<?xml version=\"1.0\"?><!DOCTYPE kml [<!ENTITY x SYSTEM \"" +
                                 (folder / "secret.txt").string() +
                                 "\">]><kml><coordinates>1,2 &x;</coordinates></kml>"));
    EXPECT_EQ(outside, " 0 1: 2,1\n");

    const auto nested = [](int depth) {
        std::string text;
        for (int i = 0; i < depth; i++)
            text += "<Folder>";
        text += "<coordinates>1,2</coordinates>";
        for (int i = 0; i < depth; i++)
            text += "</Folder>";
        return kml(text);
    };
    EXPECT_EQ(contentOf(write("deep.kml", nested(200))), " 0 1: 2,1\n");
    EXPECT_EQ(contentOf(write("deeper.kml", nested(100000))), "");
}

} // namespace
} // namespace ORV
