#include "ORV/MapOrvFile.h"

#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"

#include <cmath>
#include <cstring>

namespace ORV {
namespace {

constexpr unsigned more_points = 65535; // a binary count that is continued by another
constexpr int max_counts = 3;
constexpr int header_bytes = 20; // behind the count
constexpr int point_bytes = 8;
constexpr int probe_bytes = 100;
constexpr int pairs_in_line = 4;
constexpr int read_step = 1 << 20;

/// Reads all of a file, and puts a zero byte behind it that ends number texts.
void readAll(File& file, Buffer& content) {
    content.init(0);
    for (int got = read_step; got > 0;) {
        const int before = content.getSize();
        if (!content.check(before + read_step))
            break;
        got = file.read(content.get() + before, content.getMax() - before - 1);
        if (got > 0)
            content.size = before + got;
    }
    content.check(content.getSize() + 1);
    content.get()[content.getSize()] = 0;
}

bool isNumber(float value) {
    return std::isfinite(value);
}

} // namespace

int MapOrvFile::checkType(const char* name) {
    File probe(name, "r");
    if (!probe.isOpen())
        return -1;
    char text[probe_bytes + 1] = "";
    const int got = probe.read(text, probe_bytes);
    text[got > 0 ? got : 0] = 0;
    int count, id;
    float box[4];
    return Scan::text(text, "%d %f %f %f %f %d", &count, box, box + 1, box + 2, box + 3, &id) == 6
               ? TEXT
               : BINARY;
}

int MapOrvFile::open(const char* name, int new_mode, int new_type) {
    close();
    mode = new_mode;
    type = new_type;
    if (type == FIND)
        type = mode == 0 ? checkType(name) : BINARY;
    if (type != BINARY && type != TEXT)
        return 0;
    open_flag = mode == 0 ? openRead(name) : openWrite(name);
    return open_flag;
}

int MapOrvFile::openRead(const char* name) {
    if (!file.open(name, "r"))
        return 0;
    readAll(file, content);
    if (type == BINARY)
        openNames(name);
    return 1;
}

int MapOrvFile::openWrite(const char* name) {
    return file.open(name, "w");
}

void MapOrvFile::openNames(const char* name) {
    names.init(0);
    name_start = 0;
    const int length = StrLib::length(name);
    if (length < 4 || FileTool::isStdio(name))
        return;
    String companion(name);
    companion.trunc(length - 4);
    companion.append(".mdb");
    if (!db.open(companion.get(), "r"))
        return;
    readAll(db, names);
    names.skipLine();
    name_start = names.getInd();
    db.close();
}

int MapOrvFile::rewind() {
    if (!open_flag || mode != 0)
        return 0;
    read = num = 0;
    content.seek(0);
    names.seek(name_start);
    return 1;
}

int MapOrvFile::seek(int position) {
    read = num = 0;
    return open_flag && mode == 0 ? content.seek(position) : 0;
}

int MapOrvFile::close() {
    open_flag = false;
    read = num = 0;
    content.init(0);
    names.init(0);
    file.close();
    return db.close();
}

unsigned int MapOrvFile::takeBytes(int n) {
    unsigned int value = 0;
    const unsigned char* bytes = content.get() + content.getInd();
    for (int i = 0; i < n; i++)
        value = value << 8 | bytes[i];
    content.inc(n);
    return value;
}

float MapOrvFile::takeFloat() {
    const unsigned int bits = takeBytes(4);
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

bool MapOrvFile::takeNumber(double& value) {
    const int passed =
        Scan::number(reinterpret_cast<const char*>(content.get()) + content.getInd(), value);
    content.inc(passed);
    return passed > 0;
}

int MapOrvFile::readHeader(MapFileHeader& header) {
    if (!open_flag || mode != 0)
        return 0;
    skipData();
    header.init();
    read = num = 0;
    if (!(type == BINARY ? readBinaryHeader(header) : readTextHeader(header)))
        return 0;
    num = header.num;
    return 1;
}

int MapOrvFile::readBinaryHeader(MapFileHeader& header) {
    unsigned int count = more_points;
    for (int i = 0; i < max_counts && count == more_points; i++) {
        if (available() < 2)
            return 0;
        count = takeBytes(2);
        header.num += static_cast<int>(count);
    }
    if (available() < header_bytes)
        return 0;
    for (float* value : {&header.max_lat, &header.min_lat, &header.max_lon, &header.min_lon})
        *value = takeFloat();
    header.id = static_cast<int>(takeBytes(4));
    readName(header);
    return 1;
}

int MapOrvFile::readName(MapFileHeader& header) {
    char line[200];
    const int got = names.readLine(line, sizeof line - 1);
    if (got == 0)
        return 0;
    if (line[got - 1] != '\n')
        names.skipLine();
    line[got] = 0;
    return Scan::text(line, "%*s %*s %49s", header.name);
}

int MapOrvFile::readTextHeader(MapFileHeader& header) {
    double values[6];
    for (double& value : values)
        if (!takeNumber(value))
            return 0;
    header.num = Scan::toInt(values[0]);
    header.max_lat = values[1];
    header.min_lat = values[2];
    header.max_lon = values[3];
    header.min_lon = values[4];
    header.id = Scan::toInt(values[5]);
    return header.num >= 0;
}

int MapOrvFile::readBinaryPoint(EarthPoint& point) {
    if (available() < point_bytes)
        return 0;
    const float lat = takeFloat();
    const float lon = takeFloat();
    return point.set(lat, lon);
}

int MapOrvFile::readTextPoint(EarthPoint& point) {
    double lat, lon;
    return takeNumber(lat) && takeNumber(lon) ? point.set(lat, lon) : 0;
}

int MapOrvFile::readData(EarthPoint& point) {
    while (read < num) {
        if (!(type == BINARY ? readBinaryPoint(point) : readTextPoint(point))) {
            read = num; // a cut segment ends here
            return 0;
        }
        read++;
        if (isNumber(point.lat) && isNumber(point.lon))
            return 1;
    }
    return 0;
}

int MapOrvFile::readData(EarthPoints& points) {
    points.clear();
    EarthPoint point;
    while (readData(point))
        points.add(point);
    return points.getNum() > 0;
}

int MapOrvFile::skipData() {
    if (type == BINARY && read < num) {
        const long left = static_cast<long>(num - read) * point_bytes;
        content.inc(left < available() ? static_cast<int>(left) : available());
        read = num;
    }
    EarthPoint point;
    while (readData(point)) {
    }
    return 1;
}

int MapOrvFile::writeHeader(const MapFileHeader& header) {
    const bool fits = type == TEXT || header.num < static_cast<int>(more_points);
    if (!open_flag || mode != 1 || header.num < 0 || !fits)
        return 0;
    read = 0;
    num = header.num;
    if (type == TEXT)
        return file.printf("%4d %9.4f %9.4f %9.4f %9.4f %5d\n", header.num, header.max_lat,
                           header.min_lat, header.max_lon, header.min_lon, header.id) > 0;
    swap.writeInt2(file, static_cast<short>(header.num));
    for (const float value : {header.max_lat, header.min_lat, header.max_lon, header.min_lon})
        swap.writeFloat(file, value);
    return swap.writeInt4(file, header.id) == 4;
}

int MapOrvFile::writeData(const EarthPoint& point) {
    if (!open_flag || mode != 1 || read >= num)
        return 0;
    read++;
    if (type == BINARY)
        return swap.writeFloat(file, point.lat) == 4 && swap.writeFloat(file, point.lon) == 4;
    const bool ends_line = read % pairs_in_line == 0 || read == num;
    return file.printf("%8.4f %9.4f%s", point.lat, point.lon, ends_line ? "\n" : " ") > 0;
}

int MapOrvFile::print() const {
    return Orv::outMessage("MapOrvFile - binary: %d\n", type == BINARY);
}

} // namespace ORV
