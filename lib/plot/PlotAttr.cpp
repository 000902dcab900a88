#include "ORV/PlotAttr.h"

#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <cctype>
#include <cstdio>

namespace ORV {
namespace {
class Word {
public:
    const char* text;
    int value;
};

constexpr Word line_styles[] = {{"sol", 1}, {"dsh", 2}, {"lsdsh", 3}, {"llsdsh", 4}, {"dot", 5}};

constexpr Word fill_styles[] = {
    {"sol", 0}, {"st", 1},   {"ost", 2}, {"rst", 3}, {"lst", 4}, {"vln", 5}, {"||", 5},
    {"dlr", 6}, {"\\\\", 6}, {"drl", 7}, {"//", 7},  {"hln", 8}, {"--", 8},  {"hat", 9},
    {"xx", 9},  {"clr", 10}, {"0%", 10}, {"1%", 11}, {"2%", 12}, {"3%", 13}, {"4%", 14},
    {"5%", 15}, {"6%", 16},  {"7%", 17}, {"8%", 18}, {"9%", 19},
};

constexpr Word markers[] = {
    {"pnt", 1},    {".", 1},   {"plus", 2}, {"+", 2},   {"star", 3},   {"*", 3},      {"crcl", 4},
    {"circle", 4}, {"o", 4},   {"x", 5},    {"sqr", 6}, {"square", 6}, {"#", 6},      {"tri", 7},
    {"^", 7},      {"dot", 8}, {"itri", 9}, {"v", 9},   {"z", 10},     {"light", 10},
};

template <int N>
const Word* find(const Word (&words)[N], const char* text) {
    for (const auto& word : words)
        if (StrLib::iequal(text, word.text))
            return &word;
    return nullptr;
}

int parseStyle(const char* text) {
    const Word* word = find(line_styles, text);
    return word ? word->value : StrLib::getInt(text);
}

// What an item with a keyword of three characters does with the text behind it, in the order in
// which they are tried.
constexpr struct {
    const char* key;
    void (*apply)(PlotAttr& attr, const char* value);
} keywords[] = {
    {"co=", [](PlotAttr& a, const char* v) { a.setColor(v); }},
    {"la=", [](PlotAttr& a, const char* v) { a.setLabel(v); }},
    {"wi=", [](PlotAttr& a, const char* v) { a.width = StrLib::getFloat(v); }},
    {"sh=", [](PlotAttr& a, const char* v) { a.shadow = StrLib::getInt(v); }},
    {"st=", [](PlotAttr& a, const char* v) { a.style = parseStyle(v); }},
    {"fo=", [](PlotAttr& a, const char* v) { a.setFont(v); }},
    {"fi=", [](PlotAttr& a, const char* v) { a.fill_pat = PlotAttr::parseFillStyle(v); }},
    {"fp=", [](PlotAttr& a, const char* v) { a.fill_pat = PlotAttr::parseFillStyle(v); }},
    {"sc=", [](PlotAttr& a, const char* v) { a.height = StrLib::getFloat(v); }},
    {"we=", [](PlotAttr& a, const char* v) { a.weight = StrLib::getFloat(v); }},
    {"hi=", [](PlotAttr& a, const char* v) { a.height = StrLib::getFloat(v); }},
    {"te=", [](PlotAttr& a, const char* v) { a.expan = StrLib::getFloat(v); }},
};

// The short forms: a letter with its value right behind it.
void parseShort(PlotAttr& attr, const char* item) {
    constexpr int font_at = 3, longest_font = 20;
    switch (std::tolower(static_cast<unsigned char>(item[0]))) {
    case 'w':
        attr.width = StrLib::getFloat(item + 1);
        break;
    case 's':
        attr.style = StrLib::getInt(item + 1);
        break;
    case 't':
        if (StrLib::length(item) > font_at)
            StrLib::copy(attr.font, longest_font + 1, item + font_at);
        break;
    case 'f': // "fM" is no number, and so unsets the pattern
        attr.fill_pat = StrLib::getInt(item + 1);
        break;
    case 'h':
        attr.height = StrLib::getFloat(item + 1);
        break;
    case 'e':
        attr.expan = StrLib::getFloat(item + 1);
        break;
    }
}

void parseItem(PlotAttr& attr, const char* item) {
    if (!StrLib::valid(item))
        return;
    for (const auto& keyword : keywords)
        if (StrLib::iequal(item, keyword.key, 3)) {
            keyword.apply(attr, item + 3);
            return;
        }
    parseShort(attr, item);
}

template <class Value>
void take(Value& own, Value other) {
    if (other != Const::MISS)
        own = other;
}

template <int N>
void take(char (&own)[N], const char* other) {
    if (StrLib::valid(other))
        StrLib::copy(own, N, other);
}
} // namespace

int PlotAttr::init() {
    *this = PlotAttr();
    return 1;
}

int PlotAttr::set(const char* text) {
    init();
    return parse(text);
}

int PlotAttr::set(const char* text, const char* dflt) {
    init();
    parse(dflt);
    return parse(text);
}

int PlotAttr::parse(const char* text) {
    const Strings items(text, StrLib::index(text, ':') >= 0 ? ':' : ',');
    if (items.getNum() == 0)
        return 0;
    const bool has_color = items.index(0, '=') < 0;
    if (has_color)
        setColor(items.getString(0));
    for (int i = has_color ? 1 : 0; i < items.getNum(); i++)
        parseItem(*this, items.getString(i));
    return 1;
}

int PlotAttr::update(const PlotAttr& other) {
    take(width, other.width);
    take(height, other.height);
    take(weight, other.weight);
    take(expan, other.expan);
    take(style, other.style);
    take(fill_pat, other.fill_pat);
    take(color_ind, other.color_ind);
    take(color, other.color);
    take(font, other.font);
    return 1;
}

int PlotAttr::setWidth(float w) {
    width = w;
    return 1;
}

int PlotAttr::setWeight(float w) {
    weight = w;
    return 1;
}

int PlotAttr::setHeight(float h) {
    height = h;
    return 1;
}

int PlotAttr::setExpan(float e) {
    expan = e;
    return 1;
}

int PlotAttr::setStyle(int s) {
    style = s;
    return 1;
}

int PlotAttr::setShadow(int s) {
    shadow = s;
    return 1;
}

int PlotAttr::setFillPat(int pattern) {
    fill_pat = pattern;
    return 1;
}

int PlotAttr::setColorInd(int ind) {
    color_ind = ind;
    return 1;
}

int PlotAttr::setColor(const char* name) {
    color_ind = Const::MISS;
    return StrLib::copy(color, sizeof color, name);
}

bool PlotAttr::validColor() const {
    return color_ind != -1 && color[0] != '\0' && !StrLib::iequal(color, "off");
}

int PlotAttr::setFont(const char* name) {
    return StrLib::copy(font, sizeof font, name);
}

int PlotAttr::setLabel(const char* text) {
    return StrLib::copy(label, sizeof label, text);
}

void PlotAttr::print() const {
    std::printf("PlotAttr co: %s %d st: %d he: %5.2f we: %5.2f wi: %5.2f ex: %5.2f fi: %d sh: %d "
                "fo: %s\n",
                color, color_ind, style, height, weight, width, expan, fill_pat, shadow, font);
}

int PlotAttr::parseFillStyle(const char* text) {
    const Word* word = find(fill_styles, text);
    int number = 0;
    if (!word && text)
        Scan::integer(text, number);
    return word ? word->value : number;
}

int PlotAttr::parseMarker(const char* text) {
    const Word* word = find(markers, text);
    return word ? word->value : 2;
}

} // namespace ORV
