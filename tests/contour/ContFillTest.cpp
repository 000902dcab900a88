#include "ContFixture.h"
#include "TempDir.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace ORV;

namespace {

class ContFillTest : public ContTest {
protected:
    ContPlot cont;

    /// The polygons of the band, each point by its name: corners K, crossings of the upper level U
    /// and of the lower one L, with the last point, which has to repeat the first, left out.
    std::string drawBand(const std::vector<float>& v, float lower, float upper) {
        const float values[4] = {v[0], v[1], v[2], v[3]};
        const Point places[4] = {{0, 1}, {1, 1}, {0, 0}, {1, 0}};
        cont.box.init();
        cont.box.set(plot.getDomain(), values, places);
        cont.box.setLevel(lower);
        cont.pbox = cont.box;
        cont.box.setLevel(upper);
        device->take();
        cont.drawBoxFill(plot);
        std::string all;
        for (const Shape& shape : fills()) {
            std::string polygon;
            for (const Point& point : shape)
                polygon += name(point);
            EXPECT_EQ(polygon.substr(polygon.size() - 2), polygon.substr(0, 2));
            all += (all.empty() ? "" : "/") + polygon.substr(0, polygon.size() - 2);
        }
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

// Where a polygon begins and which way it runs: the rows of the drawing's tables, with the pairs of
// sides that the upper and the lower level cross.
TEST_F(ContFillTest, CornersComeInAFixedOrder) {
    show(plain(2, 2).c_str());
    for (const Row& row : readTable("contour/corners.txt"))
        EXPECT_EQ(drawBand(row.numbers("values"), row.number("lower"), row.number("upper")),
                  row.text("corners"))
            << row.text("what");
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

// The colors of the polygons drawn, by that of their first one in a row.
std::string fillColors(const std::vector<std::string>& calls) {
    std::string colors;
    int color = -1;
    for (const std::string& call : calls) {
        if (call.rfind("color 3 ", 0) == 0)
            color = std::stoi(call.substr(8));
        if (call.rfind("fill 3 ", 0) == 0)
            colors += color == 0xFF0000 ? 'r' : color == 0xFF00 ? 'g' : color == 0xFF ? 'b' : '?';
    }
    return colors;
}

TEST_F(ContFillTest, BandsHaveTheColorOfTheirLowerLevel) {
    for (const Row& row : readTable("contour/band_colors.txt")) {
        const float left = row.number("left"), right = row.number("right");
        Grid grid = makeGrid(2, 2, {left, right, left, right});
        cont = ContPlot("cf,lab=0:0,ci=10");
        cont.setColorFill(row.text("fill"));
        device->take();
        cont.drawFill(plot, grid);
        EXPECT_EQ(fillColors(device->calls), row.text("colors")) << row.text("what");
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
    const TempDir dir;
    Grid grid;
    grid.setDomain(Domain("lamb:90:-98:30:60,40,-98,81,61,0.5,0.5"));
    grid.allocData();
    for (int j = 0; j < grid.ny; j++)
        for (int i = 0; i < grid.nx; i++)
            grid.setValue(i, j, float(50 + 40 * std::sin(i / 14.0) * std::cos(j / 10.0)));
    grid.setValue(20, 15, Const::MISS);
    for (const char* domain :
         {"lamb:90:-98:30:60,40,-98,81,61,0.5,0.5", "merc:0:-98,40,-98,61,41,1,1"}) {
        std::string pictures[2];
        size_t polygons[2] = {};
        for (const bool joined : {false, true}) {
            testing::internal::CaptureStdout();
            {
                Plot page(("de=p," + dir.path + "/page.ps,color").c_str());
                page.setPanel(Domain(domain));
                if (!joined)
                    page.graph.device_type = 0;
                ContPlot filled("cf,lab=0:0,ci=10");
                Grid field = grid; // which keeps its places on the plot
                filled.draw(page, field);
            }
            testing::internal::GetCapturedStdout();
            const std::string page = dir.read("page.ps");
            for (size_t at = page.find("%%FA"); at != std::string::npos;
                 at = page.find("%%FA", at + 1))
                polygons[joined]++;
            const std::string command =
                "gs -q -dBATCH -dNOPAUSE -dSAFER -r144 -sDEVICE=ppmraw -sOutputFile=" + dir.path +
                "/page.ppm " + dir.path + "/page.ps";
            ASSERT_EQ(std::system(command.c_str()), 0);
            pictures[joined] = dir.read("page.ppm");
        }
        EXPECT_GT(pictures[0].size(), 1000000u);
        EXPECT_TRUE(pictures[0] == pictures[1]) << domain;
        EXPECT_LT(polygons[1], polygons[0] * 3 / 4) << domain;
    }
}

} // namespace
