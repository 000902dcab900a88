#include "ORV/DatumAttr.h"

#include "ORV/Datum.h"
#include "ORV/PlotAttr.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <iterator>

namespace ORV {
namespace {

struct Named {
    const char* name;
    int code;
};

constexpr Named kinds[] = {
    {"data", Datum::DATA},   {"value", Datum::VALUE}, {"text", Datum::TEXT},
    {"mark", Datum::MARK},   {"cloud", Datum::CLOUD}, {"wbarb", Datum::WBARB},
    {"cbarb", Datum::CBARB}, {"dbarb", Datum::DBARB}, {"vect", Datum::VECT},
    {"avect", Datum::AVECT}, {"track", Datum::TRACK}, {"symb", Datum::SYMB},
    {"wx", Datum::SYMB},     {"line", Datum::LINE},
};

/// Markers are told by their leading letters, in this order.
constexpr Named markers[] = {
    {"dot", 8}, {"pnt", 1}, {"plus", 2},   {"star", 3}, {"crcl", 4}, {"circle", 4},
    {"x", 5},   {"sqr", 6}, {"square", 6}, {"tri", 7},  {"itri", 9},
};

struct Place {
    const char* name;
    float dx, dy;
    int halign;
};

constexpr float step_x = 0.012f; // fractions of the scaled plot height
constexpr float step_y = 0.02f;
constexpr int left = 1, centre = 2, right = 3;
constexpr int half = 3; // vertical alignment

constexpr Place places[] = {
    {"ul", -step_x, step_y, right},  {"uc", 0, step_y, centre},  {"ur", step_x, step_y, left},
    {"tl", -step_x, 0.012f, right},  {"tc", 0, 0.012f, centre},  {"tr", step_x, 0.012f, left},
    {"cl", -step_x, 0, right},       {"cc", 0, 0, centre},       {"cr", step_x, 0, left},
    {"bl", -step_x, -0.012f, right}, {"bc", 0, -0.012f, centre}, {"br", step_x, -0.012f, left},
    {"ll", -step_x, -step_y, right}, {"lc", 0, -step_y, centre}, {"lr", step_x, -step_y, left},
};

/// Words that choose the drawing of a list entry; they say nothing about how an element looks.
constexpr const char* drawing_words[] = {"plot", "cplot"};

const Named* find(const Named* begin, const Named* end, const char* text, bool leading) {
    for (const Named* row = begin; row != end; row++)
        if (leading ? StrLib::iequal(text, row->name, StrLib::length(row->name))
                    : StrLib::iequal(text, row->name))
            return row;
    return nullptr;
}

bool isDrawingWord(const char* text) {
    for (const char* word : drawing_words)
        if (StrLib::iequal(text, word))
            return true;
    return false;
}

void setNumber(float& field, const char* text) {
    field = StrLib::getFloat(text);
}

} // namespace

int DatumAttr::set(const PlotAttr& other) {
    if (other.validWidth())
        width = other.width;
    if (other.validWeight())
        weight = other.weight;
    if (other.validHeight())
        height = other.height;
    if (other.validExpan())
        expan = other.expan;
    if (StrLib::valid(other.color))
        setColor(other.color);
    if (StrLib::valid(other.font))
        setFont(other.font);
    return 1;
}

int DatumAttr::parse(const char* text) {
    const Strings entries(text, StrLib::index(text, ':') >= 0 ? ':' : ',');
    for (int i = 0; i < entries.getNum(); i++) {
        const char* entry = entries.getString(i);
        if (!StrLib::valid(entry) || isDrawingWord(entry))
            continue;
        if (entry[0] == '%')
            setFormat(entry);
        else if (!setType(entry) && !setPlace(entry) && !setKey(entry) &&
                 StrLib::index(entry, '=') < 0)
            setColor(entry);
    }
    return 1;
}

int DatumAttr::setType(const char* name) {
    const Named* kind = find(std::begin(kinds), std::end(kinds), name, false);
    if (!kind)
        return 0;
    type = kind->code;
    return 1;
}

int DatumAttr::setColor(const char* name) {
    return StrLib::copy(color, sizeof color, name);
}

int DatumAttr::setFont(const char* name) {
    return StrLib::copy(font, sizeof font, name);
}

int DatumAttr::setSymbol(const char* name) {
    return StrLib::copy(symbol, sizeof symbol, name);
}

int DatumAttr::setMarker(const char* name) {
    const Named* row = find(std::begin(markers), std::end(markers), name, true);
    marker = row ? row->code : StrLib::getInt(name);
    return 1;
}

int DatumAttr::setFormat(const char* text) {
    return StrLib::copy(form, sizeof form, text);
}

int DatumAttr::setResrc(const char* name) {
    return StrLib::copy(resrc, sizeof resrc, name);
}

int DatumAttr::setPlace(const char* name) {
    for (const Place& place : places)
        if (StrLib::iequal(name, place.name)) {
            dx = place.dx;
            dy = place.dy;
            halign = place.halign;
            valign = half;
            return 1;
        }
    return 0;
}

int DatumAttr::setKey(const char* entry) {
    struct Key {
        const char* name;
        void (*set)(DatumAttr& a, const char* value);
    };
    static constexpr Key keys[] = {
        {"fm=", [](DatumAttr& a, const char* v) { a.setFormat(v); }},
        {"xy=", [](DatumAttr& a, const char* v) { a.setOffset(v); }},
        {"rs=", [](DatumAttr& a, const char* v) { a.setResrc(v); }},
        {"co=", [](DatumAttr& a, const char* v) { a.setColor(v); }},
        {"we=", [](DatumAttr& a, const char* v) { setNumber(a.weight, v); }},
        {"hi=", [](DatumAttr& a, const char* v) { setNumber(a.height, v); }},
        {"sc=",
         [](DatumAttr& a, const char* v) {
             setNumber(a.scale, v);
             if (a.scale < 0.01f || a.scale > 1000)
                 a.scale = 1;
         }},
        {"wi=", [](DatumAttr& a, const char* v) { setNumber(a.width, v); }},
        {"sh=", [](DatumAttr& a, const char* v) { a.shadow = StrLib::getInt(v); }},
        {"fo=", [](DatumAttr& a, const char* v) { a.setFont(v); }},
        {"te=", [](DatumAttr& a, const char* v) { setNumber(a.expan, v); }},
        {"exp=", [](DatumAttr& a, const char* v) { setNumber(a.expan, v); }},
        {"ta=", [](DatumAttr& a, const char* v) { a.setAlign(v); }},
        {"mk=", [](DatumAttr& a, const char* v) { a.setMarker(v); }},
        {"sf=", [](DatumAttr& a, const char* v) { a.setSymbol(v); }},
        {"mn=", [](DatumAttr& a, const char* v) { setNumber(a.min, v); }},
        {"mx=", [](DatumAttr& a, const char* v) { setNumber(a.max, v); }},
        {"sk=", [](DatumAttr& a, const char* v) { a.skip = StrLib::getInt(v); }},
    };
    for (const Key& key : keys) {
        const int length = StrLib::length(key.name);
        if (StrLib::iequal(entry, key.name, length)) {
            key.set(*this, entry + length);
            return 1;
        }
    }
    return 0;
}

void DatumAttr::setOffset(const char* text) {
    // A blank or the sign of the second number ends the first: "-1 2" and, since lists lose their
    // blanks, "-1+2".
    float x = 1;
    float y = 1;
    Scan::text(text, "%f%f", &x, &y);
    dx = x * step_x;
    dy = y * step_y;
    valign = half;
    halign = dx < 0 ? right : dx > 0 ? left : centre;
}

void DatumAttr::setAlign(const char* text) {
    constexpr Named horizontal[] = {{"L", left}, {"R", right}};
    constexpr Named vertical[] = {{"B", 5}, {"C", 2}, {"S", 4}, {"T", 1}};
    const Named* h = find(std::begin(horizontal), std::end(horizontal), text, true);
    halign = h ? h->code : centre;
    const Named* v =
        text[0] ? find(std::begin(vertical), std::end(vertical), text + 1, true) : nullptr;
    valign = v ? v->code : half;
}

} // namespace ORV
