// A KML document.
#include "ORV/KmlFile.h"

#include "Fuzz.h"

#include <cmath>

using namespace ORV;

void fuzz(const std::string& bytes) {
    KmlFile file;
    KmlData data;
    std::size_t points = 0;
    for (file.open(makeFile(bytes)); file.read(data);)
        for (int i = 0; i < data.points.getNum(); i++, points++)
            expect(std::isfinite(data.points.getLat1(i)) && std::isfinite(data.points.getLon1(i)));
    expect(points <= 2000 * bytes.size() + 1); // packed bytes grow by 1000 at most
}
