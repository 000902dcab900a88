#pragma once

#include "ORV/Drawing.h"
#include "ORV/Filename.h"
#include "ORV/Grid.h"
#include "ORV/Listener.h"
#include "ORV/ModelSpec.h"
#include "ORV/String.h"
#include "ORV/VectPlot.h"

namespace ORV {

/// The drawing of a wind field from a grid of u and one of v, as GridCont is of a scalar one. Its
/// files come in pairs, the first with u, the second with v.
///
/// Files of grids can't be read yet, and the drawing must live as long as the plot's window, as
/// with GridCont.
class GridVect : public Drawing, public Listener {
public:
    char model[20] = "";
    int map = 0;   ///< draw a map
    int vbar = 0;  ///< draw the reference arrow
    int label = 1; ///< draw labels
    int sync = 0;  ///< this drawing sets the time base of the figure
    ModelSpec spec;
    Filename file;
    String grid_num;
    VectPlot vect;
    Grid ugrid; ///< what was drawn last
    Grid vgrid;

    GridVect() { init(); }
    explicit GridVect(const char* params) : GridVect() { setParam(params); }

    /// The defaults, those of VectPlot, and the resource parameter.
    int init() override;
    /// That of the file. 0, with the domain as it was, when the file can't be read.
    int getDomain(Domain& domain) override;
    /// The convention of the model, which may come from the resource model; or else the one that
    /// the resource in_file names, or "grid".
    int setFile() override;
    int setInput(const char*) override { return 1; }
    /// An empty text stands for the convention of the model.
    int setNameConv(const char* text) override;
    int setFilename() override;
    int setFilename(const char* text) override { return file.setFile(text); }
    int setFilename(Date& date) override { return file.setFile(date); }
    int setFilename(Date& date, const char* fore) override { return file.setFile(date, fore); }
    int setForeTime(const char*) override { return 1; }
    /// Takes the words "vbar" and "nolabel", in any case. The whole text then goes to
    /// VectPlot::setParam.
    int setParam(const char* list) override;
    int getDate(Date& date) override { return file.getDate(date); }
    int getLoopType() override { return 1; }
    int getInitDate(Date& date) override;
    int getDateOffset() override { return file.getOffset(); }
    /// One for each pair of files.
    int getNumFrames() override { return file.getNumFiles() / 2; }
    int getSync() override { return sync; }
    /// Reads the two grids and draws them.
    int draw(Plot& plot) override;
    int print() override;

    /// Draws the grids, copies of which stay for queries: a map under them, the vectors, labels,
    /// the reference arrow, which takes the place of the label of the greatest speed, a map over
    /// them. Without labels no label line is ended. The result is
    /// that of VectPlot::draw.
    int draw(Plot& plot, const Grid& u, const Grid& v);

    int setModel(const char* text);
    int setPath(const char* text) { return file.setPath(text); }
    int setColorTable(const char* text) { return vect.setColorTable(text); }
    int setColorFill(const char* text) { return vect.setColorFill(text); }

    /// Answers "QueryLoc", with latitude and longitude as "%f,%f", by the grid coordinates and the
    /// components there on standard output.
    void callback(const char* type, const char* data, const void* client) override;
};

} // namespace ORV
