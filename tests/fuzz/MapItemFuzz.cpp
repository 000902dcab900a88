// A list of map items, and the parameters of a map, drawn on a plot.
#include "ORV/MapPlot.h"

#include "PlotFuzz.h"

using namespace ORV;

void fuzz(const std::string& input) {
    // No file is there to be found: what is read has targets of its own.
    Orv::setDatabasePath("/nonexistent");
    std::string text = input;
    for (char& c : text) // names of files and commands don't leave the fuzz target
        if (c == '/' || c == '|' || c == '~')
            c = '.';
    if (text.find("http") != std::string::npos || text.find("ftp") != std::string::npos)
        return;
    Plot plot;
    openPlot(plot, Domain("ll:0:0,0,0,61,31,6,6"));
    MapPlot map(text.c_str());
    map.lat_inc = map.lon_inc = Const::MISS;
    map.setMapFiles(text.c_str());
    map.draw(plot);
}
