#include "ORV/GridBox.h"

#include "ORV/Domain.h"
#include "ORV/Grid.h"

#include "../plot/WorldEdge.h"
#include "ContTools.h"

#include <algorithm>
#include <cmath>

namespace ORV {

using namespace ContTools;

namespace {

constexpr float through = -1, before = -2, behind = -3, on_level = -4, flat = -5;

// The corners that each side runs between, and the one that counts for it when the level runs
// through that one: so that each corner counts for one of its two sides.
constexpr struct {
    int from, to;
    int kept;
} sides[4] = {{0, 1, 0}, {3, 1, 1}, {2, 3, 3}, {2, 0, 2}};

constexpr float default_tweak = 5e-5f; // of the value

bool isEnd(float t) {
    return t == 0 || t == 1;
}

} // namespace

int GridBox::init() {
    span = 0;
    tweak = Const::MISS;
    return 1;
}

int GridBox::set(const Grid& grid, const Domain& domain, int i, int j) {
    const bool same = DomainVal::compare(grid.domain, domain);
    return set(domain,
               {grid.getValue1(i, j), grid.getValue1(i + 1, j), grid.getValue1(i, j + 1),
                grid.getValue1(i + 1, j + 1)},
               {findPlace(grid, domain, same, i, j), findPlace(grid, domain, same, i + 1, j),
                findPlace(grid, domain, same, i, j + 1),
                findPlace(grid, domain, same, i + 1, j + 1)});
}

int GridBox::set(const Grid& grid, const Domain& domain, int i, int j, float v) {
    set(grid, domain, i, j);
    return setLevel(v);
}

int GridBox::set(const Domain& domain, const float (&values)[4], const Point (&places)[4]) {
    std::copy_n(values, 4, val);
    std::copy_n(places, 4, pt);
    proj = domain.proj;
    span = 0;
    joinWorld(domain);
    findRange();
    return 1;
}

void GridBox::joinWorld(const Domain& domain) {
    if (proj == 4 || proj == 8 || proj == 9) {
        const WorldEdge edge(domain);
        for (const auto& s : sides)
            if (!isMissing(pt[s.from]) && !isMissing(pt[s.to]) &&
                edge.parts(pt[s.from], pt[s.to])) {
                for (Point& corner : pt)
                    corner.init();
                return;
            }
        return;
    }
    if (proj != 2 && proj != 3 && proj != 7)
        return;
    double left = 1, right = -1; // of the cell, the world being from -1 to 1
    for (const Point& corner : pt) {
        const double half = isMissing(corner) ? 0 : halfWorld(domain, corner.y);
        if (half <= 0)
            continue;
        left = std::min(left, corner.x / half);
        right = std::max(right, corner.x / half);
    }
    if (right - left <= 1)
        return;
    span = 1;
    for (Point& corner : pt)
        if (corner.x < 0 && !isMissing(corner))
            corner.x += static_cast<float>(2 * halfWorld(domain, corner.y));
}

void GridBox::findRange() {
    min = max = Const::MISS;
    for (const float v : val) {
        if (isMissing(v))
            continue;
        min = min == Const::MISS ? v : std::min(min, v);
        max = max == Const::MISS ? v : std::max(max, v);
    }
}

int GridBox::initLevel() {
    level = Const::MISS;
    numside = 0;
    std::fill_n(side, 4, before);
    std::fill_n(cross, 4, -1);
    equal = -2;
    return 1;
}

int GridBox::setLevel(float v) {
    initLevel();
    level = v;
    if (v < min) {
        equal = -1;
        return 0;
    }
    if (v > max) {
        equal = 1;
        return 0;
    }
    equal = 0;
    if (!isDataValid())
        return 0;

    leaveCorners();
    for (int s = 0; s < 4; s++)
        side[s] = findSide(s);
    numside = static_cast<int>(std::count_if(side, side + 4, [](float t) { return t >= 0; }));
    settleOdd();
    findPoints();
    tsides = 2 - side[0] - side[1] + side[2] + side[3];
    return numside;
}

void GridBox::leaveCorners() {
    for (float& v : val) {
        if (v != level)
            continue;
        if (tweak == Const::MISS)
            tweak = v * default_tweak;
        v -= tweak;
    }
}

float GridBox::findSide(int s) const {
    const float a = val[sides[s].from], b = val[sides[s].to];
    if (a == b)
        return a == level ? on_level : flat;
    if (val[sides[s].kept] == level)
        return through;
    const double t = (double(level) - a) / (double(b) - a);
    return t < 0 ? before : t > 1 ? behind : static_cast<float>(t);
}

// The level only touches the cell.
void GridBox::dropCorners() {
    for (float& t : side)
        if (isEnd(t))
            t = through;
    numside = 0;
}

// A level enters and leaves: where corners lie on it, the count is made even again.
void GridBox::settleOdd() {
    if (std::count(side, side + 4, on_level) >= 2) {
        dropCorners();
    } else if (numside == 1) {
        float* const first = std::find(side, side + 4, through);
        if (first == side + 4) {
            dropCorners();
        } else {
            const int s = static_cast<int>(first - side);
            *first = sides[s].kept == sides[s].to ? 1.0f : 0.0f;
            numside = 2;
        }
    } else if (numside == 3) {
        if (isEnd(side[0]))
            side[0] = through;
        else if (isEnd(side[1]))
            side[1] = through;
        numside = 2;
    }
}

void GridBox::findPoints() {
    int n = 0;
    for (int s = 0; s < 4; s++) {
        if (side[s] < 0)
            continue;
        const Point& a = pt[sides[s].from];
        const Point& b = pt[sides[s].to];
        cross[n] = s;
        cpt[n++] = isMissing(a) || isMissing(b) ? Point() : Point::interp(a, b, side[s]);
    }
}

int GridBox::setTweak(float t) {
    tweak = t;
    return 1;
}

int GridBox::setCross(int i, int crossed) {
    if (!isIndex(i))
        return 0;
    cross[i] = crossed;
    return 1;
}

int GridBox::setNumSide(int n) {
    numside = n;
    return 1;
}

bool GridBox::isDataValid() const {
    return std::none_of(val, val + 4, [](float v) { return isMissing(v); });
}

bool GridBox::isLocateValid() const {
    return std::none_of(pt, pt + 4, [](const Point& corner) { return isMissing(corner); });
}

} // namespace ORV
