#pragma once

#include "ORV/ColorMap.h"

namespace ORV {

/// Reads color tables. A line names a color and gives its components of 0 to 1, or as "#RRGGBB":
///
///   red 1 0 0
///   3 red #FF0000
///
/// A leading number is passed over; "#" at the start opens a comment. The line "END" closes the
/// fill colors: those before it are the scale for fills.
class ColorFile {
public:
    ColorFile() = delete;

    /// Reads a comma-separated list of files of the database directory, one behind the other.
    /// A file that cannot be opened leaves the map as it is; the result is 0 when none could.
    static int read(const char* list, ColorMap& map);
    /// Reads one file by its path; 0 when it cannot be opened. A map without room is first made
    /// for 256 colors. Lines that hold no color are passed over; components are held to 0 and 1.
    static int readFile(const char* file, ColorMap& map);
};

} // namespace ORV
