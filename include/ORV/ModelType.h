#pragma once

#include "ORV/Const.h"

namespace ORV {

/// A piece of a model's area: its place among the pieces, from 0, and the name it goes by.
class ModelType {
public:
    int x = Const::MISS;
    int y = Const::MISS;
    int type = Const::MISS; ///< kind of grid
    char name[20] = "";
};

} // namespace ORV
