#include "ORV/EarthPoints.h"

#include "Polygon.h"

#include <algorithm>

namespace ORV {

bool EarthPoints::within(const EarthPoint& point) const {
    return Polygon{lon, lat, num}.within(point.lon, point.lat);
}

EarthRange EarthPoints::getRange() const {
    if (num == 0)
        return EarthRange();
    const auto [south, north] = std::minmax_element(lat + 0, lat + num);
    const auto [west, east] = std::minmax_element(lon + 0, lon + num);
    return EarthRange(*south, *north, *west, *east);
}

} // namespace ORV
