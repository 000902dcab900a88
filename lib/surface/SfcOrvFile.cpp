#include "ORV/SfcOrvFile.h"

#include "ORV/Convert.h"
#include "ORV/DateTool.h"
#include "ORV/FileTool.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace ORV {
namespace {
constexpr float miss = Const::MISS;
constexpr char magic[] = "ORVSFC";
constexpr int magic_size = sizeof magic - 1;
constexpr int line_size = 200; // bytes of a line, with the end of the text
constexpr int date_size = 30;
constexpr char line_end[] = " $\n";
constexpr int num_type = 3; // low, medium and high cloud types
constexpr float mark = -99; // of a value that is missing

bool has(float value) {
    return value != miss;
}

// Unit factors of the file; those for writing have the few digits that files were always made with.
double toTenthsF(double t) {
    return (t * 9 / 5 + 32) * 10;
}
double fromTenthsF(double v) {
    return (v / 10 - 32) * 5 / 9;
}
double toF(double t) {
    return t * 9 / 5 + 32;
}
double fromF(double v) {
    return (v - 32) * 5 / 9;
}
double toHundredths(double mm) {
    return mm * 0.03937 * 100;
}
double fromHundredths(double v) {
    return v / 100 * 25.4;
}
double toInches(double cm) {
    return cm * 0.3937;
}
double fromInches(double v) {
    return v * 2.54;
}
double asIs(double v) {
    return v;
}

// The groups of one number each. The writer takes them in this order.
class Group {
public:
    char letter;
    float SfcData::*value;
    double (*to_file)(double);
    double (*from_file)(double);
    int width, digits;
    bool signed_value; // below zero is a value too
};
constexpr Group groups[] = {
    {'p', &SfcData::prec1, toHundredths, fromHundredths, 2, 0, false},
    {'Q', &SfcData::prec3, toHundredths, fromHundredths, 2, 0, false},
    {'r', &SfcData::prec6, toHundredths, fromHundredths, 2, 0, false},
    {'q', &SfcData::prec12, toHundredths, fromHundredths, 2, 0, false},
    {'R', &SfcData::prec24, toHundredths, fromHundredths, 2, 0, false},
    {'X', &SfcData::max_t, toF, fromF, 2, 1, true},
    {'x', &SfcData::max6_t, toF, fromF, 2, 1, true},
    {'N', &SfcData::min_t, toF, fromF, 2, 1, true},
    {'n', &SfcData::min6_t, toF, fromF, 2, 1, true},
    {'S', &SfcData::snow_cov, toInches, fromInches, 2, 1, false},
};
constexpr Group late_groups[] = {
    {'G', &SfcData::gust, asIs, asIs, 3, 0, false},
    {'s', &SfcData::solar, asIs, asIs, 3, 0, false},
    {'t', &SfcData::sst, asIs, asIs, 2, 1, true},
    {'h', &SfcData::wav_hgt, asIs, asIs, 2, 1, true},
    {'e', &SfcData::elev, asIs, asIs, 0, 0, true},
    {'v', &SfcData::spd, asIs, asIs, 0, 0, false},
    {'w', &SfcData::wav_per, asIs, asIs, 0, 0, false},
};

const Group* findGroup(char letter) {
    for (const auto& group : groups)
        if (group.letter == letter)
            return &group;
    for (const auto& group : late_groups)
        if (group.letter == letter)
            return &group;
    return nullptr;
}

// A line in the making. A number comes as printf would write it.
class LineWriter {
public:
    int length() const { return len; }
    const char* text() const { return line; }
    void cut(int n) { len = n; }

    void put(char c) {
        if (len < capacity)
            line[len++] = c;
    }
    void put(const char* text) {
        while (*text)
            put(*text++);
    }
    // "%*.*f"
    void number(double value, int width, int digits) {
        char text[64];
        const double bounded = std::clamp(value, -1e30, 1e30);
        const auto end =
            std::to_chars(text, text + sizeof text, bounded, std::chars_format::fixed, digits);
        right(text, static_cast<int>(end.ptr - text), width, ' ');
    }
    // "%*d", or with zeros in front "%0*d"
    void integer(int value, int width, char fill) {
        char text[16];
        const int sign = value < 0 && fill == '0' ? 1 : 0;
        const auto end = std::to_chars(text, text + sizeof text, value);
        if (sign)
            put('-');
        right(text + sign, static_cast<int>(end.ptr - text) - sign, width - sign, fill);
    }
    // A token, which ends at the first blank: none inside, and no control characters.
    void token(const char* text) {
        for (; *text; text++)
            put(std::isgraph(static_cast<unsigned char>(*text)) ? *text : '_');
    }

private:
    static constexpr int capacity = 400;

