#pragma once

#include "ORV/SfcData.h"

namespace ORV {

class MetarCache;

/// One report of a METAR cache, in the units of a surface report.
///
/// The columns of the cache give the values. The text of the report goes before them for the sky
/// and the present weather, of which they hold four layers and no order, and for a temperature that
/// is not theirs; it adds what its remarks tell, tenths of a degree, tendency, extremes,
/// precipitation and snow, and a visibility in metres where there is no other. A variable wind has
/// its speed and no direction. Values that can't be are missing.
class MetarReport {
public:
    /// Why a row can't be used.
    enum Fault {
        GOOD,
        DAMAGED,    ///< another number of fields than the table has columns, or no text
        NO_STATION, ///< no station identifier
        NO_TIME,    ///< no time, or none that there is
        NO_VALUE,   ///< nothing observed
    };

    SfcData data;           ///< with the station's own position and elevation, as far as given
    bool routine = false;   ///< made for the hour, not because of a change
    bool corrected = false; ///< replaces an earlier report of the same time

    /// Takes the current row of the cache.
    Fault decode(const MetarCache& row);

    /// The hour that the report belongs to, as seconds since 1970.
    long getHourSeconds() const;
    /// Whether this report is to stand for its station in the hour, when the other one belongs to
    /// the same: a routine report before any other, of these the one nearest to the hour, of others
    /// the latest; of two that are alike the correction, else this one.
    bool isBetter(const MetarReport& other) const;
};

} // namespace ORV
