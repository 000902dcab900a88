#include "ORV/Domain.h"

#include "ORV/Calc.h"

#include "Projection.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace ORV {
namespace {
bool isMissing(const Point& p) {
    return p.x == Const::MISS || p.y == Const::MISS;
}
bool isMissing(const GridPoint& p) {
    return p.gx == Const::MISS || p.gy == Const::MISS;
}
bool isMissing(const EarthPoint& p) {
    return p.lat == Const::MISS || p.lon == Const::MISS;
}

// A float can hold it. False for what is no number.
bool fits(double value) {
    return std::abs(value) <= std::numeric_limits<float>::max();
}

bool hasLatLon(int proj) {
    return proj >= 1 && proj <= 10;
}

// Brings the longitude into -180 to 180. False for what is no place on the earth.
bool normalize(EarthPoint& e) {
    if (e.lat != Const::MISS && !(e.lat >= -90 && e.lat <= 90))
        return false;
    if (e.lon == Const::MISS)
        return true;
    if (!(e.lon >= -3600 && e.lon <= 3600))
        return false;
    while (e.lon < -180)
        e.lon += 360;
    while (e.lon > 180)
        e.lon -= 360;
    return true;
}

int refuse(Point& plot) {
    plot.set(Const::MISS, Const::MISS);
    return 0;
}

int refuse(EarthPoint& earth) {
    earth.set(Const::MISS, Const::MISS);
    return 0;
}

// Empties a list and makes room for n points.
template <class List>
void reserve(List& list, int n) {
    if (list.max < n)
        list.init(n);
    else
        list.init();
}

int gridSize(int n, float factor) {
    const double size = std::trunc((static_cast<double>(n) - 1) * factor) + 1;
    return static_cast<int>(std::clamp(size, 2.0, 1e9));
}
} // namespace

int Domain::set(const DomainVal& val) {
    static_cast<DomainVal&>(*this) = val;
    return setParam();
}

int Domain::set(const EarthPoint& a, const EarthPoint& b, int size_x, int size_y) {
    Domain next = *this;
    next.setParam(); // the constants, for a projection that was only just filled in
    Point corner_a, corner_b;
    next.tran(a, corner_a);
    next.tran(b, corner_b);
    if (size_x < 2 || size_y < 2 || isMissing(corner_a) || isMissing(corner_b))
        return 0;

    EarthPoint center;
    next.tran(Point::interp(corner_a, corner_b, 0.5f), center);
    if (isMissing(center))
        return 0;
    next.nx = size_x;
    next.ny = size_y;
    next.dx = std::abs(corner_a.x - corner_b.x) / (size_x - 1);
    next.dy = std::abs(corner_a.y - corner_b.y) / (size_y - 1);
    next.clat = center.lat;
    next.clon = center.lon;
    *this = next;
    return setParam();
}

int Domain::set(int size_x, int size_y) {
    proj = 21;
    clat = 0;
    clon = 0;
    nx = size_x;
    ny = size_y;
    dx = 1;
    dy = 1;
    return setParam();
}

bool Domain::isDerived() const {
    const Projection* projection = Projection::find(proj);
    return xfactor != Const::MISS || !projection || !projection->derive;
}

void Domain::derive() {
    const Projection* projection = Projection::find(proj);
    if (projection && projection->derive)
        projection->derive(*this);
}

int Domain::setParam() {
    if (plat == Const::MISS)
        plat = clat;
    if (plon == Const::MISS)
        plon = clon;
    earth_rad = param[2] == Const::MISS ? Const::EARTH_MEAN : param[2];
    const float side = plat >= 0 ? 1 : -1;
    if (proj == 1 || proj == 11) {
        tlat1 = param[0] == Const::MISS ? 60 * side : param[0];
    } else if (proj == 4 || proj == 9) {
        tlat1 = param[0] == Const::MISS ? 30 * side : param[0];
        tlat2 = param[0] == Const::MISS ? 60 * side : param[1];
    } else if (proj == 10) {
        const double earth = ellipse ? Const::EARTH_MAJ : earth_rad;
        sat_rad = param[0] == Const::MISS ? 421.64 : param[0];
        sat_rad2 = sat_rad * sat_rad;
        sat_rad4 = sat_rad2 * sat_rad2;
        sat2_earth2 = sat_rad2 - earth * earth;
        earth_sat_ratio = earth_rad / sat_rad;
    }
    view.set(0, 0, 1, 1);
    xfactor = Const::MISS;
    derive();
    return setLimits();
}

