#include "ORV/GFont.h"

#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include "ReadText.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <iterator>

namespace ORV {
namespace {
constexpr int end_glyph = 255;
constexpr int end_file = 254;
constexpr int stroke_mark = 128;       // added to the x of a stroke's first point
constexpr int blank_width = 40;        // glyph units
constexpr std::size_t limit = 1 << 20; // bytes, far above what the points of a font take

// The numbers and characters of a font file.
class Cursor {
public:
    explicit Cursor(const std::string& text) : at(text.c_str()), end(at + text.size()) {}

    // A number and the white space behind it.
    bool number(int& value) {
        const int passed = Scan::integer(at, value);
        at += passed;
        skipBlanks();
        return passed > 0;
    }
    bool character(unsigned char& c) {
        if (at >= end)
            return false;
        c = static_cast<unsigned char>(*at++);
        return true;
    }

private:
    void skipBlanks() {
        while (at < end && std::isspace(static_cast<unsigned char>(*at)))
            at++;
    }

    const char* at;
    const char* end;
};

int realX(int x) {
    return x >= stroke_mark ? x - stroke_mark : x;
}
} // namespace

GFont::GFont() : GFont("modern.fnt") {}

GFont::GFont(const char* file) {
    init();
    if (file)
        read(file);
}

int GFont::init() {
    opened = false;
    cur = -1;
    std::fill(std::begin(width), std::end(width), 0);
    std::fill(std::begin(start), std::end(start), -1);
    return 1;
}

int GFont::setDeviceFont(const char* spec) {
    StrLib::copy(name, sizeof name, spec);
    StrLib::replace(name, '_', ' ');
    height = 12;
    const int colon = StrLib::index(name, ':');
    if (colon >= 0) {
        Scan::integer(name + colon + 1, height);
        name[colon] = '\0';
    }
    type = 2;
    opened = true;
    return 1;
}

int GFont::read(const char* file) {
    init();
    if (!StrLib::valid(file))
        return 0;
    if (file[0] == '#')
        return setDeviceFont(file + 1);

    type = 1;
    std::string text;
    if (!readText(file, limit, text))
        return 0;
    Cursor cursor(text);
    int px = 0, py = 0, count = 0;
    unsigned char glyph = 0;
    if (!cursor.number(px) || !cursor.character(glyph))
        return 0;
    start[glyph] = 0;
    // The last place of the list stays free for the mark that ends the last glyph.
    while (count < max_points - 1 && cursor.number(px) && px != end_file) {
        if (px == end_glyph) {
            x[count++] = end_glyph;
            if (!cursor.character(glyph))
                break;
            start[glyph] = count;
            width[glyph] = 0;
        } else if (cursor.number(py)) {
            width[glyph] = std::max(width[glyph], realX(px));
            x[count] = px;
            y[count++] = py;
        } else {
            break;
        }
    }
    x[count] = end_glyph;
    width[static_cast<unsigned char>(' ')] = blank_width;
    opened = true;
    return 1;
}

bool GFont::setChar(char c) {
    cur = start[static_cast<unsigned char>(c)];
    return cur >= 0;
}

int GFont::get(Point& point) {
    if (cur < 0 || cur >= max_points || x[cur] == end_glyph)
        return 0;
    const bool first = x[cur] >= stroke_mark;
    point.set(static_cast<float>(realX(x[cur])), static_cast<float>(y[cur]));
    cur++;
    return first ? 2 : 1;
}

void GFont::print() const {
    std::printf("Name %s\nType %d\nHeight %d\nChar %d\nOpened %d\n", name, type, height, cur,
                opened);
}

} // namespace ORV
