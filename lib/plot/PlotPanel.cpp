#include "ORV/Plot.h"
#include "ORV/Scan.h"
#include "ORV/Strings.h"

#include "PlotTools.h"

#include <algorithm>
#include <cmath>

namespace ORV {

using PlotTools::map_tran;

namespace {

constexpr int max_cells = 8;    // columns or rows of panels
constexpr float margin = 0.04f; // for labels, of the height of a panel, at each end

const Rect map_place(0, margin, 1, 1 - margin); // what a map takes of its panel

Rect toRect(const GeomBox& box) {
    return Rect(box.x, box.y, box.x + box.width, box.y + box.height);
}

} // namespace

int Plot::initPanel() {
    Rect whole(0, 0, 1, 1);
    GeomBox box;
    if (*panel_text && decodePanelStr(whole, panel_text, box))
        whole = toRect(box);
    cur_panel = 0;
    num_panels = 1;

    const Rect surface = graph.getMaxViewport();
    graph.setViewport(0, surface);
    graph.setWindow(0, surface);
    graph.setWindow(surface);
    getPanel().setLimits(whole);
    getPanel().view = surface;
    viewports[cur_panel] = surface;
    return graph.activateTran();
}

// The domain's limits become the window of the map.
int Plot::setPanelWindow() {
    graph.setWindow(getDomain().limits);
    return graph.activateTran();
}

int Plot::setPanel(const Rect& rect, float aspect, int halign, int valign) {
    Panel& panel = getPanel();
    const Rect surface = graph.getMaxViewport();
    const float width = surface.xmax - surface.xmin;
    const float height = surface.ymax - surface.ymin;
    panel.offset = rect;
    panel.view = surface;
    const bool sized = rect.xmax > rect.xmin && rect.ymax > rect.ymin;
    const Rect& part = sized ? rect : Rect(0, 0, 1, 1);
    if (full == 0) {
        const Rect& in = panel.limits;
        const float dx = in.xmax - in.xmin;
        const float dy = in.ymax - in.ymin;
        panel.view.set((dx * part.xmin + in.xmin) * width, (dy * part.ymin + in.ymin) * height,
                       (dx * part.xmax + in.xmin) * width, (dy * part.ymax + in.ymin) * height);
    }

    graph.setTran(map_tran);
    graph.setViewportAspect(panel.view, aspect, halign, valign);
    graph.getViewport(panel.view);
    viewports[cur_panel] = panel.view;
    graph.setWindow(panel.view);
    if (!panel.domain.isSet()) {
        DomainVal plain;
        plain.proj = 21;
        plain.clat = width / 2;
        plain.clon = height / 2;
        plain.dx = width;
        plain.dy = height;
        plain.nx = plain.ny = 2;
        panel.domain.set(plain);
    }
    return graph.activateTran();
}

int Plot::setPanel(const Rect& rect, const Domain& dom) {
    if (dom.isSet()) {
        getDomain() = dom;
        setPanel(rect, dom.getAspect());
    } else {
        const Rect surface = graph.getMaxViewport();
        setPanel(rect, (surface.xmax - surface.xmin) / (surface.ymax - surface.ymin));
    }
    getDomain().setView(graph.getViewport());
    return setPanelWindow();
}

int Plot::setPanel(const Domain& dom) {
    if (!getDomain().isSet())
        return setPanel(map_place, dom);
    graph.setTran(map_tran);
    getPanel().offset = map_place;
    getDomain() = dom;
    return setPanelWindow();
}

int Plot::setPanel(int i) {
    if (i < 0 || i >= std::max(num_panels, 1))
        return 0;
    cur_panel = i;
    if (i > 0)
        return placePanel();
    const Rect rect = getPanel().offset;
    return setPanel(rect, getDomain());
}

int Plot::setDomain(const DomainVal& val) {
    return setPanel(Domain(val));
}

int Plot::setPanelDomain(int i, const Domain& dom) {
    if (i < 0 || i >= max_panels)
        return 0;
    panels[i].domain = dom;
    return 1;
}

int Plot::getPanelDomain(int i, Domain& dom) const {
    if (i < 0 || i >= max_panels)
        return 0;
    dom = panels[i].domain;
    return 1;
}

// Puts the current panel, a further one, into its limits: its labels in transform 0, its map in
// the middle.
int Plot::placePanel() {
    const Rect area = getPanel().limits;
    graph.setViewport(0, area);
    graph.setWindow(0, area);

    const float inset = margin * (area.ymax - area.ymin);
    graph.setTran(map_tran);
    graph.setViewportAspect(Rect(area.xmin, area.ymin + inset, area.xmax, area.ymax - inset),
                            getDomain().getAspect());
    graph.getViewport(viewports[cur_panel]);
    return setPanelWindow();
}

int Plot::newPanel(const char* text) {
    if (num_labels > 0) {
        drawBorder();
        drawLabels();
    }

    GeomBox box;
    decodePanelStr(graph.getMaxViewport(), Strings(text, ',').getString(0), box);
    if (num_panels < max_panels) {
        num_panels++;
        cur_panel++;
    } else {
        cur_panel = max_panels - 1; // the last one is made anew
    }
    getPanel() = panels[cur_panel - 1];
    getPanel().setLimits(toRect(box));

    num_lines = 0;
    num_labels = 0;
    bar_set = 0;
    fore_hour = Const::MISS;
    *source = '\0';
    return placePanel();
}

int Plot::decodePanelStr(const Rect& rect, const char* text, GeomBox& box) {
    const float width = rect.xmax - rect.xmin;
    const float height = rect.ymax - rect.ymin;
    box.set(rect.xmin, rect.ymin, width, height);
    float w = 1, h = 1, x = 0, y = 0;
    const int num = text ? Scan::text(text, "%fx%f+%f+%f", &w, &h, &x, &y) : 0;
    if ((num != 2 && num != 4) || !(w > 0) || !(h > 0))
        return 0;
    if (w > 1) {
        const float cols = std::min<float>(w, max_cells);
        const float rows = std::clamp<float>(h, 1, max_cells);
        return box.set(x / cols * width, (1 - (1 + y) / rows) * height, width / cols,
                       height / rows);
    }
    return box.set(x * width, y * height, w * width, h * height);
}

int Plot::getDomain(Domain& dom) const {
    dom = getDomain();
    return 1;
}

int Plot::getDomainVal(DomainVal& val) const {
    val = getDomain();
    return 1;
}

int Plot::getViewDomain(Domain& dom) {
    dom = getDomain();
    const Rect view = graph.getDeviceViewport();
    dom.nx = Scan::toInt(std::fabs(view.xmax - view.xmin));
    dom.ny = Scan::toInt(std::fabs(view.ymax - view.ymin));
    if (dom.nx < 1 || dom.ny < 1)
        return 0;
    dom.dx = (dom.limits.xmax - dom.limits.xmin) / dom.nx;
    dom.dy = (dom.limits.ymax - dom.limits.ymin) / dom.ny;
    return 1;
}

int Plot::tranPlotWindow(float x, float y, float& wx, float& wy) {
    graph.tranPlotView(x, y, wx, wy);
    for (int i = num_panels - 1; i >= 0; i--) {
        const Rect& view = viewports[i];
        if (!panels[i].withinLimits(wx, wy) || !(view.xmax > view.xmin) || !(view.ymax > view.ymin))
            continue;
        const Rect& window = panels[i].domain.limits;
        wx = (window.xmax - window.xmin) * (wx - view.xmin) / (view.xmax - view.xmin) + window.xmin;
        wy = (window.ymax - window.ymin) * (wy - view.ymin) / (view.ymax - view.ymin) + window.ymin;
        return 1;
    }
    return 0;
}

} // namespace ORV
