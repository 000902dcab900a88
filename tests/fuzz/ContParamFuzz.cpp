// The parameter texts of contours, and the levels, lines, fills and labels that they ask of a field
// with missing, huge and infinite values.
#include "ORV/ContPlot.h"
#include "ORV/Grid.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"

#include "RecordingDevice.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    Orv::setMessageLevel(0);
    Orv::resrc.clear();
    Plot plot;
    plot.graph.setDevice(std::make_unique<RecordingDevice>(), 1);
    plot.open("");
    const Domain domain("ll:0:0,0,0,9,7,10,10");
    plot.setPanel(Rect(0, 0, 1, 1), domain);

    constexpr float huge = std::numeric_limits<float>::max();
    constexpr float infinite = std::numeric_limits<float>::infinity();
    constexpr float odd[] = {Const::MISS, huge, -huge, infinite, -infinite, 1e-30f, 0};
    Grid grid;
    grid.setDomain(domain);
    for (const bool wild : {false, true}) {
        grid.allocData();
        for (int i = 0; i < grid.nx * grid.ny; i++)
            grid.data[i] = wild && i % 5 == 0 ? odd[i / 5 % 7] : static_cast<float>(i % 11 - 5);
        for (const char* type : {"ln", "cf", "lcf", "gvalue"}) {
            ContPlot cont(text.c_str());
            cont.type = ContPlot::decodeType(type);
            cont.draw(plot, grid);
        }
    }
    return 0;
}