int Domain::setLimits() {
    limits.init();
    if (dx == Const::MISS || dy == Const::MISS || nx == Const::MISS || ny == Const::MISS)
        return 1;
    const double width = (static_cast<double>(nx) - 1) * 0.5 * dx;
    const double height = std::abs((static_cast<double>(ny) - 1) * 0.5 * dy);
    // The axis of values against pressure is turned over about its lower left corner; this one
    // leaves the centre in the middle of the window.
    if (proj == 23)
        limits.setu(static_cast<float>(clat - width), static_cast<float>(clon + height), 0, 0);

    Point center;
    tranCenter(center);
    if (isMissing(center))
        return limits.init();
    return limits.setu(static_cast<float>(center.x - width), static_cast<float>(center.y - height),
                       static_cast<float>(center.x + width), static_cast<float>(center.y + height));
}

bool Domain::hasWindow() const {
    return (limits.xmin != Const::MISS || limits.xmax != Const::MISS) && dx != 0 && dy != 0;
}

int Domain::setView(const Rect& rect) {
    view = rect;
    return 1;
}

float Domain::getParam(int i) const {
    return i >= 0 && i < static_cast<int>(std::size(param)) ? param[i] : Const::MISS;
}

int Domain::getLimits(Rect& out) const {
    out = limits;
    return 1;
}

float Domain::getVert() const {
    return hasWindow() ? limits.ymax - limits.ymin : static_cast<float>(Const::MISS);
}

int Domain::tran(EarthPoint& earth, Point& plot) const {
    if (hasLatLon(proj) && !normalize(earth))
        return refuse(plot);
    if (isMissing(earth))
        return plot.set(Const::MISS, Const::MISS);
    const Projection* projection = Projection::find(proj);
    if (!projection || !projection->forward)
        return plot.set(earth.lat, earth.lon);
    if (isMap(proj) && plon == Const::MISS)
        return refuse(plot);
    if (!isDerived()) { // filled in by hand, without setParam
        Domain ready = *this;
        ready.derive();
        return ready.tran(earth, plot);
    }
    double x, y;
    if (!projection->forward(*this, earth, x, y) || !fits(x) || !fits(y))
        return refuse(plot);
    return plot.set(static_cast<float>(x), static_cast<float>(y));
}

int Domain::tran(const EarthPoint& earth, Point& plot) const {
    EarthPoint copy = earth;
    return tran(copy, plot);
}

int Domain::tran(const Point& plot, EarthPoint& earth) const {
    if (isMissing(plot))
        return earth.set(Const::MISS, Const::MISS);
    const Projection* projection = Projection::find(proj);
    if (!projection || !projection->inverse)
        return earth.set(plot.x, plot.y);
    if (isMap(proj) && plon == Const::MISS)
        return refuse(earth);
    if (!isDerived()) {
        Domain ready = *this;
        ready.derive();
        return ready.tran(plot, earth);
    }
    double lat = Const::MISS, lon = Const::MISS;
    const bool done = projection->inverse(*this, plot.x, plot.y, lat, lon);
    if ((!done && lat == Const::MISS) || !fits(lat) || !fits(lon))
        return refuse(earth);
    if (done && hasLatLon(proj) && lon > 180)
        lon -= 360;
    else if (done && hasLatLon(proj) && lon < -180)
        lon += 360;
    earth.set(static_cast<float>(lat), static_cast<float>(lon));
    return done;
}

int Domain::tran(const GridPoint& grid, Point& plot) const {
    if (isMissing(grid) || !hasWindow())
        return refuse(plot);
    if (proj == 11)
        return plot.set(grid.gx * dx, grid.gy * dy);
    return plot.set(grid.gx * dx + limits.xmin, limits.ymax - grid.gy * dy);
}

int Domain::tran(const Point& plot, GridPoint& grid) const {
    grid.init();
    if (isMissing(plot) || !hasWindow())
        return 0;
    if (proj == 11)
        return grid.set(plot.x / dx, plot.y / dy);
    float east = plot.x - limits.xmin;
    if (proj == 2 && east < -360)
        east += 360;
    else if (proj == 2 && east > 360)
        east -= 360;
    return grid.set(east / dx, (limits.ymax - plot.y) / dy);
}

int Domain::tran(EarthPoint& earth, GridPoint& grid) const {
    Point plot;
    tran(earth, plot);
    return tran(plot, grid);
}

int Domain::tran(const EarthPoint& earth, GridPoint& grid) const {
    EarthPoint copy = earth;
    return tran(copy, grid);
}

int Domain::tran(const GridPoint& grid, EarthPoint& earth) const {
    Point plot;
    if (!tran(grid, plot))
        return refuse(earth);
    return tran(plot, earth);
}

int Domain::tran(const EarthPoints& earth, Points& plot) const {
    reserve(plot, earth.num);
    for (int i = 0; i < earth.num; i++) {
        EarthPoint from(earth.lat[i], earth.lon[i]);
        Point to;
        tran(from, to);
        plot.add1(to);
    }
    return 1;
}

int Domain::tran(const EarthPoints& earth, GridPoints& grid) const {
    reserve(grid, earth.num);
    for (int i = 0; i < earth.num; i++) {
        EarthPoint from(earth.lat[i], earth.lon[i]);
        GridPoint to;
        tran(from, to);
        grid.add1(to);
    }
    return 1;
}