    void right(const char* text, int n, int width, char fill) {
        for (int i = n; i < width; i++)
            put(fill);
        for (int i = 0; i < n; i++)
            put(text[i]);
    }

    char line[capacity];
    int len = 0;
};

void writeTemp(float t, LineWriter& line) {
    if (has(t))
        line.number(toTenthsF(t), 3, 0);
    else
        line.put("-99");
    line.put(' ');
}

void writeWind(float dir, float spd, LineWriter& line) {
    if (!has(dir)) {
        line.put("-999 ");
        return;
    }
    const int degrees = Scan::toInt(dir), knots = Scan::toInt(std::min(spd, 99999.0f));
    if (spd >= 100) {
        line.integer(degrees / 5 * 5, 3, '0');
        line.integer(knots, 3, '0');
    } else {
        line.integer(
            static_cast<int>(std::clamp(degrees / 10 * 100LL + knots, -999999LL, 999999LL)), 4,
            '0');
    }
    line.put(' ');
}

// The leading digits are found by the altimeter setting, or by a hard frost without one.
float decodeSlp(float v, float alt, float t) {
    if (v < 0)
        return miss;
    const double mb = v / 10.0;
    if (v >= 1000)
        return static_cast<float>(mb);
    if (v <= 500)
        return static_cast<float>(mb + (has(alt) && alt < 28.4 ? 900 : 1000));
    const bool high = has(alt) ? alt > 30.7 : has(t) && t < -10;
    return static_cast<float>(mb + (high ? 1000 : 900));
}

// Sea-level pressure loses its leading digits where the reader finds them again; a station in hard
// frost without an altimeter setting keeps them, or its 998 mb would come back as 1098.
void writeSlp(const SfcData& data, LineWriter& line) {
    const int tenths = Scan::toInt(data.slp * 10 + 0.1);
    const int last_digits = tenths % 1000;
    const bool usual = data.slp >= 950 && data.slp <= 1050;
    const float found = decodeSlp(last_digits, data.alt, data.t);
    line.integer(usual && std::fabs(found - data.slp) < 1 ? last_digits : tenths, 3, ' ');
}

void writePressures(const SfcData& data, LineWriter& line) {
    if (has(data.alt))
        line.integer(Scan::toInt(data.alt * 100 + 0.01) % 1000, 3, ' ');
    else
        line.put("-99");
    line.put(' ');
    if (has(data.slp))
        writeSlp(data, line);
    else
        line.put("-99");
    line.put(' ');
}

void writeVis(float vis, LineWriter& line) {
    if (has(vis))
        line.number(vis, 0, vis < 5 ? 2 : 1);
    else
        line.put("-99");
    line.put(' ');
}

void writeLayer(const CloudLayer& layer, LineWriter& line) {
    if (has(layer.height))
        line.number(layer.height / 100, 1, 0);
    else
        line.put("-99");
    const unsigned char cover = layer.cover;
    if (std::isdigit(cover))
        line.put(':');
    line.put(std::isgraph(cover) && cover != ',' ? layer.cover : 'M');
}

void writeClouds(const SfcData& data, LineWriter& line) {
    if (data.num_cld < 1)
        line.put("-99M");
    for (int i = 0; i < std::min(data.num_cld, SfcData::max_cloud); i++) {
        if (i > 0)
            line.put(',');
        writeLayer(data.cloud[i], line);
    }
    line.put(' ');
}

// Each of these writes one group, or nothing when its value isn't there.

void writeTime(const Date& date, LineWriter& line) {
    if (!date.isSet() || date.hour == Const::MISS)
        return;
    line.put(" @");
    line.integer(date.hour, 2, '0');
    line.integer(date.min == Const::MISS ? 0 : date.min, 2, '0');
}

void writePlace(const SfcData& data, LineWriter& line) {
    if (!has(data.lat))
        return;
    line.put(" L");
    line.number(data.lat * 10.0, 1, 0);
    line.put(',');
    line.number(data.lon * 10.0, 1, 0);
}

void writeTendency(const SfcData& data, LineWriter& line) {
    constexpr int unknown = 9; // a figure that the code table leaves free
    if (!has(data.ptend))
        return;
    line.put(" P");
    line.integer(data.ptend_type >= 0 && data.ptend_type <= 9 ? data.ptend_type : unknown, 1, ' ');
    line.number(data.ptend * 10.0, 3, 0);
}

void writeGroup(const Group& group, const SfcData& data, LineWriter& line) {
    const float value = data.*group.value;
    if (!has(value) || (!group.signed_value && value < 0))
        return;
    if (group.letter == 'v' && has(data.dir))
        return; // the wind stands in its token
    line.put(' ');
    line.put(group.letter);
    line.number(group.to_file(value), group.width, group.digits);
}

void writeTypes(const SfcData& data, LineWriter& line) {
    if (!std::isgraph(static_cast<unsigned char>(data.cld_type[0])))
        return;
    line.put(" C");
    for (const unsigned char type : data.cld_type)
        line.put(std::isgraph(type) ? static_cast<char>(type) : '/');
}

// The remarks, as far as the line has room for them. Blanks at their end would grow each time that
// a file is copied.
void writeComment(const SfcData& data, int room, LineWriter& line) {
    int n = static_cast<int>(std::strlen(data.comment));
    n = std::min(n, room - 2);
    while (n > 0 && std::isspace(static_cast<unsigned char>(data.comment[n - 1])))
        n--;
    if (n <= 0)
        return;
    line.put(" #");
    for (int i = 0; i < n; i++) {
        const unsigned char c = data.comment[i];
        line.put(std::iscntrl(c) || c == '$' ? ' ' : data.comment[i]);
    }
}

void writeGroups(const SfcData& data, LineWriter& line) {
    // A group for which the line has no more room is left out whole.
    constexpr int room = line_size - 1 - (sizeof line_end - 1);
    int good = line.length();
    const auto keep = [&good, &line] {
        if (line.length() > room)
            line.cut(good);
        good = line.length();
    };
    writeTime(data.date, line), keep();
    writePlace(data, line), keep();
    writeTendency(data, line), keep();
    for (const auto& group : groups)
        writeGroup(group, data, line), keep();
    writeTypes(data, line), keep();
    for (const auto& group : late_groups)
        writeGroup(group, data, line), keep();
    writeComment(data, room - line.length(), line);
}

// ---- reading

// The tokens and groups of a line, one after the other.
class LineReader {
public:
    explicit LineReader(char* text) : p(text) {}

