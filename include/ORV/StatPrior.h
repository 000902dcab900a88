#pragma once

#include "ORV/Const.h"

namespace ORV {

/// The limit of priority for the stations of a plot: a large area shows only the main stations, a
/// small one shows them all.
class StatPrior {
public:
    char param[20] = "";
    float size = Const::MISS; ///< height of the plotted area, in units of 100 km
    int prior = 3;            ///< the limit: stations up to this number are plotted
    bool fixed = false;       ///< the limit doesn't depend on the area

    int init() { return *this = StatPrior(), 1; }

    /// Works the limit out from size, from 0 above a height of 100 to 7 up to 1.6, and then by
    /// param:
    /// "+N" and "-N" change it by the digit N, a digit alone is the limit itself.
    int set();

    /// Sets a fixed limit.
    int set(int limit);

    /// These store, and work the limit out again. With a null text they return 0, with param and
    /// the limit as they were.
    int setSize(float height);
    int setParam(const char* text);
    int set(float height, const char* text);

    int get() const { return prior; }

    /// Whether a station of the given priority is to be plotted.
    bool check(int station_prior) const { return prior >= station_prior; }

    int print() const;
};

} // namespace ORV
