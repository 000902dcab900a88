// Texts about stations: selections, identifiers of reports, and settings of a table of
// observations.
#include "ORV/CityHash.h"
#include "ORV/CityTool.h"
#include "ORV/SfcRaw.h"
#include "ORV/StatPrior.h"
#include "ORV/Strings.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    CityData city;
    city.lat = 39.8F;
    city.lon = -104.7F;
    city.prior = 2;
    const Strings list(text.c_str(), ',');
    if (CityTool::compareData(list, city) >= list.getNum())
        std::abort();

    char id[6];
    CityTool::toId(text.c_str(), id);
    CityTool::toWmo(text.c_str(), id);
    CityHash table;
    CityHashData found;
    table.get(text.c_str(), found);

    StatPrior prior;
    prior.setParam(text.c_str());
    static SfcRaw sfc;
    sfc.setParam(text.c_str());
    return 0;
}
