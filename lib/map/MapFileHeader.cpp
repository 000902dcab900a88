#include "ORV/MapFileHeader.h"

#include "ORV/Orv.h"

namespace ORV {

int MapFileHeader::print() const {
    return Orv::outMessage("%d - %.2f %.2f - %.2f %.2f - %d %s\n", num, min_lat, max_lat, min_lon,
                           max_lon, id, name);
}

} // namespace ORV
