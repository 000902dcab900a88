#include "ORV/Orv.h"
#include "ORV/StrLib.h"
#include "ORV/Unit.h"
#include "ORV/VarFile.h"
#include "ORV/VarList.h"

#include "TextOut.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace ORV {

namespace {

constexpr int max_passes = 10;

// All entries of a variable file, read once; the first of a name counts.
class Definitions {
public:
    explicit Definitions(const String& file) {
        VarFile source;
        if (!file.valid() || !source.open(file.get()))
            return;
        for (VarFileData entry; source.read(entry);)
            values.emplace(entry.name, entry.value.get());
    }

    const char* find(const char* name) const {
        if (!StrLib::valid(name))
            return nullptr;
        const auto row = values.find(name);
        return row == values.end() ? nullptr : row->second.c_str();
    }

private:
    std::unordered_map<std::string, std::string> values;
};

// What a user wrote on a name, which wins over the definition of the name.
class Written {
public:
    std::string units;
    std::string format;
    int plot;

    explicit Written(const VarSpec& spec)
        : units(spec.var.units), format(spec.format), plot(spec.plot) {}

    bool convertible(Unit& unit, const VarSpec& spec) const {
        return unit.valid(units.c_str(), spec.var.units) != 0;
    }
    void addFormat(VarSpec& spec) const {
        if (format.empty())
            return;
        String joined;
        setText(joined, "%s,%s", spec.format, format.c_str());
        spec.setFormat(joined.get());
    }
    void restorePlot(VarSpec& spec) const {
        if (spec.plot == 1)
            spec.plot = plot;
    }
};

} // namespace

void VarList::replaceOne(int i, const VarList& definition, Unit& unit) {
    VarSpec& spec = item[i].spec;
    const Written written(spec);
    VarSpec meaning = definition.item[0].spec;
    if (StrLib::equal(meaning.var.abbr, spec.var.abbr))
        meaning.abs = true;
    spec.update(meaning);
    if (written.convertible(unit, spec) || !*spec.var.units)
        spec.setUnits(written.units.c_str());
    written.addFormat(spec);
    written.restorePlot(spec);
}

void VarList::replaceMany(int i, const VarList& definition, Unit& unit) {
    const int count = definition.num;
    const Written written(item[i].spec);
    const int layer = item[i].layer;
    reserve(num + count);
    std::move_backward(item + i + 1, item + num, item + num + count - 1);
    num += count - 1;

    // The first one last, since all of them start as the name was written.
    VarSpec& first = item[i].spec;
    for (int k = count - 1; k >= 0; --k) {
        VarListItem& added = item[i + k];
        if (k > 0)
            added.spec = first;
        added.spec.update(definition.item[k].spec);
        added.layer = layer + definition.item[k].layer;
        added.index = -1;
    }
    if (written.convertible(unit, first))
        first.setUnits(written.units.c_str());
    written.addFormat(first);
    for (int k = i + 1; k < i + count; ++k) {
        VarSpec& member = item[k].spec;
        if (item[k].layer <= layer)
            continue;
        const bool own = *member.var.units && !unit.valid(member.var.units, first.var.units);
        if (*first.var.units && !own)
            member.setUnits(first.var.units);
        written.addFormat(member);
    }
    written.restorePlot(first);
}

int VarList::process(const char* text, VarList& list) {
    const Definitions definitions(list.file);
    const char* value = definitions.find(text);
    if (!list.decode(value ? value : text))
        return 0;
    VarList definition;
    Unit unit;
    bool changed = true;
    for (int pass = 0; pass < max_passes && changed; ++pass) {
        changed = false;
        for (int i = 0; i < list.num; ++i) {
            VarSpec& spec = list.item[i].spec;
            if (spec.abs)
                continue;
            changed = true;
            const char* meaning = definitions.find(spec.var.abbr);
            definition.num = 0;
            if (meaning)
                definition.decode(meaning);
            if (definition.num == 0) {
                spec.abs = true;
            } else if (definition.num == 1) {
                list.replaceOne(i, definition, unit);
            } else if (list.num + definition.num > max_items) {
                Orv::outWarning("VarList::process error, %s grows without end\n", spec.var.abbr);
                return 0;
            } else {
                list.replaceMany(i, definition, unit);
                i += definition.num - 1;
            }
        }
    }
    return 1;
}

} // namespace ORV
