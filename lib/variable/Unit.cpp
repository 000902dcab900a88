#include "ORV/Unit.h"

#include "ORV/Const.h"
#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include "TextOut.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <string>
#include <unordered_map>

namespace ORV {

namespace {

constexpr std::size_t unit_length = 14; // of a word of the file
constexpr std::size_t expr_length = 39;
constexpr double whole_power = 1e-4; // how far from a whole number the power of ten may be

// The number in front of a name, which is left in `rest`.
double splitPrefix(const char* name, const char*& rest) {
    double base = 1;
    double power = 1;
    rest = name;
    if (const int passed = Scan::number(name, base)) {
        rest += passed;
        const int more = *rest == '^' ? Scan::number(rest + 1, power) : 0;
        if (more) {
            rest += 1 + more;
            base = std::pow(base, power);
        }
        while (*rest == ' ')
            ++rest;
        return base;
    }
    if (*name == '-') {
        ++rest;
        return -1;
    }
    return 1;
}

std::string spaced(const char* name, std::size_t length) {
    std::string text = name ? name : "";
    text.resize(std::min(text.size(), length));
    std::replace(text.begin(), text.end(), '_', ' ');
    return text;
}

float inRange(double value) {
    constexpr double most = std::numeric_limits<float>::max();
    return std::fabs(value) <= most ? static_cast<float>(value) : Const::MISS;
}

// A prefix beyond the range of float is infinite, and so is then what it multiplies.
float toPrefix(double value) {
    constexpr double most = std::numeric_limits<float>::max();
    constexpr float infinite = std::numeric_limits<float>::infinity();
    return value > most ? infinite : value < -most ? -infinite : static_cast<float>(value);
}

float apply(const UnitData& unit, float value) {
    return inRange((double{value} * unit.pre * unit.mult + unit.add) / unit.post);
}

void parseExpression(const char* expr, UnitData& unit) {
    const char* p = expr;
    if (*p == '*')
        p += 1 + Scan::number(p + 1, unit.mult);
    if (*p != '+' && *p != '-')
        return;
    const bool negative = *p == '-';
    if (Scan::number(p + 1, unit.add) && negative)
        unit.add = -unit.add;
}

// Reads a file as words, without its comments.
class WordReader {
public:
    explicit WordReader(File& source) : file(source) {}

    bool next(std::string& word) {
        word.clear();
        for (int c = get(); c != 0; c = get()) {
            if (c == '#' && word.empty())
                skipComment();
            else if (!std::strchr(" \t\r\n\v\f", c))
                word += static_cast<char>(c);
            else if (!word.empty())
                return true;
        }
        return !word.empty();
    }

private:
    // 0 at the end; zero bytes don't belong into a text and count as blanks.
    int get() {
        if (pos == length) {
            length = std::max(file.read(block, static_cast<int>(sizeof block)), 0);
            pos = 0;
        }
        if (length == 0)
            return 0;
        const char c = block[pos++];
        return c ? static_cast<unsigned char>(c) : ' ';
    }
    void skipComment() {
        for (int c = get(); c != 0 && c != '\n';)
            c = get();
    }

    File& file;
    char block[4096];
    int pos = 0;
    int length = 0;
};

int parseBracket(const char* label, char opener, char closer, String& name, String& units) {
    const int start = StrLib::index(label, opener);
    if (start < 0)
        return 0;
    const char* text = label + start + 1;
    const int end = StrLib::index(text, closer);
    const std::string head(label, static_cast<std::size_t>(start));
    const std::string inside(text, end < 0 ? std::strlen(text) : static_cast<std::size_t>(end));
    name.set(head.c_str());
    name.trimWS();
    units.set(inside.c_str());
    return 1;
}

} // namespace

// All conversions of a file, by their two names in lower case.
class Unit::Table {
public:
    explicit Table(File& file, const char* path) : path(path) {
        WordReader reader(file);
        std::string from;
        std::string to;
        std::string expr;
        while (reader.next(from) && reader.next(to) && reader.next(expr))
            rows.emplace(key(from, to), expr.substr(0, expr_length));
    }

    const std::string* find(const char* from, const char* to) const {
        const auto row = rows.find(key(from, to));
        return row == rows.end() ? nullptr : &row->second;
    }
    bool isFrom(const String& name) const { return path == name.get(); }

private:
    static std::string key(const std::string& from, const std::string& to) {
        std::string text = from.substr(0, unit_length) + ' ' + to.substr(0, unit_length);
        StrLib::lowCase(text.data());
        return text;
    }

    std::string path;
    std::unordered_map<std::string, std::string> rows;
};

// A pair of names as given, and taken apart into prefix and name to look up.
class Unit::Names {
public:
    double pre = 1;
    double post = 1;
    std::string from;
    std::string to;
    std::string from_name;
    std::string to_name;

    Names(const char* from_text, const char* to_text)
        : from(spaced(from_text, sizeof(UnitData::from) - 1)),
          to(spaced(to_text, sizeof(UnitData::to) - 1)), from_name(lookup(from, pre)),
          to_name(lookup(to, post)) {}

