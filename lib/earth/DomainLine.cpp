#include "ORV/Domain.h"

#include <cmath>

namespace ORV {
namespace {
constexpr double km_per_degree = 111.195;

double toRad(double degrees) {
    return degrees * Const::DRC;
}

float atan2Deg(float y, float x) {
    return static_cast<float>(std::atan2(static_cast<double>(y), static_cast<double>(x)) *
                              Const::RDC);
}

float wrapDir(float dir) {
    if (dir > 360)
        return dir - 360;
    return dir < 0 ? dir + 360 : dir;
}

bool isMissing(const Point& p) {
    return p.x == Const::MISS || p.y == Const::MISS;
}

// How far a polar stereographic plot or a cone turns north away from upward at a point.
float turnOfNorth(const Domain& d, const Point& p) {
    if (d.proj == 4)
        return atan2Deg(p.x, static_cast<float>(-d.scale) * p.y);
    if (d.proj != 1)
        return 0;
    const bool north = d.plat >= 0;
    if (p.x == 0 && p.y == 0)
        return north ? d.plon : -d.plon;
    return north ? atan2Deg(p.x, -p.y) : -atan2Deg(p.x, p.y);
}

// On the satellite's view, the direction of a step of 1 km.
float adjustOnView(const Domain& d, float dir, const Point& p) {
    EarthPoint earth;
    Point ahead;
    d.tran(p, earth);
    Domain::offsetLatLon(earth, dir, 1, earth);
    d.tran(earth, ahead);
    return isMissing(ahead) ? static_cast<float>(Const::MISS)
                            : atan2Deg(ahead.x - p.x, ahead.y - p.y);
}

// The west or east shift that brings b to the same side of the world as a.
int sideOf(float a, float b, float width) {
    if (width <= 0 || a == Const::MISS || b == Const::MISS)
        return 0;
    const float d = a - b;
    return d > width / 4 ? 1 : d < -width / 4 ? -1 : 0;
}

void shift(float& x, float by) {
    if (x != Const::MISS)
        x += by;
}
} // namespace

float Domain::adjustDir(float dir, const Point& plot) const {
    if (dir == Const::MISS || isMissing(plot))
        return dir;
    const float turned =
        proj == 10 ? adjustOnView(*this, dir, plot) : dir - turnOfNorth(*this, plot);
    return turned == Const::MISS ? turned : wrapDir(turned);
}

float Domain::adjustDir(float dir, const EarthPoint& earth) const {
    Point plot;
    tran(earth, plot);
    return adjustDir(dir, plot);
}

float Domain::unadjustDir(float dir, const Point& plot) const {
    if (dir == Const::MISS || isMissing(plot))
        return dir;
    return wrapDir(dir + turnOfNorth(*this, plot));
}

float Domain::unadjustDir(float dir, const EarthPoint& earth) const {
    Point plot;
    tran(earth, plot);
    return unadjustDir(dir, plot);
}

float Domain::direct(const Point& a, const Point& b) const {
    if (isMissing(a) || isMissing(b))
        return Const::MISS;
    float dir = atan2Deg(b.x - a.x, b.y - a.y);
    if (proj == 1)
        dir += plat >= 0 ? atan2Deg(a.x, -a.y) : -atan2Deg(a.x, a.y);
    return dir;
}

int Domain::offsetLatLon(const EarthPoint& from, float dir, float dist, EarthPoint& to) {
    if (from.lat == Const::MISS || from.lon == Const::MISS || dir == Const::MISS ||
        dist == Const::MISS)
        return to.set(Const::MISS, Const::MISS);
    const double lat = from.lat, lon = from.lon;
    const double east = dist * std::sin(toRad(dir)), north = dist * std::cos(toRad(dir));
    return to.set(static_cast<float>(lat + north / km_per_degree),
                  static_cast<float>(lon + east / (std::cos(toRad(lat)) * km_per_degree)));
}

int Domain::offset(const Point& from, float dir, float dist, Point& to) const {
    EarthPoint earth;
    tran(from, earth);
    offsetLatLon(earth, dir, dist, earth);
    return tran(earth, to) && !isMissing(to);
}

float Domain::getMapFactor(const EarthPoint& earth) const {
    constexpr double true_at_60 = 1.866; // 1 + sin(60)
    if (earth.lat == Const::MISS)
        return Const::MISS;
    if (proj == 1 || proj == 11)
        return static_cast<float>(true_at_60 /
                                  (1 + std::sin(toRad(plat > 0 ? earth.lat : -earth.lat))));
    if (proj == 3)
        return static_cast<float>(1 / std::cos(toRad(earth.lat)));
    return 1;
}

int Domain::adjust(Point& plot) const {
    const float width = proj == 2 ? OFFSET_LL : proj == 3 ? OFFSET_MERC : 0;
    if (width == 0 || plot.x == Const::MISS)
        return 0;
    if (plot.x > width / 2) {
        plot.x -= width;
        return -1;
    }
    if (plot.x < -width / 2) {
        plot.x += width;
        return 1;
    }
    return 0;
}

int Domain::adjust(Points& plot) const {
    int first = 0;
    for (int i = 0; i < plot.num; i++) {
        Point point = plot.get(i);
        const int step = adjust(point);
        plot.x[i] = point.x;
        if (i == 0)
            first = step;
    }
    return first;
}

// The width at the height y on the plot, 0 where the world doesn't wrap.
float Domain::worldWidth(float y) const {
    if (proj == 2)
        return OFFSET_LL;
    if (proj == 3)
        return OFFSET_MERC;
    if (y == Const::MISS)
        return 0;
    double width = 0;
    if (proj == 7)
        width = 4 * std::sqrt(earth_rad * earth_rad - static_cast<double>(y) * y);
    else if (proj == 4 && xfactor <= 0.5)
        width = -2 * scale * y * std::tan(xfactor * Const::PI);
    return width > 0 ? static_cast<float>(width) : 0;
}

int Domain::wrapLine(Point& a, Point& b) const {
    const float width = worldWidth(a.y);
    const int side = sideOf(a.x, b.x, width);
    shift(b.x, side * width);
    return side;
}

int Domain::wrapLine(Points& line) const {
    if (line.num < 2)
        return 0;
    const float width = worldWidth(line.y[0]);
    int first = 0;
    for (int i = 1; i < line.num; i++) {
        const int side = sideOf(line.x[i - 1], line.x[i], width);
        shift(line.x[i], side * width);
        if (first == 0)
            first = side;
    }
    return first;
}

int Domain::offsetLine(Point& a, Point& b, int side) const {
    if (side == 0)
        return 0;
    const float width = worldWidth(a.y);
    const float by = side == 1 ? -width : width;
    shift(a.x, by);
    shift(b.x, by);
    return 1;
}

int Domain::offsetLine(Points& line, int side) const {
    if (side == 0)
        return 0;
    const float width = worldWidth(line.getY(0));
    for (int i = 0; i < line.num; i++)
        shift(line.x[i], side == 1 ? -width : width);
    return 1;
}

} // namespace ORV