    bool atEnd() {
        skipBlanks();
        return *p == '\0';
    }
    // The next word, terminated in place; an empty one at the end of the line.
    const char* token() {
        skipBlanks();
        char* start = p;
        while (*p && !std::isspace(static_cast<unsigned char>(*p)))
            p++;
        if (*p)
            *p++ = '\0';
        return start;
    }
    float number() {
        float value = miss;
        Scan::number(token(), value);
        return value;
    }
    char* p;

private:
    void skipBlanks() {
        while (std::isspace(static_cast<unsigned char>(*p)))
            p++;
    }
};

float readTemp(LineReader& line) {
    const float v = line.number();
    return v == mark || !has(v) ? miss : static_cast<float>(fromTenthsF(v));
}

void readWind(LineReader& line, SfcData& data) {
    constexpr long long long_form = 5000; // from here on the direction has whole degrees
    long long v = Const::MISS;
    Scan::integer(line.token(), v);
    if (v < 0)
        return;
    data.dir = static_cast<float>(v >= long_form ? v / 1000 : v / 100 * 10);
    data.spd = static_cast<float>(v >= long_form ? v % 1000 : v % 100);
}

float decodeAlt(float v) {
    if (v < 0)
        return miss;
    const double inches = v / 100.0;
    if (v >= 1000)
        return static_cast<float>(inches);
    return static_cast<float>(v > 500 ? inches + 20 : inches + 30);
}

void readLayer(const char* text, CloudLayer& layer) {
    float height = miss;
    const int used = Scan::number(text, height);
    if (!used)
        return;
    if (height != mark)
        layer.height = height * 100;
    const char* cover = text + used;
    if (*cover == ':' && cover[1])
        cover++;
    layer.cover = *cover && *cover != 'M' ? *cover : ' ';
}

void readClouds(const char* token, SfcData& data) {
    if (!*token)
        return;
    const char* piece = token;
    for (int i = 0; i < SfcData::max_cloud && piece; i++) {
        readLayer(piece, data.cloud[i]);
        data.num_cld = i + 1;
        piece = std::strchr(piece, ',');
        if (piece)
            piece++;
    }
    if (data.cloud[0].cover == ' ') {
        data.cloud[0].height = miss;
        data.num_cld = 0;
    }
}

void readTokens(LineReader& line, SfcData& data) {
    const char* id = line.token();
    data.setId(id);
    if (std::strlen(data.id) > 4 && !data.setWmo(data.id))
        data.wmo = 0;
    data.t = readTemp(line);
    data.td = readTemp(line);
    readWind(line, data);
    data.alt = decodeAlt(line.number());
    const float slp = line.number(), vis = line.number();
    readClouds(line.token(), data);
    data.slp = decodeSlp(slp, data.alt, data.t);
    data.vis = vis < 0 ? miss : vis;
    const char* weather = line.token();
    if (*weather != '-')
        data.setWeather(weather);
}

// Each of these reads one group behind its letter and moves past it; false when it is malformed.

bool readNumber(char*& p, float& value, int width = 0) {
    const int used = Scan::number(p, value, width);
    p += used;
    return used > 0;
}

bool readTime(char*& p, SfcData& data) {
    float hhmm = miss;
    if (!readNumber(p, hhmm))
        return false;
    const int v = Scan::toInt(hhmm);
    if (v >= 0)
        data.date.adjustMinute(v / 100, v % 100);
    return true;
}

bool readPlace(char*& p, SfcData& data) {
    float lat = miss, lon = miss;
    if (!readNumber(p, lat) || *p++ != ',' || !readNumber(p, lon))
        return false;
    data.setLoc(static_cast<float>(lat / 10.0), static_cast<float>(lon / 10.0));
    data.setArea("SHIP");
    data.elev = 0;
    return true;
}

bool readTendency(char*& p, SfcData& data) {
    int type = Const::MISS;
    float value = miss;
    const int used = Scan::integer(p, type, 1);
    p += used;
    if (!used || !readNumber(p, value))
        return false;
    data.ptend_type = type;
    data.ptend = static_cast<float>(value / 10.0);
    return true;
}

bool readTypes(char*& p, SfcData& data) {
    for (int i = 0; i < num_type && std::isgraph(static_cast<unsigned char>(*p)); i++, p++)
        data.cld_type[i] = *p == '/' ? ' ' : *p;
    return true;
}

bool readExtreme(char*& p, SfcData& data, int file_hour) {
    float value = miss;
    if (!readNumber(p, value))
        return false;
    const bool morning_low = file_hour >= 10 && file_hour <= 21; // of the stations this form is for
    (morning_low ? data.min_t : data.max_t) = static_cast<float>(fromF(value));
    return true;
}

bool readValue(const Group& group, char*& p, SfcData& data) {
    float value = miss;
    if (!readNumber(p, value))
        return false;
    data.*group.value = static_cast<float>(group.from_file(value));
    return true;
}

void readComment(const char* p, SfcData& data) {
    char text[sizeof data.comment];
    const int n = std::min<int>(std::strcspn(p, "$\r\n"), sizeof text - 1);
    StrLib::copy(text, n, p, n);
    data.setComment(text);
}

void readGroups(LineReader& line, SfcData& data, int file_hour) {
    bool good = true;
    while (good && !line.atEnd()) {
        const char letter = *line.p++;
        char*& p = line.p;
        switch (letter) {
        case '@':
            good = readTime(p, data);
            break;
        case 'L':
            good = readPlace(p, data);
            break;
        case 'P':
            good = readTendency(p, data);
            break;
        case 'C':
            good = readTypes(p, data);
            break;
        case 'T':
            good = readExtreme(p, data, file_hour);
            break;
        case '#':
            readComment(p, data);
            return;
        default:
            const Group* group = findGroup(letter);
            good = group && readValue(*group, p, data);
        }
    }
}
} // namespace

