#include "ORV/SfcGrid.h"

#include "ORV/DomainTool.h"
#include "ORV/Grids.h"
#include "ORV/Orv.h"
#include "ORV/Raw.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <cstdint>

namespace ORV {
namespace {
/// The domain with its grid refined, or as it is when that can't be.
Domain refine(const Domain& domain, int factor) {
    Domain fine = domain;
    if (factor <= 1 || !fine.scaleGrid(static_cast<float>(factor)))
        return domain;
    return std::int64_t{fine.nx} * fine.ny <= Grid::max_points ? fine : domain;
}
} // namespace

int SfcGrid::init() {
    grid_scale = 1;
    sfc.init();
    oa.init();
    setNameConv("sfc_cvt");
    setFile();
    setParam(Orv::getResrc("parameter"));
    setDomain(Orv::getResrc("plot_domain"));
    return 1;
}

int SfcGrid::setParam(const char* list) {
    const Strings params(list, ',');
    for (int i = 0; i < params.getNum(); i++)
        if (params.equal(i, "grid", 4))
            if (const char* text = params.getString(i, 5))
                Scan::integer(text, grid_scale);
    oa.setParam(list);
    return sfc.setParam(list);
}

int SfcGrid::setFile() {
    return sfc.setFile();
}

int SfcGrid::setDomain(const char* text) {
    Domain domain;
    if (!StrLib::valid(text) || !DomainTool::decode(domain, text))
        return 0;
    return setDomain(domain);
}

int SfcGrid::compute(Grids& grids) {
    Raw table;
    if (!sfc.compute(table))
        return 0;
    const Domain domain = refine(sfc.getDomain(), grid_scale);
    if (domain.isSet())
        grids.setDomain(domain);
    return oa.compute(table, grids);
}

} // namespace ORV
