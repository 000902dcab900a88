#pragma once

#include "ORV/Const.h"
#include "ORV/ModelType.h"

namespace ORV {

/// A model whose area comes in pieces, by the file "model.lup" of the database directory. Its lines
/// are "name 2x3 a,b,c,d,e,f", columns by rows, or "name 3 a,b,c" for one row; a piece may have a
/// type, "a#5". "#" at the start opens a comment.
class ModelSpec {
public:
    char name[20] = "";
    int num = 0;             ///< pieces, at most 12; further ones are left out
    int nx = 1;              ///< columns
    int ny = 1;              ///< rows
    int itype = Const::MISS; ///< the type of a piece that states none
    ModelType spec[12];      ///< row by row

    int init();
    /// Returns 0, with no pieces, when the file or the name isn't found.
    int set(const char* text);

    bool valid() const { return num > 0; }
    int getNum() const { return num; }
    const char* getName() const { return name; }
    int getNx() const { return nx; }
    int getNy() const { return ny; }
    /// Of piece i; empty or missing out of range.
    const char* getName(int i) const { return inside(i) ? spec[i].name : ""; }
    int getX(int i) const { return inside(i) ? spec[i].x : Const::MISS; }
    int getY(int i) const { return inside(i) ? spec[i].y : Const::MISS; }
    int getType(int i) const { return inside(i) ? spec[i].type : Const::MISS; }

private:
    bool inside(int i) const { return i >= 0 && i < num; }
};

} // namespace ORV
