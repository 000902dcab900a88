#include "ORV/WindPlot.h"

#include "ORV/Calc.h"
#include "ORV/Const.h"
#include "ORV/Plot.h"
#include "ORV/Points.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <initializer_list>

namespace ORV {
namespace {

constexpr float max_speed = 300; // knots; six pennants
constexpr float rounding = 2;    // knots; with it a speed counts as the nearest 5
constexpr float spacing = 0.12f; // between barbs, as a fraction of the staff
constexpr int max_ticks = 1000;  // of a track; more would be a solid bar

bool isCalm(const Wind& wind) {
    return wind.dir == Const::MISS || wind.spd == Const::MISS || wind.spd == 0;
}

void drawStroke(Plot& plot, std::initializer_list<Point> stroke) {
    Points points;
    for (const Point& point : stroke)
        points.add(point);
    plot.drawLine(points);
}

/// Draws a glyph, with a drop shadow once with and once without it, so that no stroke's shadow
/// falls onto another stroke.
template <class Glyph>
void drawShadowed(Plot& plot, const Glyph& glyph) {
    const int shadow = plot.graph.drop_shadow;
    if (shadow > 0) {
        glyph();
        plot.graph.setDropShadow(0);
    }
    glyph();
    plot.graph.setDropShadow(shadow);
}

/// The staff of a barb: a line from a point into the wind, and the direction across it.
class Staff {
public:
    Staff(const Point& point, float dir, float length)
        : x(point.x), y(point.y), length(length), s(std::sin(dir * Const::DRC)),
          c(std::cos(dir * Const::DRC)) {}

    /// The point at a fraction along the staff, and a distance across it.
    Point at(double fraction, double across = 0) const {
        return Point(x + fraction * length * s + across * c,
                     y + fraction * length * c - across * s);
    }

private:
    double x, y, length, s, c;
};

/// The strokes that a speed is made of.
struct BarbCount {
    explicit BarbCount(float spd)
        : pennants(std::floor((spd + rounding) / 50)),
          full(std::floor((spd - 50 * pennants + rounding) / 10)),
          half(static_cast<int>(std::floor((spd - 50 * pennants + rounding) / 5)) % 2) {}

    int pennants, full, half;
};

void drawPennants(Plot& plot, const Staff& staff, int count, double across) {
    if (count > 0)
        plot.setFillStyle(0);
    for (int i = 0; i < count; i++) {
        const double back = i * spacing;
        Points pennant;
        pennant.add(staff.at(1 - back));
        pennant.add(staff.at(1 - back, across));
        pennant.add(staff.at(1 - spacing - back));
        pennant.add(staff.at(1 - back));
        plot.drawFill(pennant);
    }
}

void drawStrokes(Plot& plot, const Staff& staff, const BarbCount& count, double across) {
    drawPennants(plot, staff, count.pennants, across);
    if (count.pennants == 0 && count.full == 0) {
        // A lone half barb stands away from the tip, or it would read as a full one.
        if (count.half == 1)
            drawStroke(plot, {staff.at(0.88), staff.at(0.94, across / 2)});
        return;
    }
    const int first = count.pennants == 0 ? -1 : count.pennants;
    for (int k = first; k < first + count.full; k++)
        drawStroke(plot, {staff.at(0.88 - k * spacing), staff.at(1 - k * spacing, across)});
    if (count.half == 1) {
        const double back = (first + count.full) * spacing;
        drawStroke(plot, {staff.at(0.88 - back), staff.at(0.94 - back, across / 2)});
    }
}

void drawTick(Plot& plot, const Point& point, const Vect& way, double distance,
              double half_length) {
    const double x = point.x + distance * way.u;
    const double y = point.y + distance * way.v;
    drawStroke(plot, {Point(x - half_length * way.v, y + half_length * way.u),
                      Point(x + half_length * way.v, y - half_length * way.u)});
}

} // namespace

int WindPlot::drawBarb(Plot& plot, const Point& point, Wind& wind, float length, float start) {
    if (isCalm(wind))
        return 0;
    const double side = (wind.spd < 0 ? -1 : 1) * (length < 0 ? -1 : 1);
    // The small addition lifts a speed that float holds just below a step over it.
    wind.spd = std::min(std::fabs(wind.spd), max_speed) + 0.01f;

    const double size = std::fabs(length);
    const Staff staff(point, wind.dir, size);
    const BarbCount count(wind.spd);
    drawShadowed(plot, [&] {
        drawStrokes(plot, staff, count, side * size * 0.5);
        drawStroke(plot, {staff.at(size > 0 ? start / size : 0), staff.at(1)});
    });
    return 1;
}

int WindPlot::drawBarbMap(Plot& plot, const Point& point, Wind& wind, float length, float start) {
    wind.dir = plot.getDomain().adjustDir(wind.dir, point);
    return drawBarb(plot, point, wind, length, start);
}

int WindPlot::drawVect(Plot& plot, const Point& point, const Wind& wind, float length, float head) {
    if (isCalm(wind))
        return 0;
    Vect way = wind.toVect();
    if (head < 0)
        way.scale(1 / wind.spd);
    const double k = length == 0 ? 1 : length;
    const Point tip(point.x + length * way.u, point.y + length * way.v);
    const double back = k * (head < 0 ? 1 : head) * 0.2;
    const double across = k * std::fabs(head) * 0.2;

    drawShadowed(plot, [&] {
        drawStroke(plot, {point, tip});
        if (head != 0) {
            drawStroke(plot, {tip, Point(tip.x - back * way.u + across * way.v,
                                         tip.y - back * way.v - across * way.u)});
            drawStroke(plot, {tip, Point(tip.x - back * way.u - across * way.v,
                                         tip.y - back * way.v + across * way.u)});
        }
        if (head < 0) {
            char speed[20];
            std::snprintf(speed, sizeof speed, "%.0f", wind.spd);
            plot.setTextExpansion(1);
            plot.drawText(Point(point.x + 1.3 * k * way.u, point.y + 1.3 * k * way.v), speed);
        }
    });
    return 1;
}

int WindPlot::drawVectMap(Plot& plot, const Point& point, Wind& wind, float length, float head) {
    wind.dir = plot.getDomain().adjustDir(wind.dir, point);
    return drawVect(plot, point, wind, length, head);
}

int WindPlot::drawTrack(Plot& plot, const Point& point, const Wind& wind, float size, float head,
                        int hours, int marks) {
    if (isCalm(wind))
        return 0;
    const double angle = wind.dir * Const::DRC;
    const Vect way(-std::sin(angle), -std::cos(angle));
    const Point tip(point.x + wind.spd * way.u, point.y + wind.spd * way.v);
    drawStroke(plot, {point, tip});

    for (int i = 1; i < std::min(hours, max_ticks); i++)
        drawTick(plot, point, way, i * static_cast<double>(wind.spd) / hours, size * 0.2);
    const int parts = std::clamp(marks, 0, max_ticks) + 1;
    const int ticks = std::clamp(hours, 0, max_ticks) * parts;
    for (int i = 0; i < std::min(ticks, max_ticks); i++)
        if (i % parts != 0)
            drawTick(plot, point, way, i * static_cast<double>(wind.spd) / ticks, size * 0.1);

    if (head > 0) {
        const double back = size * 0.2;
        const double across = size * head * 0.2;
        drawStroke(plot, {tip, Point(tip.x - back * way.u + across * way.v,
                                     tip.y - back * way.v - across * way.u)});
        drawStroke(plot, {tip, Point(tip.x - back * way.u - across * way.v,
                                     tip.y - back * way.v + across * way.u)});
    }
    return 1;
}

} // namespace ORV
