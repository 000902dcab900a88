#include "ORV/VarList.h"

#include "ORV/GridSpec.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"
#include "ORV/VarFile.h"

#include "TextOut.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>
#include <string>

namespace ORV {

namespace {

constexpr int first_limit = 40;
constexpr int growth = 10;
constexpr int token_length = 299;
constexpr int parameter = 1;
constexpr int group = 3;
constexpr int map_or_panel = 6;
constexpr int contour = 3;

class Opener {
public:
    char opener;
    char closer;
    int type;
};

constexpr Opener openers[] = {{'<', '>', 2}, {'{', '}', group}, {'(', ')', 4}};
constexpr int vector_function = 5;

const Opener* findOpener(char c) {
    for (const Opener& row : openers)
        if (row.opener == c)
            return &row;
    return nullptr;
}

char openerOf(char closer) {
    for (const Opener& row : openers)
        if (row.closer == closer)
            return row.opener;
    return '[';
}

std::string withoutSpace(const char* text) {
    std::string line;
    std::copy_if(text, text + std::strlen(text), std::back_inserter(line),
                 [](char c) { return !std::isspace(static_cast<unsigned char>(c)); });
    return line;
}

} // namespace

VarList::VarList() {
    resize(first_limit);
    init();
}

int VarList::init() {
    num = 0;
    cur = 0;
    *title = '\0';
    for (int i = 0; i < limit; ++i) {
        item[i].layer = 0;
        item[i].index = -1;
        item[i].spec.init();
    }
    return 1;
}

int VarList::resize(int n) {
    OwnedArray<VarListItem> bigger(n);
    std::move(item + 0, item + std::min(num, bigger.size()), bigger + 0);
    item = std::move(bigger);
    limit = item.size();
    num = std::min(num, limit);
    return 1;
}

int VarList::setFile(const char* name) {
    return file.set(name);
}

int VarList::searchFile(const char* name, String& value) const {
    if (!file.valid() || !StrLib::valid(name))
        return 0;
    VarFile source;
    VarFileData entry;
    if (!source.open(file.get()))
        return 0;
    while (source.read(entry))
        if (StrLib::equal(entry.name, name))
            return value.set(entry.value);
    return 0;
}

// The state of one walk along a line.
class VarList::Parser {
public:
    Parser(VarList& out, const char* line) : list(out), token(line) {}

    int parse() {
        const char* p = token;
        for (; *p && list.num < max_items; ++p)
            if (list.checkDelim(*p) && !take(p))
                return 0;
        if (*p) {
            Orv::outWarning("VarList::decode error, more than %d items\n", max_items);
            return 0;
        }
        if (list.num_delim == 0)
            endElement(p);
        return 1;
    }

private:
    int take(const char* p) {
        if (*p == ',') {
            endElement(p);
            token = p + 1;
            return 1;
        }
        if (*p == ']')
            return list.close(*p, p);
        if (*p == '[') {
            if (depth == 0 && p == token)
                trailing = p;
            return list.open(*p, p);
        }
        const Opener* opener = findOpener(*p);
        return opener ? openList(*opener, p) : closeList(p);
    }

    int openList(const Opener& opener, const char* p) {
        if (!list.open(*p, p))
            return 0;
        head = list.num;
        const bool function = *p == '(';
        VarSpec& spec = list.emit(token, p, depth++, !function).spec;
        const bool vector = function && isVectFunction(spec.var.abbr);
        spec.type = vector ? vector_function : opener.type;
        spec.abs = true;
        token = p + 1;
        return 1;
    }

    int closeList(const char* p) {
        if (!list.close(*p, p))
            return 0;
        list.emit(token, p, depth--, true);
        token = p + 1;
        return 1;
    }

    // At a comma or at the end of the line.
    void endElement(const char* p) {
        if (p == token)
            return;
        if (trailing)
            list.applyTrailing(trailing, p, head);
        else
            list.emit(token, p, depth, true);
        trailing = nullptr;
    }

