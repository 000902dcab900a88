#pragma once

#include "ORV/Const.h"

namespace ORV {

/// One station of the city file: where it lies, and how important it is. Texts are cut at their
/// field.
class CityData {
public:
    char name[21] = "";      ///< place, with "_" for a blank
    char state[3] = "";      ///< two-letter state, "--" in the file when there is none
    char region[3] = "";     ///< two-letter country or region
    char id[10] = "";        ///< call letters
    int prior = 9;           ///< 0 is the most important; 9 isn't known
    float lat = Const::MISS; ///< degrees north
    float lon = Const::MISS; ///< degrees east
    float el = Const::MISS;  ///< elevation in metres
    char wmo[6] = "";        ///< WMO number, empty when the station has none
    int num = 0;             ///< running number of the station in its file

    int init() { return *this = CityData(), 1; }

    const char* getId() const { return id; }
    const char* getName() const { return name; }
    const char* getState() const { return state; }
    const char* getRegion() const { return region; }
    const char* getWmo() const { return wmo; }
    float getLat() const { return lat; }
    float getLon() const { return lon; }
    float getElev() const { return el; }
    int getPrior() const { return prior; }
    int getNum() const { return num; }

    /// Prints the station on standard output, in one line of a table.
    int printLine() const;

    /// Prints the station on standard output, each field in its own labelled line.
    int print() const;
};

} // namespace ORV
