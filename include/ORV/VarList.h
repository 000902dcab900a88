#pragma once

#include "ORV/OwnedArray.h"
#include "ORV/String.h"
#include "ORV/VarFileData.h"
#include "ORV/VarListItem.h"

namespace ORV {

class GridSpec;
class Unit;

/// A plot list: specifications, groups "{a,b}", vectors "<u,v>" and grid functions "add(a,b)", each
/// with its units and options, "temp[F,plot]", as one flat array in the order of the text.
///
/// A head, such as "sfc:{", stands in front of its members, which lie one layer deeper. A bracket
/// directly behind a closed list, "{a,b}[F,plot]", belongs to the head that was opened last. A
/// closer also ends an element, so "{a,}" holds an empty parameter: see isEmpty. White space has no
/// meaning, and "\" in front of a character that isn't a delimiter is dropped.
class VarList {
public:
    static constexpr int max_items = 1000; ///< beyond any real plot list

    OwnedArray<VarListItem> item;
    int num = 0;          ///< items in use
    int limit = 0;        ///< items allocated
    int cur = 0;          ///< cursor
    char title[80] = "";  ///< shown by print
    String file;          ///< variable file, in the database directory
    char delim = 0;       ///< the last character seen, when it was a delimiter
    char delims[11] = {}; ///< delimiters open
    int num_delim = 0;    ///< their number

    VarList();
    int init();
    int resize(int n);
    int setFile(const char* name);
    /// Finds a name in the variable file. Returns 1 and its plot list, or 0.
    int searchFile(const char* name, String& value) const;

    /// Parses a line in place of what the list holds. A closer without its opener, nesting deeper
    /// than 11, or more than max_items stops with a warning and 0, and leaves the items up to
    /// there. A line that
    /// ends inside a list gives 1 without its last element.
    int decode(const char* text);
    int decode(const VarFileData& entry) { return decode(entry.value.get()); }
    /// Parses a line and replaces names of the list's variable file by what they stand for, up to
    /// 10 deep. Units and options written on a name win over those of its definition. Returns 0
    /// after a warning when the line can't be parsed, or when definitions that contain themselves
    /// would grow it beyond max_items.
    static int process(const char* text, VarList& list);

    int rewind();
    int next();
    bool done() const { return cur >= num; }

    /// Copies a specification; 0 when out of range.
    int get(int i, VarSpec& out) const;
    /// Makes the key of a grid with the item's time, level, variable and units; 0 when out of
    /// range.
    int get(int i, GridSpec& out) const;
    /// Writes "fore:level:abbr[units,format]".
    int getString(int i, String& out) const;
    int setPlot(int i, int plot);
    int setDataIndex(int i, int index);

    /// Of item i, or of the one at the cursor. Out of range they give 0, false or an empty text.
    int getDataIndex(int i) const;
    int getDataIndex() const { return getDataIndex(cur); }
    int getType(int i) const;
    int getType() const { return getType(cur); }
    int getLayer(int i) const;
    int getLayer() const { return getLayer(cur); }
    const char* getName(int i) const;
    const char* getName() const { return getName(cur); }
    const char* getUnits(int i) const;
    const char* getUnits() const { return getUnits(cur); }
    const char* getFormat(int i) const;
    const char* getFormat() const { return getFormat(cur); }

    bool isParam(int i) const { return getType(i) == 1; }
    bool isParam() const { return isParam(cur); }
    /// A parameter that a closer made of nothing: no operand, and no data belong to it.
    bool isEmpty(int i) const { return isParam(i) && !*getName(i); }
    bool isEmpty() const { return isEmpty(cur); }
    bool isVect(int i) const { return getType(i) == 2; }
    bool isVect() const { return isVect(cur); }
    bool isGroup(int i) const { return getType(i) == 3; }
    bool isGroup() const { return isGroup(cur); }
    bool isFunction(int i) const { return getType(i) == 4; }
    bool isFunction() const { return isFunction(cur); }
    bool isVectFunction(int i) const { return getType(i) == 5; }
    bool isVectFunction() const { return isVectFunction(cur); }
    /// Whether a name is that of a function with a vector result: "grad" or "vdiff", with or
    /// without more behind a "-".
    static bool isVectFunction(const char* text);

    bool isPlot(int i) const { return getPlot(i) == 1 || getPlot(i) == 2; }
    bool isPlot() const { return isPlot(cur); }
    bool isData(int i) const { return getPlot(i) == 2; }
    bool isData() const { return isData(cur); }
    bool isContour(int i) const { return getPlot(i) == 3; }
    bool isContour() const { return isContour(cur); }
    bool isVector(int i) const { return getPlot(i) == 4; }
    bool isVector() const { return isVector(cur); }
    bool isMap(int i) const { return getPlot(i) == 5; }
    bool isMap() const { return isMap(cur); }
    bool isPanel(int i) const { return getPlot(i) == 6; }
    bool isPanel() const { return isPanel(cur); }
    /// A contour item that asks for filled contours.
    bool isFillContour(int i) const;
    bool isFillContour() const { return isFillContour(cur); }

    int print() const;
    int print(int i) const;

private:
    class Parser;

    bool inside(int i) const { return i >= 0 && i < num; }
    int getPlot(int i) const { return inside(i) ? item[i].spec.plot : 0; }
    void reserve(int n);
    int checkDelim(char c);
    int open(char c, const char* at);
    int close(char c, const char* at);
    VarListItem& emit(const char* token, const char* end, int layer, bool clean);
    void applyTrailing(const char* bracket, const char* end, int head);
    static void cleanData(char* token);
    void replaceOne(int i, const VarList& definition, Unit& unit);
    void replaceMany(int i, const VarList& definition, Unit& unit);
};

} // namespace ORV
