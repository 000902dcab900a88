#include "ORV/VarName.h"

#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include "TextOut.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace ORV {

namespace {

constexpr int line_size = 120;

int parseLine(const char* line, VarNameItem& item) {
    char numbers[30];
    item = VarNameItem();
    if (Scan::text(line, "%29s %9s %49[^\n]\n", numbers, item.abbr, item.name) < 2)
        return 0;
    StrLib::trimWS(item.name);
    int* ind = item.ind;
    return Scan::text(numbers, "%d,%d,%d,%d,%d", &ind[0], &ind[1], &ind[2], &ind[3], &ind[4]) > 0;
}

bool isBlank(const char* line) {
    return line[std::strspn(line, " \t\r\n")] == '\0';
}

bool matches(const VarNameItem& item, int ind, const char* abbr) {
    return StrLib::valid(abbr) ? StrLib::equal(item.abbr, abbr) : item.ind[0] == ind;
}

// Returns 1 for an entry, 0 when there is none.
int readFile(int ind, const char* abbr, VarNameItem& item) {
    String path;
    FileTool::addPath(Orv::getDatabasePath(), "variable.lup", path);
    File file(path, "r");
    if (!file.isOpen()) {
        Orv::outWarning("VarName: Unable to open file: %s\n", path.get());
        return 0;
    }
    char line[line_size];
    while (file.getLine(line, sizeof line) > 0 && !isBlank(line))
        if (*line != '#' && parseLine(line, item) && matches(item, ind, abbr))
            return 1;
    return 0;
}

// The text behind a statistic in brackets.
const char* skipStatistic(const char* text) {
    constexpr const char* heads[] = {"perc", "ens", "prob"};
    const bool found = std::any_of(std::begin(heads), std::end(heads), [text](const char* head) {
        return StrLib::equal(text, head, StrLib::length(head));
    });
    const int end = found ? StrLib::index(text, ']') : -1;
    return end < 0 ? text : text + end + 1;
}

void fill(const VarNameItem& item, Variable& var) {
    var.setInd(item.ind[0]);
    var.setAbbr(item.abbr);
    var.setName(item.name);
}

} // namespace

int VarName::init() {
    *this = VarName();
    return 1;
}

int VarName::get(int ind, Variable& var) {
    var.init();
    const int slot = find(ind, nullptr, false);
    if (slot < 0)
        return 0;
    fill(vname[slot], var);
    return 1;
}

int VarName::get(const char* abbr, Variable& var) {
    const int slot = StrLib::valid(abbr) ? find(0, abbr, false) : -1;
    if (slot < 0) {
        var.setAbbr(abbr);
        return 0;
    }
    fill(vname[slot], var);
    return 1;
}

int VarName::get(Variable& var) {
    char abbr[sizeof var.abbr];
    StrLib::copy(abbr, sizeof abbr, var.abbr);
    return get(abbr, var);
}

int VarName::get(int ind, VarNameItem& item) {
    const int slot = find(ind, nullptr, false);
    item = slot < 0 ? VarNameItem() : vname[slot];
    return slot >= 0;
}

int VarName::get(const char* text, VarNameItem& item) {
    const char* abbr = skipStatistic(text);
    const int slot = StrLib::valid(abbr) ? find(0, abbr, false) : -1;
    item = slot < 0 ? VarNameItem() : vname[slot];
    return slot >= 0;
}

const char* VarName::get(int ind) {
    const int slot = find(ind, nullptr, false);
    return slot < 0 ? "" : vname[slot].abbr;
}

int VarName::get(int ind, String& abbr) {
    abbr.set(get(ind));
    return abbr.valid();
}

int VarName::get(const char* abbr) {
    const int slot = StrLib::valid(abbr) ? find(0, abbr, true) : -1;
    return slot < 0 ? -1 : vname[slot].ind[0];
}

int VarName::searchFile(int ind, const char* abbr) {
    VarNameItem item;
    if (!readFile(ind, abbr, item))
        return -1;
    // An empty slot has the lowest stamp of all.
    VarNameItem* slot =
        std::min_element(std::begin(vname), std::end(vname),
                         [](const VarNameItem& a, const VarNameItem& b) { return a.num < b.num; });
    *slot = item;
    slot->num = cur_num++;
    return static_cast<int>(slot - vname);
}

VarNameItem VarName::searchFile(const char* abbr) {
    VarNameItem item;
    if (StrLib::valid(abbr) && readFile(0, abbr, item))
        return item;
    return VarNameItem();
}

int VarName::makeLabel(const char* abbr, const char* units, String& out) {
    const VarNameItem item = searchFile(abbr);
    out.set(*item.name ? item.name : abbr);
    return StrLib::valid(units) ? appendText(out, " [%s]", units) : 1;
}

// Looks through the entries in use, then in the file, by the index when there is no short name.
int VarName::find(int ind, const char* abbr, bool anyCase) {
    for (VarNameItem& item : vname) {
        if (item.num == Const::MISS)
            continue;
        const bool hit = anyCase ? StrLib::iequal(item.abbr, abbr) : matches(item, ind, abbr);
        if (hit) {
            item.num = cur_num++;
            return static_cast<int>(&item - vname);
        }
    }
    return searchFile(ind, abbr);
}

} // namespace ORV
