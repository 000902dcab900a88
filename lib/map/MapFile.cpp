#include "ORV/MapFile.h"

#include "ORV/File.h"
#include "ORV/StrLib.h"

#include <algorithm>

namespace ORV {
namespace {

constexpr int probe_bytes = 100;

void setBox(MapFileHeader& header, const EarthRange& range) {
    header.min_lat = range.min_lat;
    header.max_lat = range.max_lat;
    header.min_lon = range.min_lon;
    header.max_lon = range.max_lon;
}

} // namespace

int MapFile::checkType(const char* name) {
    File probe(name, "r");
    if (!probe.isOpen())
        return -1;
    char start[probe_bytes + 1] = "";
    const int got = probe.read(start, probe_bytes);
    start[std::max(got, 0)] = 0;
    if (MapOrvFile::isText(start))
        return NATIVE;
    return ShapeFile::isShape(start) ? SHAPE : KmlFile::isKml(start) ? KML : NATIVE;
}

int MapFile::open(const char* name, int new_mode, int new_type) {
    close();
    mode = new_mode;
    type = new_type;
    if (type == FIND)
        type = mode == 0 ? checkType(name) : NATIVE;
    if (type == NATIVE)
        open_flag = native.open(name, mode);
    else if (type == KML && mode == 0)
        open_flag = kml.open(name);
    else if (type == SHAPE && mode == 0) {
        shape = std::make_unique<ShapeFile>();
        open_flag = shape->open(name);
    }
    return open_flag;
}

int MapFile::close() {
    open_flag = false;
    read = num = 0;
    kml.close();
    shape.reset();
    return native.close();
}

int MapFile::readHeader(MapFileHeader& header) {
    if (!open_flag)
        return 0;
    if (type == NATIVE)
        return native.readHeader(header);
    header.init();
    read = 0;
    return type == KML ? readKmlHeader(header) : readShapeHeader(header);
}

int MapFile::readKmlHeader(MapFileHeader& header) {
    if (!kml.read(kml_data))
        return 0;
    num = header.num = kml_data.points.getNum();
    header.id = 0;
    setBox(header, kml_data.points.getRange());
    return StrLib::copy(header.name, sizeof header.name, kml_data.name), 1;
}

int MapFile::readShapeHeader(MapFileHeader& header) {
    if (!shape->read(shape_data))
        return 0;
    num = header.num = shape_data.points.getNum();
    header.id = shape_data.id;
    setBox(header, shape_data.range);
    return StrLib::copy(header.name, sizeof header.name, shape_data.name), 1;
}

int MapFile::readData(EarthPoint& point) {
    if (!open_flag)
        return 0;
    if (type == NATIVE)
        return native.readData(point);
    if (read >= num)
        return 0;
    return (type == KML ? kml_data.points : shape_data.points).get(read++, point);
}

} // namespace ORV
