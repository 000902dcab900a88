#include "ContFixture.h"

using namespace ORV;

namespace {

class ContPlotTest : public ContTest {};

TEST_F(ContPlotTest, TypeChoosesWhatIsDrawn) {
    Grid grid = makeGrid(2, 2, {0, 10, 0, 10});
    const struct {
        const char* type;
        bool fill, lines, texts;
    } rows[] = {
        {"ln", false, true, false},    {"cf", true, false, false},   {"lcf", true, true, false},
        {"value", false, false, true}, {"none", true, false, false},
    };
    plot.graph.hfont = 1;
    for (const auto& row : rows) {
        ContPlot cont("lab=0:0,ci=4");
        cont.setType(row.type);
        device->take();
        cont.draw(plot, grid);
        EXPECT_EQ(device->count("fill 3") > 0, row.fill) << row.type;
        EXPECT_EQ(device->count("line 1") > 0, row.lines) << row.type;
        EXPECT_EQ(device->count("text ") > 0, row.texts) << row.type;
    }
}

} // namespace
