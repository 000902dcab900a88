#pragma once

#include "ORV/Point.h"

namespace ORV {

/// A table of named vector symbols, each in a unit square, read from a file of words: a name, then
/// points as "x,y", "L" to draw the points so far as a line, "F" to fill them, and "$" to end the
/// symbol.
class Symbol {
public:
    static constexpr int max_symbols = 200;
    static constexpr int max_points = 5000;

    char names[max_symbols][15] = {};
    int start[max_symbols]; ///< first point of each symbol, -1 when unused
    float x[max_points];    ///< -1 line, -2 fill, -9 end stand in place of a point
    float y[max_points];
    int num = 0;
    int cur = -1; ///< read position, -1 when no symbol is chosen

    Symbol();
    explicit Symbol(const char* file);

    /// Reads the file when one is given; else empties the table.
    int init(const char* file);
    /// Reads a symbol file by its path, in place of what there was; a file that cannot be opened
    /// gives a warning and 0. At most 199 symbols and 4998 points and marks are taken; names keep
    /// 14 characters.
    int read(const char* file);
    /// Chooses the first symbol whose name begins the given one, so that the file's order settles
    /// which of several fits; 0 when none does.
    int setSymb(const char* name);
    /// Gives the next step of the symbol: 1 a point, 2 draw the points as a line, 3 fill them,
    /// 0 the end.
    int get(Point& point);

private:
    void clear();
};

} // namespace ORV
