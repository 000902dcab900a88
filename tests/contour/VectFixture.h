#pragma once

#include "ORV/Domain.h"
#include "ORV/VectPlot.h"

#include "GridFixture.h"

#include <functional>

namespace ORV {

class VectTest : public GridPlotTest {
protected:
    using Flow = std::function<Point(const Point& at)>;
    /// Fills u and v by a function of the plot's coordinates.
    void makeWind(const char* domain, const Flow& flow) {
        for (Grid* grid : {&u, &v}) {
            grid->setDomain(Domain(domain));
            grid->allocData();
        }
        for (int j = 0; j < u.ny; j++)
            for (int i = 0; i < u.nx; i++) {
                Point at;
                u.tran(GridPoint(i, j), at);
                const Point wind = flow(at);
                u.setValue(i, j, wind.x);
                v.setValue(i, j, wind.y);
            }
    }
    /// The plot of a domain, with room around it: a graph drops strokes that are out of sight.
    void showWide(const char* domain) {
        show(domain);
        Rect window = plot.graph.getWindow(1);
        const float room_x = 2 + 0.3f * (window.xmax - window.xmin);
        const float room_y = 2 + 0.3f * (window.ymax - window.ymin);
        window.set(window.xmin - room_x, window.ymin - room_y, window.xmax + room_x,
                   window.ymax + room_y);
        plot.graph.setWindow(1, window);
    }
    /// A wind on the plot of its own domain.
    void showWind(const std::string& domain, const Flow& flow) {
        makeWind(domain.c_str(), flow);
        showWide(domain.c_str());
    }

    /// An arrow is a shaft and two strokes of its head, from its tip.
    std::vector<Shape> shafts() {
        const std::vector<Shape> strokes = lines();
        std::vector<Shape> found;
        for (size_t i = 0; i + 2 < strokes.size(); i++)
            if (meet(strokes[i][1], strokes[i + 1][0]) && meet(strokes[i][1], strokes[i + 2][0])) {
                found.push_back(strokes[i]);
                i += 2;
            }
        return found;
    }
    static double length(const Shape& stroke) {
        return std::hypot(stroke[1].x - stroke[0].x, stroke[1].y - stroke[0].y);
    }
    /// The pieces of streamlines, without arrow heads. Those begin with a stroke of no length.
    std::vector<Shape> steps() {
        const std::vector<Shape> strokes = lines();
        std::vector<Shape> found;
        for (size_t i = 0; i < strokes.size(); i++)
            if (isHead(strokes[i]))
                i += 2;
            else
                found.push_back(strokes[i]);
        return found;
    }
    /// Where arrow heads are.
    std::vector<Point> heads() {
        std::vector<Point> found;
        for (const Shape& stroke : lines())
            if (isHead(stroke))
                found.push_back(stroke[0]);
        return found;
    }

    Grid u, v;
    VectPlot vect;

private:
    static bool meet(const Point& a, const Point& b) {
        return std::hypot(a.x - b.x, a.y - b.y) < 0.02;
    }
    static bool isHead(const Shape& stroke) { return length(stroke) < 0.01; }
};

} // namespace ORV
