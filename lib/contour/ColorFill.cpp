#include "ORV/ColorFill.h"

#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/LineReader.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"
#include "ORV/Tools.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace ORV {
namespace {
// The position of a "-" that joins the ends of a range, -1 without one: the first character is the
// sign of a value.
int findDash(const char* entry) {
    const int at = StrLib::valid(entry) ? StrLib::index(entry + 1, '-') : -1;
    return at < 0 ? -1 : at + 1;
}

bool isFileName(const Strings& entries) {
    const char* first = entries.getString(0);
    return entries.getNum() == 1 && !Tools::isInt(first) && findDash(first) < 0;
}

const char* skipBlanks(const char* entry) {
    while (entry && *entry == ' ')
        entry++;
    return entry ? entry : "";
}

const PlotAttr no_attr;
} // namespace

int ColorFill::init() {
    std::fill_n(static_cast<PlotAttr*>(attr), max, PlotAttr());
    std::fill_n(static_cast<float*>(value), max, Const::MISS);
    label[0] = '\0';
    num = 0;
    base = Const::MISS;
    intrvl = Const::MISS;
    return 1;
}

int ColorFill::set(const ColorFill& other) {
    *this = other;
    return 1;
}

int ColorFill::set(ColorMap& map, const char* text) {
    if (text)
        return setText(&map, text);
    init();
    for (num = 0; num < std::min(map.getNumFill(), max); num++) {
        attr[num].setColor(map.getName(num));
        attr[num].setColorInd(num);
    }
    return 1;
}

int ColorFill::set(const char* text) {
    return setText(nullptr, text);
}

int ColorFill::setText(ColorMap* map, const char* text) {
    init();
    const Strings entries(text, ',');
    if (entries.getNum() == 0)
        return 0;
    if (isFileName(entries))
        return readEntries(map, entries.getString(0)) && validateValues();
    for (int i = 0; i < entries.getNum(); i++)
        map ? decode(*map, entries.getString(i)) : decode(entries.getString(i));
    return validateValues();
}

int ColorFill::setFill(ColorMap& map, const char* text) {
    const char* own = Orv::getResrc("color_fill");
    if (!own || StrLib::iequal(own, "miss") || StrLib::iequal(own, "def")) {
        set(map, text);
        return 1;
    }
    set(map, own);
    return 2;
}

int ColorFill::readFile(ColorMap& map, const char* name) {
    return readEntries(&map, name) && validateValues();
}

int ColorFill::readFile(const char* name) {
    return readEntries(nullptr, name);
}

int ColorFill::readEntries(ColorMap* map, const char* name) {
    constexpr int label_at = 7, name_at = 6; // behind "@label " and "@name "
    init();
    String path;
    FileTool::addPath(Orv::getDatabasePath(), name, path);
    File file(path, "r");
    if (!file.isOpen())
        return 0;
    for (LineReader<81> line(file); line.next();) {
        const char* text = line.text();
        if (text[0] == '\0' || text[0] == '#')
            continue;
        if (StrLib::equal(text, "@label", 6))
            StrLib::copy(label, sizeof label,
                         StrLib::length(text) > label_at ? text + label_at : "");
        else if (StrLib::equal(text, "@name", 5))
            StrLib::copy(label, sizeof label, StrLib::length(text) > name_at ? text + name_at : "");
        else if (text[0] != '@')
            map ? decode(*map, text) : decode(text);
    }
    return 1;
}

int ColorFill::decode(ColorMap& map, const char* entry) {
    const char* text = skipBlanks(entry);
    const int dash = findDash(text);
    return dash < 0 ? decodeSingle(&map, text) : decodeRange(map, text, dash);
}

int ColorFill::decode(const char* entry) {
    return decodeSingle(nullptr, skipBlanks(entry));
}

int ColorFill::decodeSingle(ColorMap* map, const char* entry) {
    if (num >= max)
        return 0;
    const int colon = StrLib::index(entry, ':');
    if (Tools::isFloat(entry) && colon > 0) {
        Scan::number(entry, value[num]);
        attr[num].parse(entry + colon + 1);
    } else {
        attr[num].parse(entry);
    }
    if (map)
        attr[num].setColorInd(map->getInd(attr[num].getColor()));
    num++;
    return 1;
}

