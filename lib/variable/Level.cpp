#include "ORV/Level.h"

#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/VCoord.h"

#include "TextOut.h"

#include <cctype>
#include <cmath>
#include <cstdint>
#include <utility>

namespace ORV {

namespace {

constexpr int surface = 1;
constexpr int eta = 111;
constexpr int no_level = 199;
constexpr float metre_per_foot = 0.3048f;

// Places without a value. `read` is false for one that is only written.
class Place {
public:
    int type;
    const char* text;
    const char* label;
    bool read = true;
};

constexpr Place places[] = {
    {0, "snd", ""},
    {2, "cld_bot", "Cloud base"},
    {3, "cld_top", "Cloud top"},
    {4, "frz", "Frz level"},
    {5, "lcl", "LCL"},
    {6, "mwnd", "Max wind"},
    {7, "trop", "Tropopause"},
    {8, "top", "Top", false},
    {10, "whole", "Whole"},
    {11, "cb_base", "Cumulonimbus base"},
    {12, "cb_top", "Cumulonimbus top"},
    {20, "isotherm", "Isothermal lvl"},
    {101, "sl", "Sea level"},
    {no_level, "", "", false},
    {200, "wholel", "Wholel"},
    {204, "top_frz", "Top frz level"},
    {206, "gscld_bot", "Grid scale cld bot"},
    {207, "gscld_top", "Grid scale cld top"},
    {209, "blcld_bot", "Bound lyr cld bot"},
    {210, "blcld_top", "Bound lyr cld top"},
    {211, "blcld_lyr", "Bound lyr cld lyr"},
    {212, "lcld_bot", "Low cld bot lvl"},
    {213, "lcld_top", "Low cld top lvl"},
    {214, "lcld_lyr", "Low cld lyr"},
    {215, "cld_ceil", "Cld ceiling"},
    {220, "pbl", "Plan bndry lyr"},
    {222, "mcld_bot", "Mid cld bot lvl"},
    {223, "mcld_top", "Mid cld top lvl"},
    {224, "mcld_lyr", "Mid cld lyr"},
    {232, "hcld_bot", "High cld bot lvl"},
    {233, "hcld_top", "High cld top lvl"},
    {234, "hcld_lyr", "High cld lyr"},
    {242, "conv_bot", "Conv cld bot lvl"},
    {243, "conv_top", "Conv cld top lvl"},
    {244, "conv_lyr", "Conv cld lyr"},
    {245, "wbzero", "Wet bulb zero lvl"},
    {246, "maxepot", "Max eq pot temp lvl"},
    {247, "equilib", "Equilibrium lvl"},
    {248, "sccld_bot", "Shal conv cld bot lvl"},
    {249, "sccld_top", "Shal conv cld top lvl"},
    {251, "dccld_bot", "Deep conv cld bot lvl"},
    {252, "dccld_top", "Deep conv cld top lvl"},
    {253, "sclw_bot", "Supercool liq wat bot"},
    {254, "sclw_top", "Supercool liq wat top"},
};

// Kinds with a value: its decimals (below 0: as many as it takes), then what stands behind it.
class Measure {
public:
    int type;
    int decimals;
    const char* text;
    int label_decimals;
    const char* label;
    int bare_decimals; // as the first of two bounds of the same kind
};

constexpr Measure measures[] = {
    {100, 0, "mb", 0, " mb", 0},
    {102, 0, "m", 0, " m", 0},
    {103, 0, "m_ag", 0, " m AG", 0},
    {104, 2, "sig", 3, " sigma", 3},
    {105, 0, "hyb", 0, " hyb", 0},
    {106, 0, "cm_bg", 0, " cm BG", 0},
    {107, 0, "K", 0, " K", 0},
    {108, 0, "mb_ag", 0, " mb AG", 0},
    {109, 2, "*10^-6 Km2/kgs", 2, "*10^-6 Km2/kgs", 2},
    {eta, -1, "eta", -1, " eta", -1},
};

class UnitName {
public:
    const char* text;
    int type;
    float factor = 1;
};

constexpr UnitName unit_names[] = {
    {"ft", 102, metre_per_foot},
    {"m", 102},
    {"ft_ag", 103, metre_per_foot},
    {"m_ag", 103},
    {"mb_ag", 108},
    {"k", 107},
    {"mb", 100},
    {"sig", 104},
    {"eta", eta},
    {"pv", 109},
    {"hyb", 105},
};

class Prefix {
public:
    char letter;
    int type;
    bool larger_first;
};

constexpr Prefix prefixes[] = {
    {'a', 103, false}, {'h', 102, false}, {'k', 107, true}, {'p', 100, true}, {'s', 104, false},
};

// The codes of a kind in grid data: a single level, a layer.
class TypeCode {
public:
    int type;
    int single;
    int layer;
};

constexpr TypeCode type_codes[] = {
    {100, 100, 101}, {101, 102, 102}, {102, 103, 104}, {103, 105, 106}, {104, 107, 108},
    {105, 109, 109}, {106, 111, 112}, {107, 113, 114}, {108, 115, 116}, {eta, 117, 118},
};

// The way back: the code, or each half of a layer's code, is multiplied and divided.
class CodeType {
public:
    int code;
    int type;
    bool layer;
    float factor;
    float divisor;
};

constexpr CodeType code_types[] = {
    {100, 100, false, 1, 1},  {101, 100, true, 10, 1},     {102, 101, false, 1, 1},
    {103, 102, false, 1, 1},  {104, 102, true, 100, 1},    {105, 103, false, 1, 1},
    {106, 103, true, 100, 1}, {107, 104, false, 1, 10000}, {108, 104, true, 1, 100},
    {109, 105, false, 1, 1},  {110, 105, true, 1, 1},      {111, 106, false, 1, 1},
    {112, 106, true, 1, 1},   {113, 107, false, 1, 1},     {114, 107, true, 1, 1},
    {115, 108, false, 1, 1},  {116, 108, true, 1, 1},      {119, eta, false, 1, 10000},
    {120, eta, true, 1, 100}, {130, 109, false, 1, 1},
};

constexpr std::pair<int, int> coordinates[] = {
    {surface, 0}, {4, 1}, {5, 2}, {6, 3}, {7, 4}, {100, 5}, {102, 6}, {107, 7},
};

const Place* findPlace(int type) {
    for (const Place& place : places)
        if (place.type == type)
            return &place;
    return nullptr;
}

const Measure* findMeasure(int type) {
    for (const Measure& measure : measures)
        if (measure.type == type)
            return &measure;
    return nullptr;
}

int findCoordinate(int type) {
    for (const auto& [level, coordinate] : coordinates)
        if (level == type)
            return coordinate;
    return Const::MISS;
}

bool isUnsetWord(const char* text) {
    return !StrLib::valid(text) || StrLib::iequal(text, "level") || StrLib::iequal(text, "none") ||
           StrLib::iequal(text, "miss");
}

const Prefix* findPrefix(const char* text) {
    if (!std::isdigit(static_cast<unsigned char>(text[1])))
        return nullptr;
    for (const Prefix& prefix : prefixes)
        if (text[0] == prefix.letter)
            return &prefix;
    return nullptr;
}

int readPlace(const char* text, Lev& out) {
    if (StrLib::iequal(text, "sfc[", 4)) {
        out.type = surface;
        out.lev = StrLib::toInt(text, 4);
        return 1;
    }
    if (StrLib::iequal(text, "sfc") || StrLib::iequal(text, "sea")) {
        out.type = surface;
        out.lev = 0;
        return 1;
    }
    for (const Place& place : places)
        if (place.read && StrLib::iequal(text, place.text)) {
            out.type = place.type;
            out.lev = 0;
            return 1;
        }
    return 0;
}

// Names that old data give to values of pressure and height.
class Reserved {
public:
    const char* text = nullptr;
    const char* label = nullptr;
    float sublevel = 0;
};

Reserved findReserved(const Lev& lev, bool in_layer) {
    if (lev.type == 100 && (lev.lev == 2000 || lev.lev == 1900))
        return {"sfc", "Sfc"};
    if (lev.type == 100 && lev.lev == 1950)
        return {"trop", "Trop"};
    if (lev.type == 100 && lev.lev > 2000)
        return {"sfc", "Sfc", lev.lev - 2000};
    if (lev.type == 102 && in_layer && (lev.lev == 99500 || lev.lev == 99600))
        return {"trop", "trop"};
    return {};
}

int appendValue(double value, int decimals, String& out) {
    return decimals < 0 ? appendText(out, "%g", value) : appendText(out, "%.*f", decimals, value);
}

void appendSurface(const char* name, float sublevel, String& out) {
    out.append(name);
    if (sublevel <= 0)
        return;
    out.append('[');
    appendValue(sublevel, 0, out);
    out.append(']');
}

// Returns whether the bound has a wording of its own: any but a plain value.
bool appendName(const Lev& lev, bool in_layer, bool label, String& out) {
    if (const Reserved reserved = findReserved(lev, in_layer); reserved.text) {
        appendSurface(label ? reserved.label : reserved.text, reserved.sublevel, out);
        return true;
    }
    if (lev.type == surface) {
        const float sublevel = lev.lev > 2000 ? lev.lev - 2000 : lev.lev;
        appendSurface(label ? "Surface" : "sfc", sublevel, out);
        return true;
    }
    const Place* place = findPlace(lev.type);
    if (place)
        out.append(label ? place->label : place->text);
    return place != nullptr;
}

void appendBound(const Lev& lev, bool in_layer, bool bare, bool label, String& out) {
    if (appendName(lev, in_layer, label, out))
        return;
    const Measure* measure = findMeasure(lev.type);
    if (!measure) {
        if (label)
            appendText(out, "Unknown lvl: %d", lev.type);
    } else if (bare) {
        appendValue(lev.lev, measure->bare_decimals, out);
    } else {
        appendValue(lev.lev, label ? measure->label_decimals : measure->decimals, out);
        out.append(label ? measure->label : measure->text);
    }
}

int write(const Level& level, bool label, String& out) {
    out.clear();
    if (level.l1.type == 0 || level.l1.type == Const::MISS)
        return 0;
    const bool layer = level.isLayer();
    appendBound(level.l1, layer, layer && level.l1.type == level.l2.type, label, out);
    if (layer) {
        out.append('-');
        appendBound(level.l2, layer, false, label, out);
    }
    return 1;
}

// Codes are 32-bit integers; nothing meaningful overflows.
int wrap(std::int64_t code) {
    return static_cast<int>(static_cast<std::uint32_t>(code));
}

std::int64_t rounded(float value) {
    return Scan::toInt(value + 0.5);
}

std::int64_t packHundredths(float a, float b, float factor) {
    return std::int64_t{Scan::toInt(b * factor + 0.01)} * 1000 + Scan::toInt(a * factor + 0.01);
}

int codeSingle(const Lev& l) {
    switch (l.type) {
    case 101:
        return 0;
    case 104:
    case eta:
        // In float, so that 0.9 gives 9000.
        return Scan::toInt(l.lev * 10000.0f);
    default:
        return wrap(rounded(l.lev));
    }
}

int codeLayer(const Lev& l1, const Lev& l2) {
    const std::int64_t a = rounded(l1.lev);
    const std::int64_t b = rounded(l2.lev);
    switch (l1.type) {
    case 100:
        return wrap(b / 10 * 1000 + a / 10);
    case 101:
        return 0;
    case 102:
    case 103:
        return wrap(b / 100 * 1000 + a / 100);
    case 104:
        return wrap(packHundredths(l1.lev, l2.lev, 100));
    case 109:
        return wrap(a);
    case eta:
        return wrap(packHundredths(l1.lev, l2.lev, 1000));
    default:
        return wrap(a + b * 1000);
    }
}

} // namespace

int Level::init() {
    *this = Level();
    return 1;
}

int Level::decode(const char* text) {
    init();
    if (isUnsetWord(text))
        return 0;
    if (const Prefix* prefix = findPrefix(text)) {
        float a = Const::MISS;
        float b = Const::MISS;
        if (Scan::text(text + 1, "%f-%f", &a, &b) < 2)
            return set(prefix->type, a);
        set(prefix->type, a, b);
        if (prefix->larger_first && isLayer())
            std::swap(l1, l2);
        return 1;
    }
    if (StrLib::equal(text, "-"))
        return set(no_level, 0);

    char first[30];
    char second[30];
    const int parts = Scan::text(text, "%29[^-]-%29[^ ]", first, second);
    const int kind1 = parts < 1 ? 0 : decodeLev(first, l1);
    if (kind1 == 0 || parts < 2)
        return 1;
    if (decodeLev(second, l2) == 2 && kind1 == 1)
        l1.type = l2.type;
    return 1;
}

int Level::decodeLev(const char* text, Lev& out) {
    out = Lev();
    if (readPlace(text, out))
        return 3;
    char unit[10] = "";
    const int parts = Scan::text(text, "%f%9s", &out.lev, unit);
    if (parts < 1)
        return 0;
    out.type = 100;
    for (const UnitName& name : unit_names)
        if (StrLib::iequal(unit, name.text)) {
            out.type = name.type;
            out.lev *= name.factor;
            break;
        }
    return parts;
}

int Level::set(int t1, float a, int t2, float b) {
    l1.type = t1;
    l1.lev = a;
    l2.type = t2;
    l2.lev = t2 == Const::MISS ? Const::MISS : b;
    if (l2.lev == Const::MISS)
        return 1;
    const bool larger_first = t1 == 100 || t1 == 104;
    if (larger_first ? a < b : a > b)
        std::swap(l1, l2);
    return 1;
}

int Level::set(int t, float a, float b) {
    if (b == Const::MISS)
        return set(t, a);
    l1.type = l2.type = t;
    l1.lev = std::fmin(a, b);
    l2.lev = std::fmax(a, b);
    return 1;
}

int Level::set(int t, float a) {
    init();
    l1.type = t;
    l1.lev = a;
    return 1;
}

int Level::decode(int codeType, int code) {
    set(codeType, code);
    for (const CodeType& row : code_types) {
        if (row.code != codeType)
            continue;
        const auto value = [&row](int part) { return part * row.factor / row.divisor; };
        if (row.layer)
            return set(row.type, value(code / 1000), value(code % 1000));
        return set(row.type, value(code));
    }
    return 1;
}

int Level::toTypeCode(int t1, int t2) {
    for (const TypeCode& row : type_codes)
        if (row.type == t1)
            return t2 == Const::MISS ? row.single : row.layer;
    return t1;
}

int Level::toLevelCode() const {
    const int type = l1.type;
    if (type == Const::MISS)
        return isLayer() ? 0 : Const::MISS;
    if (type < 21 || type > 199)
        return 0;
    const bool coded = type == eta || (type >= 100 && type <= 109);
    if (!coded)
        return Const::MISS;
    return isLayer() ? codeLayer(l1, l2) : codeSingle(l1);
}

int Level::getLower(VCoord& out) const {
    const int type = findCoordinate(l1.type);
    if (type == Const::MISS)
        return 0;
    out.type = type;
    out.val = l1.lev;
    return 1;
}

int Level::getUpper(VCoord& out) const {
    int type = findCoordinate(l2.type);
    if (type == Const::MISS && (l1.type == 102 || l1.type == 107))
        type = findCoordinate(l1.type);
    if (type == Const::MISS)
        return 0;
    out.type = type;
    out.val = l2.lev;
    return 1;
}

int Level::toString(String& out) const {
    return write(*this, false, out);
}

int Level::toLabel(String& out) const {
    return write(*this, true, out);
}

int Level::print() const {
    String text;
    toString(text);
    return Orv::outMessage("Level: %s\n", text.get());
}

} // namespace ORV
