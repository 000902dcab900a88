#pragma once

#include "ORV/VarSpec.h"

namespace ORV {

/// One column of a raw data file.
class RawField {
public:
    char id[20] = "";
    char info[60] = "";   ///< label
    VarSpec vs;           ///< what the column holds
    char format[40] = ""; ///< drawing attributes for its values
    int index = 0;

    int init();
    int print() const;
};

} // namespace ORV
