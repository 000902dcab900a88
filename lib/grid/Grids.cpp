#include "ORV/Grids.h"

#include "ORV/FloatArray.h"

#include <algorithm>

namespace ORV {
namespace {
constexpr int growth = 10;

template <class T>
void grow(OwnedArray<T>& array, int n) {
    OwnedArray<T> grown(n);
    std::move(static_cast<T*>(array), array + array.size(), static_cast<T*>(grown));
    array = std::move(grown);
}
} // namespace

int Grids::setSize(int n) {
    max = std::max(n, 0);
    num = 0;
    gs = OwnedArray<GridSpec>(max);
    grd = OwnedArray<Grid>(max);
    flag = OwnedArray<int>(max);
    return 1;
}

int Grids::resize(int n) {
    if (n <= max)
        return 1;
    grow(gs, n);
    grow(grd, n);
    grow(flag, n);
    max = n;
    return 1;
}

int Grids::init() {
    for (int i = 0; i < num; i++) {
        gs[i].init();
        grd[i].init();
        flag[i] = 0;
    }
    num = 0;
    return 1;
}

int Grids::setNum(int n) {
    num = std::clamp(n, 0, max);
    return 1;
}

int Grids::nextEntry() {
    if (num >= max)
        resize(max + growth);
    return num++;
}

int Grids::addSpec(const GridSpec& spec) {
    const GridSpec copy = spec; // it may lie in the table, which moves
    const int i = nextEntry();
    gs[i] = copy;
    return i;
}

int Grids::setSpec(int i, const GridSpec& spec) {
    if (!inside(i))
        return 0;
    gs[i] = spec;
    if (num < i)
        num = i + 1;
    return 1;
}

int Grids::getSpec(int i, GridSpec& out) const {
    if (!inside(i))
        return 0;
    out = gs[i];
    return 1;
}

GridSpec Grids::getSpec(int i) const {
    return inside(i) ? gs[i] : GridSpec();
}

int Grids::getVarSpec(int i, VarSpec& out) const {
    if (!inside(i))
        return 0;
    out = grd[i].var;
    return 1;
}

VarSpec Grids::getVarSpec(int i) const {
    return inside(i) ? grd[i].var : VarSpec();
}

const char* Grids::getSpecUnits(int i) const {
    return inside(i) ? gs[i].units : "";
}

int Grids::add(const Grid& grid) {
    Grid copy = grid; // it may lie in the table, which moves
    const int i = nextEntry();
    grd[i] = std::move(copy);
    flag[i] = 1;
    return 1;
}

int Grids::setGrid(int i, const Grid& grid) {
    if (!inside(i))
        return 0;
    grd[i] = grid;
    flag[i] = 1;
    num = std::max(num, i + 1);
    return 1;
}

int Grids::getGrid(int i, Grid& out) const {
    if (!inside(i))
        return 0;
    out = grd[i];
    return 1;
}

DomainVal Grids::getDomainVal(int i) const {
    return inside(i) ? grd[i].getDomainVal() : DomainVal();
}

Domain Grids::getDomain(int i) const {
    return inside(i) ? grd[i].domain : Domain();
}

int Grids::getProj(int i) const {
    return inside(i) ? grd[i].getProj() : Const::MISS;
}

int Grids::setDomain(const Domain& domain) {
    for (int i = 0; i < max; i++)
        if (!grd[i].isData() || !grd[i].isValue())
            grd[i].setDomain(domain);
    return 1;
}

int Grids::allocData() {
    for (int i = 0; i < num; i++)
        if (!grd[i].isData())
            grd[i].allocData();
    return 1;
}

int Grids::setDate(const Date& date) {
    for (int i = 0; i < num; i++)
        grd[i].setDate(date);
    return 1;
}

int Grids::setDate(int i, const Date& date) {
    return inside(i) ? grd[i].setDate(date) : 0;
}

int Grids::setDatim(const char* text) {
    for (int i = 0; i < num; i++)
        grd[i].setDatim(text);
    return 1;
}

int Grids::setDatim(int i, const char* text) {
    return inside(i) ? grd[i].setDatim(text) : 0;
}

int Grids::setInfo(int i, const char* text) {
    return inside(i) ? grd[i].setInfo(text) : 0;
}

int Grids::setVar(int i, const VarSpec& spec) {
    return inside(i) ? grd[i].setVar(spec) : 0;
}

bool Grids::isVarSet() const {
    return std::any_of(gs + 0, gs + num, [](const GridSpec& spec) { return spec.isVarSet(); });
}

int Grids::setValue(int g, int i, int j, float value) {
    return inside(g) ? grd[g].setValue(i, j, value) : 0;
}

float Grids::getValue(int g, int i, int j) const {
    return inside(g) ? grd[g].getValue(i, j) : 0;
}

float Grids::getValue(int g, const GridPoint& point) const {
    return inside(g) ? grd[g].getValue(point) : 0;
}

float Grids::getValue(int g, const EarthPoint& earth) const {
    return inside(g) ? grd[g].getValue(earth) : 0;
}

int Grids::getValue(const EarthPoint& earth, FloatArray& out) const {
    out.clear();
    for (int i = 0; i < num; i++)
        out.add(grd[i].getValue(earth));
    return 1;
}

int Grids::equal(const GridSpec& spec) const {
    for (int i = 0; i < num; i++)
        if (GridSpec::equal(gs[i], spec))
            return i;
    return -1;
}

bool Grids::equal(int i, const GridSpec& spec) const {
    return inside(i) && GridSpec::equal(gs[i], spec);
}

} // namespace ORV
