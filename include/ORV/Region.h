#pragma once

namespace ORV {

class String;

/// Named domains in a region file of the database directory. A line holds
///
///     name word integer domain-text
///
/// apart by white space; word and integer are not used. A line of a single word is a domain text
/// for any name. "#" in the first column opens a comment, and blank lines are passed over. Names
/// and texts are cut at 79 characters, lines at 159.
class Region {
public:
    Region() = delete;

    /// Looks up a region's domain text, ignoring case. A null file means orv.reg, a null name the
    /// first entry. Returns 0 when there is none; a file that can't be opened gives a warning.
    static int get(const char* file, const char* name, String& out);
};

} // namespace ORV
