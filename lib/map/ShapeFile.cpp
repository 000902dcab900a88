#include "ORV/ShapeFile.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

namespace ORV {
namespace {

constexpr unsigned char magic[] = {0, 0, 0x27}; // of the file code 9994
constexpr int file_header_bytes = 100;
constexpr int header_words = 22; // of a record of lines: type, box, two counts
constexpr int part_words = 2;
constexpr int point_words = 8;
constexpr int point_bytes = 16;
constexpr int points_in_block = 256;
constexpr int most_reserved = 1 << 20; // points

enum Shape { EMPTY = 0, POINT = 1, LINE = 3, POLYGON = 5, LINE_Z = 13, POLYGON_Z = 15 };

bool isCoordinate(double value) {
    return std::isfinite(value) && std::fabs(value) < 1e6;
}

} // namespace

int ShapeFile::checkType(const char* name) {
    File probe(name, "r");
    if (!probe.isOpen())
        return -1;
    unsigned char bytes[10] = {};
    return probe.read(bytes, sizeof bytes) >= static_cast<int>(sizeof magic) && isShape(bytes);
}

bool ShapeFile::isShape(const void* start) {
    return std::memcmp(start, magic, sizeof magic) == 0;
}

int ShapeFile::open(const char* name, int new_mode) {
    close();
    mode = new_mode;
    char header[file_header_bytes];
    open_flag = mode == 0 && File::open(name, "r") && readBytes(header, sizeof header);
    return open_flag;
}

int ShapeFile::close() {
    open_flag = false;
    parts = part = -1;
    rec_num = points = 0;
    return File::close();
}

bool ShapeFile::readBytes(void* bytes, int n) {
    return File::read(bytes, n) == n;
}

bool ShapeFile::readOrdered(const Swap& order, int& value) {
    return order.readInt4(*this, value) == 4;
}

int ShapeFile::read(ShapeData& data) {
    data.points.clear();
    if (!open_flag)
        return 0;
    while (part < 0 || part >= parts) {
        const int result = readRecord(data);
        if (result <= 0 || shape == POINT)
            return result > 0;
    }
    const int end = part + 1 < parts ? starts[part + 1] : points;
    const int count = end - starts[part];
    data.id = rec_num;
    data.range = range;
    part++;
    return readPoints(count, data) && (part < parts || skipRest());
}

/// Begins the next record: 1 for one with something in it or an empty one, 0 at the end.
int ShapeFile::readRecord(ShapeData& data) {
    parts = part = -1;
    if (!readOrdered(swap, rec_num) || !readOrdered(swap, rec_len) || !readOrdered(little, shape))
        return 0;
    switch (shape) {
    case EMPTY:
        return 1;
    case POINT: {
        data.id = rec_num;
        if (!readPoints(1, data) || data.points.getNum() != 1)
            return 0;
        const EarthPoint point = data.points.get(0);
        data.range.set(point.lat, point.lat, point.lon, point.lon);
        return 1;
    }
    case LINE:
    case POLYGON:
    case LINE_Z:
    case POLYGON_Z:
        return readParts();
    default:
        return 0;
    }
}

int ShapeFile::readParts() {
    double box[4];
    for (double& value : box)
        if (little.readDouble(*this, value) != static_cast<int>(sizeof value))
            return 0;
    // What is no box of the earth doesn't tell which parts can be skipped.
    if (std::all_of(std::begin(box), std::end(box), isCoordinate))
        range.set(static_cast<float>(box[1]), static_cast<float>(box[3]),
                  static_cast<float>(box[0]), static_cast<float>(box[2]));
    else
        range.init();
    if (!readOrdered(little, parts) || !readOrdered(little, points))
        return 0;
    const long long words = header_words + static_cast<long long>(part_words) * parts +
                            static_cast<long long>(point_words) * points;
    if (parts < 0 || parts > max_parts || points < 0 || words > rec_len)
        return parts = -1, 0;
    for (int i = 0; i < parts; i++)
        if (!readOrdered(little, starts[i]) || starts[i] < (i > 0 ? starts[i - 1] : 0) ||
            starts[i] > points)
            return parts = -1, 0;
    // A single part has all the points, wherever it is said to start.
    if (parts > 0)
        starts[0] = 0;
    part = 0;
    return parts > 0 || skipRest();
}

int ShapeFile::readPoints(int count, ShapeData& data) {
    double block[2 * points_in_block];
    if (data.points.max < count)
        data.points.expand(std::min(count, most_reserved)); // the file may hold fewer than it says
    while (count > 0) {
        const int n = std::min(count, points_in_block);
        if (!readBytes(block, n * point_bytes))
            return 0;
        for (int i = 0; i < n; i++)
            if (isCoordinate(block[2 * i]) && isCoordinate(block[2 * i + 1]))
                data.points.add(static_cast<float>(block[2 * i + 1]),
                                static_cast<float>(block[2 * i]));
        count -= n;
    }
    return 1;
}

/// Passes over what follows the points of a record, such as heights and measures.
int ShapeFile::skipRest() {
    long long left = 2LL * (rec_len - header_words - part_words * parts - point_words * points);
    char block[4096];
    while (left > 0) {
        const int n = static_cast<int>(std::min<long long>(left, sizeof block));
        if (!readBytes(block, n))
            return 0;
        left -= n;
    }
    return 1;
}

} // namespace ORV
