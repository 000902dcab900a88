#include "ORV/Panel.h"

#include <algorithm>

namespace ORV {

int Panel::init() {
    *this = Panel();
    return 1;
}

int Panel::setLimits(const Rect& rect) {
    limits = rect;
    return 1;
}

int Panel::setLimits(int x1, int y1, int x2, int y2) {
    return limits.set(static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2),
                      static_cast<float>(y2));
}

bool Panel::withinLimits(float x, float y) const {
    return x >= limits.xmin && x <= limits.xmax && y >= limits.ymin && y <= limits.ymax;
}

int Panel::getView(const Point& in, Point& out) const {
    const float size = std::max(limits.xmax - limits.xmin, limits.ymax - limits.ymin);
    if (!(size > 0))
        return 0;
    return out.set((in.x - limits.xmin) / size, (in.y - limits.ymin) / size);
}

int Panel::getWindow(const Point& in, Point& out) const {
    Point at;
    const float width = view.xmax - view.xmin;
    const float height = view.ymax - view.ymin;
    if (!getView(in, at) || !(width > 0) || !(height > 0))
        return 0;
    const Rect& window = domain.limits;
    return out.set((window.xmax - window.xmin) * (at.x - view.xmin) / width + window.xmin,
                   (window.ymax - window.ymin) * (at.y - view.ymin) / height + window.ymin);
}

} // namespace ORV
