#include "ContFixture.h"

#include <map>
#include <set>

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
        std::printf("%s %d\n", kind.c_str(), n);
}

} // namespace
