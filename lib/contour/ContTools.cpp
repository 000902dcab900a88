#include "ContTools.h"

namespace ORV {
namespace ContTools {

double halfWorld(const Domain& domain, double y) {
    switch (domain.proj) {
    case 2:
        return Domain::OFFSET_LL / 2.0;
    case 3:
        return Domain::OFFSET_MERC / 2.0;
    case 7:
        return 2 * std::sqrt(std::max(0.0, domain.earth_rad * domain.earth_rad - y * y));
    default:
        return 0;
    }
}

Point fold(const Domain& domain, const Point& point) {
    const double half = halfWorld(domain, point.y);
    if (half == 0 || !(std::fabs(double(point.x)) > half))
        return point;
    return Point(static_cast<float>(point.x - std::copysign(2 * half, point.x)), point.y);
}

Point findPlace(const Grid& grid, const Domain& domain, bool same, int i, int j) {
    if (grid.isLocate())
        return grid.getLocate(i, j);
    Point own, place;
    grid.tran(GridPoint(static_cast<float>(i), static_cast<float>(j)), own);
    if (same)
        return own;
    grid.tran(own, domain, place);
    domain.adjust(place);
    return place;
}

CellReader::CellReader(const Grid& from, const Domain& to)
    : grid(from), domain(to), same(DomainVal::compare(from.domain, to)) {}

Point CellReader::getPlace(int i, int j) {
    constexpr float unknown = std::numeric_limits<float>::quiet_NaN();
    if (grid.isLocate() || same)
        return findPlace(grid, domain, same, i, j);
    std::vector<Point>& kept = places[j & 1];
    if (rows[j & 1] != j) {
        kept.assign(grid.nx, Point(unknown, unknown));
        rows[j & 1] = j;
    }
    if (std::isnan(kept[i].y))
        kept[i] = findPlace(grid, domain, same, i, j);
    return kept[i];
}

void CellReader::get(GridBox& box) {
    const float* upper = grid.data + static_cast<std::ptrdiff_t>(grid.nx) * row + column;
    const float* lower = upper + grid.nx;
    box.set(domain, {upper[0], upper[1], lower[0], lower[1]},
            {getPlace(column, row), getPlace(column + 1, row), getPlace(column, row + 1),
             getPlace(column + 1, row + 1)});
}

} // namespace ContTools
} // namespace ORV
