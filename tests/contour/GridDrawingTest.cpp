#include "ORV/GridCont.h"
#include "ORV/GridVect.h"

#include "VectFixture.h"

using namespace ORV;

namespace {
class GridDrawingTest : public VectTest {
protected:
    GridDrawingTest() { Orv::setMessageLevel("print"); }
    void makeWorld() {
        showWind("ll:0:0,0,0,37,19,10,10", [](const Point& at) { return Point(at.x, at.y); });
        u.setInfo("Temperature [K]");
        u.setDatim("12Z");
    }
    static std::string answer(Listener& drawing, const char* type, const char* text) {
        testing::internal::CaptureStdout();
        drawing.callback(type, text, nullptr);
        return testing::internal::GetCapturedStdout();
    }
};
} // namespace

TEST_F(GridDrawingTest, DrawsAGridWithALabelLineOfItsOwn) {
    makeWorld();
    GridCont cont("cf");
    EXPECT_EQ(cont.draw(plot, u), 1);
    EXPECT_FALSE(fills().empty());
    EXPECT_FALSE(u.isLocate()); // places on this plot stay with the drawing
    EXPECT_GT(plot.num_labels, 0);
    EXPECT_EQ(plot.num_lines, 1);

    cont.setParam("nolabel");
    const int labels = plot.num_labels;
    cont.draw(plot, u);
    EXPECT_EQ(plot.num_labels, labels);
    EXPECT_EQ(plot.num_lines, 1);

    device->take();
    EXPECT_EQ(cont.draw(plot, Grid()), 1);
    EXPECT_TRUE(fills().empty());
}

TEST_F(GridDrawingTest, DrawsWindsWithTheReferenceArrowInPlaceOfTheMaximum) {
    makeWorld();
    GridVect vectors;
    EXPECT_EQ(vectors.draw(plot, u, v), 1);
    EXPECT_FALSE(lines().empty());
    EXPECT_EQ(plot.num_labels, 3);
    EXPECT_EQ(plot.num_lines, 1);
    vectors.setParam("vbar");
    vectors.draw(plot, u, v);
    EXPECT_EQ(plot.num_labels, 5);
    EXPECT_EQ(vectors.draw(plot, u, Grid()), 0);
}

TEST_F(GridDrawingTest, AnswersWhatIsAtAPlace) {
    makeWorld();
    GridCont cont;
    GridVect vectors;
    EXPECT_EQ(answer(cont, "QueryLoc", "12.5,-45"),
              "GridCont value [-9999.00,-9999.00]: -9999.000000\n");
    cont.draw(plot, u);
    vectors.draw(plot, u, v);
    EXPECT_EQ(answer(cont, "QueryLoc", "12.5,-45"), "GridCont value [13.50,7.75]: -45.000000\n");
    EXPECT_EQ(answer(vectors, "QueryLoc", "12.5,-45"),
              "GridVect value [13.50,7.75]: -45.000000,12.500000\n");
    for (const char* text : {"", "x", "12.5", "12.5;3"})
        EXPECT_EQ(answer(cont, "QueryLoc", text), "") << text;
    EXPECT_EQ(answer(cont, "QueryLoc", nullptr), "");
    EXPECT_EQ(answer(vectors, "KeyPress", "12.5,-45"), "");
}
