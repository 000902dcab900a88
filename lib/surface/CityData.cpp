#include "ORV/CityData.h"

#include <cstdio>

namespace ORV {

int CityData::printLine() const {
    std::printf("%-20.20s %2s %2s %9s %d %8.3f %8.3f %5.0f %5s %5d\n", name, state, region, id,
                prior, lat, lon, el, wmo, num);
    return 1;
}

int CityData::print() const {
    std::printf("Id: %s\n", id);
    std::printf("Name: %s\n", name);
    std::printf("State: %s\n", state);
    std::printf("Cntry/Region: %s\n", region);
    std::printf("Priority: %d\n", prior);
    std::printf("Latitude: %.3f\n", lat);
    std::printf("Longitude: %.3f\n", lon);
    std::printf("Elevation: %.0f\n", el);
    std::printf("WMO: %s\n", wmo);
    std::printf("Number: %d\n", num);
    return 1;
}

} // namespace ORV
