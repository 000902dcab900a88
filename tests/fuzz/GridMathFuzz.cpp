// A line with the function's name, one with domains and short names of operands by turns, separated
// by blanks, then their values, byte by byte.
#include "ORV/GridMath.h"
#include "ORV/Grids.h"

#include "Fuzz.h"

#include <cmath>
#include <limits>
#include <sstream>

using namespace ORV;

namespace {
float toValue(unsigned char byte) {
    constexpr float infinite = std::numeric_limits<float>::infinity();
    constexpr float special[] = {Const::MISS, infinite, -infinite, 3.4e38f,
                                 -3.4e38f,    1e-40f,   -9998};
    return byte < std::size(special) ? special[byte] : static_cast<float>(byte - 100);
}

void check(const Grid& grid) {
    for (int k = 0; k < grid.data.size(); k++)
        expect(!std::isnan(grid.data[k]));
    expect(!grid.isData() || grid.data.size() == grid.nx * grid.ny);
}

Grids makeOperands(const std::string& line, std::istream& values) {
    constexpr int most_points = 4096;
    Grids operands;
    std::istringstream words(line);
    for (std::string domain, name; operands.num < 6 && words >> domain >> name;) {
        Grid grid;
        grid.setDomain(Domain(domain.c_str()));
        if (grid.nx > 0 && grid.ny > 0 && grid.nx <= most_points / grid.ny)
            grid.allocData();
        for (int k = 0; k < grid.data.size(); k++)
            grid.data[k] = toValue(static_cast<unsigned char>(values.get()));
        grid.setLevel("850mb");
        grid.setVar(name.c_str());
        grid.setUnits(name.c_str());
        operands.addGrid(grid);
    }
    return operands;
}
} // namespace

void fuzz(const std::string& input) {
    makeDatabase("units.lup", "");
    std::istringstream text(input);
    std::string name, line;
    std::getline(text, name);
    std::getline(text, line);
    const Grids operands = makeOperands(line, text);

    Grid u, v;
    GridMath::isVectFunc(name.c_str());
    GridMath::process(name.c_str(), u, operands);
    check(u);
    GridMath::process(name.c_str(), u, v, operands);
    check(u);
    if (operands.num == 0)
        return;
    Grid& first = operands.grd[0];
    Grid& last = operands.grd[operands.num - 1];
    GridMath::locatePoint(u, first, name.c_str());
    check(u);
    GridMath::remap(u, last.domain, first);
    check(u);
    GridMath::cutoff(u, name.c_str(), 0, 1, first);
    GridMath::coriolis(u, first, name.c_str());
    check(u);
    const float fastest = GridMath::maxSpd(first, last);
    expect(fastest >= 0 || fastest == Const::MISS);
    GridMath::units(last, name.c_str());
    for (const int relative : {0, 1}) {
        GridMath::adjustDir(first, last, Domain("lamb:40:-100:40:40,40,-90,5,5,1,1"), relative);
        check(first);
    }
}
