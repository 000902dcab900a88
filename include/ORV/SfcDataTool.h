#pragma once

namespace ORV {

class Datum;
class SfcData;
class VarSpec;

/// Turns a surface report into values that can be plotted. Each quantity has a keyword, which is
/// the variable abbreviation of a specification; keywords ignore case.
class SfcDataTool {
public:
    SfcDataTool() = delete;

    /// The units in which a keyword is computed; empty for one that is unknown or has none.
    static const char* getUnits(const char* name);

    /// Fills the datum's id, values and text with one quantity of the report, and leaves its place,
    /// kind and format empty. Winds give the direction in value 0 and the speed in value 1. The
    /// specification's level and time choose among the forms of "pres", "prec", "maxt" and "mint".
    /// When it has units other than those of the keyword, value 0, or the speed of a wind, is
    /// converted to them, and becomes missing when that isn't possible; the text follows only for
    /// "vis". Returns 0 for an empty or unknown keyword and for "clds", which fills the datum all
    /// the same.
    static int compute(const SfcData& report, const VarSpec& spec, Datum& datum);
};

} // namespace ORV
