#pragma once

#include "ORV/CityData.h"
#include "ORV/File.h"

namespace ORV {

/// The station list: a text file of one station a line, with ten fields between white space:
///
///     name state region id priority lat lon elevation wmo number
///
/// The number may be absent. A priority is the digit that its field begins with, or the one behind
/// a leading "*". An elevation above 9000 metres and the WMO number "99999" mean that it isn't
/// known.
class CityFile : public File {
public:
    bool is_open = false;
    int num = 0; ///< estimate of the number of stations, see getNum

    CityFile() = default;
    explicit CityFile(const char* name) { open(name); }
    CityFile(const char* name, int mode) { open(name, mode); }

    int open(const char* name) { return open(name, 0); }

    /// Opens for reading (mode 0) or writing (mode 1); 0 for any other mode, or when it can't be
    /// opened.
    int open(const char* name, int mode);
    bool isOpen() const { return is_open; }
    int rewind();
    int close();

    /// The stations expected, from the size of the file in bytes over 59; for the size of a table
    /// only.
    int getNum() const { return num; }

    /// Reads the next station: 1, or 0 at the end of the file or when it isn't open. A line is cut
    /// at 119 characters, and an empty one is passed over. In a line with a field missing from the
    /// first nine, what the line doesn't give is as after init, num included; only with the tenth
    /// missing does num stay as it was.
    int read(CityData& city);
};

} // namespace ORV
