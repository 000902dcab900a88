// The parameter texts of wind fields and of drawings of grids, and the work that they ask for.
#include "ORV/GridCont.h"
#include "ORV/GridVect.h"

#include "PlotFuzz.h"

using namespace ORV;

void fuzz(const std::string& text) {
    Orv::resrc.clear();
    GridCont().setParam(text.c_str());
    GridVect vectors(text.c_str());
    vectors.callback("QueryLoc", text.c_str(), nullptr);

    const Domain domain("ll:0:0,0,0,9,7,10,10");
    Plot plot;
    openPlot(plot, domain);
    vectors.draw(plot, makeField(domain, [](int i) { return i % 7 - 3; }),
                 makeField(domain, [](int i) { return i % 5 - 2; }));
}