int SfcOrvFile::checkType(const char* name) {
    File probe(name, 0);
    char start[magic_size];
    const int n = probe.isOpen() ? probe.read(start, magic_size) : 0;
    if (n <= 0)
        return -1;
    return n == magic_size && std::memcmp(start, magic, magic_size) == 0;
}

int SfcOrvFile::open(const char* name, int new_mode) {
    close();
    if (new_mode < 0 || new_mode > 2)
        return 0;
    if (new_mode == 2 && checkType(name) == 0)
        return 0;
    if (!file.open(name, new_mode))
        return 0;
    opened = true;
    mode = new_mode;
    num = -1;
    failed = false;
    *datim = '\0';
    if (mode == 0) {
        date.init();
        if (!readHeader())
            close();
        return opened;
    }
    if (mode == 2)
        file.endFile();
    if (date.isSet())
        writeHeader();
    return 1;
}

int SfcOrvFile::close() {
    if (!opened)
        return 1;
    opened = false;
    if (mode != 0 && file.getFP() && std::fflush(file.getFP()) != 0)
        failed = true;
    file.close();
    return !failed;
}

// The lines at the start of the file; 0 when it is another format. An empty file has none.
int SfcOrvFile::readHeader() {
    char line[line_size];
    const int n = file.getLine(line, sizeof line);
    if (n == 0)
        return 1;
    if (std::strncmp(line, magic, magic_size) != 0)
        return 0;
    if (n == line_size - 1 && line[n - 1] != '\n')
        file.skipLine();

    if (const int length = file.getLine(line, sizeof line)) {
        if (length == line_size - 1 && line[length - 1] != '\n')
            file.skipLine();
        line[date_size - 1] = '\0';
        const char* start = line;
        while (std::isspace(static_cast<unsigned char>(*start)))
            start++;
        StrLib::copy(datim, sizeof datim, start);
        StrLib::trimWS(datim);
        DateTool::decode(datim, date);
    }
    return 1;
}

