// Texts about stations: selections, identifiers of reports, and settings of a table of
// observations.
#include "ORV/CityHash.h"
#include "ORV/CityTool.h"
#include "ORV/SfcRaw.h"
#include "ORV/StatPrior.h"
#include "ORV/Strings.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& text) {
    CityData city;
    city.lat = 39.8F;
    city.lon = -104.7F;
    city.prior = 2;
    const Strings list(text.c_str(), ',');
    expect(CityTool::compareData(list, city) < list.getNum());

    char id[6];
    CityTool::toId(text.c_str(), id);
    CityTool::toWmo(text.c_str(), id);
    CityHash table;
    CityHashData found;
    table.get(text.c_str(), found);
    StatPrior().setParam(text.c_str());
    static SfcRaw sfc;
    sfc.setParam(text.c_str());
}
