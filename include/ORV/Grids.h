#pragma once

#include "ORV/Grid.h"
#include "ORV/GridSpec.h"
#include "ORV/OwnedArray.h"

namespace ORV {

class FloatArray;

/// A table of grids and of the keys that ask for them. Entries are filled with keys first, and with
/// grids once a reader or an analysis delivers.
///
/// An index is inside the table from 0 to max - 1. Outside, setters and copies give 0, getters an
/// unset record or an empty text.
class Grids {
public:
    OwnedArray<GridSpec> gs;
    OwnedArray<Grid> grd;
    OwnedArray<int> flag; ///< 1 once the grid is filled
    int num = 0;          ///< entries in use
    int max = 0;          ///< entries allocated

    Grids() : Grids(20) {}
    explicit Grids(int n) { setSize(n); }

    /// Makes n empty entries in place of those there are.
    int setSize(int n);
    /// Grows to n entries; never shrinks.
    int resize(int n);
    /// Empties the entries in use and keeps the room.
    int init();

    int getNum() const { return num; }
    /// Takes n within 0 to max.
    int setNum(int n);

    /// Append a key; a full table grows by 10. Return its index.
    int addSpec(const GridSpec& spec);
    int addSpec(const char* text) { return addSpec(GridSpec(text)); }
    /// Stores a key. An i above num makes num i + 1.
    int setSpec(int i, const GridSpec& spec);
    int getSpec(int i, GridSpec& out) const;
    GridSpec getSpec(int i) const;
    int getVarSpec(int i, VarSpec& out) const;
    VarSpec getVarSpec(int i) const;
    const char* getSpecUnits(int i) const;

    /// Append a copy of a filled grid; a full table grows by 10.
    int add(const Grid& grid);
    int addGrid(const Grid& grid) { return add(grid); }
    /// Stores a copy of a filled grid. An i of num or above makes num i + 1.
    int setGrid(int i, const Grid& grid);
    int get(int i, Grid& out) const { return getGrid(i, out); }
    int getGrid(int i, Grid& out) const;

    DomainVal getDomainVal(int i) const;
    Domain getDomain(int i) const;
    int getProj(int i) const;

    /// Gives the domain to all entries, those not in use included, but not to value grids with
    /// data, which are constants on any domain.
    int setDomain(const Domain& domain);
    /// Allocates each entry in use that has no data.
    int allocData();
    int setDate(const Date& date);
    int setDate(int i, const Date& date);
    int setDatim(const char* text);
    int setDatim(int i, const char* text);
    int setInfo(int i, const char* text);
    int setVar(int i, const VarSpec& spec);

    bool isSet(int i) const { return inside(i) && flag[i]; }
    bool isVarSet(int i) const { return inside(i) && gs[i].isVarSet(); }
    /// Whether any key in use has its variable set.
    bool isVarSet() const;
    /// Returns 0: nothing counts the filled grids.
    int getNumSet() const { return 0; }

    /// A value of grid g; outside the table 0.
    int setValue(int g, int i, int j, float value);
    float getValue(int g, int i, int j) const;
    float getValue(int g, const GridPoint& point) const;
    float getValue(int g, const EarthPoint& earth) const;
    /// Replaces the array by the values of all grids in use at a place.
    int getValue(const EarthPoint& earth, FloatArray& out) const;

    /// The first entry in use whose key the given one fits, or -1: see GridSpec::equal.
    int equal(const GridSpec& spec) const;
    bool equal(int i, const GridSpec& spec) const;

private:
    bool inside(int i) const { return i >= 0 && i < max; }
    int nextEntry();
};

} // namespace ORV
