// The parameter texts of an analysis: checked settings stay in their ranges, and the analysis of a
// small table runs with whatever the unchecked ones hold.
#include "ORV/Data.h"
#include "ORV/Grids.h"
#include "ORV/ObjectAnal.h"

#include "Fuzz.h"

#include <algorithm>
#include <cmath>

using namespace ORV;

void fuzz(const std::string& text) {
    ObjectAnal checked;
    checked.set(text.c_str());
    checked.setParam(("oa=" + text.substr(0, text.find(','))).c_str());
    expect(checked.filter > 0 && checked.rad_inf > 0 && checked.min_sta >= 1);
    expect(checked.num_pass >= 1 && checked.num_pass <= 4);
    expect(checked.converg >= 0.01F && checked.converg < 1);

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
        expect(!std::isnan(grids.grd[0].data[k]) && !std::isnan(grids.grd[1].data[k]));
}
