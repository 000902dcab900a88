#include "WorldEdge.h"

#include "ORV/Const.h"

#include <algorithm>
#include <cmath>

namespace ORV {
namespace {

constexpr double last_merc_lat = 89.9;   // degrees; Mercator maps go no farther
constexpr double limb_clearance = 0.001; // radians by which a limb point stays in sight
constexpr int pole_steps = 16;           // from the open end of a ring to the pole

} // namespace

// Half the width of the world at this height.
double WorldEdge::limit(double y) const {
    switch (domain.proj) {
    case 3:
        return Domain::OFFSET_MERC / 2.0;
    case 7:
        return 2 * std::sqrt(std::max(0.0, domain.earth_rad * domain.earth_rad - y * y));
    default:
        return Domain::OFFSET_LL / 2.0;
    }
}

double WorldEdge::excess(const Point& point) const {
    return std::fabs(double(point.x)) - limit(point.y);
}

bool WorldEdge::isBeyond(const Points& line) const {
    for (int i = 0; i < line.num; i++)
        if (excess(Point(line.getX1(i), line.getY1(i))) > 0)
            return true;
    return false;
}

Point WorldEdge::crossing(const Point& inside, const Point& outside) const {
    const double in = excess(inside);
    // The line may begin on the far side of the middle: distances count toward the edge it meets.
    const double side = outside.x < 0 ? -1 : 1;
    const double from = side * inside.x - limit(inside.y);
    const double to = excess(outside);
    const double t = to > from ? -from / (to - from) : 0;
    const double y = in >= 0 ? inside.y : (double(outside.y) - inside.y) * t + inside.y;
    return Point(static_cast<float>(side * limit(y)), static_cast<float>(y));
}

int WorldEdge::crop(Point& a, Point& b) const {
    const bool a_out = excess(a) > 0;
    const bool b_out = excess(b) > 0;
    if (a_out && b_out)
        return 0;
    if (a_out)
        a = crossing(b, a);
    else if (b_out)
        b = crossing(a, b);
    return 1;
}

void WorldEdge::crop(const Points& line, Points& pieces) const {
    pieces.clear();
    Point last;
    bool last_out = true;
    for (int i = 0; i < line.num; i++) {
        const Point point(line.getX1(i), line.getY1(i));
        const bool out = excess(point) > 0;
        if (last_out && !out && i > 0) {
            if (pieces.num > 0)
                pieces.add(Const::MISS, Const::MISS);
            pieces.add(crossing(point, last));
        } else if (!last_out && out && excess(last) < 0) {
            pieces.add(crossing(last, point));
        }
        if (!out)
            pieces.add(point);
        last = point;
        last_out = out;
    }
}

void WorldEdge::clamp(Points& polygon) const {
    for (int i = 0; i < polygon.num; i++) {
        const float edge = static_cast<float>(limit(polygon.y[i]));
        polygon.x[i] = std::clamp(polygon.x[i], -edge, edge);
    }
}

double WorldEdge::poleY() const {
    if (domain.proj == 2)
        return 90;
    if (domain.proj == 7)
        return domain.earth_rad;
    Point pole;
    domain.tran(EarthPoint(static_cast<float>(last_merc_lat), domain.plon), pole);
    return pole.y;
}

void WorldEdge::closeAroundPole(Points& ring) const {
    if ((domain.proj != 2 && domain.proj != 3 && domain.proj != 7) || ring.num < 3)
        return;
    const Point first(ring.getX1(0), ring.getY1(0));
    const Point last(ring.getX1(ring.num - 1), ring.getY1(ring.num - 1));
    if (std::fabs(double(last.x) - first.x) <= limit(first.y))
        return;

    double sum = 0;
    for (int i = 0; i < ring.num; i++)
        sum += ring.getY1(i);
    const double pole = sum < 0 ? -poleY() : poleY();
    // In steps, since the edge is an arc on the ellipse.
    for (int k = 1; k <= pole_steps; k++)
        ring.add(last.x, static_cast<float>(last.y + (pole - last.y) * k / pole_steps));
    for (int k = pole_steps; k >= 0; k--)
        ring.add(first.x, static_cast<float>(first.y + (pole - first.y) * k / pole_steps));
}

int WorldEdge::limb(const EarthPoint& earth, Point& point) const {
    if ((domain.proj != 5 && domain.proj != 10) || !(std::fabs(earth.lat) <= 90) ||
        !(std::fabs(earth.lon) <= 3600))
        return 0;
    // Cosines of the place along the axes right and up of the view, seen from above its centre.
    const double center = domain.proj == 5 ? domain.plat * Const::DRC : 0;
    const double lat = earth.lat * Const::DRC;
    const double lon = (double(earth.lon) - domain.plon) * Const::DRC;
    const double right = std::cos(lat) * std::sin(lon);
    const double up =
        std::cos(center) * std::sin(lat) - std::sin(center) * std::cos(lat) * std::cos(lon);
    const double length = std::hypot(right, up);
    if (length == 0)
        return 0;
    if (domain.proj == 5)
        return point.set(static_cast<float>(domain.earth_rad * right / length),
                         static_cast<float>(domain.earth_rad * up / length));

    const double arc = std::acos(std::clamp(domain.earth_sat_ratio, -1.0, 1.0)) - limb_clearance;
    const double limb_lat = std::asin(std::sin(arc) * up / length);
    const double limb_lon = std::atan2(std::sin(arc) * right / length, std::cos(arc));
    const EarthPoint place(static_cast<float>(limb_lat * Const::RDC),
                           static_cast<float>(limb_lon * Const::RDC + domain.plon));
    return domain.tran(place, point) && point.x != Const::MISS;
}

} // namespace ORV
