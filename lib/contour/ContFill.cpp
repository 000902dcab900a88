#include "ORV/ContPlot.h"
#include "ORV/Grid.h"
#include "ORV/Plot.h"

#include "ContTools.h"

#include <algorithm>

namespace ORV {

using namespace ContTools;

namespace {

constexpr float saddle = 2; // tsides at which both pairings of a saddle are equally near

// Polygons are lists of two letters a point: K0 to K3 the corners of the cell, U0 to U3 the
// crossings of the upper level of a band, L0 to L3 those of its lower level. A "/" ends a polygon
// and begins the next.

// The two sides that a level crosses, as the number of a row of the tables: (0,1) (0,2) (0,3)
// (1,2) (1,3) (2,3). -1 for any other pair.
int getPair(const GridBox& box) {
    constexpr int pairs[4][4] = {{-1, 0, 1, 2}, {0, -1, 3, 4}, {1, 3, -1, 5}, {2, 4, 5, -1}};
    const int a = box.cross[0], b = box.cross[1];
    return a < 0 || a > 3 || b < 0 || b > 3 ? -1 : pairs[a][b];
}

// One level alone cuts the cell. The corners on one side of it belong to the band when a corner
// stands above (as a lower level) or below (as an upper level) the level; those on the other side
// when a second corner does. or_equal: that corner may lie on the level.
class Side {
public:
    int corner;
    bool or_equal;
    const char* corners;
};

constexpr Side below_upper[6][2] = {
    {{0, false, "K3K2K0"}, {1, true, "K1"}},  {{3, false, "K3K1"}, {0, false, "K2K0"}},
    {{2, false, "K2K3K1"}, {0, true, "K0"}},  {{3, false, "K3"}, {2, true, "K2K0K1"}},
    {{2, false, "K2K3"}, {1, false, "K0K1"}}, {{3, false, "K0K1K3"}, {2, true, "K2"}},
};

constexpr Side above_lower[6][2] = {
    {{0, false, "K3K2K0"}, {1, true, "K1"}},  {{0, false, "K2K0"}, {3, false, "K3K1"}},
    {{2, false, "K2K3K1"}, {0, true, "K0"}},  {{3, false, "K3"}, {2, true, "K2K0K1"}},
    {{1, false, "K0K1"}, {2, false, "K2K3"}}, {{3, false, "K0K1K3"}, {2, true, "K2"}},
};

// Upper and lower level cut the cell once each: behind U0 U1, by the pairs of the upper (rows) and
// of the lower level. Null where the two can't lie in one cell.
constexpr const char* between[6][6] = {
    {"L1L0", "K3L1L0", "K3K2L1L0", "L0L1K2K0", "L0L1K0", "K3L0L1K0"},
    {"K3L1L0", "L1L0", "K2L1L0", "L1L0K1", nullptr, "L0L1K0"},
    {"K2K3L1L0", "K2L1L0", "L1L0", "K2L1L0K1", "L1L0K1", "L1L0K3K1"},
    {"K2K0L0L1", "L1L0K1", "K2L1L0K1", "L1L0", "K2L1L0", "L0L1K0K1"},
    {"K0L0L1", nullptr, "L1L0K1", "K2L1L0", "L1L0", "L1L0K3"},
    {"K0L0L1K3", "K0L0L1", "L1L0K1K3", "K0K1L0L1", "L1L0K3", "L1L0"},
};

// The lower level has a saddle, behind U0 U1: with the far corners of it apart, and joined.
constexpr const char* over_saddle[6][2] = {
    {"L1L0/L2L3K2", "L1L2K2L3L0"}, {nullptr, nullptr}, {"L3L2K3L1L0", "L3L0/L1L2K3"},
    {"L2L3K0L0L1", "L2L1/L0L3K0"}, {nullptr, nullptr}, {"L3L2/L0L1K1", "L3L0K1L1L2"},
};

// Applies the attributes of bands, each once in a row.
class BandStyles {
public:
    BandStyles(Plot& to, const ContPlot& from) : plot(to), cont(from) {
        for (int k = 0; k < cont.num_cont; k++)
            attrs.push_back(cont.fill.get(cont.getLevel(k)));
    }
    /// Whether the band above level k has a color.
    bool apply(int k) {
        PlotAttr& attr = attrs[k];
        if (k == applied)
            return attr.validColor();
        applied = k;
        plot.setFillStyle(0);
        plot.setFill(attr);
        if (cont.fill_pat != Const::MISS)
            plot.setFillStyle(cont.fill_pat);
        plot.setLine(attr);
        return attr.validColor();
    }

private:
    Plot& plot;
    const ContPlot& cont;
    std::vector<PlotAttr> attrs;
    int applied = -1;
};

// Fills cells that lie whole in one band. On a page, where each polygon costs a hundred bytes, what
// follows in a row in the same band is joined to one polygon, with the same outline and in the same
// place in the order of drawing.
class WholeCells {
public:
    WholeCells(Plot& to, BandStyles& with)
        : plot(to), styles(with), joins(to.graph.device_type == postscript) {}

