#include "ORV/Domain.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"

#include "Projection.h"

#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace ORV {
namespace {
constexpr int missing_code = Const::MISS;

class Keyword {
public:
    const char* text;
    int num; ///< characters that count
    int code;
};

// In order: a shorter beginning stands behind the longer words that share it.
constexpr Keyword keywords[] = {
    {"ll", 2, 2},     {"lat", 3, 2},    {"re", 2, 2},     {"polar", 5, 1},  {"ps", 2, 1},
    {"stuve", 5, 41}, {"st", 2, 1},     {"sat", 3, 10},   {"lambaz", 6, 8}, {"lamb", 4, 4},
    {"lc", 2, 4},     {"la", 2, 8},     {"az", 2, 8},     {"alb", 3, 9},    {"gn", 2, 6},
    {"or", 2, 5},     {"mo", 2, 7},     {"me", 2, 3},     {"rad", 3, 11},   {"pix", 3, 20},
    {"xy", 2, 21},    {"xlogy", 5, 24}, {"xlogp", 5, 24}, {"cat", 3, 26},   {"skewt", 5, 40},
    {"ema", 3, 42},   {"teph", 4, 43},  {"rteph", 5, 44}, {"therm", 5, 40}, {"hodo", 4, 25},
    {"vert", 4, 24},  {"xp", 2, 23},    {"zoom", 4, 50},  {"size", 4, 51},
};

// Walks over a text of numbers with single characters between them.
class Scanner {
public:
    const char* at;

    bool skip(char c) {
        if (*at != c)
            return false;
        at++;
        return true;
    }
    bool getFloat(float& value) {
        char* end;
        const float number = std::strtof(at, &end);
        if (end == at || !std::isfinite(number))
            return false;
        at = end;
        value = number;
        return true;
    }
    bool getInt(int& value) {
        char* end;
        errno = 0;
        const long number = std::strtol(at, &end, 10);
        if (end == at || errno != 0 || number < INT_MIN || number > INT_MAX)
            return false;
        at = end;
        value = static_cast<int>(number);
        return true;
    }
};

// "word", "word:plat:plon...", "word:e:plat...", as far as there are numbers.
void readProjection(const std::string& field, Domain& d) {
    constexpr std::size_t word_size = 31;
    const std::size_t colon = field.find(':');
    d.proj = Domain::getProj(field.substr(0, std::min(colon, word_size)).c_str());
    if (colon == std::string::npos)
        return;
    Scanner in{field.c_str() + colon};
    if (field.find(":e") != std::string::npos) {
        d.ellipse = true;
        if (!in.skip(':') || !in.skip('e'))
            return;
    }
    float* const values[] = {&d.plat, &d.plon, &d.param[0], &d.param[1], &d.param[2]};
    for (float* value : values)
        if (!in.skip(':') || !in.getFloat(*value))
            return;
}
} // namespace

int Domain::getProj(const char* text) {
    if (!text)
        return -1;
    for (const Keyword& keyword : keywords)
        if (StrLib::iequal(text, keyword.text, keyword.num))
            return keyword.code;
    return StrLib::iequal(text, "miss") ? missing_code : -1;
}

int Domain::set(const char* text) {
    constexpr std::size_t field_size = 100;
    init();
    const std::string all = text ? text : "";
    const std::size_t comma = std::min(all.find(','), all.size());
    if (comma == 0)
        return 0;
    Scanner in{all.c_str() + comma};
    const bool whole = in.skip(',') && in.getFloat(clat) && in.skip(',') && in.getFloat(clon) &&
                       in.skip(',') && in.getInt(nx) && in.skip(',') && in.getInt(ny) &&
                       in.skip(',') && in.getFloat(dx) && in.skip(',') && in.getFloat(dy);
    if (!whole && clat != Const::MISS)
        return 0;
    readProjection(all.substr(0, std::min(comma, field_size)), *this);
    return setParam();
}

int Domain::toString(String& out) const {
    char text[201];
    const Projection* projection = Projection::find(proj);
    StrLib::copy(text, sizeof text, projection ? projection->name : "");
    if (ellipse)
        StrLib::append(text, sizeof text, ":e");
    for (const float value : {plat, plon, param[0], param[1], param[2]}) {
        if (value == Const::MISS)
            StrLib::append(text, sizeof text, ":");
        else
            StrLib::aprintf(text, sizeof text, ":%f", value);
    }
    StrLib::aprintf(text, sizeof text, ",%f,%f,%d,%d,%f,%f", clat, clon, nx, ny, dx, dy);
    return out.set(text);
}

int Domain::print() const {
    String text;
    toString(text);
    std::printf("%s\n", text.get());
    return 1;
}

int Domain::printLimits() const {
    std::printf("(%f,%f)-(%f,%f)\n", limits.xmin, limits.ymin, limits.xmax, limits.ymax);
    return 1;
}

} // namespace ORV
