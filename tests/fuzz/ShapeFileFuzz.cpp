// A shapefile, part by part.
#include "ORV/ShapeFile.h"

#include "Fuzz.h"

#include <cmath>

using namespace ORV;

void fuzz(const std::string& bytes) {
    static ShapeFile file;
    static ShapeData data;
    std::size_t points = 0;
    for (file.open(makeFile(bytes)); file.read(data);)
        for (int i = 0; i < data.points.getNum(); i++, points++)
            expect(std::isfinite(data.points.getLat1(i)) && std::isfinite(data.points.getLon1(i)));
    expect(points * 16 <= bytes.size());
}
