#include "ORV/Plot.h"
#include "ORV/StrLib.h"

#include "PlotTools.h"
#include "WorldEdge.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <vector>

namespace ORV {

using namespace PlotTools;

namespace {

constexpr int text_size = 101; // for a formatted text
constexpr int circle_step = 5; // degrees

template <class Place>
bool project(const Domain& domain, const Place& place, Point& point) {
    domain.tran(place, point);
    return !isMissing(point);
}

// Draws points as they are, and once more on the other side of the world that they reach, if any.
template <class Draw>
int drawOnSides(const WorldEdge& edge, Points& points, int side, const Draw& draw) {
    int drawn = draw();
    if (side != 0) {
        edge.shift(points, side);
        drawn |= draw();
    }
    return drawn;
}

} // namespace

void PlotTools::copyPart(const Points& from, int start, int n, Points& to) {
    to.clear();
    if (to.max < n)
        to.expand(n);
    std::copy_n(from.x + start, n, static_cast<float*>(to.x));
    std::copy_n(from.y + start, n, static_cast<float*>(to.y));
    to.num = n;
}

int Plot::drawLine(float x1, float y1, float x2, float y2) {
    return drawLine(Point(x1, y1), Point(x2, y2));
}

int Plot::drawLine(const Point& a, const Point& b) {
    if (isOff(line_ind) || isMissing(a) || isMissing(b))
        return 0;
    if (graph.cur_tran != map_tran)
        return graph.drawLine(a.x, a.y, b.x, b.y);

    const WorldEdge edge(getDomain());
    if (edge.parts(a, b))
        return 0;
    Point start = a, end = b;
    const int side = edge.wrap(start, end);
    const bool cut = edge.cutsAlways() || (side != 0 && edge.cutsWrapped());
    const auto draw = [&](Point from, Point to) {
        return cut && !edge.crop(from, to) ? 0 : graph.drawLine(from.x, from.y, to.x, to.y);
    };
    int drawn = draw(start, end);
    if (side != 0) {
        edge.shift(start, end, side);
        drawn |= draw(start, end);
    }
    return drawn;
}

int Plot::drawLine(const EarthPoint& a, const EarthPoint& b) {
    Point start, end;
    return project(getDomain(), a, start) && project(getDomain(), b, end) ? drawLine(start, end)
                                                                          : 0;
}

int Plot::drawLine(const GridPoint& a, const GridPoint& b) {
    Point start, end;
    return project(getDomain(), a, start) && project(getDomain(), b, end) ? drawLine(start, end)
                                                                          : 0;
}

int Plot::drawLine(const Points& points) {
    if (isOff(line_ind))
        return 0;
    return graph.cur_tran == map_tran ? drawPieces(points) : graph.drawLine(points);
}

int Plot::drawLine(const EarthPoints& earth) {
    if (isOff(line_ind))
        return 0;
    WorldEdge(getDomain()).project(earth, earth_points);
    return drawLine(earth_points);
}

// Each piece between missing points is a line of its own: wrapped together, a missing point would
// count as a place beyond the edge of the world. A line that goes on around the world goes on from
// its last point.
int Plot::drawPieces(const Points& points) {
    const WorldEdge edge(getDomain());
    int drawn = 0;
    for (int start = 0; start < points.num;) {
        if (isMissing(points, start)) {
            start++;
            continue;
        }
        int turns = 0;
        bool goes_on = false;
        int end = start + 1;
        for (; end < points.num && !isMissing(points, end) && !goes_on; end++) {
            const Point from(points.getX1(end - 1), points.getY1(end - 1));
            const Point to(points.getX1(end), points.getY1(end));
            if (edge.parts(from, to))
                break;
            goes_on = edge.isSecondTurn(from, to, turns);
            if (goes_on)
                break;
        }
        if (end - start >= 2) {
            copyPart(points, start, end - start, run_points);
            drawn |= drawSides(run_points, edge.wrap(run_points));
        }
        start = goes_on && end - start >= 2 ? end - 1 : end;
    }
    return drawn;
}

// Draws a line made whole.
int Plot::drawSides(Points& run, int side) {
    const WorldEdge edge(getDomain());
    const bool cut = edge.cutsAlways() || (side != 0 && edge.cutsWrapped());
    const auto draw = [&] {
        return cut && edge.isBeyond(run) ? drawCropped(run) : graph.drawLine(run);
    };
    return drawOnSides(edge, run, side, draw);
}

int Plot::drawCropped(const Points& run) {
    WorldEdge(getDomain()).crop(run, crop_points);
    int drawn = 0;
    for (int start = 0; start < crop_points.num; start++) {
        const int end = nextMissing(crop_points, start);
        if (end - start >= 2) {
            copyPart(crop_points, start, end - start, piece_points);
            drawn |= graph.drawLine(piece_points);
        }
        start = end;
    }
    return drawn;
}

int Plot::drawRect(float x1, float y1, float x2, float y2) {
    return isOff(line_ind) ? 0 : graph.drawRect(x1, y1, x2, y2);
}

int Plot::drawRect(const Rect& rect) {
    return drawRect(rect.xmin, rect.ymin, rect.xmax, rect.ymax);
}

int Plot::drawCircle(const Point& center, float radius) {
    return isOff(line_ind) || isMissing(center) ? 0 : graph.drawCircle(center.x, center.y, radius);
}

int Plot::drawCircle(const EarthPoint& center, float radius) {
    if (isOff(line_ind))
        return 0;
    Points circle(360 / circle_step + 1);
    for (int bearing = 0; bearing <= 360; bearing += circle_step) {
        EarthPoint place;
        Point point;
        Domain::offsetLatLon(center, static_cast<float>(bearing), radius, place);
        getDomain().tran(place, point);
        circle.add1(point);
    }
    return drawLine(circle);
}

int Plot::drawFill(const Points& points) {
    if (isOff(fill_ind))
        return 0;
    if (graph.cur_tran != map_tran)
        return graph.drawFill(points);
    run_points.clear();
    for (int i = 0; i < points.num; i++)
        if (!isMissing(points, i))
            run_points.add(points.getX1(i), points.getY1(i));
    return drawPolygon(run_points);
}

int Plot::drawFill(const EarthPoints& earth) {
    if (isOff(fill_ind))
        return 0;
    const WorldEdge edge(getDomain());
    if (getProj() == 8 && graph.cur_tran == map_tran) {
        edge.project(earth, earth_points);
        return drawFill(earth_points);
    }
    getDomain().tran(earth, earth_points);
    if (graph.cur_tran != map_tran)
        return graph.drawFill(earth_points);

    // What is hidden behind the limb is drawn along it, since a straight line from the last point
    // in sight to the next one would cut through the map.
    bool in_sight = false;
    run_points.clear();
    for (int i = 0; i < earth_points.num; i++) {
        Point point(earth_points.getX1(i), earth_points.getY1(i));
        if (!isMissing(point))
            in_sight = true;
        else if (!edge.limb(earth.get(i), point))
            continue;
        run_points.add(point);
    }
    return in_sight ? drawPolygon(run_points) : 0;
}

int Plot::drawPolygon(Points& polygon) {
    if (polygon.num < 2)
        return 0;
    const Domain& domain = getDomain();
    const WorldEdge edge(domain);
    if (edge.isCone()) {
        std::vector<Points> polygons;
        int drawn = 0;
        if (edge.splitOnCone(polygon, polygons))
            for (const Points& piece : polygons)
                drawn |= graph.drawFill(piece);
        return drawn;
    }
    const int side = edge.wrap(polygon);
    if (!edge.close(polygon))
        return 0;
    const auto draw = [&] {
        if (domain.proj != 7 || !edge.isBeyond(polygon))
            return graph.drawFill(polygon);
        copyPart(polygon, 0, polygon.num, crop_points);
        edge.clamp(crop_points);
        return graph.drawFill(crop_points);
    };
    return drawOnSides(edge, polygon, side, draw);
}

int Plot::drawFill(const Rect& rect) {
    return isOff(fill_ind) ? 0 : graph.drawFill(rect);
}

int Plot::drawText(float x, float y, const char* text) {
    return drawText(Point(x, y), text);
}

int Plot::drawText(const Point& point, const char* text) {
    if (isOff(text_ind) || isMissing(point) || !StrLib::valid(text))
        return 0;
    return graph.drawText(point.x, point.y, text);
}

int Plot::drawText(const EarthPoint& earth, const char* text) {
    Point point;
    return project(getDomain(), earth, point) ? drawText(point, text) : 0;
}

int Plot::drawText(const GridPoint& grid, const char* text) {
    Point point;
    return project(getDomain(), grid, point) ? drawText(point, text) : 0;
}

int Plot::drawFormText(const Point& point, const char* format, ...) {
    char text[text_size];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    return drawText(point, text);
}

int Plot::drawFormText(const EarthPoint& earth, const char* format, ...) {
    char text[text_size];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    return drawText(earth, text);
}

int Plot::drawMark(float x, float y) {
    return drawMark(Point(x, y));
}

int Plot::drawMark(const Point& point) {
    return isOff(mark_ind) || isMissing(point) ? 0 : graph.drawMark(point.x, point.y);
}

int Plot::drawMark(const EarthPoint& earth) {
    Point point;
    return project(getDomain(), earth, point) ? drawMark(point) : 0;
}

int Plot::drawMark(const GridPoint& grid) {
    Point point;
    return project(getDomain(), grid, point) ? drawMark(point) : 0;
}

int Plot::clearRect(const Rect& rect) {
    return graph.clearRect(rect);
}

} // namespace ORV
