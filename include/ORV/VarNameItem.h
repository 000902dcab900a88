#pragma once

#include "ORV/Const.h"

namespace ORV {

/// An entry of the table of quantities.
class VarNameItem {
public:
    int num = Const::MISS; ///< stamp of the last use; missing when there is no entry
    /// The index number, and alternative ones, as other sources call the quantity.
    int ind[5] = {Const::MISS, Const::MISS, Const::MISS, Const::MISS, Const::MISS};
    char abbr[30] = "";
    char name[50] = "";
};

} // namespace ORV
