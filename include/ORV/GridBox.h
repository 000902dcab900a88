#pragma once

#include "ORV/Const.h"
#include "ORV/Point.h"

namespace ORV {

class Domain;
class Grid;

/// One cell of a grid, and where one level crosses it. Rows grow downward on the plot:
///
///     corner                      side, from the first corner to the second
///     0 (i, j)     upper left     0 top     0 to 1
///     1 (i+1, j)   upper right    1 right   3 to 1
///     2 (i, j+1)   lower left     2 bottom  2 to 3
///     3 (i+1, j+1) lower right    3 left    2 to 0
///
/// A crossing at fraction t of a side lies at a + (b - a) t, in plot coordinates.
class GridBox {
public:
    float val[4] = {Const::MISS, Const::MISS, Const::MISS, Const::MISS}; ///< corner values
    float level = Const::MISS;
    int proj = Const::MISS; ///< projection code of the plot
    int span = 0;           ///< 1 when the cell reaches over the edge of the world
    Point pt[4];            ///< corners on the plot
    Point cpt[4];           ///< crossings, in the order of cross
    /// What the level does on each side: 0 to 1 the fraction at which it crosses; -1 it runs
    /// through a corner that counts as no crossing; -2 and -3 it is missed beyond the first and the
    /// second end; -4 the side lies on it; -5 the side is flat beside it.
    float side[4] = {-2, -2, -2, -2};
    int numside = 0;                 ///< sides crossed: 0, 2 or 4
    int cross[4] = {-1, -1, -1, -1}; ///< these sides, rising
    float tsides = Const::MISS;      ///< settles a saddle: below 2 its corners 1 and 2 are far
    float min = Const::MISS;         ///< extremes of the corners that aren't missing
    float max = Const::MISS;
    float tweak = Const::MISS; ///< what a corner on the level is lowered by
    int equal = -2;            ///< -1 the level is below min, 1 above max, 0 within, -2 unset

    GridBox() = default;
    int init();

    /// Takes the cell whose upper left corner is column i, row j. The caller keeps it inside the
    /// grid: 0 <= i < nx - 1, 0 <= j < ny - 1. Places come from the grid's own list when it has
    /// one, otherwise by way of the two domains.
    ///
    /// A cell that lies on both ends of a world of projection 2, 3 or 7, which is one whose corners
    /// are nearer around the back, is put together at the right end. One that a cone or a far rim
    /// (projections 4, 9, 8) tears apart has no place.
    int set(const Grid& grid, const Domain& domain, int i, int j);
    int set(const Grid& grid, const Domain& domain, int i, int j, float v);
    /// Takes a cell by the values and the places of its corners.
    int set(const Domain& domain, const float (&values)[4], const Point (&places)[4]);

    int initLevel();
    /// Finds the crossings with a level and returns their number: 0, 2 or 4. A corner exactly on
    /// the level is lowered by tweak for good, so that no line runs through a corner; without a
    /// tweak by a twenty-thousandth of its value. A cell with a missing corner isn't crossed.
    int setLevel(float v);

    int setTweak(float t);
    int setCross(int i, int crossed);
    int setNumSide(int n);
    float getLevel() const { return level; }
    float getMin() const { return min; }
    float getMax() const { return max; }
    float getTotalDsides() const { return tsides; }
    int getCross(int i) const { return isIndex(i) ? cross[i] : -1; }
    int getNumSide() const { return numside; }
    int getEqual() const { return equal; }
    int getSpan() const { return span; }
    /// -1 for an i outside 0 to 3, as for the sides.
    float getVal(int i) const { return isIndex(i) ? val[i] : -1.0f; }
    float getSide(int i) const { return isIndex(i) ? side[i] : -1.0f; }
    /// The first one for an i outside 0 to 3.
    Point getPoint(int i) const { return pt[isIndex(i) ? i : 0]; }
    Point getCrossPoint(int i) const { return cpt[isIndex(i) ? i : 0]; }
    /// No corner value, or no corner place, is missing; what isn't finite counts as missing.
    bool isDataValid() const;
    bool isLocateValid() const;

private:
    static bool isIndex(int i) { return i >= 0 && i < 4; }
    void joinWorld(const Domain& domain);
    void findRange();
    void leaveCorners();
    float findSide(int s) const;
    void dropCorners();
    void settleOdd();
    void findPoints();
};

} // namespace ORV
