#pragma once

#include "ORV/File.h"
#include "ORV/VarFileData.h"

namespace ORV {

/// A file of named plot lists in the database directory, such as "obschart.var".
///
/// A line holds a name, a label with "_" for blanks, a word that isn't used, and the plot list. A
/// "\" at the end continues it on the next line. Lines have at most 149 characters. A "#" makes no
/// comment, only an entry that nobody asks for.
class VarFile : public File {
public:
    /// Opens a file of the database directory for reading; returns 1 when open.
    int open(const char* name);
    /// Reads the next entry; an entry of fewer than four words has an empty list. Returns 0 at the
    /// end.
    int read(VarFileData& entry);
};

} // namespace ORV