    void add(int band_above, int i, int j, const GridBox& box) {
        const bool goes_on = joins && band == band_above && row == j && last == i - 1 &&
                             static_cast<int>(upper.size()) < longest_run;
        if (!goes_on) {
            flush();
            band = band_above;
            row = j;
            extend(upper, box.pt[0]);
            extend(lower, box.pt[2]);
        }
        last = i;
        extend(upper, box.pt[1]);
        extend(lower, box.pt[3]);
        if (!joins)
            flush();
    }
    /// To be called before anything else is drawn.
    void flush() {
        if (upper.empty())
            return;
        polygon.clear();
        polygon.add(upper.back());
        std::for_each(lower.rbegin(), lower.rend(), [&](const Point& p) { polygon.add(p); });
        std::for_each(upper.begin(), upper.end(), [&](const Point& p) { polygon.add(p); });
        upper.clear();
        lower.clear();
        if (styles.apply(band))
            plot.drawFill(polygon);
    }

private:
    static constexpr int postscript = 2;
    static constexpr int longest_run = 500; // a path of 1500 points is too long for old printers

    // What lies on a level line between its neighbours changes no outline.
    static void extend(std::vector<Point>& edge, const Point& point) {
        const size_t n = edge.size();
        if (n >= 2 && edge[n - 1].y == point.y && edge[n - 2].y == point.y &&
            (edge[n - 1].x - edge[n - 2].x) * (point.x - edge[n - 1].x) > 0)
            edge[n - 1] = point;
        else
            edge.push_back(point);
    }

