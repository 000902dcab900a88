#pragma once

#include "ORV/ContPlot.h"
#include "ORV/Drawing.h"
#include "ORV/Filename.h"
#include "ORV/Grid.h"
#include "ORV/Listener.h"
#include "ORV/ModelSpec.h"
#include "ORV/String.h"

namespace ORV {

/// The drawing of one scalar grid: a map under it, contours or fills, labels, a map over it. A
/// figure draws the grid of a file with it, the main drawing a grid that it has computed.
///
/// Files of grids can't be read yet: one asked for is reported as one that can't be opened, and
/// counts as an empty grid.
///
/// A drawing tells the plot to call it back, so it must live as long as the plot's window.
class GridCont : public Drawing, public Listener {
public:
    char model[20] = "";
    int label = 1;     ///< draw labels
    int map = 0;       ///< draw a map
    int map_mode = -1; ///< the map goes 0 under the data, 1 over them, -1 over fills only
    ModelSpec spec;    ///< pieces of the model
    Filename file;
    ContPlot cont;
    Grid grid;       ///< what was drawn last
    String grid_num; ///< the grid wanted, as GridSpec reads it
    int sync = 0;    ///< this drawing sets the time base of the figure

    GridCont() { init(); }
    explicit GridCont(const char* params) : GridCont() { setParam(params); }

    /// The defaults, those of ContPlot, and then the resources grid_num, parameter and model, and
    /// those of setFile.
    int init() override;
    /// That of the file, or the region "us", with 0 when the file can't be read. The latest file is
    /// selected when none is.
    int getDomain(Domain& domain) override;
    /// The convention of the model, or else the one that the resource in_file names, or "grid".
    int setFile() override;
    int setInput(const char*) override { return 1; }
    /// An empty text stands for the convention of the model.
    int setNameConv(const char* text) override;
    int setFilename() override;
    int setFilename(const char* text) override { return file.setFile(text); }
    int setFilename(Date& date) override { return file.setFile(date); }
    int setFilename(Date& date, const char* fore) override { return file.setFile(date, fore); }
    int setForeTime(const char*) override { return 1; }
    /// Takes from a comma-separated text the words "nolabel", "map_line" (map under the data) and
    /// "map_fill" (over them), in any case, and "mo=model", "gs=grid" or "va=grid". The whole text
    /// then goes to ContPlot::setParam.
    int setParam(const char* list) override;
    int getDate(Date& date) override { return file.getDate(date); }
    int getLoopType() override { return 1; }
    int getInitDate(Date& date) override;
    int getDateOffset() override { return file.getOffset(); }
    int getNumFrames() override { return file.getNumFiles(); }
    int getSync() override { return sync; }
    /// Reads the grid of the selected file and draws it.
    int draw(Plot& plot) override;
    int print() override;

    /// Draws a copy of the grid, which stays for queries: the places on this plot that filling
    /// gives a grid don't come into the caller's. Without labels no label line is ended, so that
    /// the labels of the next drawing go to this one.
    int draw(Plot& plot, const Grid& values);

    int setModel(const char* text);
    int setPath(const char* text) { return file.setPath(text); }
    int setColorTable(const char* text) { return cont.setColorTable(text); }
    int setColorFill(const char* text) { return cont.setColorFill(text); }

    /// Answers "QueryLoc", with latitude and longitude as "%f,%f", by the grid coordinates and the
    /// value there on standard output.
    void callback(const char* type, const char* data, const void* client) override;
};

} // namespace ORV
