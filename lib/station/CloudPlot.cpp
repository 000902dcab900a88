#include "ORV/CloudPlot.h"

#include "ORV/Const.h"
#include "ORV/Plot.h"
#include "ORV/Points.h"

#include <cmath>

namespace ORV {
namespace {

/// What a cover adds to the circle: arcs to fill and lines through it, angles in degrees
/// counter-clockwise from the right. A part of no extent (begin equal to end) is absent.
struct Arc {
    int begin, end;
    bool to_centre; // the arc is closed through the centre, not by its chord
    int inset; // degrees that the two ends are moved in: the arc's end points lie between steps
};
struct Line {
    int begin, end; // angles of its ends on the circle
    bool from_centre;
};
struct Cover {
    const char* codes;
    Arc arcs[2];
    Line lines[2];
};

constexpr Arc no_arc = {0, 0, false, 0};
constexpr Line no_line = {0, 0, false};
constexpr Cover covers[] = {
    {"0Cbosx", {no_arc, no_arc}, {no_line, no_line}},
    {"1F", {no_arc, no_arc}, {{90, 270, false}, no_line}},
    {"2S", {{0, 90, true, 0}, no_arc}, {no_line, no_line}},
    {"3", {{0, 90, true, 0}, no_arc}, {{0, 270, true}, no_line}},
    {"4", {{-90, 90, false, 0}, no_arc}, {no_line, no_line}},
    {"5", {{-90, 90, false, 0}, no_arc}, {{0, 180, true}, no_line}},
    {"6B", {{-180, 90, true, 0}, no_arc}, {no_line, no_line}},
    {"7", {{-90, 90, false, 15}, {90, 270, false, 15}}, {no_line, no_line}},
    {"8O", {{0, 360, false, 0}, no_arc}, {no_line, no_line}},
    {"9X", {no_arc, no_arc}, {{45, 225, false}, {135, 315, false}}},
};

constexpr int arc_step = 30; // degrees

class Circle {
public:
    Circle(Plot& plot, const Point& centre, float radius)
        : plot(plot), centre(centre), radius(radius) {}

    void drawOutline() const {
        Points outline;
        addArc(outline, 0, 360);
        plot.drawLine(outline);
    }

    void fill(const Arc& arc) const {
        if (arc.begin == arc.end)
            return;
        Points points;
        if (arc.inset > 0)
            points.add(at(arc.begin + arc.inset));
        addArc(points, arc.begin + 2 * arc.inset, arc.end - 2 * arc.inset);
        if (arc.inset > 0)
            points.add(at(arc.end - arc.inset));
        if (arc.to_centre)
            points.add(centre);
        points.add(at(arc.begin + arc.inset));
        plot.drawFill(points);
    }

    void drawLine(const Line& line) const {
        if (line.begin == line.end)
            return;
        Points points;
        points.add(line.from_centre ? centre : at(line.begin));
        points.add(at(line.end));
        plot.drawLine(points);
    }

    void drawMissing() const {
        const float d = 0.7f * radius;
        Points points;
        points.add(Point(centre.x - d, centre.y - d));
        points.add(Point(centre.x - d, centre.y + d));
        points.add(centre);
        points.add(Point(centre.x + d, centre.y + d));
        points.add(Point(centre.x + d, centre.y - d));
        plot.drawLine(points);
    }

private:
    Point at(int degrees) const {
        const double angle = degrees * Const::DRC;
        return Point(centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle));
    }

    void addArc(Points& points, int begin, int end) const {
        for (int degrees = begin; degrees <= end; degrees += arc_step)
            points.add(at(degrees));
    }

    Plot& plot;
    Point centre;
    float radius;
};

const Cover* findCover(char code) {
    for (const Cover& cover : covers)
        for (const char* c = cover.codes; *c; c++)
            if (*c == code)
                return &cover;
    return nullptr;
}

} // namespace

int CloudPlot::draw(Plot& plot, const Point& point, float size, char code) {
    const Circle circle(plot, point, size);
    circle.drawOutline();
    const Cover* cover = findCover(code);
    if (!cover) {
        circle.drawMissing();
        return 1;
    }
    plot.setFillStyle(0);
    for (const Arc& arc : cover->arcs)
        circle.fill(arc);
    for (const Line& line : cover->lines)
        circle.drawLine(line);
    return 1;
}

} // namespace ORV
