#pragma once

#include "ORV/Data.h"

namespace ORV {

/// The table of observations that the analysis takes.
class Raw : public Data {
public:
    Raw() = default;
    explicit Raw(int num_fields) : Data(num_fields) {}
};

} // namespace ORV
