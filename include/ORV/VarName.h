#pragma once

#include "ORV/String.h"
#include "ORV/VarNameItem.h"
#include "ORV/Variable.h"

namespace ORV {

/// Finds quantities by short name or index number in the file "variable.lup" of the database
/// directory. The last 40 entries used are kept, so that only a new name reads the file.
///
/// Lines of the file: up to five index numbers joined by ",", the short name of at most 9
/// characters, the long name. The first number is the quantity's index. "#" at the start opens a
/// comment, a blank line ends the file. A name that isn't known is no error; a file that can't be
/// opened gives a warning.
class VarName {
public:
    VarNameItem vname[40]; ///< entries in use
    int cur_num = 0;       ///< stamp of the next use

    int init();

    /// Start the variable anew, or keep its statistic and units, and fill index and names in. When
    /// the name isn't known, abbr becomes the text and the rest stays. Return 1 when found.
    int get(int ind, Variable& var);
    int get(const char* abbr, Variable& var);
    /// The same by the short name that the variable has.
    int get(Variable& var);
    /// Return 1 when found; otherwise the item is empty. A statistic in front, "perc[50]temp", is
    /// passed over.
    int get(int ind, VarNameItem& item);
    int get(const char* text, VarNameItem& item);
    /// The short name, empty when the index isn't known. It lives until 40 others were looked up.
    const char* get(int ind);
    const char* getAbbr(int ind) { return get(ind); }
    /// Returns 1 when found; otherwise the text is empty.
    int get(int ind, String& abbr);
    /// The index of a short name, -1 when it isn't known. Entries in use are found in any case.
    int get(const char* abbr);

    /// Reads the file for a short name, or without one for an index, into the slot that was used
    /// the longest ago. Returns the slot, -1 when there is no such entry.
    int searchFile(int ind, const char* abbr);
    /// Reads the file for a short name and keeps nothing.
    static VarNameItem searchFile(const char* abbr);
    /// Writes the long name, or the short one when it isn't known, and the units in brackets.
    static int makeLabel(const char* abbr, const char* units, String& out);

private:
    int find(int ind, const char* abbr, bool anyCase);
};

} // namespace ORV
