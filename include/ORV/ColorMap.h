#pragma once

#include "ORV/Color.h"
#include "ORV/OwnedArray.h"
#include "ORV/RGB.h"

namespace ORV {

/// The table of colors: a name gives an index, an index the components and the device's value. The
/// first num_fill colors are the scale that fills take when no colors are named.
///
/// Copies are deep and carry the device values along. Operations that take an index count one at or
/// above num as the last color, so a small table still draws; a negative index is a color that is
/// off, with components of -1.
class ColorMap {
public:
    OwnedArray<Color> colors;
    int num = 0;
    int max = 0;
    int num_fill = 0;

    ColorMap() : ColorMap(256) {}
    explicit ColorMap(int max) { init(max); }
    int set(const ColorMap& other);
    /// Makes room for max colors, and empties the table.
    int init(int max);
    /// Empties the table.
    int init();

    /// Adds a color, or gives the one of that very name new components; a name keeps 19 characters.
    /// Returns the index, or -1 with a warning when the table is full.
    int add(const char* name, float red, float grn, float blu);
    int add(const char* name, const RGB& color);

    /// Finds a color by name, in any case. "#RRGGBB" in hexadecimal and "#RRRGGGBBB" in decimal (0
    /// to 255) become colors of their own, digits are an index. -1: off, or nothing that fits;
    /// -9999: no name; -2: "end"; 500 to 508: the page colors "pblk" and its like.
    int getInd(const char* name);

    /// Empty for an index that is off.
    const char* getName(int ind) const;
    int get(int ind, RGB& color) const;
    int getRGB(int ind, float& red, float& grn, float& blu) const;
    /// Components of 0 to 255, or -1.
    int getIRGB(int ind, int& red, int& grn, int& blu) const;

    /// Stores the device's value of a color; refused outside the table.
    int setValue(int ind, int value);
    /// A negative index counts as the first color. -1 when the table is empty.
    int getValue(int ind);
    int getValue(const char* name);

    int getMax() const { return max; }
    int getNum() const { return num; }
    int getNumFill() const { return num_fill; }
    /// Refused outside 0 to num.
    int setNumFill(int n);
    bool isColor(int ind) const { return ind >= 0 && ind < num; }
    /// True when the components differ by less than 0.01 in sum; never for a color that is off.
    bool isColorNear(int ind, const RGB& color) const;
    void print() const;

private:
    const Color* find(int ind) const;
};

} // namespace ORV
