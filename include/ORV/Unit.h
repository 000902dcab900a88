#pragma once

#include "ORV/String.h"
#include "ORV/UnitData.h"

#include <memory>

namespace ORV {

/// Converts values between units by name, with the file "units.lup" of the database directory.
///
/// A name may have a number in front, "100 ft" or "10^-5 /s", which counts as a factor. "_" stands
/// for a blank; case doesn't matter. Names hold at most 29 characters. A conversion exists only
/// when the file has a line of that very direction: "from to expression", where the expression is
/// "*multiplier+addend" or "*multiplier-subtrahend", either part optional, the multiplier first.
/// The first such line counts; "#" opens a comment.
///
/// An object reads the file once, at the first pair of names that needs it, and keeps the answers
/// for the last 10 pairs, so one object should serve a whole run. A file that is missing has no
/// conversions.
class Unit {
public:
    UnitData data[10]; ///< conversions looked up, found or not
    int num = 0;       ///< slots in use

    int init();

    /// Returns the value in the other unit. Missing stays missing; a conversion that the file
    /// lacks, or a result beyond the range of float, gives missing. Two equal names, also two empty
    /// ones, leave the value.
    float convert(float value, const char* from, const char* to);
    /// The same for many values, in place.
    int convert(float* values, int count, const char* from, const char* to);
    /// Non-zero when convert would work; 0 for two empty names.
    int valid(const char* from, const char* to);
    /// Looks up a pair of names without numbers in front; returns 1 when the file has it.
    int readFile(const char* from, const char* to, UnitData& out);

    /// Whether the texts are exactly the same.
    static int equal(const char* a, const char* b);
    /// Writes the text of a unit multiplied by a factor, with a suffix: "10^-5 /s" when the whole
    /// factor is a power of ten to within 1e-4 of the exponent, else "5e-01 m".
    static int scale(const char* units, float factor, const char* suffix, String& out);
    /// Splits "Temperature [C]" or "Temperature (C)". A label without units is all name, and gives
    /// 0.
    static int parse(const char* label, String& name, String& units);
    /// Replaces the units of a label, or takes them away when there are none.
    static int change(String& label, const char* units);
    /// Shortens a unit made by arithmetic: takes out "kg/kg" and "g/g", and ends in "/s^2" for
    /// "/s/s".
    static int simplify(char* text);
    static int simplify(String& text);

private:
    class Table;
    class Names;

    int slot();
    const UnitData* find(const Names& names);

    std::shared_ptr<const Table> table;
};

} // namespace ORV
