// The texts of users that plots and figures read: parameters, parts to draw, geometry, panels,
// labels, logos, forecast times, key events, and the time of the settings.
#include "ORV/Figure.h"

#include "Fuzz.h"
#include "LogoText.h"

using namespace ORV;

void fuzz(const std::string& input) {
    const char* text = input.c_str();
    Orv::resrc.clear();
    Orv::resrc.put("current", text);
    Figure().endPlot();
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
