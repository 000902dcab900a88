#include "ORV/GridPoints.h"

#include "Polygon.h"

#include <algorithm>
#include <cmath>

namespace ORV {

bool GridPoints::within(const GridPoint& point) const {
    return Polygon{gx, gy, num}.within(point.gx, point.gy);
}

int GridPoints::getCenter(GridPoint& out) const {
    out.init();
    return Polygon{gx, gy, num}.getCenter(out.gx, out.gy);
}

int GridPoints::getCentroid(GridPoint& out) const {
    Polygon{gx, gy, num}.getCentroid(out.gx, out.gy);
    return 1;
}

int GridPoints::getBoundingBox(Rect& out) const {
    if (num == 0)
        return 0;
    const auto [left, right] = std::minmax_element(gx + 0, gx + num);
    const auto [top, bottom] = std::minmax_element(gy + 0, gy + num);
    return out.set(*left, *top, *right, *bottom);
}

int GridPoints::getPointsWithin(GridPoints& out) const {
    out.init();
    Rect box;
    if (!getBoundingBox(box))
        return 0;
    for (float i = std::ceil(box.xmin); i < std::floor(box.xmax); i++)
        for (float j = std::ceil(box.ymin); j < std::floor(box.ymax); j++)
            if (within(GridPoint(i, j)))
                out.add(i, j);
    return 1;
}

} // namespace ORV
