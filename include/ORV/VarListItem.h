#pragma once

#include "ORV/VarSpec.h"

namespace ORV {

/// An entry of a plot list.
class VarListItem {
public:
    int layer = 0;  ///< groups, vectors and functions around it
    int index = -1; ///< slot of its data, for the user of the list; -1 for none
    VarSpec spec;
};

} // namespace ORV
