#pragma once

#include "ORV/Const.h"
#include "ORV/File.h"
#include "ORV/String.h"

namespace ORV {

/// Names the models of grid data, by the file "mod_name.lup" of the database directory. Its lines
/// are "source:model name", or "model name" for source 7; "#" at the start opens a comment, a blank
/// line ends the file. The last answer is kept.
class ModelName {
public:
    int src = Const::MISS; ///< originating centre, WMO common table C-1
    int mod = Const::MISS; ///< generating process of that centre
    char name[10] = "";    ///< the name of the two, empty when they have none
    File file;

    /// Returns the name, at most 9 characters and empty when there is none; it lives until the next
    /// call. A file that can't be opened gives a warning.
    const char* get(int source, int model);
    /// Returns whether there is one.
    bool get(int source, int model, String& out);
};

} // namespace ORV
