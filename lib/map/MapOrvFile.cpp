#include "ORV/MapOrvFile.h"

#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace ORV {
namespace {

constexpr unsigned more_points = 65535; // a binary count that is continued by another
constexpr int max_counts = 3;
constexpr int header_bytes = 20; // behind the count
constexpr int point_bytes = 8;
constexpr int probe_bytes = 100;
constexpr int pairs_in_line = 4;
constexpr int window_size = 1 << 16;
constexpr int max_size = (1 << 30) - (1 << 20); // 1 GB

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
    return isText(text) ? TEXT : BINARY;
}

bool MapOrvFile::isText(const char* start) {
    int count, id;
    float box[4];
    return Scan::text(start, "%d %f %f %f %f %d", &count, box, box + 1, box + 2, box + 3, &id) == 6;
}

int MapOrvFile::open(const char* name, int new_mode, int new_type) {
    close();
    mode = new_mode;
    type = new_type;
    if (type == FIND && mode != 0)
        type = BINARY;
    if (type < FIND || type > TEXT)
        return 0;
    open_flag = mode == 0 ? openRead(name) : openWrite(name);
    return open_flag;
}

int MapOrvFile::openRead(const char* name) {
    if (!file.open(name, "r"))
        return 0;
    content.set(file);
    content.ensure(probe_bytes);
    if (type == FIND)
        type = content.size > 0 && isText(content.bytes.get()) ? TEXT : BINARY;
    if (type == BINARY)
        openNames(name);
    else
        content.ensureAll();
    return 1;
}

int MapOrvFile::openWrite(const char* name) {
    return file.open(name, "w");
}

void MapOrvFile::openNames(const char* name) {
    const int length = StrLib::length(name);
    if (length < 4 || FileTool::isStdio(name))
        return;
    String companion(name);
    companion.trunc(length - 4);
    companion.append(".mdb");
    if (!db.open(companion.get(), "r"))
        return;
    names.set(db);
    names.takeLine();
}

int MapOrvFile::rewind() {
    if (!open_flag || mode != 0)
        return 0;
    read = num = 0;
    if (db.isOpen()) {
        names.seek(0);
        names.takeLine();
    }
    return seekTo(0);
}

int MapOrvFile::seek(int position) {
    read = num = 0;
    return open_flag && mode == 0 && position >= 0 ? seekTo(position) : 0;
}

int MapOrvFile::close() {
    open_flag = false;
    read = num = 0;
    content.clear();
    names.clear();
    file.close();
    return db.close();
}

void MapOrvFile::Content::set(File& from) {
    clear();
    file = &from;
}

void MapOrvFile::Content::clear() {
    file = nullptr;
    size = at = 0;
}

// Reads until there are n bytes from the cursor on, with a zero byte behind them. False when the
// file ends before.
bool MapOrvFile::Content::ensure(int n) {
    if (size - at >= n)
        return true;
    if (!file)
        return false;
    const int left = size - at;
    const int needed = std::max(n, window_size);
    if (needed > room) {
        std::unique_ptr<char[]> wider(new char[needed + 1]);
        std::copy_n(bytes.get() + at, left, wider.get());
        bytes = std::move(wider);
        room = needed;
    } else if (at > 0) {
        std::memmove(bytes.get(), bytes.get() + at, left);
    }
    at = 0;
    size = left;
    while (size < n) {
        const int got = file->read(bytes.get() + size, room - size);
        if (got <= 0)
            break;
        size += got;
    }
    bytes[size] = 0;
    return size >= n;
}

// Makes all that is left of the file available.
void MapOrvFile::Content::ensureAll() {
    for (int n = window_size; n < max_size && ensure(n); n *= 2) {
    }
}

void MapOrvFile::Content::skip(long long n) {
    const int left = size - at;
    if (n <= left) {
        at += static_cast<int>(n);
        return;
    }
    size = at = 0;
    if (!file || file->seek(static_cast<long>(n - left), SEEK_CUR))
        return;
    for (n -= left; n > 0 && ensure(1); n -= std::min<long long>(n, size)) // a remote file
        at = static_cast<int>(std::min<long long>(n, size));
}

int MapOrvFile::Content::seek(long position) {
    size = at = 0;
    return file && file->seek(position, SEEK_SET);
}

// The rest of the line, which the cursor passes; what is beyond a window of it is dropped.
std::string_view MapOrvFile::Content::takeLine() {
    const auto find = [this] {
        return static_cast<const char*>(size > at ? std::memchr(bytes.get() + at, '\n', size - at)
                                                  : nullptr);
    };
    const char* end = find();
    if (!end) {
        ensure(window_size);
        end = find();
    }
    const char* start = bytes.get() + at;
    const int length = end ? static_cast<int>(end - start) : size - at;
    at += length + (end ? 1 : 0);
    return std::string_view(start, length);
}

int MapOrvFile::seekTo(int position) {
    if (!content.seek(position))
        return 0;
    if (type == TEXT)
        content.ensureAll();
    return 1;
}

unsigned int MapOrvFile::takeBytes(int n) {
    unsigned int value = 0;
    for (int i = 0; i < n; i++)
        value = value << 8 | static_cast<unsigned char>(content.bytes[content.at + i]);
    content.at += n;
    return value;
}

float MapOrvFile::takeFloat() {
    const unsigned int bits = takeBytes(4);
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

bool MapOrvFile::takeNumber(float& value) {
    const int passed = content.bytes ? Scan::number(content.bytes.get() + content.at, value) : 0;
    content.at += passed;
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
        if (!content.ensure(2))
            return 0;
        count = takeBytes(2);
        header.num += static_cast<int>(count);
    }
    if (!content.ensure(header_bytes))
        return 0;
    for (float* value : {&header.max_lat, &header.min_lat, &header.max_lon, &header.min_lon})
        *value = takeFloat();
    header.id = static_cast<int>(takeBytes(4));
    readName(header);
    return 1;
}

// The third word of the next line of the companion.
void MapOrvFile::readName(MapFileHeader& header) {
    const std::string_view line = names.takeLine();
    const auto isSpace = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    const char *word = line.data(), *end = word, *last = word + line.size();
    for (int i = 0; i < 3; i++) {
        word = std::find_if_not(end, last, isSpace);
        end = std::find_if(word, last, isSpace);
    }
    const auto length = std::min<std::size_t>(end - word, sizeof header.name - 1);
    std::copy_n(word, length, header.name);
    header.name[length] = 0;
}

int MapOrvFile::readTextHeader(MapFileHeader& header) {
    int used = 0;
    if (!content.bytes || Scan::text(content.bytes.get() + content.at, "%d %f %f %f %f %d%n",
                                     &header.num, &header.max_lat, &header.min_lat, &header.max_lon,
                                     &header.min_lon, &header.id, &used) < 6)
        return 0;
    content.at += used;
    return header.num >= 0;
}

int MapOrvFile::readBinaryPoint(EarthPoint& point) {
    if (!content.ensure(point_bytes))
        return 0;
    const float lat = takeFloat();
    const float lon = takeFloat();
    return point.set(lat, lon);
}

int MapOrvFile::readTextPoint(EarthPoint& point) {
    float lat, lon;
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
        content.skip(static_cast<long long>(num - read) * point_bytes);
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