int Domain::tran(int which, Point& plot) const {
    switch (which) {
    case 0:
        return plot.set(limits.xmin, limits.ymax);
    case 1:
        return plot.set(limits.xmax, limits.ymax);
    case 2:
        return plot.set(limits.xmin, limits.ymin);
    case 3:
        return plot.set(limits.xmax, limits.ymin);
    case 4:
        return tranCenter(plot);
    default:
        return 0;
    }
}

int Domain::tran(int which, EarthPoint& earth) const {
    if (which == 4)
        return earth.set(clat, clon);
    Point corner;
    return tran(which, corner) ? tran(corner, earth) : 0;
}

int Domain::tran(int which, GridPoint& grid) const {
    Point corner;
    return tran(which, corner) ? tran(corner, grid) : 0;
}

int Domain::tranCenter(Point& plot) const {
    EarthPoint center(clat, clon);
    return tran(center, plot);
}

int Domain::translate(const Domain& from, const Domain& to, const Point& in, Point& out) {
    if (compareProj(from, to)) {
        out = in;
        return 1;
    }
    EarthPoint earth;
    from.tran(in, earth); // the centre of an azimuthal view comes with 0
    return isMissing(earth) ? refuse(out) : to.tran(earth, out);
}

int Domain::translate(const Domain& from, const Domain& to, const GridPoint& in, GridPoint& out) {
    Point plot_from, plot_to;
    from.tran(in, plot_from);
    translate(from, to, plot_from, plot_to);
    return to.tran(plot_to, out);
}

bool Domain::within(const Point& plot) const {
    return withinExt(plot, 0);
}

bool Domain::within(const EarthPoint& earth) const {
    return withinExt(earth, 0);
}

bool Domain::withinExt(const Point& plot, int n) const {
    if (!isSet())
        return true;
    if (isMissing(plot))
        return false;
    const float ext_x = n * dx, ext_y = n * std::abs(dy);
    return plot.x >= limits.xmin - ext_x && plot.x <= limits.xmax + ext_x &&
           plot.y >= limits.ymin - ext_y && plot.y <= limits.ymax + ext_y;
}

bool Domain::withinExt(const EarthPoint& earth, int n) const {
    Point plot;
    tran(earth, plot);
    return withinExt(plot, n);
}

int Domain::where(const Point& plot) const {
    if (!isSet() || isMissing(plot))
        return 0;
    const int column = plot.x < limits.xmin ? 0 : plot.x > limits.xmax ? 2 : 1;
    const int row = plot.y > limits.ymax ? 0 : plot.y < limits.ymin ? 2 : 1;
    return 3 * row + column + 1;
}

int Domain::where(const EarthPoint& earth) const {
    Point plot;
    tran(earth, plot);
    return where(plot);
}

int Domain::moveCenter(const Point& c) {
    EarthPoint center;
    tran(c, center);
    if (isMissing(center))
        return 0;
    clat = center.lat;
    clon = center.lon;
    return 1;
}

int Domain::zoom(const Point& c, float f) {
    if (!(f > 0) || !moveCenter(c))
        return 0;
    dx /= f;
    dy /= f;
    return setLimits();
}

int Domain::pan(const Point& c) {
    return moveCenter(c) ? setLimits() : 0;
}

int Domain::scaleSize(int size_x, int size_y) {
    const float width = (static_cast<float>(nx) - 1) * dx;
    const float height = (static_cast<float>(ny) - 1) * dy;
    if (size_x < 1 || size_y < 1 || nx < 2 || ny < 2 || width == 0 || height == 0)
        return 0;
    const float ratio = height / width;
    // A picture of a single row or column has the spacing of one cell.
    const float cells_x = static_cast<float>(std::max(size_x - 1, 1));
    const float cells_y = static_cast<float>(std::max(size_y - 1, 1));
    if (cells_y / cells_x > ratio) {
        dx = width / cells_x;
        dy = height / (cells_x * ratio);
    } else {
        dx = width * ratio / cells_y;
        dy = height / cells_y;
    }
    nx = size_x;
    ny = size_y;
    return 1;
}

int Domain::scaleGrid(float f) {
    if (!(f > 0) || nx == Const::MISS || ny == Const::MISS || dx == Const::MISS ||
        dy == Const::MISS)
        return 0;
    const float width = (static_cast<float>(nx) - 1) * dx;
    const float height = (static_cast<float>(ny) - 1) * dy;
    nx = gridSize(nx, f);
    ny = gridSize(ny, f);
    dx = width / (static_cast<float>(nx) - 1);
    dy = height / (static_cast<float>(ny) - 1);
    return 1;
}

float Domain::calcEarthDist(const EarthPoint& a, const EarthPoint& b) {
    return Calc::earthDist(a.lat, a.lon, b.lat, b.lon);
}

} // namespace ORV
