// The parameter texts of wind fields and of drawings of grids, and the work that they ask for.
#include "ORV/Grid.h"
#include "ORV/GridCont.h"
#include "ORV/GridVect.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"

#include "RecordingDevice.h"

#include <cstdint>
#include <memory>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    Orv::setMessageLevel(0);
    Orv::resrc.clear();
    GridCont().setParam(text.c_str());
    GridVect vectors(text.c_str());
    vectors.callback("QueryLoc", text.c_str(), nullptr);

    Plot plot;
    plot.graph.setDevice(std::make_unique<RecordingDevice>(), 1);
    plot.open("");
    const Domain domain("ll:0:0,0,0,9,7,10,10");
    plot.setPanel(Rect(0, 0, 1, 1), domain);
    Grid u, v;
    for (Grid* grid : {&u, &v}) {
        grid->setDomain(domain);
        grid->allocData();
    }
    for (int i = 0; i < u.nx * u.ny; i++) {
        u.data[i] = static_cast<float>(i % 7 - 3);
        v.data[i] = static_cast<float>(i % 5 - 2);
    }
    vectors.draw(plot, u, v);
    return 0;
}
