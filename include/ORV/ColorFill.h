#pragma once

#include "ORV/ColorMap.h"
#include "ORV/Const.h"
#include "ORV/OwnedArray.h"
#include "ORV/PlotAttr.h"

namespace ORV {

/// Maps data values to attributes, in one of two ways. With explicit values it is a step table:
/// entry i covers value[i] up to value[i + 1], the last is open upward. Without, it is a cycle: the
/// entries are taken in turn, one for each interval from a base on, in both directions.
///
/// As text, "0:red,10:blue" is a step table, "red,blue,green" a cycle, "10-15" the colors of these
/// indexes, and a single name a fill file of the database directory. Such a file has an entry on
/// each line, "#" comments, and "@label" with the name that the color bar shows; blank lines are
/// passed over, and lines keep 80 characters.
class ColorFill {
public:
    static constexpr int capacity = 256;

    OwnedArray<PlotAttr> attr{capacity};
    OwnedArray<float> value{capacity}; ///< value[0] missing: no explicit values
    char label[20] = "";               ///< name of the fill
    float base = Const::MISS;
    float intrvl = Const::MISS;
    int num = 0;
    int max = capacity;

    ColorFill() { init(); }
    ColorFill(ColorMap& map, const char* text) { set(map, text); }
    int init();
    int set(const ColorFill& other);

    /// Takes a text as above. A null text gives all fill colors of the map in order. The result is
    /// 0 when a fill file can't be opened, which leaves the fill empty.
    int set(ColorMap& map, const char* text);
    /// The same without indexes of colors, and without ranges of them.
    int set(const char* text);
    /// Takes the resource "color_fill" if that is set to more than "miss" or "def", with the
    /// result 2, else the text, with the result 1.
    int setFill(ColorMap& map, const char* text);
    /// Reads a fill file in place of what there was; 0 when it can't be opened.
    int readFile(ColorMap& map, const char* name);
    int readFile(const char* name);
    /// Adds one entry, or the entries of a range; 0 when the table is full.
    int decode(ColorMap& map, const char* entry);
    int decode(const char* entry);
    /// Fills the gaps between explicit values evenly. Entries behind the last value go on in steps
    /// of the last two known ones; with a single value they stay missing.
    int validateValues();

    /// Gives the entries in use the first n values; the rest becomes missing.
    int setValues(const float* values, int n);
    bool areValuesSet() const { return value[0] != Const::MISS; }
    bool isSet() const { return num > 0; }
    int getNum() const { return num; }
    float getBaseVal() const { return value[0]; }
    float getValue(int ind) const;
    int setBase(float b);
    float getBase() const { return base; }
    int setInterval(float i);
    float getInterval() const { return intrvl; }

    /// The entry for a value: -9999 for a missing value or an empty fill, -1 below value[0]. A
    /// cycle with a missing base counts from 0; with an interval missing or 0 it stays at entry 0.
    int getInd(float v) const;
    /// The attributes for a value, default ones where there is no entry.
    PlotAttr get(float v) const;
    PlotAttr get(int ind) const;
    /// The color index for a value; -1 below value[0] and for a missing value.
    int getColor(float v) const;
    int getColor(int ind) const;
    /// Null outside the table.
    const char* getColorName(int ind) const;
    bool validLabel(int ind) const;
    const char* getLabel(int ind) const;
    const char* getLabel() const { return label; }
    void print() const;

private:
    bool isEntry(int ind) const { return ind >= 0 && ind < num; }
    int setText(ColorMap* map, const char* text);
    int readEntries(ColorMap* map, const char* name);
    int decodeSingle(ColorMap* map, const char* entry);
    int decodeRange(ColorMap& map, const char* entry, int dash);
};

} // namespace ORV