int SfcOrvFile::writeHeader() {
    if (num >= 0 || (mode == 2 && file.tell() > 0))
        return 1;
    String label;
    DateTool::createLabel(date, label);
    if (file.printf("%s\n%s\n", magic, label.get()) < 0)
        failed = true;
    num = 0;
    return !failed;
}

int SfcOrvFile::rewind() {
    if (!opened || mode != 0 || !file.rewind())
        return 0;
    num = 0;
    return readHeader();
}

int SfcOrvFile::setDate(const Date& value) {
    date = value;
    return 1;
}

int SfcOrvFile::getDate(Date& out) const {
    out = date;
    return 1;
}

int SfcOrvFile::read(SfcData& data) {
    data.init();
    data.setDate(date);
    if (!opened || mode != 0)
        return 0;
    char text[line_size];
    const int n = file.getLine(text, sizeof text);
    if (n == 0)
        return 0;
    if (n == line_size - 1 && text[n - 1] != '\n')
        file.skipLine();

    LineReader line(text);
    if (line.atEnd())
        return 0;
    readTokens(line, data);
    readGroups(line, data, date.hour);
    return 1;
}

bool SfcOrvFile::atEnd() {
    if (!opened || mode != 0)
        return true;
    FILE* fp = file.getFP();
    if (!fp)
        return false;
    const int c = std::getc(fp);
    if (c == EOF)
        return true;
    std::ungetc(c, fp);
    return false;
}

int SfcOrvFile::write(const SfcData& data) {
    if (!opened || mode == 0)
        return 0;
    writeHeader();

    LineWriter line;
    line.token(data.id);
    line.put(' ');
    writeTemp(data.t, line);
    writeTemp(data.td, line);
    writeWind(data.dir, data.spd, line);
    writePressures(data, line);
    writeVis(data.vis, line);
    writeClouds(data, line);
    if (*data.weather)
        line.token(data.weather);
    else
        line.put('-');
    writeGroups(data, line);
    line.put(line_end);
    if (file.write(line.text(), line.length()) != line.length())
        failed = true;
    num = std::max(num, 0) + 1;
    return !failed;
}

} // namespace ORV
