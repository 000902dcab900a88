#pragma once

#include "ORV/MapPlot.h"

namespace ORV {

class Domain;
class EarthPoint;
class Filename;
class Grid;
class GridSpec;
class ModelSpec;
class Plot;

/// What the drawings of grids have in common.
class GridDrawing {
public:
    GridDrawing() = delete;

    /// Gives the resources hour and time to the file.
    static void setTimes(Filename& file);

    /// The convention of a model's files: the name of its first piece, or else that of the model.
    static const char* getNameConv(const char* model, const ModelSpec& spec);
    /// Gives the convention of the model, or without one that of the resource in_file.
    static int setFile(Filename& file, const char* model, const ModelSpec& spec);
    /// The same for a text of the user's, when that isn't empty.
    static int setNameConv(Filename& file, const char* text, const char* model,
                           const ModelSpec& spec);

    /// Reads the domain of the grids of a file. 0 when it can't be read.
    static int readDomain(const Filename& file, Domain& domain);
    /// Reads the grid that the key selects, of a model that may be in pieces. 0, with a warning and
    /// an empty grid, when it can't be read.
    static int read(const Filename& file, const ModelSpec& spec, const GridSpec& key, Grid& grid);

    /// Takes the place on the earth that a query names; 0 for another event.
    static int decodeQuery(const char* type, const char* text, EarthPoint& place);
};

/// The maps under and over the data of a drawing.
class MapLayers {
public:
    MapPlot under{"default,under"};
    MapPlot over{"over"};

    /// Moves what is on no layer of its own from under the data to over them.
    void raise() {
        under.setParam("nodefault");
        over.setParam("default");
    }
};

} // namespace ORV
