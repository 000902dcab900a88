#include "ORV/GTran.h"

#include <algorithm>
#include <cmath>

namespace ORV {
namespace {
Rect toRect(const Coords& c) {
    Rect rect;
    rect.setu(c.x1, c.y1, c.x2, c.y2);
    return rect;
}
} // namespace

int GTran::set(Rect surface) {
    plot.set(surface.xmin, surface.ymin, surface.xmax, surface.ymax);
    const float width = plot.dx;
    const float height = std::fabs(plot.dy);
    const float longer = std::max(width, height);
    const float nx = longer > 0 && width <= height ? width / height : 1;
    const float ny = longer > 0 && width > height ? height / width : 1;
    ndc.set(0, 0, nx, ny);
    viewport = ndc;
    window = ndc;
    scale.set(1, 1);
    plot_scale.set(plot.dx / nx, plot.dy / ny);
    return 1;
}

void GTran::setScale() {
    scale.set(viewport.dx / window.dx, viewport.dy / window.dy);
}

int GTran::setWindow(Rect area) {
    window.set(area.xmin, area.ymin, area.xmax, area.ymax);
    setScale();
    return 1;
}

int GTran::setViewport(Rect area) {
    viewport.set(area.xmin, area.ymin, area.xmax, area.ymax);
    setScale();
    return 1;
}

Rect GTran::getWindow() const {
    return toRect(window);
}

Rect GTran::getViewport() const {
    return toRect(viewport);
}

Rect GTran::getMaxViewport() const {
    return toRect(ndc);
}

void GTran::windowToDevice(const Points& points, Points& result) const {
    const int n = points.num;
    if (result.max < n)
        result.init(n + n / 2);
    const float *px = points.x, *py = points.y;
    float *rx = result.x, *ry = result.y;
    for (int i = 0; i < n; i++) {
        rx[i] = windowToDeviceX(px[i]);
        ry[i] = windowToDeviceY(py[i]);
    }
    result.num = n;
}

float GTran::tranWindowX(const GTran& a, const GTran& b, float x) {
    return ((x - a.window.x1) * a.viewport.dx / a.window.dx + a.viewport.x1 - b.viewport.x1) /
               b.viewport.dx * b.window.dx +
           b.window.x1;
}

float GTran::tranWindowY(const GTran& a, const GTran& b, float y) {
    return ((y - a.window.y1) * a.viewport.dy / a.window.dy + a.viewport.y1 - b.viewport.y1) /
               b.viewport.dy * b.window.dy +
           b.window.y1;
}

Rect GTran::getClipRect() const {
    return Rect(ndcToDeviceX(viewport.x1), ndcToDeviceY(viewport.y2), ndcToDeviceX(viewport.x2),
                ndcToDeviceY(viewport.y1));
}

bool GTran::isPointsInWindow(const Points& points) const {
    if (points.num < 1)
        return false;
    const auto [left, right] = std::minmax_element(&points.x[0], &points.x[0] + points.num);
    const auto [low, high] = std::minmax_element(&points.y[0], &points.y[0] + points.num);
    const auto [x1, x2] = std::minmax(window.x1, window.x2);
    const auto [y1, y2] = std::minmax(window.y1, window.y2);
    return !(*right < x1 || *left > x2 || *high < y1 || *low > y2);
}

} // namespace ORV
