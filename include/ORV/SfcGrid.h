#pragma once

#include "ORV/ObjectAnal.h"
#include "ORV/SfcRaw.h"

namespace ORV {

class Date;
class Domain;
class Grids;

/// Analyses the surface reports of an hour onto grids, one for each item of a plot list.
class SfcGrid {
public:
    ObjectAnal oa;
    SfcRaw sfc;
    int grid_scale = 1; ///< refinement of the domain's grid: 2 halves the spacing

    SfcGrid() { init(); }
    explicit SfcGrid(const char* params) : SfcGrid() { setParam(params); }

    /// Takes the settings from the resources: those of the analysis and of the table, those of
    /// setFile, "parameter" and "plot_domain".
    int init();

    /// Applies a list of settings joined by ",": "grid=2" is grid_scale. The list then goes to the
    /// analysis and to the table.
    int setParam(const char* list);
    int setGridScale(int factor) { return grid_scale = factor, 1; }

    /// The choice of the file. setFile takes the resources "hour" and "in_file".
    int setFile();
    int setInput(const char*) { return 1; }
    int setPath(const char* text) { return sfc.setPath(text); }
    int setNameConv(const char* text) { return sfc.setNameConv(text); }
    int setHour(const char* text) { return sfc.setHour(text); }
    int setFilename() { return sfc.setFilename(); }
    int setFilename(const char* text) { return sfc.setFilename(text); }
    int setFilename(const Date& date) { return sfc.setFilename(date); }
    int setFilename(const Date& date, const char* text) { return sfc.setFilename(date, text); }
    int getDate(Date& date) const { return sfc.getDate(date); }
    /// The plot list.
    int setVariable(const char* text) { return sfc.setVariable(text); }

    /// The area of the stations and of the analysis. 0 for a text that is empty or no domain.
    int setDomain(const char* text);
    int setDomain(const Domain& domain) { return sfc.setDomain(domain); }

    /// Reads the file and analyses item f of the plot list into grid f, on the refined domain. A
    /// grid_scale below 1 counts as 1, and so does one that would make a grid too large. Without a
    /// domain the grids keep theirs.
    int compute(Grids& grids);
};

} // namespace ORV
