#pragma once

#include "ORV/Const.h"
#include "ORV/DatumPlot.h"
#include "ORV/Domain.h"
#include "ORV/Drawing.h"
#include "ORV/Filename.h"
#include "ORV/GridCont.h"
#include "ORV/GridVect.h"
#include "ORV/Listener.h"
#include "ORV/SfcGrid.h"
#include "ORV/String.h"
#include "ORV/Timezone.h"

namespace ORV {

/// The main drawing: one hourly file of surface reports, drawn as a plot list asks. Settings come
/// from resources, in init, and from parameter texts. A frame keeps nothing but its labels on the
/// plot.
class ObsChart : public Drawing, public Listener {
public:
    Filename file;
    String param;
    String variable; ///< the plot list
    char plot_type[10] = "";
    Timezone tz;
    Domain grid_domain; ///< of the analysis; the plot's own when it isn't set
    SfcGrid sfc;        ///< the analysis, and the station test with its station table
    DatumPlot datum;
    GridCont cont;
    GridVect vect;
    bool map = false;  ///< draw the automatic base map
    int map_fill = -1; ///< where that map goes: -1 automatic, 0 under the data, 1 over it
    int sync = 0;      ///< this drawing sets the time base of the figure

    ObsChart() { init(); }
    explicit ObsChart(const char* text) : ObsChart() { setParam(text); }

    /// Defaults, the name convention "sfc_cvt", and then the resources hour, input, in_file,
    /// num_hour, grid_domain, timezone, plot_type, variable and parameter, each when set.
    int init() override;
    /// The resource plot_domain, else the region "us".
    int getDomain(Domain& domain) override;
    int setFile() override;
    int setInput(const char* text) override;
    int setNameConv(const char* text) override;
    int setFilename() override;
    int setFilename(const char* text) override;
    int setFilename(Date& date) override;
    int setFilename(Date& date, const char* text) override;
    int setForeTime(const char* text) override;

    /// Takes from a comma-separated text, by its first two letters: ct color table, co data
    /// attributes, va plot list, if and nc name convention, ho hour, tz zone, pl plot type; and the
    /// words "map", "sync", "map_line" (map under fills), "map_fill" (map over fills). The whole
    /// text then goes to the station test and to the station plotter, which pick their own.
    int setParam(const char* text) override;
    int getDate(Date& date) override;
    int getLoopType() override { return 1; }
    /// The date of the selected file; the latest file is selected first when none is.
    int getInitDate(Date& date) override;
    int getDateOffset() override;
    int getNumFrames() override;
    int getSync() override { return sync; }

    /// Draws the file's reports as the plot list asks, on the base map when that is on; a list that
    /// begins with a panel has its maps in panels only. Units given to a vector item hold for both
    /// of its components: a barb counts knots only if the list says "knt", and else the units of
    /// the components, m/s by default. Returns 0, with a message, when the file can't be opened;
    /// the plot keeps what it has then.
    int draw(Plot& plot) override;
    int print() override;
    void callback(const char* type, const char* data, const void* client) override;

    int setMap(bool on);
    int setHour(const char* text);
    int setPath(const char* text);
    int setColorTable(const char* text);
    int setColor(const char* text);
    int setVariable(const char* text);
    int setPlotType(const char* text);
    int setTimezone(const char* text);
    int setGridDomain(const char* text);
};

} // namespace ORV
