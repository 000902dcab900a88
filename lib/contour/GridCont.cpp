#include "ORV/GridCont.h"

#include "ORV/DomainTool.h"
#include "ORV/FileTool.h"
#include "ORV/GridSpec.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include "GridDrawing.h"

namespace ORV {
namespace {

constexpr const char* default_region = "us";
constexpr int read_message = 7;

// Entries of a parameter text, in any case as a whole, or by their first two letters with the
// value from the fourth character.
constexpr struct {
    const char* key;
    bool whole;
    int (*apply)(GridCont& cont, const char* value);
} keywords[] = {
    {"nolabel", true, [](GridCont& c, const char*) { return c.label = 0, 1; }},
    {"map_line", true, [](GridCont& c, const char*) { return c.map_mode = 0, 1; }},
    {"map_fill", true, [](GridCont& c, const char*) { return c.map_mode = 1, 1; }},
    {"mo", false, [](GridCont& c, const char* v) { return c.setModel(v); }},
    {"gs", false, [](GridCont& c, const char* v) { return c.grid_num.set(v); }},
    {"va", false, [](GridCont& c, const char* v) { return c.grid_num.set(v); }},
};

} // namespace

int GridCont::init() {
    model[0] = '\0';
    label = 1;
    map = 0;
    map_mode = -1;
    sync = 0;
    spec.init();
    file = Filename();
    cont.init();
    grid.init();
    grid_num.set(Orv::getResrc("grid_num"));
    setParam(Orv::getResrc("parameter"));
    if (const char* name = Orv::getResrc("model"))
        setModel(name);
    return setFile();
}

int GridCont::setParam(const char* list) {
    const Strings entries(list, ',');
    for (int i = 0; i < entries.getNum(); i++)
        for (const auto& keyword : keywords)
            if (keyword.whole ? entries.iequal(i, keyword.key) : entries.equal(i, keyword.key, 2)) {
                keyword.apply(*this, entries.getString(i, 3));
                break;
            }
    return cont.setParam(list);
}

int GridCont::setModel(const char* text) {
    StrLib::copy(model, sizeof model, text);
    spec.set(model);
    return setFile();
}

int GridCont::setFile() {
    return GridDrawing::setFile(file, model, spec);
}

int GridCont::setNameConv(const char* text) {
    return GridDrawing::setNameConv(file, text, model, spec);
}

int GridCont::setFilename() {
    GridDrawing::setTimes(file);
    return file.setFile();
}

int GridCont::getInitDate(Date& date) {
    if (!file.isSet())
        file.setFile("la");
    return file.getDate(date);
}

int GridCont::getDomain(Domain& domain) {
    if (!file.isSet())
        file.setFile("la");
    if (GridDrawing::readDomain(file, domain))
        return 1;
    DomainTool::decode(domain, default_region);
    return FileTool::isStdio(file.getName());
}

int GridCont::draw(Plot& plot) {
    if (!file.isSet()) {
        GridDrawing::setTimes(file);
        file.setFile("la");
    }
    GridSpec key;
    if (grid_num.valid())
        key.decode(grid_num.get());
    const int type = Orv::getResrc("grid_type", static_cast<int>(Const::MISS));
    if (type != Const::MISS)
        key.setType(type);
    Grid values;
    GridDrawing::read(file, spec, key, values);
    Orv::outMessage(read_message, "Contouring: %s - %s\n", file.getName(), grid_num.get());
    return draw(plot, values);
}

int GridCont::draw(Plot& plot, const Grid& values) {
    grid = values;
    plot.addCallback("AnyEvent", this, nullptr);
    MapLayers maps;
    const bool filled = cont.type == 3 || cont.type == 4;
    if (map_mode == 1 || (map_mode == -1 && filled))
        maps.raise();
    if (map)
        maps.under.draw(plot);
    cont.draw(plot, grid);
    if (label)
        cont.drawLabels(plot, grid);
    if (map)
        maps.over.draw(plot);
    if (label)
        plot.done();
    return 1;
}

int GridCont::print() {
    Orv::outMessage("GridCont");
    Orv::outMessage("  model: %s\n", model);
    Orv::outMessage("  label: %d\n", label);
    return Orv::outMessage("  map: %d\n", map);
}

void GridCont::callback(const char* type, const char* data, const void*) {
    EarthPoint place;
    if (!GridDrawing::decodeQuery(type, data, place))
        return;
    GridPoint at;
    grid.tran(place, at);
    Orv::outMessage("GridCont value [%.2f,%.2f]: %f\n", at.gx, at.gy, grid.getValue(place));
}

} // namespace ORV
