// The parameter texts of contours, and the levels, lines, fills and labels that they ask of a field
// with missing, huge and infinite values.
#include "ORV/ContPlot.h"

#include "PlotFuzz.h"

#include <limits>

using namespace ORV;

void fuzz(const std::string& text) {
    Orv::resrc.clear();
    const Domain domain("ll:0:0,0,0,9,7,10,10");
    Plot plot;
    openPlot(plot, domain);
    constexpr float huge = std::numeric_limits<float>::max();
    constexpr float infinite = std::numeric_limits<float>::infinity();
    constexpr float odd[] = {Const::MISS, huge, -huge, infinite, -infinite, 1e-30f, 0};
    for (const bool wild : {false, true}) {
        const Grid grid = makeField(domain, [&](int i) {
            return wild && i % 5 == 0 ? odd[i / 5 % 7] : static_cast<float>(i % 11 - 5);
        });
        for (const char* type : {"ln", "cf", "lcf", "gvalue"}) {
            ContPlot cont(text.c_str());
            cont.type = ContPlot::decodeType(type);
            Grid drawn = grid;
            cont.draw(plot, drawn);
        }
    }
}