    Plot& plot;
    BandStyles& styles;
    const bool joins;
    std::vector<Point> upper, lower; // edges of the run, from left to right
    int band = -1;
    int row = -1;
    int last = -1; // column
    Points polygon;
};

void locate(Grid& grid, const Domain& domain) {
    if (grid.isLocate())
        return;
    const bool same = DomainVal::compare(grid.domain, domain);
    std::vector<Point> row(std::max(grid.nx, 0));
    // The places are worked out without the list that takes them.
    OwnedArray<float> x(grid.nx * grid.ny), y(grid.nx * grid.ny);
    for (int j = 0; j < grid.ny; j++)
        for (int i = 0; i < grid.nx; i++) {
            const Point place = findPlace(grid, domain, same, i, j);
            x[grid.nx * j + i] = place.x;
            y[grid.nx * j + i] = place.y;
        }
    grid.xloc = std::move(x);
    grid.yloc = std::move(y);
}

// Fills the bands of the cell in the box. Those that end below it are passed by: first is the upper
// level of the lowest one that may show.
void fillCell(Plot& plot, ContPlot& cont, BandStyles& styles, const std::vector<float>& levels,
              int first) {
    GridBox &box = cont.box, &pbox = cont.pbox;
    int k = std::max(first, 1);
    cont.level = levels[k - 1];
    box.setLevel(cont.level);
    for (; k < cont.num_cont; k++) {
        cont.plevel = cont.level;
        cont.level = levels[k];
        pbox = box;
        box.setLevel(cont.level);
        if (box.equal != -1 && styles.apply(k - 1))
            cont.drawBoxFill(plot);
        if (box.equal == 1)
            return;
    }
    // The band above the last level.
    pbox = box;
    box.setLevel(cont.getLevel(k));
    if ((pbox.numside != 0 || pbox.min >= cont.level) && styles.apply(k - 1))
        cont.drawBoxFill(plot);
}

} // namespace

int ContPlot::drawFill(Plot& plot, Grid& grid) {
    findRange(grid, min, max);
    plot.setLine();
    plot.setFill();
    plot.setText();
    setColors(plot);

    min = dpy_min == Const::MISS ? min : dpy_min;
    max = dpy_max == Const::MISS ? max : dpy_max;
    box.setTweak(getTweak(min, max));
    pbox.setTweak(box.tweak);
    chooseLevels(min, max, true);

    const Domain& domain = plot.getDomain();
    CellReader cells(grid, domain);
    if (cells.isSet() && num_cont > 0) {
        locate(grid, domain);
        LevelList levels;
        for (int k = 0; k < num_cont; k++)
            levels.add(getLevel(k));
        BandStyles styles(plot, *this);
        WholeCells whole(plot, styles);
        for (int j = 0; j < grid.ny - 1; j++)
            for (int i = 0; i < grid.nx - 1; i++) {
                if (!cells.read(i, j) || !levels.reaches(0, cells.hi))
                    continue;
                cells.get(box);
                if (!box.isLocateValid())
                    continue;
                const int k = levels.find(cells.lo);
                if (levels.isWithin(k, cells.lo, cells.hi) && !box.span) {
                    whole.add(k - 1, i, j, box);
                    continue;
                }
                whole.flush();
                fillCell(plot, *this, styles, levels.levels, k);
            }
        whole.flush();
    }
    drawLineLabels(plot, grid);
    drawMaxMin(plot, grid);
    return 1;
}

int ContPlot::drawBoxFill(Plot& plot) {
    if (box.level >= box.max && box.min >= pbox.level)
        return addPolygon(plot, {"K1K3K2K0"});
    switch (box.numside) {
    case 2:
        return fillPlain(plot);
    case 4:
        return fillSaddle(plot);
    case 0:
        return fillAbove(plot);
    default:
        return 1;
    }
}

// The upper level cuts the cell once.
int ContPlot::fillPlain(Plot& plot) {
    const int pair = getPair(box), lower = getPair(pbox);
    if (pair < 0)
        return 1;
    if (pbox.numside == 0) {
        for (const Side& part : below_upper[pair])
            if (box.level > box.val[part.corner] ||
                (part.or_equal && box.level == box.val[part.corner]))
                return addPolygon(plot, {"U0U1", part.corners});
        if (pair == 1 || pair == 4)
            box.setNumSide(0);
        return 1;
    }
    const char* corners = nullptr;
    if (pbox.numside == 2 && lower >= 0)
        corners = between[pair][lower];
    else if (pbox.numside == 4)
        corners = over_saddle[pair][pbox.tsides >= saddle];
    return corners ? addPolygon(plot, {"U0U1", corners}) : 1;
}

// The upper level has a saddle: the band is what lies between, or what lies beyond.
int ContPlot::fillSaddle(Plot& plot) {
    const bool twice = pbox.numside == 4;
    const bool joined = pbox.tsides >= saddle;
    const int lower = pbox.numside == 2 ? getPair(pbox) : -1;
    const auto cut = [&](int pair, const char* corners, const char* corner) {
        return lower == pair ? corners : corner;
    };
    if (box.tsides < saddle && box.val[0] > box.level) {
        addPolygon(plot, {"U0U1", twice ? "L1L0" : cut(0, "L1L0", "K1")});
        return addPolygon(plot, {"U2U3", twice ? "L3L2" : cut(5, "L1L0", "K2")});
    }
    if (box.tsides < saddle) {
        if (twice)
            return addPolygon(plot, {joined ? "U0U1L1L2U2U3L3L0" : "U0U1L1L0/U2U3L3L2"});
        return addPolygon(plot, {"U0U1", cut(3, "L0L1", "K3"), "U2U3", cut(2, "L1L0", "K0")});
    }
    if (box.level > box.val[2] && box.side[2] != 0) {
        if (twice)
            return addPolygon(plot, {joined ? "U1U2L2L1/U3U0L0L3" : "U1U2L2L3U3U0L0L1"});
        return addPolygon(plot, {"U1U2", cut(5, "L0L1", "K2"), "U3U0", cut(0, "L0L1", "K1")});
    }
    addPolygon(plot, {"U1U2", twice ? "L2L1" : cut(3, "L1L0", "K3")});
    return addPolygon(plot, {"U3U0", twice ? "L0L3" : cut(2, "L0L1", "K0")});
}

// The upper level lies above the cell.
int ContPlot::fillAbove(Plot& plot) {
    if (pbox.numside == 2 && getPair(pbox) >= 0) {
        for (const Side& part : above_lower[getPair(pbox)])
            if (box.val[part.corner] > pbox.level ||
                (part.or_equal && box.val[part.corner] == pbox.level))
                return addPolygon(plot, {"L0L1", part.corners});
    } else if (pbox.numside == 4 && pbox.tsides < saddle) {
        return addPolygon(plot, {pbox.level >= box.val[0] ? "L0K1L1/L2K2L3" : "L0L1K3L2L3K0"});
    } else if (pbox.numside == 4) {
        const bool joined = box.val[2] >= pbox.level && pbox.side[2] != 0;
        return addPolygon(plot, {joined ? "L1L2K2L3L0K1" : "L1K3L2/L3K0L0"});
    }
    return 1;
}

int ContPlot::closePolygon(Plot& plot) {
    if (polygon.num > 0)
        polygon.add1(0);
    plot.drawFill(polygon);
    return polygon.clear();
}

int ContPlot::addPolygon(Plot& plot, std::initializer_list<const char*> parts) {
    constexpr int most_points = 10;
    polygon.clear();
    if (polygon.max < most_points)
        polygon.expand(most_points);
    for (const char* part : parts)
        for (const char* c = part; *c; c++) {
            if (*c == '/') {
                closePolygon(plot);
                continue;
            }
            const Point* const from = *c == 'K' ? box.pt : *c == 'U' ? box.cpt : pbox.cpt;
            const Point& point = from[*++c - '0'];
            polygon.add1(box.span ? fold(plot.getDomain(), point) : point);
        }
    return closePolygon(plot);
}

} // namespace ORV