    bool empty() const { return from.empty() && to.empty(); }
    bool same() const { return StrLib::iequal(from.c_str(), to.c_str()); }
    bool sameButPrefix() const { return StrLib::iequal(from_name.c_str(), to_name.c_str()); }

private:
    static std::string lookup(const std::string& text, double& prefix) {
        const char* rest = text.c_str();
        prefix = splitPrefix(rest, rest);
        std::string name = rest;
        std::replace(name.begin(), name.end(), ' ', '_');
        return name;
    }
};

int UnitData::init() {
    *this = UnitData();
    return 1;
}

int Unit::init() {
    *this = Unit();
    return 1;
}

float Unit::convert(float value, const char* from, const char* to) {
    if (value != Const::MISS) // else not worth a look at the file
        convert(&value, 1, from, to);
    return value;
}

int Unit::convert(float* values, int count, const char* from, const char* to) {
    const Names names(from, to);
    if (names.same())
        return 1;
    const auto change = [values, count](auto converted) {
        for (float* x = values; x != values + count; ++x)
            if (*x != Const::MISS)
                *x = converted(*x);
        return 1;
    };
    if (names.sameButPrefix())
        return change([&names](float x) { return inRange(names.pre * x / names.post); });
    const UnitData* unit = find(names);
    return change([unit](float x) { return unit->found ? apply(*unit, x) : Const::MISS; });
}

int Unit::valid(const char* from, const char* to) {
    const Names names(from, to);
    if (names.empty())
        return 0;
    if (names.same() || names.sameButPrefix())
        return 1;
    return find(names)->found;
}

int Unit::readFile(const char* from, const char* to, UnitData& out) {
    StrLib::copy(out.from, sizeof out.from, from);
    StrLib::copy(out.to, sizeof out.to, to);
    *out.expr = '\0';
    out.mult = 1;
    out.add = 0;
    out.found = 0;
    String path;
    FileTool::addPath(Orv::getDatabasePath(), "units.lup", path);
    if (!table || !table->isFrom(path)) {
        File file(path, "r");
        if (!file.isOpen())
            return 0;
        table = std::make_shared<const Table>(file, path.get());
    }
    const std::string* expr = table->find(out.from, out.to);
    if (!expr)
        return 0;
    StrLib::copy(out.expr, sizeof out.expr, expr->c_str());
    parseExpression(out.expr, out);
    return out.found = 1;
}

// The next free slot, or the one with the lowest stamp; it gets a new stamp.
int Unit::slot() {
    if (num < static_cast<int>(std::size(data))) {
        data[num].use = num + 1;
        return num++;
    }
    UnitData* oldest =
        std::min_element(std::begin(data), std::end(data),
                         [](const UnitData& a, const UnitData& b) { return a.use < b.use; });
    ++oldest->use;
    return static_cast<int>(oldest - data);
}

const UnitData* Unit::find(const Names& names) {
    for (int i = 0; i < num; ++i)
        if (StrLib::iequal(data[i].from, names.from.c_str()) &&
            StrLib::iequal(data[i].to, names.to.c_str()))
            return &data[i];
    UnitData& unit = data[slot()];
    readFile(names.from_name.c_str(), names.to_name.c_str(), unit);
    StrLib::copy(unit.from, sizeof unit.from, names.from.c_str());
    StrLib::copy(unit.to, sizeof unit.to, names.to.c_str());
    unit.pre = toPrefix(names.pre);
    unit.post = toPrefix(names.post);
    return &unit;
}

int Unit::equal(const char* a, const char* b) {
    return StrLib::equal(a, b);
}

int Unit::scale(const char* units, float factor, const char* suffix, String& out) {
    const std::string text = spaced(units, std::string::npos);
    const char* rest = text.c_str();
    const double product = splitPrefix(rest, rest) * factor;
    const double power = product > 0 ? std::log10(product) : 0.5;
    const double nearest = std::round(power);
    if (!suffix)
        suffix = "";
    if (std::fabs(power - nearest) < whole_power)
        return setText(out, "10^%d %s%s", Scan::toInt(nearest), rest, suffix);
    return setText(out, "%.0e %s%s", product, rest, suffix);
}

int Unit::parse(const char* label, String& name, String& units) {
    if (!label)
        label = "";
    if (parseBracket(label, '[', ']', name, units) || parseBracket(label, '(', ')', name, units))
        return 1;
    name.set(label);
    units.clear();
    return 0;
}

int Unit::change(String& label, const char* units) {
    String name;
    String old;
    parse(label.get(), name, old);
    if (StrLib::valid(units))
        return setText(label, "%s [%s]", name.get(), units);
    return label.set(name);
}

int Unit::simplify(char* text) {
    constexpr const char* ratios[] = {"kg/kg", "g/g"};
    for (const char* ratio : ratios) {
        const int at = StrLib::where(text, ratio);
        if (at >= 0)
            StrLib::splice(text, at, StrLib::length(ratio), 0, "");
    }
    if (const int at = StrLib::where(text, "/s/s"); at >= 0)
        std::memcpy(text + at, "/s^2", 5);
    return 1;
}

int Unit::simplify(String& text) {
    std::string copy = text.get();
    simplify(copy.data());
    return text.set(copy.c_str());
}

} // namespace ORV
