#include "ORV/Graph.h"

#include <algorithm>

namespace ORV {

int Graph::setTran(int n) {
    if (!isTran(n))
        return 0;
    cur_tran = n;
    return 1;
}

int Graph::activateTran() {
    return device ? device->setClip(cur().getClipRect()) : 0;
}

int Graph::activateTran(int n) {
    return setTran(n) ? activateTran() : 0;
}

int Graph::setWindow(const Rect& area) {
    return cur().setWindow(area);
}

int Graph::setWindow(int n, const Rect& area) {
    return isTran(n) ? tran[n].setWindow(area) : 0;
}

Rect Graph::getWindow() const {
    return cur().getWindow();
}

Rect Graph::getWindow(int n) const {
    return isTran(n) ? tran[n].getWindow() : Rect();
}

int Graph::getWindow(Rect& area) const {
    return getWindow(cur_tran, area);
}

int Graph::getWindow(int n, Rect& area) const {
    area = getWindow(n);
    return isTran(n);
}

int Graph::setViewport(const Rect& area) {
    return cur().setViewport(area);
}

int Graph::setViewport(int n, const Rect& area) {
    return isTran(n) ? tran[n].setViewport(area) : 0;
}

Rect Graph::getViewport() const {
    return cur().getViewport();
}

Rect Graph::getViewport(int n) const {
    return isTran(n) ? tran[n].getViewport() : Rect();
}

int Graph::getViewport(Rect& area) const {
    return getViewport(cur_tran, area);
}

int Graph::getViewport(int n, Rect& area) const {
    area = getViewport(n);
    return isTran(n);
}

Rect Graph::getMaxViewport() const {
    return cur().getMaxViewport();
}

Rect Graph::getMaxViewport(int n) const {
    return isTran(n) ? tran[n].getMaxViewport() : Rect();
}

int Graph::getMaxViewport(Rect& area) const {
    return getMaxViewport(cur_tran, area);
}

int Graph::getMaxViewport(int n, Rect& area) const {
    area = getMaxViewport(n);
    return isTran(n);
}

Rect Graph::getDeviceViewport() {
    return device ? device->getClip() : Rect();
}

int Graph::getDeviceViewport(Rect& area) {
    area = getDeviceViewport();
    return device != nullptr;
}

namespace {
// Places an extent at the low end (1), the high end (3) or the middle of an interval.
void place(float& low, float& high, float extent, int align) {
    const float rest = high - low - extent;
    if (align == 1)
        high = low + extent;
    else if (align == 3)
        low = high - extent;
    else {
        low += rest * 0.5f;
        high -= rest * 0.5f;
    }
}
} // namespace

int Graph::setViewportAspect(const Rect& limits, float aspect, int halign, int valign) {
    const Coords& ndc = cur().ndc;
    Rect view;
    view.setu(limits.xmin < 0 ? ndc.x1 - limits.xmin : limits.xmin,
              limits.ymin < 0 ? ndc.y1 - limits.ymin : limits.ymin,
              limits.xmax < 0 ? ndc.x2 + limits.xmax : limits.xmax,
              limits.ymax < 0 ? ndc.y2 + limits.ymax : limits.ymax);
    const float dx = view.xmax - view.xmin;
    const float dy = view.ymax - view.ymin;
    const float ratio = aspect == 0 ? dx / dy : aspect;
    const bool narrow = ratio / dx * dy < 1;
    place(view.xmin, view.xmax, narrow ? ratio * dy : dx, halign);
    place(view.ymin, view.ymax, narrow ? dy : dx / ratio, valign);
    return setViewport(view);
}

int Graph::tranPlotView(float x, float y, float& view_x, float& view_y) const {
    view_x = cur().deviceToNdcX(x);
    view_y = cur().deviceToNdcY(y);
    return 1;
}

int Graph::tranPlotWindow(float x, float y, float& window_x, float& window_y) const {
    window_x = cur().deviceToWindowX(x);
    window_y = cur().deviceToWindowY(y);
    return 1;
}

int Graph::tranWindow(int from, float x, float y, int to, float& to_x, float& to_y) const {
    if (!isTran(from) || !isTran(to))
        return 0;
    to_x = tran[to].deviceToWindowX(tran[from].windowToDeviceX(x));
    to_y = tran[to].deviceToWindowY(tran[from].windowToDeviceY(y));
    return 1;
}

} // namespace ORV