    VarList& list;
    const char* token;
    const char* trailing = nullptr; // a bracket behind a closed list
    int depth = 0;
    int head = 0; // the one opened last
};

int VarList::decode(const char* text) {
    num = 0;
    num_delim = 0;
    if (!StrLib::valid(text))
        return 0;
    return Parser(*this, withoutSpace(text).c_str()).parse();
}

// Inside brackets only brackets count, so that commas there separate options.
int VarList::checkDelim(char c) {
    const bool bracket = num_delim > 0 && delims[num_delim - 1] == '[';
    delim = std::strchr(bracket ? "[]" : "{}()<>[],", c) ? c : '\0';
    return delim != '\0';
}

int VarList::open(char c, const char* at) {
    if (num_delim == static_cast<int>(sizeof delims)) {
        Orv::outWarning("VarList::decode error, nested too deep at %s\n", at);
        return 0;
    }
    delims[num_delim++] = c;
    return 1;
}

int VarList::close(char c, const char* at) {
    if (num_delim == 0 || delims[num_delim - 1] != openerOf(c)) {
        Orv::outWarning("VarList::decode error, unexpected %c at %s\n", c, at);
        return 0;
    }
    --num_delim;
    return 1;
}

void VarList::reserve(int n) {
    if (n >= limit)
        resize(std::max(n + growth, limit + limit / 8));
}

// Adds an item from a token, which is a parameter until the caller says otherwise.
VarListItem& VarList::emit(const char* token, const char* end, int layer, bool clean) {
    std::string text(token, end);
    text.resize(std::min(text.size(), static_cast<std::size_t>(token_length)));
    if (clean)
        cleanData(text.data());
    reserve(num + 1);
    VarListItem& added = item[num++];
    added.layer = layer;
    added.index = -1;
    added.spec.decode(text.c_str());
    if (added.spec.type != map_or_panel)
        added.spec.type = parameter;
    return added;
}

void VarList::applyTrailing(const char* bracket, const char* end, int head) {
    if (head >= num)
        return;
    std::string text(bracket, end);
    text.resize(std::min(text.size(), static_cast<std::size_t>(token_length)));
    const VarSpec given(text.c_str());
    VarSpec& spec = item[head].spec;
    if (spec.type == group)
        for (int i = head + 1; i < num; ++i) {
            String format;
            setText(format, "%s,%s", given.format, item[i].spec.format);
            item[i].spec.setFormat(format.get());
        }
    if (*given.getUnits())
        spec.setUnits(given.getUnits());
    const int plot = spec.plot;
    spec.setFormat(given.format);
    if (plot)
        spec.plot = plot;
}

void VarList::cleanData(char* token) {
    char* out = token;
    for (const char* p = token; *p; ++p) {
        if (*p == '\\' && !*++p)
            break;
        *out++ = *p;
    }
    *out = '\0';
}

bool VarList::isVectFunction(const char* text) {
    constexpr const char* names[] = {"grad", "vdiff"};
    const std::string name = text ? text : "";
    const std::string head = name.substr(0, name.find('-'));
    return std::find(std::begin(names), std::end(names), head) != std::end(names);
}

int VarList::rewind() {
    cur = 0;
    return 1;
}

int VarList::next() {
    cur = std::min(cur + 1, num);
    return cur < num;
}

int VarList::get(int i, VarSpec& out) const {
    if (!inside(i))
        return 0;
    out = item[i].spec;
    return 1;
}

int VarList::get(int i, GridSpec& out) const {
    if (!inside(i))
        return 0;
    const VarSpec& spec = item[i].spec;
    out.init();
    out.set(Const::MISS, Const::MISS, spec.getForeCode(), spec.getLevelTypeCode(),
            spec.getLevelCode(), spec.getVarCode());
    return out.setUnits(spec.getUnits());
}

int VarList::getString(int i, String& out) const {
    out.clear();
    if (!inside(i))
        return 0;
    const VarSpec& spec = item[i].spec;
    String time;
    String level;
    spec.fore.toString(time);
    spec.level.toString(level);
    return setText(out, "%s:%s:%s[%s,%s]", time.get(), level.get(), spec.var.abbr, spec.var.units,
                   spec.format);
}

int VarList::setPlot(int i, int plot) {
    if (!inside(i))
        return 0;
    item[i].spec.plot = plot;
    return 1;
}

int VarList::setDataIndex(int i, int index) {
    if (!inside(i))
        return 0;
    item[i].index = index;
    return 1;
}

int VarList::getDataIndex(int i) const {
    return inside(i) ? item[i].index : 0;
}

int VarList::getType(int i) const {
    return inside(i) ? item[i].spec.type : 0;
}

int VarList::getLayer(int i) const {
    return inside(i) ? item[i].layer : 0;
}

const char* VarList::getName(int i) const {
    return inside(i) ? item[i].spec.var.abbr : "";
}

const char* VarList::getUnits(int i) const {
    return inside(i) ? item[i].spec.var.units : "";
}

const char* VarList::getFormat(int i) const {
    return inside(i) ? item[i].spec.format : "";
}

bool VarList::isFillContour(int i) const {
    return getPlot(i) == contour && (StrLib::hasToken(getFormat(i), ',', "cf") ||
                                     StrLib::hasToken(getFormat(i), ',', "pl=cf"));
}

int VarList::print() const {
    Orv::outMessage("VarList: %s (%d)\n", title, num);
    for (int i = 0; i < num; ++i)
        print(i);
    return 1;
}

int VarList::print(int i) const {
    if (!inside(i))
        return 0;
    Orv::outMessage("%3d %*s", i, 2 * item[i].layer, "");
    return item[i].spec.print();
}

} // namespace ORV
