// The parameter texts of an analysis: checked settings stay in their ranges, and the analysis of a
// small table runs with whatever the unchecked ones hold.
#include "ORV/Data.h"
#include "ORV/Grids.h"
#include "ORV/ObjectAnal.h"
#include "ORV/Orv.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace ORV;

namespace {
void checkRanges(const ObjectAnal& anal) {
    if (!(anal.filter > 0) || !(anal.rad_inf > 0) || anal.num_pass < 1 || anal.num_pass > 4 ||
        !(anal.converg >= 0.01F && anal.converg < 1) || anal.min_sta < 1)
        std::abort();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Orv::setMessageLevel(0);
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    ObjectAnal checked;
    checked.set(text.c_str());
    checked.setParam(("oa=" + text.substr(0, text.find(','))).c_str());
    checkRanges(checked);

    ObjectAnal anal(text.c_str());
    anal.num_pass = std::min(anal.num_pass, 3);
    Data table(2);
    table.addValue(EarthPoint(1, 2), 5);
    table.addValue(EarthPoint(-3, -2), -7);
    table.setValue(1, 1, 3e38F);
    Grids grids;
    grids.setDomain(Domain("ll,0,0,9,7,1,1"));
    anal.compute(table, grids);
    for (int k = 0; k < 63; k++)
        if (std::isnan(grids.grd[0].data[k]) || std::isnan(grids.grd[1].data[k]))
            std::abort();
    return 0;
}
