#pragma once

#include "ORV/CityHash.h"
#include "ORV/MetarReport.h"
#include "ORV/NameConv.h"
#include "ORV/Orv.h"
#include "ORV/String.h"

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ORV {

class Strings;

/// Turns METAR caches into hour files, by the name convention "sfc_cvt".
///
/// All caches are read before anything is written, so that a bad one leaves every file as it was.
/// Each hour file is written beside its place and renamed. One that is there is merged with: its
/// reports stay, in their order, and take what newer ones say by the rules of SfcData::update. A
/// report of the same minute completes the one that is there; otherwise only a routine report
/// replaces it, when it is as near to the hour or nearer.
///
/// A station of the city file is written without its position and elevation, any other with both.
class ObsConv {
public:
    /// Why a report wasn't written, behind the faults of a row.
    enum Reject {
        NO_PLACE = MetarReport::NO_VALUE + 1, ///< no position, and not in the city file
        OUTRANKED,                            ///< another report stands for the station
        NUM_REJECT,
    };

    String dir;       ///< directory below which the hour files lie
    String city_file; ///< city file as the user names it; "none" for none
    int type;         ///< format of the hour files, a type of SfcFile

    /// Takes the directory, the format and the city file from the resources "con_path", "type" and
    /// "city_file"; by default the current directory, "orv" and "sao.cty".
    ObsConv();

    /// Converts the caches, prints a line for each hour file and one for what was rejected to
    /// standard output, and returns the exit status; errors are told on standard error.
    Orv::Error run(const Strings& files);

private:
    /// The reports of one hour, each standing for its station.
    class Hour {
    public:
        std::vector<MetarReport> reports; // in the order of their stations' first appearance
        std::unordered_map<std::string_view, int> places;
        std::string path;
        std::string new_path; // where it is written first
        int num_report = 0;   // that came into the file
        int num_station = 0;  // of the file
        int num_unknown = 0;  // of them, not in the city file
    };

    Orv::Error setup();
    Orv::Error readCache(const char* name);
    void addReport(const MetarReport& report);
    bool isKnown(const char* id);
    Orv::Error nameHours();
    Orv::Error mergeFile(const Date& date, Hour& hour, std::vector<SfcData>& reports);
    Orv::Error writeHour(long seconds, Hour& hour);
    Orv::Error writeHours();
    void print() const;

    NameConv convention;
    CityHash cities;
    std::unordered_map<std::string, bool> known; // of the stations asked for
    std::map<long, Hour> hours;                  // by their seconds since 1970
    long rejects[NUM_REJECT] = {};
    bool has_cities = false;
};

} // namespace ORV
