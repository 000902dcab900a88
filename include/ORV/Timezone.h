#pragma once

#include "ORV/Const.h"

namespace ORV {

/// The zone that dates are shown in.
class Timezone {
public:
    char name[10] = "";
    int pm = 0;               ///< 0: 24-hour time; 1: 12-hour time; -1: 12-hour time and [UTC time]
    int offset = Const::MISS; ///< seconds from UTC; missing means no zone

    Timezone() = default;
    explicit Timezone(const char* text) { set(text); }

    /// Reads "EST:-5", the name of up to 4 characters and the hours from UTC; a leading "+" asks
    /// for 12-hour time, a leading "-" for 12-hour time with the UTC time in brackets. A null or
    /// empty text, or one without a readable offset, clears the zone and returns 0.
    int set(const char* text);

    bool isSet() const { return offset != Const::MISS; }
    int getPM() const { return pm; }
    int getOffset() const { return offset; }
    const char* getName() const { return name; }
};

} // namespace ORV
