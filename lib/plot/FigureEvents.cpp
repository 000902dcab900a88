#include "ORV/Drawing.h"
#include "ORV/Figure.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

namespace ORV {
namespace {

constexpr int key_length = 5; // "z-Alt"; what follows are other modifiers and the position
constexpr int change_level = 6;

bool isKey(const char* data, const char* key) {
    return StrLib::equal(data, key, key_length);
}

} // namespace

// Zooms by a factor around the pointer, or with a factor of 0 moves what is there to the middle.
int Figure::moveDomain(const char* data, int pos, float factor) {
    int x, y;
    float wx, wy;
    if (StrLib::length(data) <= pos || Scan::text(data + pos, "%d:%d", &x, &y) != 2 ||
        !plot.tranPlotWindow(static_cast<float>(x), static_cast<float>(y), wx, wy))
        return 0;
    Domain dom;
    plot.getPanelDomain(0, dom);
    const Point point(wx, wy);
    if (factor > 0)
        dom.zoom(point, factor);
    else
        dom.pan(point);
    plot.setPanelDomain(0, dom);
    if (Orv::checkMessage(change_level)) {
        Orv::outMessage(change_level, "New domain: ");
        dom.print();
    }
    return draw();
}

int Figure::lookForData() {
    Date now;
    now.setCurrent();
    if (refresh < 2 || now.getSeconds() < refresh + static_cast<long>(last_refresh))
        return 0;
    if (findData(now, false))
        updateLoop(now);
    last_refresh += refresh;
    return 1;
}

void Figure::callback(const char* type, const char* data, const void*) {
    if (StrLib::equal(type, "Redraw")) {
        draw();
    } else if (isKey(data, "r-Alt")) {
        draw();
    } else if (isKey(data, "z-Alt")) {
        moveDomain(data, 6, 2);
    } else if (isKey(data, "Z-Alt")) {
        moveDomain(data, 11, 0.5f);
    } else if (isKey(data, "p-Alt")) {
        moveDomain(data, 6, 0);
    } else if (isKey(data, "u-Alt")) {
        plot.setPanelDomain(0, domain);
        draw();
    } else if (StrLib::equal(type, "Idle")) {
        lookForData();
    }
}

} // namespace ORV
