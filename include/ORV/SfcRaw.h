#pragma once

#include "ORV/CityHash.h"
#include "ORV/Domain.h"
#include "ORV/Filename.h"
#include "ORV/StatPrior.h"
#include "ORV/String.h"

namespace ORV {

class Date;
class Datum;
class Raw;
class SfcData;

/// Fills a table of observations from the surface reports of an hour: the reports whose stations
/// lie in an area and are important enough for it, with a column for each item of a plot list.
class SfcRaw {
public:
    Filename filename; ///< the file to read, by the convention "sfc_cvt"
    String variable;   ///< plot list
    String var_file;   ///< its variable file; empty for the resource "var_file", else "sfcraw.var"
    String city_file;  ///< station list
    char stat_prior[20] = ""; ///< the text for prior
    Domain domain;            ///< the area
    StatPrior prior;          ///< the limit of priority
    CityHash hash;            ///< the stations, see createHash
    int def_prior = 5;        ///< priority of a station that isn't in the list
    int syn_id = 0;           ///< 1: reports go by the identifier of the list, not by their own

    SfcRaw() { init(); }
    explicit SfcRaw(const char* params);

    /// Takes the settings from the resources "variable", "city_file", "stat_prior", those of
    /// setFile, and "parameter".
    int init();

    /// Applies a list of settings joined by ",": "va=" the plot list, "loc_pr=" def_prior, "pr="
    /// stat_prior, "cf=" the station list, "syn_id". Other entries are for others.
    int setParam(const char* list);

    /// The choice of the file, as Filename has it. setFile takes the resources "hour" and
    /// "in_file".
    int setFile();
    int setInput(const char*) { return 1; }
    int setPath(const char* text);
    int setNameConv(const char* text);
    int setHour(const char* text);
    int setFilename();
    int setFilename(const char* text);
    int setFilename(const Date& date);
    int setFilename(const Date& date, const char* text);
    int getDate(Date& date) const;

    int setVariable(const char* text);
    int setVarFile(const char* text);

    /// Sets the area, and the limit of priority from its height.
    int setDomain(const Domain& area);
    const Domain& getDomain() const { return domain; }
    int getDomain(Domain& out) const;

    /// Sets only the limit, from the height of the area given.
    int setPrior(const Domain& area);
    int setDefPrior(int limit);
    /// Stores the text; the limit follows with the next setDomain or setPrior.
    int setStatPrior(const char* text);

    /// Reads the stations of the area. 0 when there is no station list; the table is then empty.
    int createHash();

    /// Decides whether a report is to be plotted, and gives the datum its identifier and place: its
    /// own when it has one, else that of its station. The report takes the station's elevation, or
    /// 0 metres when the station isn't known; a report without a place is then refused.
    int getInfo(SfcData& report, Datum& datum);

    /// Reads the file into the table, a row for each report that getInfo lets through. Cells are in
    /// the units of their items. "uwndg" and "vwndg" are the wind along the grid, in m/s. Returns 0
    /// with an empty table when there are no items, and after a message when the file can't be
    /// opened.
    int compute(Raw& raw);

    int print() const;
};

} // namespace ORV
