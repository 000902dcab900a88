#pragma once

#include "ORV/CityData.h"

namespace ORV {

/// The value that CityHash keeps for a station. size and ptr are room for the user of a table.
class CityHashData {
public:
    CityData city;
    int size = 0;
    void* ptr = nullptr;

    const char* getName() const { return city.name; }
    const char* getId() const { return city.id; }
    const char* getWmo() const { return city.wmo; }
    const char* getState() const { return city.state; }
    const char* getRegion() const { return city.region; }
    float getLat() const { return city.lat; }
    float getLon() const { return city.lon; }
    int getPrior() const { return city.prior; }
    int print() const { return city.print(); }
};

} // namespace ORV
