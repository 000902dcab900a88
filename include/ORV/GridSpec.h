#pragma once

#include "ORV/Const.h"

namespace ORV {

/// A key that selects a grid by its place in a file or by numeric codes. A field that doesn't
/// matter is missing.
///
/// Texts: "#3" or "#3:mb" is the grid of that index, counted from 0, and the units wanted;
/// "temp[F]", "500mb" excluded, is a variable; "12hr:500mb:hght[m]" forecast time, level and
/// variable; "12hr:500mb:hght:m" has its units as the fourth field. A "+" in front has no meaning.
class GridSpec {
public:
    int num = Const::MISS;   ///< index of the grid in its file; missing to select by the others
    int model = Const::MISS; ///< as in Grid
    int type = Const::MISS;  ///< grid_type of a Grid
    int time = Const::MISS;  ///< ForeTime::toCode
    int ltype = Const::MISS; ///< Level::toTypeCode
    int level = Const::MISS; ///< Level::toLevelCode
    /// Variable::toIndCode: the variable, and others that will do as well.
    int var[5] = {Const::MISS, Const::MISS, Const::MISS, Const::MISS, Const::MISS};
    char units[20] = ""; ///< units wanted

    GridSpec() = default;
    explicit GridSpec(const char* text) { decode(text); }

    int init() { return *this = GridSpec(), 1; }
    /// Sets all but the index, the alternative variables and the units.
    int set(int model, int type, int time, int ltype, int level, int var);
    int set(const char* text) { return decode(text); }
    /// Starts anew and reads a text. Units end at the first "," or "]" of their bracket; the
    /// bracket of a statistic, "prob[>5]prec[mm]", isn't theirs. A text of two fields leaves the
    /// key unset. 0 for an empty text.
    int decode(const char* text);

    int setNum(int index) { return num = index, 1; }
    int getNum() const { return num; }
    int setModel(int number) { return model = number, 1; }
    int getModel() const { return model; }
    int setType(int kind) { return type = kind, 1; }
    int getType() const { return type; }
    int setTime(int code) { return time = code, 1; }
    int getTime() const { return time; }
    int setLevelType(int code) { return ltype = code, 1; }
    int getLevelType() const { return ltype; }
    int setLevel(int code) { return level = code, 1; }
    int getLevel() const { return level; }
    int setVar(int code) { return var[0] = code, 1; }
    /// 0 when slot is outside 0 to 4.
    int setVar(int slot, int code);
    int getVar() const { return var[0]; }
    int setUnits(const char* text);
    const char* getUnits() const { return units; }

    /// Parts of the time code, missing when it is: the kind digit (2 range, 4 accumulation, 9 any
    /// and so on), the offset in units of 10000000, the start and the end of a period. A single
    /// time has its value as the end, and 0 as the start.
    int getTimeType() const;
    int getTimeOffset() const;
    int getTime1() const;
    int getTime2() const;

    /// Whether anything is selected at all.
    bool isSet() const;
    bool isVarSet() const { return var[0] != Const::MISS; }

    /// Whether a grid of key b is what the key a, with its alternative variables, asks for. What is
    /// missing on either side isn't compared. The type decides over the model. Times of one kind
    /// are compared whole, unless the start of the period is 799, not given; otherwise only their
    /// ends are.
    static bool equal(const GridSpec& a, const GridSpec& b);
};

} // namespace ORV
