#include "ORV/GridVect.h"

#include "ORV/GridSpec.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include "GridDrawing.h"

namespace ORV {
namespace {
constexpr int read_message = 7;
} // namespace

int GridVect::init() {
    model[0] = '\0';
    label = 1;
    map = vbar = sync = 0;
    spec.init();
    file = Filename();
    grid_num.clear();
    vect.init();
    ugrid.init();
    vgrid.init();
    return setParam(Orv::getResrc("parameter"));
}

int GridVect::setParam(const char* list) {
    const Strings entries(list, ',');
    for (int i = 0; i < entries.getNum(); i++)
        if (entries.iequal(i, "vbar"))
            vbar = 1;
        else if (entries.iequal(i, "nolabel"))
            label = 0;
    return vect.setParam(list);
}

int GridVect::setModel(const char* text) {
    StrLib::copy(model, sizeof model, text);
    spec.set(model);
    return GridDrawing::setFile(file, model, spec);
}

int GridVect::setFile() {
    const String name = StrLib::valid(model) ? model : Orv::getResrc("model");
    return setModel(name.get());
}

int GridVect::setNameConv(const char* text) {
    return GridDrawing::setNameConv(file, text, model, spec);
}

int GridVect::setFilename() {
    GridDrawing::setTimes(file);
    return file.setFile();
}

int GridVect::getInitDate(Date& date) {
    if (!file.isSet())
        file.setFile("la");
    return file.getDate(date);
}

int GridVect::getDomain(Domain& domain) {
    if (!file.isSet())
        file.setFile("la");
    return GridDrawing::readDomain(file, domain);
}

int GridVect::draw(Plot& plot) {
    if (!file.isSet())
        file.setFile("la");
    Grid winds[2];
    for (int i = 0; i < 2; i++) {
        Filename part = file;
        part.setName(file.getName(i));
        GridDrawing::read(part, spec, GridSpec(), winds[i]);
        Orv::outMessage(read_message, "%c Grid: %s - %s\n", "UV"[i], part.getName(),
                        grid_num.get());
    }
    return draw(plot, winds[0], winds[1]);
}

int GridVect::draw(Plot& plot, const Grid& u, const Grid& v) {
    ugrid = u;
    vgrid = v;
    plot.addCallback("AnyEvent", this, nullptr);
    MapLayers maps;
    if (map)
        maps.under.draw(plot);
    const int drawn = vect.draw(plot, ugrid, vgrid);
    if (label)
        vect.drawLabels(plot, ugrid, !vbar);
    if (vbar)
        vect.drawVect(plot, "lr");
    if (map)
        maps.over.draw(plot);
    if (label)
        plot.done();
    return drawn;
}

int GridVect::print() {
    Orv::outMessage("GridVect");
    Orv::outMessage("  model: %s\n", model);
    Orv::outMessage("  label: %d\n", label);
    return Orv::outMessage("  map: %d\n", map);
}

void GridVect::callback(const char* type, const char* data, const void*) {
    EarthPoint place;
    if (!GridDrawing::decodeQuery(type, data, place))
        return;
    GridPoint at;
    ugrid.tran(place, at);
    Orv::outMessage("GridVect value [%.2f,%.2f]: %f,%f\n", at.gx, at.gy, ugrid.getValue(place),
                    vgrid.getValue(place));
}

} // namespace ORV
