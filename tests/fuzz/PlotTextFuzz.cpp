#include "ORV/Figure.h"
#include "ORV/Orv.h"

#include "LogoText.h"

#include <cstddef>
#include <cstdint>
#include <string>

using namespace ORV;

namespace {

// The texts of users that plots and figures read: parameters, parts to draw, geometry, panels,
// labels, logos, forecast times, key events.
void readAll(const char* text) {
    Figure figure;
    figure.setParam(text);
    figure.setForeTime(text);
    figure.addPanel(text);
    figure.callback("KeyPress", text, nullptr);
    figure.callback("Redraw", text, nullptr);

    Plot plot;
    plot.setParam(text);
    plot.initPanel();
    plot.setDrawing(text);
    plot.callback("KeyPress", text, nullptr);
    plot.newPanel(text);
    plot.date.set(2007, 1, 12, 18, 0, 0);
    char out[40];
    plot.formatLabel(text, out, sizeof out);
    Orv::resrc.put("label", text);
    plot.drawLabels();
    GeomBox box;
    Plot::decodeGeometryStr(text, box);
    Plot::decodePanelStr(Rect(0, 0, 1, 0.8f), text, box);
    LogoText logo;
    if (logo.set(text))
        logo.getAnchor(Rect(0, 0, 1, 1));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Orv::setMessageLevel(0);
    Orv::resrc.clear();
    // A time of the settings, and the rest at once.
    const std::string text(reinterpret_cast<const char*>(data), size);
    Orv::resrc.put("current", text.c_str());
    Figure().endPlot();
    readAll(text.c_str());
    return 0;
}
