#include "ContFixture.h"

#include <cmath>

using namespace ORV;

namespace {

constexpr float none = Const::MISS;

class ContLineTest : public ContTest {
protected:
    ContPlot cont{"lab=0:0"};

    /// The levels chosen for a grid with this range.
    void choose(float min, float max, const char* params) {
        cont = ContPlot((std::string("lab=0:0,") + params).c_str());
        Grid grid = makeGrid(2, 2, {min, max, min, max});
        cont.drawLine(plot, grid);
    }
    std::string drawLine(Grid& grid, const char* params = "") {
        cont.setParam(params);
        device->take();
        cont.drawLine(plot, grid);
        return text(lines());
    }
    /// The style of each line that was drawn, by the level it was drawn for.
    std::vector<int> styles() const {
        std::vector<int> all;
        int style = 1;
        for (const std::string& call : device->calls) {
            if (call.rfind("style 1 ", 0) == 0)
                style = std::stoi(call.substr(8));
            if (call.rfind("line 1 ", 0) == 0)
                all.push_back(style);
        }
        return all;
    }
};

TEST_F(ContLineTest, ChoosesRoundLevelsAroundTheRange) {
    for (const Row& row : readTable("contour/chooses_round_levels_around_the_range.txt")) {
        choose(row.number("min"), row.number("max"), row.text("params"));
        EXPECT_FLOAT_EQ(cont.conlo, row.number("conlo")) << row.text("what");
        EXPECT_FLOAT_EQ(cont.conhi, row.number("conhi")) << row.text("what");
        EXPECT_EQ(cont.num_cont, row.integer("num")) << row.text("what");
        EXPECT_FLOAT_EQ(cont.getLevel(2), cont.conlo + 2 * cont.intrvl) << row.text("what");
    }
}

TEST_F(ContLineTest, ExplicitValuesAreTheLevels) {
    choose(0, 100, "ci=10");
    cont.setColorFill("0:red,30:blue,35:green");
    Grid grid = makeGrid(2, 2, {0, 100, 0, 100});
    cont.drawLine(plot, grid);
    EXPECT_EQ(cont.num_cont, 3);
    EXPECT_EQ(cont.conlo, 0);
    EXPECT_EQ(cont.getLevel(2), 35);
    EXPECT_EQ(cont.intrvl, none) << "the interval doesn't hold";
    cont.drawFill(plot, grid);
    EXPECT_EQ(cont.getLevel(3), 101) << "above what is drawn";
}

TEST_F(ContLineTest, DrawsASegmentInEachCell) {
    Grid grid = makeGrid(3, 2, {0, 10, 20, 0, 10, 20});
    EXPECT_EQ(drawLine(grid, "ci=4"), "0,1 0,0 / 0.4,1 0.4,0 / 0.8,1 0.8,0 / "
                                      "1.2,1 1.2,0 / 1.6,1 1.6,0 / ")
        << "cell by cell; the corners on the level 0 are lowered, so that it lies beside them";

    grid = makeGrid(3, 2, {0, 10, none, 0, 10, 20});
    EXPECT_EQ(drawLine(grid, "ci=4"), "0,1 0,0 / 0.4,1 0.4,0 / 0.8,1 0.8,0 / ");
    grid = makeGrid(3, 2, {0, 10, INFINITY, 0, 10, 20});
    EXPECT_EQ(drawLine(grid, "ci=4"), "0,1 0,0 / 0.4,1 0.4,0 / 0.8,1 0.8,0 / ");
}

TEST_F(ContLineTest, SaddleLinesAreJoinedByTheNearerWay) {
    // The distances from the corners 1 and 2: 1.6 of 4 at level 4, 2.4 at 6, and 2 at 5.
    Grid grid = makeGrid(2, 2, {10, 0, 0, 10});
    cont.setColorFill("4:red");
    EXPECT_EQ(drawLine(grid), "0.6,1 0,0.4 / 1,0.6 0.4,0 / ");
    cont.setColorFill("6:red");
    EXPECT_EQ(drawLine(grid), "0.4,1 1,0.4 / 0.6,0 0,0.6 / ");
    cont.setColorFill("5:red");
    EXPECT_EQ(drawLine(grid), "0.5,1 1,0.5 / 0.5,0 0,0.5 / ");
}

TEST_F(ContLineTest, NothingOfAFlatOrAnEmptyGrid) {
    Grid flat = makeGrid(3, 3, {7, 7, 7, 7, 7, 7, 7, 7, 7});
    EXPECT_EQ(drawLine(flat), "");
    cont.init();
    Grid empty = makeGrid(3, 2, {none, none, none, none, none, none});
    EXPECT_EQ(drawLine(empty), "");
    EXPECT_EQ(cont.num_cont, 0);
    EXPECT_EQ(cont.intrvl, 1);
    Grid no_data;
    EXPECT_EQ(cont.draw(plot, no_data), 1);
    Grid row = makeGrid("xy:0:0,1,0,3,2,1,1", {1, 2, 3, 4, 5, 6});
    row.ny = 1;
    for (const char* type : {"ln", "cf", "lcf", "value"}) {
        cont.setType(type);
        EXPECT_EQ(cont.draw(plot, row), 1);
    }
}

TEST_F(ContLineTest, HugeValuesDrawOrStayQuiet) {
    for (const float huge : {3.4e38f, 1e30f, INFINITY}) {
        Grid grid = makeGrid(3, 2, {-huge, 0, huge, 1, 2, -huge});
        for (const char* params : {"ln,ci=miss", "ln,ci=1", "lcf,ci=1e-30", "ln,cb=1e30,ci=1"}) {
            cont = ContPlot(params);
            testing::internal::CaptureStderr();
            EXPECT_EQ(cont.draw(plot, grid), 1);
            testing::internal::GetCapturedStderr();
            EXPECT_LT(cont.num_cont, 10001);
            for (const Shape& line : lines())
                for (const Point& point : line)
                    EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
        }
    }
}

TEST_F(ContLineTest, DashesLevelsBelowTheBase) {
    Grid grid = makeGrid(2, 2, {2, 18, 2, 18});
    const struct {
        const char* params;
        std::vector<int> styles; // of the levels 5, 10 and 15
    } rows[] = {
        {"ci=5,ln", {1, 1, 1}},
        {"ci=5,dln", {2, 2, 2}},
        {"ci=5,ndln,cb=10", {2, 1, 1}},
        {"ci=5,ndln", {1, 1, 1}},
        {"ci=5,dln,co=red:st=dot", {5, 5, 5}},
    };
    for (const auto& row : rows) {
        cont = ContPlot("lab=0:0");
        drawLine(grid, row.params);
        EXPECT_EQ(styles(), row.styles) << row.params;
    }
    // Levels of a fill bring their own style, and their color when the lines ask for it.
    cont = ContPlot("lab=0:0,co=miss,dln");
    cont.setColorFill("5:red,10:#0000ff:st=dot,15:green");
    drawLine(grid);
    EXPECT_EQ(styles(), (std::vector<int>{2, 5, 2}));
    EXPECT_EQ(device->count("color 1 16711680"), 1) << "red";
    EXPECT_EQ(device->count("color 1 255"), 1) << "blue";
}

TEST_F(ContLineTest, LinesOverTheDateLineShowOnBothSides) {
    Grid grid;
    grid.setDomain(Domain("latlon:0:180,0,180,2,2,20,20")); // 170 to 190 east
    grid.allocData();
    const float values[] = {0, 0, 10, 10};
    std::copy_n(values, 4, static_cast<float*>(grid.data));
    show("latlon:0:0,0,0,181,91,2,2");
    cont.setColorFill("5:red");
    EXPECT_EQ(drawLine(grid), "-170,0 -180,0 / 180,0 170,0 / ");

    // Wholly beyond the edge: levels of 172.5 and 187.5 east.
    const float columns[] = {0, 20, 0, 20};
    std::copy_n(columns, 4, static_cast<float*>(grid.data));
    cont.setColorFill("2.5:red,17.5:blue");
    EXPECT_EQ(drawLine(grid), "172,10 172,-10 / -172,10 -172,-10 / ");
}

// A plane over the earth: its levels are meridians, wherever the plot shows them.
TEST_F(ContLineTest, LinesStandInPlaceOnAnotherProjection) {
    Grid grid;
    grid.setDomain(Domain("latlon:0:-100,40,-100,41,21,1,1"));
    grid.allocData();
    for (int n = 0; n < grid.nx * grid.ny; n++)
        grid.data[n] = -120.0f + n % grid.nx;
    show("lamb:90:-98:30:60,40,-98,61,41,1,1");
    cont.setColorFill("-110.5:red");
    drawLine(grid);
    ASSERT_EQ(lines().size(), 20u);
    for (const Shape& line : lines())
        for (const Point& point : line) {
            EarthPoint earth;
            plot.getDomain().tran(point, earth);
            EXPECT_NEAR(earth.lon, -110.5, 0.01);
        }
}

// An hour of altimeter settings of the contiguous United States, 27 January 2025 22 UTC, by a
// weighted mean within 5 degrees on 14 by 10 points; its contours by matplotlib 3.6 (contour with
// corner_mask off): segments, total length, and their middle weighted by length, in grid units from
// the lower left.
TEST_F(ContLineTest, ContoursLieWhereAnotherProgramDrawsThem) {
    std::vector<float> values;
    for (const Row& row : readTable("contour/altimeter.txt"))
        for (const float value : row.numbers("values"))
            values.push_back(value);
    Grid grid = makeGrid(14, 10, values);
    for (const Row& row : readTable("contour/contours_lie_where_another_program_draws_them.txt")) {
        cont.setColorFill(row.text("level"));
        drawLine(grid);
        double length = 0, x = 0, y = 0;
        for (const Shape& line : lines()) {
            const double piece = std::hypot(line[1].x - line[0].x, line[1].y - line[0].y);
            length += piece;
            x += piece * (line[0].x + line[1].x) / 2;
            y += piece * (line[0].y + line[1].y) / 2;
        }
        EXPECT_EQ(lines().size(), row.integer("segments")) << row.text("level");
        EXPECT_NEAR(length, row.real("length"), 0.005) << row.text("level");
        EXPECT_NEAR(x / length, row.real("x"), 0.002) << row.text("level");
        EXPECT_NEAR(y / length, row.real("y"), 0.002) << row.text("level");
    }
}

} // namespace
