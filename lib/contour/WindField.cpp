#include "WindField.h"

#include "ORV/Calc.h"
#include "ORV/Domain.h"
#include "ORV/Grid.h"

#include <algorithm>
#include <cmath>

namespace ORV {
namespace {

/// Calls visit(i, j, u, v) at all points that have both components.
template <class Visit>
void forEachWind(const Grid& u, const Grid& v, const Visit& visit) {
    for (int j = 0; j < u.ny; j++)
        for (int i = 0; i < u.nx; i++) {
            const float a = u.getValue1(i, j), b = v.getValue1(i, j);
            if (a != Const::MISS && b != Const::MISS)
                visit(i, j, a, b);
        }
}

bool isPair(const Grid& u, const Grid& v) {
    return u.isData() && v.isData() && DomainVal::compare(u.domain, v.domain);
}

} // namespace

float WindField::maxSpeed(const Grid& u, const Grid& v) {
    float most = Const::MISS;
    if (isPair(u, v))
        forEachWind(u, v, [&](int, int, float a, float b) {
            if (a != 0 && b != 0)
                most = std::max(most, Calc::windSpd(a, b));
        });
    return most;
}

float WindField::maxAnySpeed(const Grid& u, const Grid& v) {
    float most = 0;
    if (isPair(u, v))
        forEachWind(u, v, [&](int, int, float a, float b) {
            const float speed = Calc::windSpd(a, b);
            if (std::isfinite(speed))
                most = std::max(most, speed);
        });
    return most;
}

int WindField::turn(Grid& u, Grid& v, const Domain& domain, bool earth) {
    if (!isPair(u, v) || (!earth && DomainVal::compare(u.domain, domain)))
        return 0;
    forEachWind(u, v, [&](int i, int j, float a, float b) {
        Point own, shown;
        EarthPoint place;
        u.domain.tran(GridPoint(i, j), own);
        u.domain.tran(own, place);
        domain.tran(place, shown);
        float dir = Calc::windDir(a, b);
        if (!earth)
            dir = u.domain.unadjustDir(dir, own);
        dir = domain.adjustDir(dir, shown);
        const float speed = Calc::windSpd(a, b);
        u.setValue1(i, j, Calc::windU(dir, speed));
        v.setValue1(i, j, Calc::windV(dir, speed));
    });
    return 1;
}

} // namespace ORV
