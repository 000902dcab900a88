// A domain, by its own reader and by that of regions and stations.
#include "ORV/Domain.h"
#include "ORV/DomainTool.h"
#include "ORV/String.h"

#include "Fuzz.h"

#include <cmath>

using namespace ORV;

namespace {
// Whatever a text has made of a domain, what it computes is a number or missing.
void use(Domain& domain) {
    for (const float lat : {-90.f, -89.5f, -30.f, 0.f, 45.f, 90.f})
        for (const float lon : {-180.f, -95.f, 0.f, 30.f, 180.f, 3000.f}) {
            Point plot;
            GridPoint grid;
            EarthPoint back;
            domain.tran(EarthPoint(lat, lon), plot);
            domain.tran(plot, grid);
            domain.tran(plot, back);
            expect(std::isfinite(plot.x) && std::isfinite(plot.y));
            expect(std::isfinite(back.lat) && std::isfinite(back.lon));
            domain.where(plot);
            domain.adjustDir(30, plot);
            Point next = plot;
            next.offset(1, 0);
            domain.wrapLine(plot, next);
        }
    String text;
    domain.toString(text);
    expect(text.length() <= 200);
    domain.scaleSize(640, 480);
    domain.scaleGrid(1.5f);
    domain.zoom(Point(0, 0), 2);
}
} // namespace

void fuzz(const std::string& text) {
    Orv::putResrc("city_file", "none");
    // A name with a path could reach any file, or the net.
    if (text.find_first_of("/|~") != std::string::npos || text.find("std") != std::string::npos ||
        text.find('-') == 0 || text.find("fi:-") != std::string::npos)
        return;
    Domain domain;
    if (DomainTool::decode(domain, text.c_str()))
        use(domain);
    domain.set(text.c_str());
    use(domain);
}
