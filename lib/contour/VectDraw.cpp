#include "ORV/Calc.h"
#include "ORV/ColorFile.h"
#include "ORV/Grid.h"
#include "ORV/GridMath.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/Range.h"
#include "ORV/VectPlot.h"
#include "ORV/WindPlot.h"

#include "FillPen.h"
#include "VectTools.h"

#include <algorithm>
#include <cmath>

namespace ORV {
namespace {

constexpr int barbs = 1, streamlines = 2;

/// Of all points, those with a component of 0 among them. 0 when there is none.
float greatestSpeed(const Grid& u, const Grid& v) {
    float most = 0;
    for (int i = 0; i < u.nx * u.ny; i++)
        if (u.data[i] != Const::MISS && v.data[i] != Const::MISS)
            if (const float speed = Calc::windSpd(u.data[i], v.data[i]); std::isfinite(speed))
                most = std::max(most, speed);
    return most;
}

} // namespace

PlotAttr VectPlot::getAttr(Plot& plot) const {
    const char* own = color_data.valid() ? color_data.get() : plot.getForeground();
    return PlotAttr(Orv::getResrc("color_data", own));
}

void VectPlot::setColors(Plot& plot) {
    if (color_table.valid()) {
        ColorMap map;
        ColorFile::read(color_table.get(), map);
        plot.setColorMap(map);
    }
    PlotAttr attr = getAttr(plot);
    plot.setLine();
    plot.setLine(attr);
    plot.setFill();
    plot.setFill(attr);
    fill.set(plot.getColorMap(), color_fill.valid() ? color_fill.get() : nullptr);
    fill.setInterval(intrvl);
    fill.setBase(base == Const::MISS ? 0 : base);
}

int VectPlot::draw(Plot& plot, const Grid& u, const Grid& v) {
    plot.setLine();
    if (!GridMath::isDomainEqual(u, v) || !u.isData() || !v.isData())
        return 0;
    max = GridMath::maxSpd(u, v);
    dom_scale = VectTools::asFactor(scale, max_scale) * u.getDx();
    setColors(plot);

    Grid along = u, across = v;
    GridMath::adjustDir(along, across, plot.getDomain(), uvgrid);
    if (type == streamlines)
        drawStreamlines(plot, along, across);
    else
        drawGlyphs(plot, along, across);

    if (bar)
        plot.setBar(fill, fill.areValuesSet() ? Range() : Range{0, max});
    return 1;
}

void VectPlot::drawGlyphs(Plot& plot, const Grid& u, const Grid& v) {
    const Domain& domain = plot.getDomain();
    const float full = max == Const::MISS ? greatestSpeed(u, v) : max;
    const float length = getLength();
    FillPen pen(plot, fill, isColored(), getAttr(plot));
    for (int j = 0; j < u.ny; j += std::max(skipy, 1))
        for (int i = 0; i < u.nx; i += std::max(skipx, 1)) {
            Wind wind;
            EarthPoint place;
            Point at;
            if (!wind.setVect(u.getValue1(i, j), v.getValue1(i, j)) ||
                !u.tran(GridPoint(i, j), place) || !domain.tran(place, at) || at.x == Const::MISS ||
                at.y == Const::MISS)
                continue;
            pen.set(wind.spd);
            if (type == barbs) {
                if (domain.isMap() && place.lat < 0)
                    wind.spd = -wind.spd;
                WindPlot::drawBarb(plot, at, wind, length, 0);
            } else if (full > 0) {
                wind.spd /= full;
                WindPlot::drawVect(plot, at, wind, length, 1);
            }
        }
}

} // namespace ORV
