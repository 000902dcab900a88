#pragma once

#include "ORV/ForeTime.h"
#include "ORV/Level.h"
#include "ORV/VarName.h"
#include "ORV/Variable.h"

namespace ORV {

class Date;
class Timezone;

/// The full name of a quantity: forecast time, level and variable, the units wanted, and how to
/// draw it. The text is "fore:level:var:units[units,option,option...]", of which all but var may be
/// left out; one ":" leaves a level, two a time and a level: "temp", "sfc:temp[F,plot]",
/// "12hr:500mb:hght". A "+" in front of var takes the name as it is, without the variable file.
class VarSpec {
public:
    int type = Const::MISS;   ///< 1 parameter, 2 vector, 3 grid or group, 4 function, 5 vector
                              ///< function, 6 map or panel
    int source = Const::MISS; ///< data source, for the user
    bool abs = false;         ///< not to be looked up in a variable file
    int plot = 0; ///< 0 unset, 1 station plot, 2 data values, 3 contour, 4 vector, 5 map, 6 panel
    ForeTime fore;
    Level level;
    Variable var;
    char format[100] = ""; ///< drawing options, joined by ","
    VarName vname;         ///< the names looked up last

    VarSpec() = default;
    explicit VarSpec(const char* text) { decode(text); }

    int init();
    /// Starts anew; no resource bears on a specification.
    int initResrc() { return init(); }

    /// Reads a text. A wrong number of colons gives a warning, 0 and an empty variable; a missing
    /// "]" only a warning.
    int decode(const char* text);
    int set(const char* text) { return decode(text); }
    /// Takes the time, if it has one, and the level, if it has a value; nothing else.
    int set(const VarSpec& other);
    int set(const Variable& variable);
    int set(const Level& lev);
    int set(const ForeTime& time);
    int get(Variable& variable) const;
    int get(Level& lev) const;
    int get(ForeTime& time) const;

    int setFore(const char* text);
    int setLevel(const char* text);
    /// Look a variable up, by its index when the text begins with a digit, else by its short name.
    /// An unknown one gives 0: the text is then both names, and without units given it has none.
    int setVar(const char* text);
    int setVar(const char* text, const char* units);
    /// The same by index. An unknown one gives 0, no names, and the index as the variable's type.
    int setVar(int ind, const char* units);
    int setUnits(const char* text);
    const char* getUnits() const { return var.units; }
    /// Stores the options and sets `plot` from those that name a kind of drawing, the last of which
    /// wins; without one it stays as it is.
    int setFormat(const char* text);
    const char* getFormat() const { return format; }
    int setType(int kind);
    int getType() const { return type; }
    int setPlot(int kind);
    int getPlot() const { return plot; }

    int getForeCode() const { return fore.toCode(); }
    int getLevelTypeCode() const { return level.toTypeCode(); }
    int getLevelCode() const { return level.toLevelCode(); }
    int getVarCode() const { return var.toIndCode(); }
    int getVarInd() const { return var.ind; }
    int getVarType() const { return var.type; }
    const char* getVarAbbr() const { return var.abbr; }

    /// Writes "fore:level:var".
    int toString(String& out) const;
    int toForeLabel(String& out) const;
    int toLevelLabel(String& out) const;
    int toVarLabel(String& out) const;
    int toVarAbbr(String& out) const;
    /// Writes the label of a plot, "6 hour acc Surface Precipitation [mm]", at most 89 characters.
    int toInfoLabel(String& out) const;
    /// Writes the date label for data from this date, with the hours of the forecast, and the text
    /// in front: see DateTool::createLabel.
    int toDateLabel(const Date& date, const Timezone& zone, const char* text, String& out) const;

    /// Parts that update takes.
    enum Part { FORE = 1, LEVEL = 2, VAR = 4, FORMAT = 8 };
    /// Takes over what src says: type and drawing kind (but not a station plot), source, abs, and
    /// the parts of the mask. A time that src doesn't have, or has relative to another, applies to
    /// the time here; a level without a value changes nothing; variable and format are taken as
    /// they are.
    int update(const VarSpec& src, int mask = FORE | LEVEL | VAR | FORMAT);
    /// Fill in what this one doesn't have.
    int update(const ForeTime& time, const Level& lev);
    int update(const Level& lev);
    /// Takes a time when there is none here; a period relative to the time here is worked out.
    int update(const ForeTime& time);

    int print() const;
};

} // namespace ORV
