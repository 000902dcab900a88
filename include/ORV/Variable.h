#pragma once

#include "ORV/Const.h"
#include "ORV/String.h"

namespace ORV {

/// A quantity: its names, its index number, the units wanted, and a statistic over it.
class Variable {
public:
    /// 0 none, 1 accumulated, 2 mean, 3 maximum, 4 minimum; probability of 5 below val1, 6 above
    /// val2, 7 below val2, 8 above val1, 9 between; 10 ensemble member val1, 11 ensemble mean, 12
    /// standard deviation, ensemble probability of 13 below val1, 14 above val2, 15 between;
    /// 16 percentile val1.
    int type = 0;
    int ind = Const::MISS; ///< index number in "variable.lup"
    float val1 = Const::MISS;
    float val2 = Const::MISS;
    char abbr[40] = "";  ///< short name, such as "temp"
    char name[40] = "";  ///< long name, such as "Temperature"
    char units[20] = ""; ///< units wanted; empty for those it comes in

    int init();
    /// Starts anew with the short name, and the units.
    int set(const char* abbr);
    int set(const char* abbr, const char* units);

    int setType(int kind);
    int getType() const { return type; }
    int setInd(int index);
    int getInd() const { return ind; }
    int setVal1(float value);
    float getVal1() const { return val1; }
    int setVal2(float value);
    float getVal2() const { return val2; }
    int setAbbr(const char* text);
    const char* getAbbr() const { return abbr; }
    int setName(const char* text);
    const char* getName() const { return name; }
    int setUnits(const char* text);
    const char* getUnits() const { return units; }

    /// Reads a short name behind its statistic: "max_temp", "mean_", "accum_", "min_",
    /// "prob[>5]prec", "prob[2-5]prec", "ens[-2]temp", "ensmean[]temp", "ensdev[]temp",
    /// "ensprob[<0]temp", "perc[50]temp". The long name and the units stay empty. Null gives 0.
    int decode(const char* text);
    /// Writes a text with the statistic, the short name and the units: "max_temp[C]".
    int toString(String& out) const;
    /// Writes a readable label: "Max Temperature [C]"; without units it ends in a blank.
    int toLabel(String& out) const;
    /// The index with the statistic packed into one integer, the key of grid data; missing when the
    /// index is.
    int toIndCode() const;
    /// Writes the text that decode reads.
    int toAbbrCode(String& out) const;

    int print() const;
};

} // namespace ORV
