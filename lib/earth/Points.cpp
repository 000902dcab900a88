#include "ORV/Points.h"

#include "Polygon.h"

namespace ORV {

bool Points::within(const Point& point) const {
    return Polygon{x, y, num}.within(point.x, point.y);
}

int Points::getCenter(Point& out) const {
    out.init();
    return Polygon{x, y, num}.getCenter(out.x, out.y);
}

int Points::getCentroid(Point& out) const {
    out.init();
    Polygon{x, y, num}.getCentroid(out.x, out.y);
    return 1;
}

} // namespace ORV
