#include "ORV/Domain.h"
#include "ORV/MapPlot.h"
#include "ORV/Plot.h"
#include "ORV/Points.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace ORV {
namespace {

constexpr float min_spacing = 0.05f; // degrees; finer lines would be a solid fill
constexpr float edge_margin = 0.01f; // of the width of the window: where labels stand
constexpr float lon_step = 1;        // degrees between the points of a parallel
constexpr float lat_step = 2.5f;     // and of a meridian
constexpr float longest_step = 20;   // of those on any map, in plot coordinates

bool isProjected(const Point& point) {
    return point.x != Const::MISS && point.y != Const::MISS;
}

/// Lines of latitude and longitude with their labels, for one plot.
class LatLonLines {
public:
    LatLonLines(Plot& plot, float dlat, float dlon)
        : plot(plot), domain(plot.getDomain()), dlat(dlat), dlon(dlon) {
        plot.graph.getWindow(window);
        const float margin = edge_margin * (window.xmax - window.xmin);
        const bool polar_view = domain.proj == 7 || domain.proj == 10;
        label_x = polar_view ? 0 : window.xmin + margin;
        label_y = polar_view ? 0 : window.ymin + margin;
    }

    void drawParallels() {
        plot.setTextAlign(1, 3);
        for (int i = 1; line(i, dlat, -90) < 90; i++)
            drawParallel(line(i, dlat, -90));
    }

    void drawMeridians() {
        plot.setTextAlign(2, 5);
        const bool both_ends = domain.proj == 2 || domain.proj == 3;
        for (int i = 0; both_ends ? line(i, dlon, -180) <= 180 : line(i, dlon, -180) < 180; i++)
            drawMeridian(line(i, dlon, -180));
    }

private:
    /// Line i of those in equal steps, clear of the rounding of a step such as 0.1, so that zero
    /// and the date line are met.
    static float line(int i, float step, double start) {
        const double at = start + i * static_cast<double>(step);
        const double near = std::round(at);
        return static_cast<float>(std::fabs(at - near) < step / 1000 ? near : at);
    }

    Point project(float lat, float lon) const {
        Point point;
        const EarthPoint earth(lat, lon);
        domain.tran(earth, point);
        return point;
    }

    /// A map that shows so much that labels at its edge don't serve has them inside, too.
    bool isLarge() const {
        const float vert = plot.getVert();
        return (domain.proj == 1 && vert > 90) || (domain.proj == 2 && vert > 90) ||
               (domain.proj == 3 && vert > 140);
    }

    void drawLabel(const Point& point, const char* label) {
        if (isProjected(point))
            plot.drawText(point, label);
    }

    void drawParallel(float lat) {
        char label[20];
        if (lat == 0)
            std::snprintf(label, sizeof label, "EQ");
        else
            std::snprintf(label, sizeof label, "%.0f%c", std::fabs(lat), lat > 0 ? 'N' : 'S');
        if (isLarge()) {
            Point inner = project(lat, domain.plon);
            if (domain.proj != 1)
                inner.x = (window.xmin + window.xmax) / 2;
            drawLabel(inner, label);
        }
        Points run;
        Point before;
        for (float lon = -180; lon <= 180; lon += lon_step) {
            const Point point = project(lat, lon);
            if (!isProjected(point)) {
                drawRun(run);
            } else {
                if (isProjected(before))
                    labelCrossing(before, point, label);
                run.add(point);
            }
            before = point;
        }
        drawRun(run);
    }

    void drawRun(Points& run) {
        if (run.getNum() > 1)
            plot.drawLine(run);
        run.clear();
    }

    /// Whether a step goes from one edge of the world to the other.
    static bool isJump(float from, float to, float width) {
        return std::fabs(to - from) > std::max(width / 2, longest_step);
    }

    /// Labels a parallel where it crosses the column of labels.
    void labelCrossing(const Point& a, const Point& b, const char* label) {
        if (isJump(a.x, b.x, window.xmax - window.xmin))
            return;
        const float t = (label_x - a.x) / (b.x - a.x);
        const float y = a.y + t * (b.y - a.y);
        if (t >= 0 && t < 1 && y > window.ymin && y < window.ymax)
            plot.drawText(Point(label_x, y), label);
    }

    void drawMeridian(float lon) {
        char label[20];
        if (lon == 0)
            std::snprintf(label, sizeof label, "PM");
        else if (std::fabs(lon) == 180)
            std::snprintf(label, sizeof label, "DL");
        else
            std::snprintf(label, sizeof label, "%.0f%c", std::fabs(lon), lon > 0 ? 'E' : 'W');
        if (isLarge()) {
            Point inner = project(domain.plat < 0 ? -45 : 45, lon);
            if (domain.proj != 1)
                inner.y = (window.ymin + window.ymax) / 2;
            drawLabel(inner, label);
        }
        Point before;
        for (float lat = dlat - 90; lat <= 90 - dlat; lat += lat_step) {
            const Point point = project(lat, lon);
            if (isProjected(before) && isProjected(point)) {
                plot.drawLine(before, point);
                labelCrossingRow(before, point, label);
            }
            before = point;
        }
    }

    /// Labels a meridian where it crosses the row of labels.
    void labelCrossingRow(const Point& a, const Point& b, const char* label) {
        if (isJump(a.x, b.x, window.xmax - window.xmin))
            return;
        const float t = (label_y - a.y) / (b.y - a.y);
        const float x = a.x + t * (b.x - a.x);
        if (t >= 0 && t < 1 && x > window.xmin && x < window.xmax)
            plot.drawText(Point(x, label_y), label);
    }

    Plot& plot;
    const Domain& domain;
    float dlat, dlon;
    Rect window;
    float label_x, label_y;
};

} // namespace

int MapPlot::drawLatLon(Plot& plot, float dlat, float dlon) {
    const int proj = plot.getProj();
    if (proj < 1 || proj > 10 || !(dlat >= min_spacing) || !(dlon >= min_spacing))
        return 0;
    LatLonLines lines(plot, dlat, dlon);
    lines.drawParallels();
    lines.drawMeridians();
    return 1;
}

} // namespace ORV
