#include "ORV/Data.h"

#include "ORV/Datum.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cstdio>

namespace ORV {
namespace {
constexpr int first_limit = 400;

template <class T>
void resize(OwnedArray<T>& array, int n, const T& empty) {
    OwnedArray<T> grown(n);
    const int kept = std::min(array.size(), n);
    std::move(static_cast<T*>(array), array + kept, static_cast<T*>(grown));
    std::fill(grown + kept, grown + n, empty);
    array = std::move(grown);
}

template <class T>
OwnedArray<T> makeArray(int n, const T& value) {
    OwnedArray<T> array(n);
    std::fill_n(static_cast<T*>(array), n, value);
    return array;
}

const char* show(const char* text) {
    return text ? text : "";
}
} // namespace

int Data::copyInfo(Data& out, const Data& in) {
    if (&out == &in)
        return out.clear();
    out.dinfo = in.dinfo;
    out.datim = in.datim;
    out.date = in.date;
    StrLib::copy(out.source, sizeof out.source, in.source);
    out.setFields(in.fields);
    for (int f = 0; f < in.fields; f++)
        out.setType(f, in.type[f]);
    out.info = in.info;
    out.vs = in.vs;
    return 1;
}

int Data::init() {
    source[0] = 0;
    dinfo.clear();
    datim.clear();
    limit = first_limit;
    return setFields(fields);
}

int Data::clear() {
    for (int row = 0; row < num; row++) {
        id[row] = {};
        ept[row].init();
    }
    for (int f = 0; f < fields; f++)
        setType(f, type[f]);
    num = 0;
    return 1;
}

int Data::setFields(int n) {
    if (n < 0)
        return 0;
    fields = n;
    num = 0;
    info = OwnedArray<OwnedArray<char>>(n);
    vs = OwnedArray<VarSpec>(n);
    type = makeArray<int>(n, FLOATS);
    id = OwnedArray<OwnedArray<char>>(limit);
    ept = OwnedArray<EarthPoint>(limit);
    value = OwnedArray<OwnedArray<float>>(n);
    str = OwnedArray<OwnedArray<OwnedArray<char>>>(n);
    for (int f = 0; f < n; f++)
        value[f] = makeArray<float>(limit, Const::MISS);
    return 1;
}

int Data::setSource(const char* text) {
    return StrLib::copy(source, sizeof source, text), 1;
}

int Data::setDate(const Date& value) {
    date = value;
    return 1;
}

int Data::getDate(Date& out) const {
    out = date;
    return 1;
}

int Data::setDatim(const char* text) {
    return datim.set(text), 1;
}

const char* Data::getDatim() const {
    return datim.get();
}

int Data::setType(int field, int kind) {
    if (!hasField(field) || (kind != FLOATS && kind != STRINGS))
        return 0;
    type[field] = kind;
    value[field] = {};
    str[field] = {};
    if (kind == FLOATS)
        value[field] = makeArray<float>(limit, Const::MISS);
    else
        str[field] = OwnedArray<OwnedArray<char>>(limit);
    return 1;
}

int Data::expand(int n) {
    if (n < 1)
        return 0;
    resize(id, n, {});
    resize(ept, n, {});
    for (int f = 0; f < fields; f++)
        if (type[f] == FLOATS)
            resize(value[f], n, static_cast<float>(Const::MISS));
        else
            resize(str[f], n, {});
    limit = n;
    num = std::min(num, n);
    return 1;
}

int Data::expand() {
    return expand(std::max(static_cast<int>(limit * 1.5), limit + 1));
}

int Data::setInfo(const char* text) {
    return dinfo.set(text), 1;
}

const char* Data::getInfo() const {
    return dinfo.get();
}

int Data::setInfo(int field, const char* text) {
    if (!hasField(field))
        return 0;
    info[field] = StrLib::own(text);
    return 1;
}

const char* Data::getInfo(int field) const {
    return hasField(field) ? static_cast<const char*>(info[field]) : nullptr;
}

int Data::searchInfo(const char* text) const {
    for (int f = 0; f < fields; f++)
        if (StrLib::equal(info[f], text))
            return f;
    return -1;
}

int Data::setUnits(int field, const char* units) {
    if (!hasField(field))
        return 0;
    vs[field].setUnits(units);
    String label;
    vs[field].toInfoLabel(label);
    return setInfo(field, label.get());
}

int Data::setVarSpec(int field, const VarSpec& spec) {
    if (!hasField(field))
        return 0;
    vs[field] = spec;
    String label;
    vs[field].toInfoLabel(label);
    return setInfo(field, label.get());
}

const char* Data::getUnits(int field) const {
    return hasField(field) ? vs[field].var.units : "";
}

int Data::getVarSpec(int field, VarSpec& spec) const {
    if (!hasField(field))
        return 0;
    spec = vs[field];
    return 1;
}

int Data::getIndex(const char* ident) const {
    for (int row = 0; row < num; row++)
        if (StrLib::equal(id[row], ident))
            return row;
    return -1;
}

bool Data::useRow(int row) {
    if (row < 0)
        return false;
    if (row >= limit)
        expand();
    if (row >= limit)
        return false;
    num = std::max(num, row + 1);
    return true;
}

bool Data::hasCell(int row, int field, int kind) const {
    return row >= 0 && row < num && hasField(field) && type[field] == kind;
}

int Data::setId(int row, const char* text) {
    if (!useRow(row))
        return 0;
    id[row] = StrLib::own(text);
    return 1;
}

const char* Data::getId(int row) const {
    return row >= 0 && row < num ? static_cast<const char*>(id[row]) : nullptr;
}

int Data::setLoc(int row, const EarthPoint& point) {
    return useRow(row) ? ept[row].set(point) : 0;
}

int Data::setLoc(int row, float lat, float lon) {
    return setLoc(row, EarthPoint(lat, lon));
}

int Data::getLoc(int row, EarthPoint& point) const {
    point = getLoc(row);
    return row >= 0 && row < num;
}

EarthPoint Data::getLoc(int row) const {
    return row >= 0 && row < num ? ept[row] : EarthPoint();
}

int Data::setValue(int row, int field, float x) {
    if (!hasField(field) || !useRow(row) || type[field] != FLOATS)
        return 0;
    value[field][row] = x;
    return 1;
}

float Data::getValue(int row, int field) const {
    return hasCell(row, field, FLOATS) ? value[field][row] : Const::MISS;
}

int Data::setString(int row, int field, const char* text) {
    if (!hasField(field) || !useRow(row) || type[field] != STRINGS)
        return 0;
    str[field][row] = StrLib::own(text);
    return 1;
}

const char* Data::getString(int row, int field) const {
    return hasCell(row, field, STRINGS) ? static_cast<const char*>(str[field][row]) : nullptr;
}

int Data::appendRow(const char* ident, const EarthPoint& point) {
    const int row = num;
    setId(row, ident);
    setLoc(row, point);
    return row;
}

int Data::add(const char* ident, const EarthPoint& point, float first) {
    setValue(appendRow(ident, point), 0, first);
    return 1;
}

int Data::add(const char* ident, const EarthPoint& point, float first, float second) {
    const int row = appendRow(ident, point);
    setValue(row, 0, first);
    setValue(row, 1, second);
    return 1;
}

int Data::addValue(const EarthPoint& point, float x) {
    return add(nullptr, point, x);
}

int Data::add(const Datum& datum) {
    add(datum.id, datum.ept, datum.value[0], datum.value[1]);
    setString(num - 1, 0, datum.data);
    return 1;
}

int Data::copyCell(int row, int field, const Data& other, int other_row) {
    return type[field] == STRINGS ? setString(row, field, other.getString(other_row, field))
                                  : setValue(row, field, other.getValue(other_row, field));
}

int Data::add(const Data& other, int row, int field) {
    if (row < 0 || row >= other.num || !hasField(field) || !other.hasField(field))
        return 0;
    return copyCell(appendRow(other.getId(row), other.getLoc(row)), field, other, row);
}

int Data::add(const Data& other, int row) {
    if (row < 0 || row >= other.num)
        return 0;
    const int target = appendRow(other.getId(row), other.getLoc(row));
    for (int f = 0; f < std::min(fields, other.fields); f++)
        copyCell(target, f, other, row);
    return 1;
}

int Data::print() const {
    if (source[0])
        std::printf("Source: %s\n", source);
    if (dinfo.valid())
        std::printf("Info: %s\n", dinfo.get());
    if (datim.valid())
        std::printf("Datim: %s\n", datim.get());
    std::printf("Date: ");
    date.print();
    std::printf("\nDatapoints: %d\nFields: %d\n", num, fields);
    for (int f = 0; f < fields; f++) {
        std::printf("   %d [%c] %s\n", f, type[f] == STRINGS ? 'S' : 'V', show(info[f]));
        vs[f].print();
    }
    return 1;
}

int Data::printData(int row) const {
    const EarthPoint point = getLoc(row);
    std::printf("%s - %f,%f = ", show(getId(row)), point.lat, point.lon);
    if (fields == 1 && type[0] == FLOATS)
        std::printf("%f", getValue(row));
    else
        for (int f = 0; f < fields; f++)
            if (type[f] == STRINGS)
                std::printf("%s ", show(getString(row, f)));
            else
                std::printf("%f ", getValue(row, f));
    std::printf("\n");
    return 1;
}

int Data::printData() const {
    for (int row = 0; row < num; row++)
        printData(row);
    return 1;
}

} // namespace ORV
