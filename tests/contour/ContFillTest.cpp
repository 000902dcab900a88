#include "ContFixture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

using namespace ORV;

namespace {

class ContFillTest : public ContTest {
protected:
    ContPlot cont;

    void setCell(const float (&values)[4], float lower, float upper) {
        const Point places[4] = {{0, 1}, {1, 1}, {0, 0}, {1, 0}};
        cont.box.init();
        cont.box.set(plot.getDomain(), values, places);
        cont.box.setLevel(lower);
        cont.pbox = cont.box;
        cont.box.setLevel(upper);
    }
    /// The polygons of the band, each point by its name: corners K, crossings of the upper level U
    /// and of the lower one L, with the last point, which has to repeat the first, left out.
    std::vector<std::string> drawBand(const float (&values)[4], float lower, float upper) {
        setCell(values, lower, upper);
        device->take();
        cont.drawBoxFill(plot);
        std::vector<std::string> names;
        for (const Shape& shape : fills()) {
            std::string polygon;
            for (const Point& point : shape)
                polygon += name(point);
            EXPECT_EQ(polygon.substr(polygon.size() - 2), polygon.substr(0, 2));
            names.push_back(polygon.substr(0, polygon.size() - 2));
        }
        return names;
    }
    static std::string join(const std::vector<std::string>& polygons) {
        std::string all;
        for (const std::string& polygon : polygons)
            all += (all.empty() ? "" : "/") + polygon;
        return all;
    }

private:
    std::string name(const Point& point) const {
        const auto is = [&](const Point& other) {
            return std::hypot(point.x - other.x, point.y - other.y) < 2e-5;
        };
        for (int i = 0; i < 4; i++)
            if (is(cont.box.pt[i]))
                return "K" + std::to_string(i);
        for (int i = 0; i < cont.box.numside; i++)
            if (is(cont.box.cpt[i]))
                return "U" + std::to_string(i);
        for (int i = 0; i < cont.pbox.numside; i++)
            if (is(cont.pbox.cpt[i]))
                return "L" + std::to_string(i);
        return "??";
    }
};

// The band as a walk around the cell finds it: corners and crossings in the order in which they
// lie on its rim, those in the band. Where a level has a saddle, the pairing says whether the two
// corners beyond it hang together; when they don't, what is beyond is cut off on its own.
class RimWalk {
public:
    RimWalk(const GridBox& upper, const GridBox& lower) : box(upper), pbox(lower) {}

    std::set<std::string> polygons() const {
        // The rim as a ring of names, clockwise, each with whether the way on to the next is in the
        // band.
        std::vector<std::string> ring;
        for (const auto& [corner, side, forward] : rim) {
            if (inBand(box.val[corner]))
                ring.push_back("K" + std::to_string(corner));
            std::vector<std::pair<float, std::string>> onSide;
            add(onSide, box, side, "U", forward);
            add(onSide, pbox, side, "L", forward);
            std::sort(onSide.begin(), onSide.end());
            for (const auto& [t, point] : onSide)
                ring.push_back(point);
        }
        return split(ring);
    }

private:
    class Leg {
    public:
        int corner, side;
        bool forward;
    };
    static constexpr Leg rim[4] = {{0, 0, true}, {1, 1, false}, {3, 2, false}, {2, 3, true}};

    const GridBox& box;
    const GridBox& pbox;

