#include "ORV/Plot.h"
#include "ORV/Spline.h"

#include "PlotTools.h"
#include "WorldEdge.h"

namespace ORV {

using namespace PlotTools;

namespace {

constexpr int samples_per_point = 4;

// The smooth curve through a run of points.
Points sample(const Points& run) {
    Points curve(samples_per_point * run.num + 1);
    const Spline spline(run, 2);
    const float length = spline.getDist();
    const int steps = length > 0 ? samples_per_point * run.num : 0;
    for (int i = 0; i < steps; i++)
        curve.add1(spline.getPoint(length * i / steps));
    if (steps > 0)
        curve.add1(spline.getPoint(length));
    return curve;
}

} // namespace

int Plot::drawSpline(const Points& points) {
    if (isOff(line_ind))
        return 0;
    const bool on_map = graph.getTran() == map_tran;
    int drawn = 0;
    for (int start = 0; start < points.num; start++) {
        const int end = nextMissing(points, start);
        if (end - start >= 2) {
            copyPart(points, start, end - start, run_points);
            // Made whole before it is curved, so that it is one curve over the edge of the world.
            const int side = on_map ? WorldEdge(getDomain()).wrap(run_points) : 0;
            Points curve = sample(run_points);
            drawn |= on_map ? drawSides(curve, side) : graph.drawLine(curve);
        }
        start = end;
    }
    return drawn;
}

int Plot::drawSpline(const EarthPoints& earth) {
    Points points;
    getDomain().tran(earth, points);
    return drawSpline(points);
}

} // namespace ORV
