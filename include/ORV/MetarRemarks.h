#pragma once

#include "ORV/SfcData.h"

namespace ORV {

/// The coded groups in the remarks of a METAR (Federal Meteorological Handbook No. 1, chapter 12).
///
/// They are read only behind RMK and the mark of an automatic station, AO1 or AO2 (also with a zero
/// for the O, and with an A behind it): elsewhere groups that look alike mean something else. The
/// sea-level pressure is the exception, as its group bears a name.
class MetarRemarks {
public:
    float t = Const::MISS;        ///< temperature in tenths, degrees Celsius
    float td = Const::MISS;       ///< dewpoint in tenths, degrees Celsius
    int slp = Const::MISS;        ///< last three digits of the sea-level pressure, tenths of a mb
    int ptend_type = Const::MISS; ///< characteristic of the pressure tendency
    float ptend = Const::MISS;    ///< pressure tendency, mb in 3 hours, negative for a fall
    float prec1 = Const::MISS;    ///< precipitation of the hour, mm; a trace is 0
    float prec = Const::MISS;     ///< of 3 or 6 hours, by the hour of the report, mm
    float prec24 = Const::MISS;   ///< of 24 hours, mm
    float max6_t = Const::MISS;   ///< 6-hour maximum temperature, degrees Celsius
    float min6_t = Const::MISS;   ///< 6-hour minimum temperature
    float max_t = Const::MISS;    ///< 24-hour maximum temperature
    float min_t = Const::MISS;    ///< 24-hour minimum temperature
    float snow_cov = Const::MISS; ///< snow depth, cm
    char cld_type[3] = {' ', ' ', ' '}; ///< cloud types low, medium, high; blank when not seen

    /// Reads the remarks of a report. Returns the number of groups that were understood.
    int decode(const char* raw_text);

    /// Puts what is known into the report, whose time and altimeter setting must be there: the
    /// precipitation goes to 6 hours at 00, 06, 12 and 18 UTC, to 3 hours at 03, 09, 15 and 21, and
    /// nowhere else; the leading digits of the sea-level pressure are those nearest to the
    /// altimeter setting.
    int apply(SfcData& data) const;
};

} // namespace ORV
