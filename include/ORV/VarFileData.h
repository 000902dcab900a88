#pragma once

#include "ORV/String.h"

namespace ORV {

/// An entry of a variable file: a name for a plot list.
class VarFileData {
public:
    char name[20] = "";
    char label[40] = ""; ///< at most 19 characters
    int index = 0;       ///< always 0
    String value;        ///< the plot list, without white space

    int init();
};

} // namespace ORV
