#include "WorldEdge.h"

#include "ORV/Const.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace ORV {
namespace {

constexpr double last_merc_lat = 89.9;   // degrees; Mercator maps go no farther
constexpr double limb_clearance = 0.001; // radians by which a limb point stays in sight
constexpr int pole_steps = 16;           // from the open end of a ring to the pole
constexpr double pole_width = 0.01;      // of an ellipse there, in radii: too narrow to go around
constexpr double last_stereo_lat = 75;   // degrees into the far hemisphere, where maps are cut
constexpr int outer_steps = 72;          // of a circle around the map
constexpr int limb_steps = 10;           // halvings of a segment
constexpr int arc_depth = 8;             // the same near the antipode,
constexpr double arc_step = 0.05;        // in radii of the near hemisphere's rim

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

// The move, in turns of the world, that brings b beside a: what is more than a quarter of the world
// away is taken to be near on the other side.
int WorldEdge::turn(const Point& a, const Point& b) const {
    if (domain.proj != 2 && domain.proj != 3 && domain.proj != 7)
        return 0;
    const double from = limit(a.y), to = limit(b.y);
    if (domain.proj == 7 && std::min(from, to) < pole_width * domain.earth_rad)
        return 0;
    const double step = a.x / from - b.x / to; // the world is 2 wide
    return step > 0.5 ? 1 : step < -0.5 ? -1 : 0;
}

int WorldEdge::wrap(Point& a, Point& b) const {
    if (domain.proj != 7)
        return domain.wrapLine(a, b);
    const int side = turn(a, b);
    b.x += static_cast<float>(side * 2 * limit(b.y));
    return side;
}

// The ellipse is narrower toward its poles, so each point has a width of its own to move by.
int WorldEdge::wrap(Points& line) const {
    if (domain.proj != 7)
        return domain.wrapLine(line);
    int side = 0, turns = 0;
    Point last;
    for (int i = 0; i < line.num; i++) {
        const Point point(line.getX1(i), line.getY1(i));
        const int move = i > 0 ? turn(last, point) : 0;
        turns += move;
        side = side == 0 ? move : side;
        line.x[i] += static_cast<float>(turns * 2 * limit(point.y));
        last = point;
    }
    return side;
}

void WorldEdge::shift(Point& a, Point& b, int side) const {
    if (domain.proj != 7) {
        domain.offsetLine(a, b, side);
        return;
    }
    for (Point* point : {&a, &b})
        point->x -= static_cast<float>(side * 2 * limit(point->y));
}

void WorldEdge::shift(Points& line, int side) const {
    if (domain.proj != 7) {
        domain.offsetLine(line, side);
        return;
    }
    for (int i = 0; i < line.num; i++)
        line.x[i] -= static_cast<float>(side * 2 * limit(line.y[i]));
}

bool WorldEdge::isSecondTurn(const Point& a, const Point& b, int& turns) const {
    const int move = turn(a, b);
    if (std::abs(turns + move) > 1)
        return true;
    turns += move;
    return false;
}

// The angle around the apex of a cone, from its middle.
double WorldEdge::coneAngle(const Point& point) const {
    if (domain.proj == 4)
        return std::atan2(point.x, -domain.scale * point.y);
    const double sign = domain.mult < 0 ? -1 : 1;
    return std::atan2(sign * point.x, sign * (domain.xfactor - point.y));
}

// The angle of its two edges.
double WorldEdge::coneHalf() const {
    return Const::PI * std::fabs(domain.proj == 9 ? domain.mult : domain.xfactor);
}

Point WorldEdge::conePoint(double radius, double angle) const {
    const double x = radius * std::sin(angle), y = radius * std::cos(angle);
    if (domain.proj == 4)
        return Point(static_cast<float>(x), static_cast<float>(-domain.scale * y));
    const double sign = domain.mult < 0 ? -1 : 1;
    return Point(static_cast<float>(sign * x), static_cast<float>(domain.xfactor - sign * y));
}

bool WorldEdge::parts(const Point& a, const Point& b) const {
    if (domain.proj == 8) {
        const double rim = std::sqrt(2.0) * domain.earth_rad; // of the near hemisphere
        return std::hypot(a.x, a.y) > rim && std::hypot(b.x, b.y) > rim &&
               std::hypot(double(a.x) - b.x, double(a.y) - b.y) > domain.earth_rad;
    }
    return isCone() && isCut(a, b);
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

Point WorldEdge::meet(const Point& inside, const Point& outside) const {
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
        a = meet(b, a);
    else if (b_out)
        b = meet(a, b);
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
            pieces.add(meet(point, last));
        } else if (!last_out && out && excess(last) < 0) {
            pieces.add(meet(last, point));
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
    if (domain.proj != 2 && domain.proj != 3 && domain.proj != 7)
        return;
    const Point first(ring.getX1(0), ring.getY1(0));
    const Point last(ring.getX1(ring.num - 1), ring.getY1(ring.num - 1));
    if (std::fabs(double(last.x) - first.x) <= limit(first.y))
        return;

    double sum = 0;
    for (int i = 0; i < ring.num; i++)
        sum += ring.getY1(i);
    const double pole = sum < 0 ? -poleY() : poleY();
    // In steps, since a meridian is an arc on the ellipse.
    const auto add = [&](const Point& from, int k) {
        const double y = from.y + (pole - from.y) * k / pole_steps;
        const double x = limit(from.y) > 0 ? from.x * limit(y) / limit(from.y) : 0;
        ring.add(static_cast<float>(x), static_cast<float>(y));
    };
    for (int k = 1; k <= pole_steps; k++)
        add(last, k);
    for (int k = pole_steps; k >= 0; k--)
        add(first, k);
}

bool WorldEdge::isCut(const Point& a, const Point& b) const {
    return (a.x < 0) != (b.x < 0) && std::fabs(coneAngle(a) - coneAngle(b)) > coneHalf();
}

// Cuts a polygon along the edges of the cone, so that no piece has a part in the gap. The pieces of
// its outline that lie between the edges are joined along them: every second stretch of an edge
// between two ends is inside.
int WorldEdge::splitOnCone(const Points& ring, std::vector<Points>& polygons) const {
    class Strand {
    public:
        Points points;
        double radius[2]; // where it begins and ends on an edge, from the apex,
        int side[2];      // which is on this side
    };
    const Point apex = conePoint(0, 0);
    const auto radius = [&](const Point& point) {
        return std::hypot(double(point.x) - apex.x, double(point.y) - apex.y);
    };
    int first = 0;
    while (first < ring.num && !isCut(ring.get(first - 1), ring.get(first)))
        first++;
    if (first == ring.num) {
        polygons.assign(1, ring);
        return 1;
    }

    std::vector<Strand> strands;
    double sum = 0;
    for (int i = 0; i < ring.num; i++) {
        const int at = (first + i) % ring.num;
        const Point point = ring.get(at), last = ring.get(at - 1); // the last one before the first
        sum += radius(point);
        if (isCut(last, point)) {
            const double from = coneHalf() - std::fabs(coneAngle(last));
            const double to = coneHalf() - std::fabs(coneAngle(point));
            const double t = from + to > 0 ? from / (from + to) : 0;
            const double r = radius(last) + t * (radius(point) - radius(last));
            const int side = coneAngle(point) < 0 ? -1 : 1;
            if (!strands.empty()) {
                strands.back().radius[1] = r;
                strands.back().side[1] = -side;
                strands.back().points.add(conePoint(r, -side * coneHalf()));
            }
            strands.emplace_back();
            strands.back().radius[0] = r;
            strands.back().side[0] = side;
            strands.back().points.add(conePoint(r, side * coneHalf()));
            if (i == 0) { // where the last strand will end
                strands[0].radius[1] = r;
                strands[0].side[1] = -side;
            }
        }
        strands.back().points.add(point);
    }
    Strand& last = strands.back();
    const double r = strands[0].radius[0];
    const int side = -strands[0].side[0];
    last.points.add(conePoint(r, side * coneHalf()));
    last.radius[1] = r;
    last.side[1] = side;

    if (strands.size() % 2 != 0) { // around a pole
        const float near_pole = (domain.proj == 9 ? domain.mult : domain.scale) < 0 ? -90.0f : 90;
        Point pole, equator;
        domain.tran(EarthPoint(near_pole, domain.plon), pole);
        domain.tran(EarthPoint(0, domain.plon), equator);
        if (sum > radius(equator) * ring.num)
            return 0; // such maps leave out the far pole
        Strand arc;   // the near one is a point or an arc
        for (int k = 0; k <= pole_steps; k++)
            arc.points.add(conePoint(radius(pole), coneHalf() * (1 - 2.0 * k / pole_steps)));
        arc.radius[0] = arc.radius[1] = -1;
        arc.side[0] = 1;
        arc.side[1] = -1;
        strands.push_back(arc);
    }

    const int num = static_cast<int>(strands.size());
    std::vector<int> ends(2 * num); // strand and which of its ends, by edge and radius
    for (int i = 0; i < 2 * num; i++)
        ends[i] = i;
    const auto place = [&](int end) {
        const Strand& strand = strands[end / 2];
        return std::make_pair(strand.side[end % 2], strand.radius[end % 2]);
    };
    std::sort(ends.begin(), ends.end(), [&](int x, int y) { return place(x) < place(y); });
    std::vector<int> partner(2 * num);
    for (int i = 0; i + 1 < 2 * num; i += 2) {
        partner[ends[i]] = ends[i + 1];
        partner[ends[i + 1]] = ends[i];
    }
    std::vector<bool> used(num);
    polygons.clear();
    for (int start = 0; start < num; start++) {
        if (used[start])
            continue;
        polygons.emplace_back();
        for (int end = 2 * start; !used[end / 2]; end = partner[end ^ 1]) {
            used[end / 2] = true;
            const Points& points = strands[end / 2].points;
            for (int i = 0; i < points.num; i++)
                polygons.back().add(points.get(end % 2 == 0 ? i : points.num - 1 - i));
        }
    }
    return 1;
}

// Adds a circle around the map, which runs against the ring: what is filled lies between.
void WorldEdge::turnInsideOut(Points& ring) const {
    double outer = domain.proj == 8
                       ? 2 * domain.earth_rad
                       : domain.xfactor * std::tan((last_stereo_lat + 90) / 2 * Const::DRC);
    double turned = 0; // twice the area within, by which way the ring runs
    for (int i = 0; i < ring.num; i++) {
        const Point a = ring.get(i - 1), b = ring.get(i);
        outer = std::max(outer, std::hypot(double(b.x), double(b.y)));
        turned += double(a.x) * b.y - double(b.x) * a.y;
    }
    const Point first = ring.get(0);
    const double start = std::atan2(first.y, first.x);
    const double step = (turned > 0 ? -2 : 2) * Const::PI / outer_steps;
    ring.add(first);
    for (int k = 0; k <= outer_steps; k++)
        ring.add(static_cast<float>(outer * std::cos(start + k * step)),
                 static_cast<float>(outer * std::sin(start + k * step)));
    ring.add(first);
}

int WorldEdge::close(Points& ring) const {
    if (ring.num < 3)
        return 1;
    if (domain.proj != 1 && domain.proj != 8) {
        closeAroundPole(ring);
        return 1;
    }

    const double half = domain.proj == 8 ? std::sqrt(2.0) * domain.earth_rad : domain.xfactor;
    double sum = 0;
    for (int i = 0; i < ring.num; i++)
        sum += std::hypot(double(ring.getX1(i)), double(ring.getY1(i)));
    if (sum <= half * ring.num)
        return 1;
    Points closed = ring;
    closed.add(ring.get(0));
    if (closed.within(Point(0, 0)))
        turnInsideOut(ring);
    return 1;
}

int WorldEdge::limb(const EarthPoint& earth, Point& point) const {
    if (!hasLimb() || !(std::fabs(earth.lat) <= 90) || !(std::fabs(earth.lon) <= 3600))
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

// Where a line goes behind the limb: the last place in sight.
Point WorldEdge::findLimb(EarthPoint seen, EarthPoint hidden) const {
    Point last;
    domain.tran(std::as_const(seen), last);
    // The short way over the date line.
    if (hidden.lon - seen.lon > 180)
        hidden.lon -= 360;
    else if (hidden.lon - seen.lon < -180)
        hidden.lon += 360;
    for (int i = 0; i < limb_steps; i++) {
        const EarthPoint middle((seen.lat + hidden.lat) / 2, (seen.lon + hidden.lon) / 2);
        Point point;
        domain.tran(middle, point);
        if (point.x == Const::MISS) {
            hidden = middle;
        } else {
            seen = middle;
            last = point;
        }
    }
    return last;
}

// Adds what lies between two points on the earth, until it is as smooth on the map as elsewhere.
void WorldEdge::addArc(const EarthPoint& from, const Point& start, const EarthPoint& to,
                       const Point& end, int depth, Points& line) const {
    const double rim = std::sqrt(2.0) * domain.earth_rad;
    if (depth == 0 || start.x == Const::MISS || end.x == Const::MISS ||
        std::hypot(double(start.x) - end.x, double(start.y) - end.y) < arc_step * rim ||
        std::hypot(double(start.x), double(start.y)) < rim)
        return;
    EarthPoint there = to;
    there.lon += to.lon - from.lon > 180 ? -360.0f : to.lon - from.lon < -180 ? 360.0f : 0.0f;
    const EarthPoint middle((from.lat + there.lat) / 2, (from.lon + there.lon) / 2);
    Point point;
    domain.tran(middle, point);
    addArc(from, start, middle, point, depth - 1, line);
    line.add(point);
    addArc(middle, point, there, end, depth - 1, line);
}

// Near the antipode, which is all of the disc's rim, a short way on the earth is a long one.
void WorldEdge::refine(const EarthPoints& earth, Points& line) const {
    Points fine(2 * line.num);
    for (int i = 0; i < line.num; i++) {
        if (i > 0)
            addArc(earth.get(i - 1), line.get(i - 1), earth.get(i), line.get(i), arc_depth, fine);
        fine.add(line.get(i));
    }
    line = fine;
}

void WorldEdge::project(const EarthPoints& earth, Points& line) const {
    domain.tran(earth, line);
    if (domain.proj == 8)
        refine(earth, line);
    if (!hasLimb())
        return;
    const auto isPlace = [&](int i) {
        return earth.getLat1(i) != Const::MISS && earth.getLon1(i) != Const::MISS;
    };
    for (int i = earth.num - 1; i > 0; i--) { // from the end: what is inserted moves the rest
        const bool last_seen = line.getX1(i - 1) != Const::MISS;
        const bool seen = line.getX1(i) != Const::MISS;
        if (last_seen == seen || !isPlace(i) || !isPlace(i - 1))
            continue;
        const EarthPoint before = earth.get(i - 1), after = earth.get(i);
        line.insert(i, last_seen ? findLimb(before, after) : findLimb(after, before));
    }
}

} // namespace ORV
