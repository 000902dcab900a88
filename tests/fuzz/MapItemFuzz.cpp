// A list of map items, and the parameters of a map, drawn on a plot.
#include "ORV/Domain.h"
#include "ORV/MapPlot.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"

#include "../RecordingDevice.h"

#include <cstdint>
#include <memory>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    // No file is there to be found: what is read has targets of its own.
    Orv::setMessageLevel(0);
    Orv::setDatabasePath("/nonexistent");
    static Plot plot;
    static RecordingDevice* device = [] {
        auto owned = std::make_unique<RecordingDevice>();
        RecordingDevice* made = owned.get();
        plot.graph.setDevice(std::move(owned), 1);
        plot.open("");
        plot.setPanel(Rect(0, 0, 1, 1), Domain("ll:0:0,0,0,61,31,6,6"));
        return made;
    }();
    std::string text(reinterpret_cast<const char*>(bytes), size);
    // Names of files and commands don't leave the fuzz target.
    for (char& c : text)
        if (c == '/' || c == '|' || c == '~')
            c = '.';
    if (text.find("http") != std::string::npos || text.find("ftp") != std::string::npos)
        return 0;
    MapPlot map(text.c_str());
    map.lat_inc = map.lon_inc = Const::MISS;
    map.setMapFiles(text.c_str());
    map.draw(plot);
    device->calls.clear();
    return 0;
}
