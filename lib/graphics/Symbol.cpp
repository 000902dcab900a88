#include "ORV/Symbol.h"

#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include "ReadText.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <sstream>

namespace ORV {
namespace {
constexpr float draw_line = -1; // in place of an x
constexpr float draw_fill = -2;
constexpr float end_symbol = -9;
constexpr std::size_t limit = 1 << 20; // bytes, far above what the points of a file take

float stepOf(const std::string& word, float& y) {
    switch (word[0]) {
    case 'L':
        return draw_line;
    case 'F':
        return draw_fill;
    case '$':
        return end_symbol;
    }
    float x = 0;
    Scan::text(word.c_str(), "%f,%f", &x, &y);
    return x;
}
} // namespace

Symbol::Symbol() {
    clear();
}

Symbol::Symbol(const char* file) {
    init(file);
}

int Symbol::init(const char* file) {
    clear();
    return StrLib::valid(file) ? read(file) : 1;
}

void Symbol::clear() {
    std::fill(std::begin(start), std::end(start), -1);
    num = 0;
    cur = -1;
    x[0] = end_symbol;
}

int Symbol::read(const char* file) {
    clear();
    std::string text;
    if (!StrLib::valid(file) || !readText(file, limit, text)) {
        Orv::outWarning("Symbol_read: unable to load symbol file: %s\n", file ? file : "");
        return 0;
    }
    std::istringstream words(text);
    std::string word;
    bool in_symbol = false;
    int count = 0;
    while (count < max_points - 1 && words >> word) {
        if (!in_symbol) {
            if (num == max_symbols - 1)
                break;
            StrLib::copy(names[num], sizeof names[num], word.c_str());
            start[num++] = count;
            in_symbol = true;
            continue;
        }
        y[count] = 0;
        x[count] = stepOf(word, y[count]);
        in_symbol = word[0] != '$';
        count++;
    }
    x[count] = end_symbol;
    return 1;
}

int Symbol::setSymb(const char* name) {
    cur = -1;
    for (int i = 0; name && i < num; i++)
        if (std::strncmp(names[i], name, std::strlen(names[i])) == 0) {
            cur = start[i];
            return 1;
        }
    return 0;
}

int Symbol::get(Point& point) {
    if (cur < 0 || cur >= max_points || x[cur] == end_symbol)
        return 0;
    const int at = cur++;
    if (x[at] == draw_line)
        return 2;
    if (x[at] == draw_fill)
        return 3;
    point.set(x[at], y[at]);
    return 1;
}

} // namespace ORV
