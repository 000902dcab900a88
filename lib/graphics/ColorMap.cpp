#include "ORV/ColorMap.h"

#include "ORV/Const.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace ORV {
namespace {
constexpr struct {
    const char* name;
    int ind;
} reserved[] = {
    {"end", -2},    {"none", -1},   {"off", -1},    {"back", -1},   {"pblk", 500},
    {"pbblk", 501}, {"ptblk", 502}, {"pwht", 503},  {"pbwht", 504}, {"ptwht", 505},
    {"pgry", 506},  {"pbgry", 507}, {"ptgry", 508},
};

float component(int of_255) {
    return std::clamp(of_255, 0, 255) / 255.0f;
}

// "#RRGGBB" or "#RRRGGGBBB"
bool decodeNumbers(const char* name, RGB& color) {
    const int length = StrLib::length(name);
    int red = 0, grn = 0, blu = 0;
    const bool read =
        name[0] == '#' && ((length == 7 && Scan::text(name, "#%2x%2x%2x", &red, &grn, &blu) == 3) ||
                           (length == 10 && Scan::text(name, "#%3d%3d%3d", &red, &grn, &blu) == 3));
    return read && color.set(component(red), component(grn), component(blu));
}
} // namespace

void RGB::print() const {
    std::printf("R: %5.3f G: %5.3f B: %5.3f\n", red, grn, blu);
}

int ColorMap::init(int room) {
    colors = OwnedArray<Color>(room);
    max = colors.size();
    num = 0;
    num_fill = 0;
    return 1;
}

int ColorMap::init() {
    num = 0;
    num_fill = 0;
    return 1;
}

int ColorMap::set(const ColorMap& other) {
    *this = other;
    return 1;
}

int ColorMap::add(const char* name, float red, float grn, float blu) {
    if (num >= max) {
        Orv::outWarning("Color map size exceeded %d > %d\n", num, max);
        return -1;
    }
    Color color;
    StrLib::copy(color.name, sizeof color.name, name);
    color.red = red;
    color.grn = grn;
    color.blu = blu;
    for (int i = 0; i < num; i++)
        if (StrLib::equal(colors[i].name, color.name)) {
            colors[i] = color;
            return i;
        }
    colors[num] = color;
    return num++;
}

int ColorMap::add(const char* name, const RGB& color) {
    return add(name, color.red, color.grn, color.blu);
}

int ColorMap::getInd(const char* name) {
    if (!StrLib::valid(name))
        return Const::MISS;
    // Colors are looked up for every station; most names differ in their first letter.
    const auto isNamed = [&](const char* other) {
        constexpr int case_bit = 0x20;
        return ((other[0] ^ name[0]) & ~case_bit) == 0 && StrLib::iequal(name, other);
    };
    for (const auto& word : reserved)
        if (isNamed(word.name))
            return word.ind;
    for (int i = 0; i < num; i++)
        if (isNamed(colors[i].name))
            return i;

    RGB color;
    if (decodeNumbers(name, color))
        return add(name, color);
    int ind = -1;
    if (name[0] >= '0' && name[0] <= '9')
        Scan::integer(name, ind);
    return ind;
}

const Color* ColorMap::find(int ind) const {
    return ind < 0 || num == 0 ? nullptr : &colors[std::min(ind, num - 1)];
}

const char* ColorMap::getName(int ind) const {
    const Color* color = find(ind);
    return color ? color->name : "";
}

int ColorMap::getRGB(int ind, float& red, float& grn, float& blu) const {
    const Color* color = find(ind);
    red = color ? color->red : -1;
    grn = color ? color->grn : -1;
    blu = color ? color->blu : -1;
    return color != nullptr;
}

int ColorMap::get(int ind, RGB& color) const {
    return getRGB(ind, color.red, color.grn, color.blu);
}

int ColorMap::getIRGB(int ind, int& red, int& grn, int& blu) const {
    const Color* color = find(ind);
    red = color ? Scan::toInt(color->red * 255) : -1;
    grn = color ? Scan::toInt(color->grn * 255) : -1;
    blu = color ? Scan::toInt(color->blu * 255) : -1;
    return color != nullptr;
}

int ColorMap::setValue(int ind, int value) {
    if (!isColor(ind))
        return 0;
    colors[ind].value = value;
    return 1;
}

int ColorMap::getValue(int ind) {
    const Color* color = find(std::max(ind, 0));
    return color ? color->value : -1;
}

int ColorMap::getValue(const char* name) {
    return getValue(getInd(name));
}

int ColorMap::setNumFill(int n) {
    if (n < 0 || n > num)
        return 0;
    num_fill = n;
    return 1;
}

bool ColorMap::isColorNear(int ind, const RGB& color) const {
    constexpr float near = 0.01f;
    RGB own;
    return get(ind, own) && std::fabs(own.red - color.red) + std::fabs(own.grn - color.grn) +
                                    std::fabs(own.blu - color.blu) <
                                near;
}

void ColorMap::print() const {
    std::printf("Fill: %d\n", num_fill);
    for (int i = 0; i < num; i++) {
        const Color& c = colors[i];
        std::printf("%3d - %8d (%4.2f,%4.2f,%4.2f) %s\n", i, c.value, c.red, c.grn, c.blu, c.name);
    }
}

} // namespace ORV