int ColorFill::decodeRange(ColorMap& map, const char* entry, int dash) {
    constexpr int half_size = 40;
    if (num >= max)
        return 0;
    char first[half_size], second[half_size];
    StrLib::copy(first, half_size - 1, entry, dash);
    StrLib::copy(second, half_size, entry + dash + 1);
    const PlotAttr from(first), to(second);
    const int i1 = map.getInd(from.getColor());
    const int i2 = map.getInd(to.getColor());
    const int step = i1 < i2 ? 1 : -1;
    const long long count = std::abs(static_cast<long long>(i2) - i1) + 1;
    for (int i = 0; i < count && num < max; i++) {
        PlotAttr& entry_attr = attr[num++];
        entry_attr = from;
        entry_attr.color_ind = i1 + i * step;
        std::snprintf(entry_attr.color, sizeof entry_attr.color, "%d", entry_attr.color_ind);
    }
    return 1;
}

int ColorFill::validateValues() {
    if (!areValuesSet())
        return 1;
    int last = 0;   // last entry whose value is known
    float step = 0; // from one entry to the next before it
    for (int i = 1; i < num; i++) {
        if (value[i] == Const::MISS)
            continue;
        step = (value[i] - value[last]) / (i - last);
        for (int gap = last + 1; gap < i; gap++)
            value[gap] = (gap - last) * (value[i] - value[last]) / (i - last) + value[last];
        last = i;
    }
    for (int i = last + 1; step > 0 && i < num; i++)
        value[i] = value[last] + (i - last) * step;
    return 1;
}

int ColorFill::setValues(const float* values, int n) {
    for (int i = 0; i < num; i++)
        value[i] = values && i < n ? values[i] : Const::MISS;
    return 1;
}

float ColorFill::getValue(int ind) const {
    return isEntry(ind) ? value[ind] : Const::MISS;
}

int ColorFill::setBase(float b) {
    base = b;
    return 1;
}

int ColorFill::setInterval(float i) {
    intrvl = i;
    return 1;
}

int ColorFill::getInd(float v) const {
    if (v == Const::MISS || num == 0)
        return Const::MISS;
    if (areValuesSet()) {
        if (v < value[0])
            return -1;
        for (int i = 0; i < num - 1; i++)
            if (value[i] <= v && v < value[i + 1])
                return i;
        return num - 1;
    }
    if (intrvl == Const::MISS || intrvl == 0)
        return 0;
    constexpr double slack = 0.01; // of an interval, so that a value on a level counts as above it
    const double from = base == Const::MISS ? 0 : base;
    const double turn =
        std::fmod(std::floor((static_cast<double>(v) - from) / intrvl + slack), num);
    if (!std::isfinite(turn))
        return 0;
    return static_cast<int>(turn < 0 ? turn + num : turn);
}

PlotAttr ColorFill::get(float v) const {
    return get(getInd(v));
}

PlotAttr ColorFill::get(int ind) const {
    return isEntry(ind) ? attr[ind] : no_attr;
}

int ColorFill::getColor(float v) const {
    if (v == Const::MISS)
        return -1;
    return num == 0 ? attr[0].color_ind : getColor(getInd(v));
}

int ColorFill::getColor(int ind) const {
    return isEntry(ind) ? attr[ind].color_ind : -1;
}

const char* ColorFill::getColorName(int ind) const {
    return isEntry(ind) ? attr[ind].color : nullptr;
}

bool ColorFill::validLabel(int ind) const {
    return isEntry(ind) && attr[ind].validLabel();
}

const char* ColorFill::getLabel(int ind) const {
    return isEntry(ind) ? attr[ind].label : "";
}

void ColorFill::print() const {
    std::printf("ColorFill %s: %d base %g interval %g\n", label, num, base, intrvl);
    for (int i = 0; i < num; i++) {
        std::printf("%3d %g ", i, value[i]);
        attr[i].print();
    }
}

} // namespace ORV
