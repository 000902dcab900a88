#include "GridDrawing.h"

#include "ORV/Const.h"
#include "ORV/EarthPoint.h"
#include "ORV/Filename.h"
#include "ORV/Grid.h"
#include "ORV/ModelSpec.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

namespace ORV {

void GridDrawing::setTimes(Filename& file) {
    if (const char* hour = Orv::getResrc("hour"))
        file.setFixDate(hour);
    const int time = Orv::getResrc("time", static_cast<int>(Const::MISS));
    if (time != Const::MISS)
        file.setForeTime(time);
}

const char* GridDrawing::getNameConv(const char* model, const ModelSpec& spec) {
    return spec.valid() ? spec.getName(0) : model;
}

int GridDrawing::setFile(Filename& file, const char* model, const ModelSpec& spec) {
    return file.setNameConv(StrLib::valid(model) ? getNameConv(model, spec)
                                                 : Orv::getResrc("in_file", "grid"));
}

int GridDrawing::setNameConv(Filename& file, const char* text, const char* model,
                             const ModelSpec& spec) {
    if (StrLib::valid(text))
        return file.setNameConv(text);
    return StrLib::valid(model) ? file.setNameConv(getNameConv(model, spec)) : 0;
}

int GridDrawing::readDomain(const Filename&, Domain&) {
    return 0;
}

int GridDrawing::read(const Filename& file, const ModelSpec&, const GridSpec&, Grid& grid) {
    grid.init();
    Orv::outWarning("Unable to read grid file: %s\n", file.getName());
    return 0;
}

int GridDrawing::decodeQuery(const char* type, const char* text, EarthPoint& place) {
    return StrLib::equal(type, "QueryLoc") &&
           Scan::text(text ? text : "", "%f,%f", &place.lat, &place.lon) == 2;
}

} // namespace ORV