    bool inBand(float v) const { return v > pbox.level && v < box.level; }
    static void add(std::vector<std::pair<float, std::string>>& points, const GridBox& level,
                    int side, const char* name, bool forward) {
        for (int n = 0; n < level.numside; n++)
            if (level.cross[n] == side)
                points.emplace_back(forward ? level.side[side] : 1 - level.side[side],
                                    name + std::to_string(n));
    }
    // Chords that a saddle's pairing cuts along, as pairs of crossings.
    static std::vector<std::pair<std::string, std::string>> chords(const GridBox& level,
                                                                   const std::string& name) {
        if (level.numside != 4)
            return {};
        if (level.tsides < 2)
            return {{name + "0", name + "1"}, {name + "2", name + "3"}};
        return {{name + "1", name + "2"}, {name + "3", name + "0"}};
    }
    std::set<std::string> split(const std::vector<std::string>& ring) const {
        // Follow the rim from point to point; at a crossing whose way on is outside the band, jump
        // along its chord.
        std::map<std::string, std::string> jump;
        for (const auto& [level, name] :
             {std::pair<const GridBox*, std::string>(&box, "U"), {&pbox, "L"}}) {
            if (level->numside == 2) {
                jump[name + "0"] = name + "1";
                jump[name + "1"] = name + "0";
            }
            for (const auto& [a, b] : chords(*level, name)) {
                jump[a] = b;
                jump[b] = a;
            }
        }
        std::set<std::string> found;
        std::set<std::string> seen;
        const int n = static_cast<int>(ring.size());
        for (int start = 0; start < n; start++) {
            if (seen.count(ring[start]) || !leaves(ring, start))
                continue;
            std::string polygon;
            int at = start;
            do {
                polygon += ring[at];
                seen.insert(ring[at]);
                at = leaves(ring, at)
                         ? (at + 1) % n
                         : static_cast<int>(std::find(ring.begin(), ring.end(), jump[ring[at]]) -
                                            ring.begin());
            } while (at != start && polygon.size() < 40);
            found.insert(polygon);
        }
        return found;
    }
    // Whether the rim behind a point lies in the band: it does when both ends do, and they aren't
    // both crossings with something else between.
    bool leaves(const std::vector<std::string>& ring, int at) const {
        const std::string& point = ring[at];
        if (point[0] == 'K')
            return true;
        const GridBox& level = point[0] == 'U' ? box : pbox;
        const int side = level.cross[point[1] - '0'];
        // Value at the end of the leg that this side belongs to.
        const int ends[4] = {1, 3, 2, 0};
        const float after = box.val[ends[side]];
        return point[0] == 'U' ? after < box.level : after > pbox.level;
    }
};

// The same ring of points, from whatever point and in whatever direction: the smallest of all.
std::string ringName(const std::string& polygon) {
    std::vector<std::string> points;
    for (size_t i = 0; i + 1 < polygon.size(); i += 2)
        points.push_back(polygon.substr(i, 2));
    std::string best;
    for (int turn = 0; turn < 2; turn++) {
        for (size_t i = 0; i < points.size(); i++) {
            std::rotate(points.begin(), points.begin() + 1, points.end());
            std::string all;
            for (const std::string& point : points)
                all += point;
            if (best.empty() || all < best)
                best = all;
        }
        std::reverse(points.begin(), points.end());
    }
    return best;
}

std::set<std::string> ringNames(const std::vector<std::string>& polygons) {
    std::set<std::string> names;
    for (const std::string& polygon : polygons)
        names.insert(ringName(polygon));
    return names;
}

std::string pairName(const GridBox& box) {
    std::string name;
    for (int n = 0; n < box.numside; n++)
        name += std::to_string(box.cross[n]);
    return box.numside == 4 ? box.tsides < 2 ? "saddle<2" : "saddle>2" : name;
}

TEST_F(ContFillTest, AgreesWithAWalkAroundTheCell) {
    show(plain(2, 2).c_str());
    std::mt19937 random(7);
    std::uniform_real_distribution<float> value(0, 100);
    std::map<std::string, int> reached;
    for (int n = 0; n < 200000; n++) {
        const float values[4] = {value(random), value(random), value(random), value(random)};
        float lower = value(random), upper = value(random);
        if (lower > upper)
            std::swap(lower, upper);
        setCell(values, lower, upper);
        const std::string kind = pairName(cont.pbox) + "-" + pairName(cont.box);
        if (++reached[kind] > 20)
            continue;
        const std::vector<std::string> drawn = drawBand(values, lower, upper);
        setCell(values, lower, upper);
        std::set<std::string> walked;
        for (const std::string& polygon : RimWalk(cont.box, cont.pbox).polygons())
            walked.insert(ringName(polygon));
        EXPECT_EQ(ringNames(drawn), walked)
            << kind << " " << values[0] << " " << values[1] << " " << values[2] << " " << values[3]
            << " from " << lower << " to " << upper << ": " << join(drawn) << "   ts "
            << cont.pbox.tsides << " " << cont.box.tsides;
    }
    for (const auto& [kind, n] : reached)
        EXPECT_GT(n, 100) << kind;
    // None, six pairs and two saddles for each level; no saddle or pair at odds with a level that
    // runs straight through.
    EXPECT_EQ(reached.size(), 9u * 9u - 10u);
}

// Where a polygon begins and which way it runs: the rows of the drawing's tables, with the pairs of
// sides that the upper and the lower level cross.
TEST_F(ContFillTest, CornersComeInAFixedOrder) {
    show(plain(2, 2).c_str());
    const struct {
        const char* what;
        float values[4];
        float lower, upper;
        const char* corners;
    } rows[] = {
        {"whole cell", {1, 2, 3, 4}, 0, 5, "K1K3K2K0"},
        {"below", {1, 2, 3, 4}, 5, 6, ""},
        {"above", {1, 2, 3, 4}, -1, 0, ""},
        // The upper level alone.
        {"01, corner 1 above", {0, 10, 0, 0}, -1, 5, "U0U1K3K2K0"},
        {"01, corner 1 below", {10, 0, 10, 10}, -1, 5, "U0U1K1"},
        {"02, right below", {10, 0, 10, 0}, -1, 5, "U0U1K3K1"},
        {"02, left below", {0, 10, 0, 10}, -1, 5, "U0U1K2K0"},
        {"03, corner 0 above", {10, 0, 0, 0}, -1, 5, "U0U1K2K3K1"},
        {"03, corner 0 below", {0, 10, 10, 10}, -1, 5, "U0U1K0"},
        {"12, corner 3 below", {10, 10, 10, 0}, -1, 5, "U0U1K3"},
        {"12, corner 3 above", {0, 0, 0, 10}, -1, 5, "U0U1K2K0K1"},
        {"13, bottom below", {10, 10, 0, 0}, -1, 5, "U0U1K2K3"},
        {"13, top below", {0, 0, 10, 10}, -1, 5, "U0U1K0K1"},
        {"23, corner 2 above", {0, 0, 10, 0}, -1, 5, "U0U1K0K1K3"},
        {"23, corner 2 below", {10, 10, 0, 10}, -1, 5, "U0U1K2"},
        // The lower level alone.
        {"01, corner 1 below", {10, 0, 10, 10}, 5, 20, "L0L1K3K2K0"},
        {"01, corner 1 above", {0, 10, 0, 0}, 5, 20, "L0L1K1"},
        {"02, left above", {10, 0, 10, 0}, 5, 20, "L0L1K2K0"},
        {"02, right above", {0, 10, 0, 10}, 5, 20, "L0L1K3K1"},
        {"03, corner 0 below", {0, 10, 10, 10}, 5, 20, "L0L1K2K3K1"},
        {"03, corner 0 above", {10, 0, 0, 0}, 5, 20, "L0L1K0"},
        {"12, corner 3 above", {0, 0, 0, 10}, 5, 20, "L0L1K3"},
        {"12, corner 3 below", {10, 10, 10, 0}, 5, 20, "L0L1K2K0K1"},
        {"13, top above", {10, 10, 0, 0}, 5, 20, "L0L1K0K1"},
        {"13, bottom above", {0, 0, 10, 10}, 5, 20, "L0L1K2K3"},
        {"23, corner 2 below", {10, 10, 0, 10}, 5, 20, "L0L1K0K1K3"},
        {"23, corner 2 above", {0, 0, 10, 0}, 5, 20, "L0L1K2"},
        {"saddle, 1 and 2 apart", {0, 10, 10, 0}, 6, 20, "L0K1L1/L2K2L3"},
        {"saddle, 0 and 3 joined", {10, 0, 0, 10}, 4, 20, "L0L1K3L2L3K0"},
        {"saddle, 1 and 2 joined", {0, 10, 10, 0}, 4, 20, "L1L2K2L3L0K1"},
        {"saddle, 0 and 3 apart", {10, 0, 0, 10}, 6, 20, "L1K3L2/L3K0L0"},
        // Both once. Corner values in tens make the sides that each level crosses.
        {"01 over 01", {0, 10, 0, 0}, 4, 6, "U0U1L1L0"},
        {"01 over 02", {0, 20, 0, 10}, 5, 15, "U0U1K3L1L0"},
        {"01 over 03", {0, 20, 10, 10}, 5, 15, "U0U1K3K2L1L0"},
        {"01 over 12", {10, 20, 10, 0}, 5, 15, "U0U1L0L1K2K0"},
        {"01 over 13", {10, 20, 0, 0}, 5, 15, "U0U1L0L1K0"},
        {"01 over 23", {10, 20, 0, 10}, 5, 15, "U0U1K3L0L1K0"},
        {"02 over 01", {20, 0, 20, 10}, 5, 15, "U0U1K3L1L0"},
        {"02 over 02", {10, 0, 10, 0}, 4, 6, "U0U1L1L0"},
        {"02 over 03", {0, 20, 10, 20}, 5, 15, "U0U1K2L1L0"},
        {"02 over 12", {20, 10, 20, 0}, 5, 15, "U0U1L1L0K1"},
        {"02 over 23", {10, 20, 0, 20}, 5, 15, "U0U1L0L1K0"},
        {"03 over 01", {20, 0, 10, 10}, 5, 15, "U0U1K2K3L1L0"},
        {"03 over 02", {20, 0, 10, 0}, 5, 15, "U0U1K2L1L0"},
        {"03 over 03", {10, 0, 0, 0}, 4, 6, "U0U1L1L0"},
        {"03 over 12", {20, 10, 10, 0}, 5, 15, "U0U1K2L1L0K1"},
        {"03 over 13", {20, 10, 0, 0}, 5, 15, "U0U1L1L0K1"},
        {"03 over 23", {20, 10, 0, 10}, 5, 15, "U0U1L1L0K3K1"},
        {"12 over 01", {10, 0, 10, 20}, 5, 15, "U0U1K2K0L0L1"},
        {"12 over 02", {0, 10, 0, 20}, 5, 15, "U0U1L1L0K1"},
        {"12 over 03", {0, 10, 10, 20}, 5, 15, "U0U1K2L1L0K1"},
        {"12 over 12", {0, 0, 0, 10}, 4, 6, "U0U1L1L0"},
        {"12 over 13", {0, 0, 10, 20}, 5, 15, "U0U1K2L1L0"},
        {"12 over 23", {10, 10, 0, 20}, 5, 15, "U0U1L0L1K0K1"},
        {"13 over 01", {10, 0, 20, 20}, 5, 15, "U0U1K0L0L1"},
        {"13 over 03", {0, 10, 20, 20}, 5, 15, "U0U1L1L0K1"},
        {"13 over 12", {20, 20, 10, 0}, 5, 15, "U0U1K2L1L0"},
        {"13 over 13", {10, 10, 0, 0}, 4, 6, "U0U1L1L0"},
        {"13 over 23", {20, 20, 0, 10}, 5, 15, "U0U1L1L0K3"},
        {"23 over 01", {10, 0, 20, 10}, 5, 15, "U0U1K0L0L1K3"},
        {"23 over 02", {10, 0, 20, 0}, 5, 15, "U0U1K0L0L1"},
        {"23 over 03", {0, 10, 20, 10}, 5, 15, "U0U1L1L0K1K3"},
        {"23 over 12", {10, 10, 20, 0}, 5, 15, "U0U1K0K1L0L1"},
        {"23 over 13", {0, 0, 20, 10}, 5, 15, "U0U1L1L0K3"},
        {"23 over 23", {0, 0, 10, 0}, 4, 6, "U0U1L1L0"},
        // Over a saddle, whose corners 1 and 2 are far, and then near.
        {"01 over saddle", {0, 20, 10, 0}, 8, 15, "U0U1L1L0/L2L3K2"},
        {"01 over joined", {0, 20, 10, 0}, 2, 15, "U0U1L1L2K2L3L0"},
        {"03 over saddle", {20, 0, 0, 10}, 2, 15, "U0U1L3L2K3L1L0"},
        {"03 over joined", {20, 0, 0, 10}, 8, 15, "U0U1L3L0/L1L2K3"},
        {"12 over saddle", {10, 0, 0, 20}, 2, 15, "U0U1L2L3K0L0L1"},
        {"12 over joined", {10, 0, 0, 20}, 8, 15, "U0U1L2L1/L0L3K0"},
        {"23 over saddle", {0, 10, 20, 0}, 8, 15, "U0U1L3L2/L0L1K1"},
        {"23 over joined", {0, 10, 20, 0}, 2, 15, "U0U1L3L0K1L1L2"},
        // Under a saddle with corners 0 and 3 above, joined: what is below lies apart.
        {"saddle over none", {10, 0, 0, 10}, -1, 4, "U0U1K1/U2U3K2"},
        {"saddle over saddle", {10, 0, 0, 10}, 2, 4, "U0U1L1L0/U2U3L3L2"},
        {"saddle over 01", {10, -10, 0, 10}, -5, 2, "U0U1L1L0/U2U3K2"},
        {"saddle over 23", {10, 0, -10, 10}, -5, 2, "U0U1K1/U2U3L1L0"},
        // The same corners below: what is below hangs together.
        {"saddle over none", {0, 10, 10, 0}, -1, 6, "U0U1K3U2U3K0"},
        {"saddle over saddle", {0, 10, 10, 0}, 5.5f, 6, "U0U1L1L0/U2U3L3L2"},
        {"saddle over joined", {0, 10, 10, 0}, 4, 6, "U0U1L1L2U2U3L3L0"},
        {"saddle over 12", {0, 10, 10, -10}, -5, 8, "U0U1L0L1U2U3K0"},
        {"saddle over 03", {-10, 10, 10, 0}, -5, 8, "U0U1K3U2U3L1L0"},
        // The other pairing.
        {"joined over none", {10, 0, 0, 10}, -1, 6, "U1U2K2U3U0K1"},
        {"joined over saddle", {10, 0, 0, 10}, 4, 6, "U1U2L2L3U3U0L0L1"},
        {"joined over joined", {10, 0, 0, 10}, 5.5f, 6, "U1U2L2L1/U3U0L0L3"},
        {"joined over 23", {10, 0, -10, 10}, -5, 8, "U1U2L0L1U3U0K1"},
        {"joined over 01", {10, -10, 0, 10}, -5, 8, "U1U2K2U3U0L0L1"},
        {"joined over none, 1 and 2 above", {0, 10, 10, 0}, -1, 4, "U1U2K3/U3U0K0"},
        {"joined over joined, 1 and 2 above", {0, 10, 10, 0}, 2, 4, "U1U2L2L1/U3U0L0L3"},
        {"joined over 12", {0, 10, 10, -10}, -5, 2, "U1U2L1L0/U3U0K0"},
        {"joined over 03", {-10, 10, 10, 0}, -5, 2, "U1U2K3/U3U0L0L1"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(join(drawBand(row.values, row.lower, row.upper)), row.corners) << row.what;
}

// Each point of a field lies in just one polygon, where its cell has all values.
TEST_F(ContFillTest, BandsCoverEachCellOnce) {
    const int size = 12;
    std::mt19937 random(11);
    std::uniform_real_distribution<double> place(0, size - 1);
    for (const bool in_values : {false, true}) {
        Grid grid = makeGrid(size, size, {});
        fillRandom(grid, 5, 0.03);
        cont = ContPlot("cf,lab=0:0,ci=9");
        if (in_values)
            cont.setColorFill("0:1,7:2,31:3,32:4,60:5,88:6"); // above the last, too
        device->take();
        cont.drawFill(plot, grid);
        const std::vector<Shape> shapes = fills();
        double covered = 0, expected = 0;
        for (const Shape& shape : shapes)
            covered += area(shape);
        for (int j = 0; j < size - 1; j++)
            for (int i = 0; i < size - 1; i++) {
                cont.box.set(grid, plot.getDomain(), i, j);
                expected += cont.box.isDataValid();
            }
        EXPECT_NEAR(covered, expected, 0.01);

        for (int n = 0; n < 1000; n++) {
            const Point point(static_cast<float>(place(random)), static_cast<float>(place(random)));
            cont.box.set(grid, plot.getDomain(), static_cast<int>(point.x),
                         size - 2 - static_cast<int>(point.y));
            int holding = 0;
            for (const Shape& shape : shapes) {
                Points ring;
                for (const Point& corner : shape)
                    ring.add(corner);
                holding += ring.within(point);
            }
            ASSERT_EQ(holding, cont.box.isDataValid()) << point.x << " " << point.y;
        }
    }
}

// The color values of the polygons drawn, by that of their first one in a row.
std::vector<int> fillColors(const std::vector<std::string>& calls) {
    std::vector<int> colors;
    int color = -1;
    for (const std::string& call : calls) {
        if (call.rfind("color 3 ", 0) == 0)
            color = std::stoi(call.substr(8));
        if (call.rfind("fill 3 ", 0) == 0)
            colors.push_back(color);
    }
    return colors;
}

TEST_F(ContFillTest, BandsHaveTheColorOfTheirLowerLevel) {
    constexpr int red = 0xFF0000, green = 0xFF00, blue = 0xFF;
    const char* const colors = "0:#FF0000,10:#00FF00,20:#0000FF";
    const struct {
        const char* what;
        float left, right;
        const char* fill;
        std::vector<int> colors;
    } rows[] = {
        {"inside a band", 2, 8, colors, {red}},
        {"two bands", 2, 18, colors, {red, green}},
        {"all bands", 2, 28, colors, {red, green, blue}},
        {"above the last level", 25, 28, colors, {blue}},
        {"below the first level", -8, -2, colors, {}},
        {"partly below it", -8, 2, colors, {red}},
        {"a band without a color", 2, 28, "0:#FF0000,10:off,20:#0000FF", {red, blue}},
        {"one level", 2, 28, "10:#00FF00", {green}},
        {"a cycle", 2, 28, "#FF0000,#00FF00,#0000FF", {red, green, blue}},
    };
    for (const auto& row : rows) {
        Grid grid = makeGrid(2, 2, {row.left, row.right, row.left, row.right});
        cont = ContPlot("cf,lab=0:0,ci=10");
        cont.setColorFill(row.fill);
        device->take();
        cont.drawFill(plot, grid);
        EXPECT_EQ(fillColors(device->calls), row.colors) << row.what;
    }
}

TEST_F(ContFillTest, WorldIsCoveredToItsEdges) {
    // A grid that goes around the world, drawn in worlds that are cut somewhere else: all but the
    // one column that the grid leaves out.
    const struct {
        const char* what;
        const char* domain;
        double area;
    } rows[] = {
        {"latitude-longitude", "latlon:0:-73,0,-73,181,91,2,2", 350.0 * 180},
        {"Mollweide", "moll:0:-73,0,-73,101,51,3,3",
         2 * 3.14159265 * 63.7122 * 63.7122 * 350 / 360},
    };
    for (const auto& row : rows) {
        Grid grid;
        grid.setDomain(Domain("latlon:0:0,0,0,36,19,10,10")); // 175 west to 175 east
        grid.allocData();
        std::fill_n(static_cast<float*>(grid.data), 36 * 19, 1.0f);
        show(row.domain);
        cont = ContPlot("cf,lab=0:0");
        cont.setColorFill("0:red");
        cont.drawFill(plot, grid);
        double sum = 0;
        for (const Shape& shape : fills()) {
            Shape inside = shape;
            if (plot.getProj() == 2)
                for (Point& point : inside)
                    point.x = std::clamp(point.x, -180.0f, 180.0f);
            sum += area(inside);
        }
        EXPECT_NEAR(sum / row.area, 1, 0.02) << row.what;
        EXPECT_LT(longest(fills()), 50) << row.what << ": nothing runs across the map";
    }
}

// A page draws cells of a row in one polygon where that can't be told from the picture.
TEST_F(ContFillTest, JoinedCellsGiveThePictureOfSingleOnes) {
    const struct {
        const char* what;
        const char* domain;
    } rows[] = {
        {"as the grid", "lamb:90:-98:30:60,40,-98,81,61,0.5,0.5"},
        {"another projection", "merc:0:-98,40,-98,61,41,1,1"},
    };
    const std::string base = std::string(ORV_BINARY_DIR) + "/joined";
    for (const auto& row : rows) {
        std::string pictures[2];
        size_t polygons[2] = {};
        for (const bool joined : {false, true}) {
            const std::string name = base + (joined ? "1" : "0");
            Grid grid;
            grid.setDomain(Domain("lamb:90:-98:30:60,40,-98,81,61,0.5,0.5"));
            grid.allocData();
            for (int j = 0; j < grid.ny; j++)
                for (int i = 0; i < grid.nx; i++)
                    grid.setValue(
                        i, j,
                        static_cast<float>(50 + 40 * std::sin(i / 14.0) * std::cos(j / 10.0)));
            grid.setValue(20, 15, Const::MISS);
            testing::internal::CaptureStdout();
            {
                Plot page(("de=p," + name + ".ps,color").c_str());
                page.setPanel(Domain(row.domain));
                if (!joined)
                    page.graph.device_type = 0;
                ContPlot filled("cf,lab=0:0,ci=10");
                filled.draw(page, grid);
            }
            testing::internal::GetCapturedStdout();
            const auto read = [](const std::string& path) {
                std::ifstream in(path, std::ios::binary);
                std::stringstream all;
                all << in.rdbuf();
                return all.str();
            };
            const std::string page = read(name + ".ps");
            for (size_t at = page.find("%%FA"); at != std::string::npos;
                 at = page.find("%%FA", at + 1))
                polygons[joined]++;
            const std::string command = "gs -q -dBATCH -dNOPAUSE -dSAFER -r144 -sDEVICE=ppmraw "
                                        "-sOutputFile=" +
                                        name + ".ppm " + name + ".ps";
            ASSERT_EQ(std::system(command.c_str()), 0);
            pictures[joined] = read(name + ".ppm");
        }
        EXPECT_GT(pictures[0].size(), 1000000u);
        EXPECT_TRUE(pictures[0] == pictures[1]) << row.what;
        EXPECT_LT(polygons[1], polygons[0] * 3 / 4) << row.what;
    }
}

} // namespace
