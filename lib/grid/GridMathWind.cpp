#include "ORV/Calc.h"

#include "GridCompute.h"

#include <algorithm>
#include <cmath>

namespace ORV {

using namespace GridCompute;

namespace {

template <class Component>
int makeComponent(Grid& out, const char* name, const Grid& dir, const Grid& spd, int mode,
                  Component component) {
    if (!isField(dir, spd))
        return 0;
    return make(out, dir, name, dir.getUnits(), [&](int i, int j) {
        const float speed = spd.getValue(i, j);
        float from = dir.getValue(i, j);
        if (from == miss || speed == miss)
            return miss;
        if (mode)
            from = dir.adjustDir(from, plotAt(dir, i, j));
        return toValue(component(from, speed));
    });
}

} // namespace

int GridMath::windSpd(Grid& out, const Grid& u, const Grid& v) {
    return isField(u, v) && make(out, u, "wspd", u.getUnits(), pointwise(Calc::windSpd, u, v));
}

int GridMath::windDir(Grid& out, const Grid& u, const Grid& v, int mode) {
    if (!isField(u, v))
        return 0;
    return make(out, u, "wdir", u.getUnits(), [&](int i, int j) {
        const float x = u.getValue(i, j), y = v.getValue(i, j);
        const float dir = Calc::windDir(x, y);
        const bool calm = x == 0 && y == 0;
        return mode && !calm ? u.unadjustDir(dir, plotAt(u, i, j)) : dir;
    });
}

int GridMath::windU(Grid& out, const Grid& dir, const Grid& spd, int mode) {
    return makeComponent(out, "uwnd", dir, spd, mode, Calc::windU);
}

int GridMath::windV(Grid& out, const Grid& dir, const Grid& spd, int mode) {
    return makeComponent(out, "vwnd", dir, spd, mode, Calc::windV);
}

float GridMath::maxSpd(const Grid& u, const Grid& v) {
    if (!isField(u, v))
        return miss;
    const auto counts = [](double x) { return x != miss && x != 0; };
    double square = 0;
    for (int j = 0; j < u.ny; j++)
        for (int i = 0; i < u.nx; i++) {
            const double x = u.getValue(i, j), y = v.getValue(i, j);
            if (counts(x) && counts(y))
                square = std::max(square, x * x + y * y);
        }
    return square > 0 ? toValue(std::sqrt(square)) : miss;
}

int GridMath::adjustDir(Grid& u, Grid& v, const Domain& domain, int uvgrid) {
    if (!isField(u, v) || (uvgrid == 0 && isDomainEqual(u, domain)))
        return 0;
    for (int j = 0; j < u.ny; j++)
        for (int i = 0; i < u.nx; i++) {
            const float x = u.getValue(i, j), y = v.getValue(i, j);
            if (x == miss || y == miss)
                continue;
            float dir = Calc::windDir(x, y);
            const float spd = Calc::windSpd(x, y);
            if (uvgrid != 1)
                dir = u.unadjustDir(dir, plotAt(u, i, j));
            dir = domain.adjustDir(dir, earthAt(u, i, j));
            u.setValue(i, j, toValue(Calc::windU(dir, spd)));
            v.setValue(i, j, toValue(Calc::windV(dir, spd)));
        }
    return 1;
}

} // namespace ORV
