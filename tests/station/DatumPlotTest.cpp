#include "ORV/DatumPlot.h"

#include "StationPlot.h"

using namespace ORV;

namespace {

/// 25 device units a degree; longitude 0 at 500, latitude 0 at 250. The plot is 20 degrees high.
class DatumPlotTest : public StationPlot {
protected:
    DatumPlotTest() {
        Orv::resrc.clear();
        setDomain("ll,0,0,41,21,1,1");
        drawer.setColor("red");
    }

    std::string draw(const Datum& datum) {
        drawer.draw(plot, datum);
        return device->take();
    }
    /// Only what was drawn, without attributes.
    std::string shapes(const Datum& datum) {
        drawer.draw(plot, datum);
        std::string all;
        for (const auto& call : device->calls)
            if (call.rfind("line ", 0) == 0 || call.rfind("fill ", 0) == 0)
                all += call + "\n";
        device->take();
        return all;
    }
    std::string colorOf(const char* name) {
        return "color 4 " + std::to_string(plot.getColorValue(name));
    }

    DatumPlot drawer;
};

} // namespace

TEST_F(DatumPlotTest, MarkStandsAtItsPlace) {
    // The size is 0.018 of the height: 0.36 degrees, 4.5 device units each way.
    EXPECT_EQ(shapes(Datum(4, 10, Datum::DATA, "", "mk=plus")),
              "line 2 745.5,150.0 754.5,150.0\nline 2 750.0,154.5 750.0,145.5\n");
    EXPECT_EQ(shapes(Datum(0, 0, Datum::MARK, "x", "sc=2")),
              "line 2 491.0,259.0 509.0,241.0\nline 2 509.0,259.0 491.0,241.0\n");
}

TEST_F(DatumPlotTest, NumbersAndTextsOfTheGeneralKind) {
    const std::string thirteen = shapes(Datum(0, 0, Datum::TEXT, "13", "ul"));
    EXPECT_NE(thirteen, "");
    EXPECT_EQ(shapes(Datum(0, 0, Datum::DATA, 12.6f, "ul")), thirteen);
    EXPECT_EQ(shapes(Datum(0, 0, Datum::VALUE, 12.6f, "ul")), thirteen);
    EXPECT_EQ(shapes(Datum(0, 0, Datum::DATA, "13", "ul")), thirteen);
    EXPECT_EQ(shapes(Datum(0, 0, Datum::DATA, 13.04f, "ul,%.1f")),
              shapes(Datum(0, 0, Datum::TEXT, "13.0", "ul")));
    // A value that rounds to nothing has no sign.
    EXPECT_EQ(shapes(Datum(0, 0, Datum::DATA, -0.3f, "ul,%.0f")),
              shapes(Datum(0, 0, Datum::TEXT, "0", "ul")));
    EXPECT_EQ(shapes(Datum(0, 0, Datum::DATA, -0.3f, "ul,%.1f")),
              shapes(Datum(0, 0, Datum::TEXT, "-0.3", "ul")));
    // With a format a missing value shows nothing, and neither does a missing number.
    EXPECT_EQ(shapes(Datum(0, 0, Datum::DATA, "13", "ul,%.1f")), "");
    EXPECT_EQ(shapes(Datum(0, 0, Datum::VALUE, "13", "ul")), "");
    // A format over all elements wins; one that doesn't fit a number shows nothing.
    drawer.setFormat("%.0f");
    EXPECT_EQ(shapes(Datum(0, 0, Datum::DATA, 12.6f, "ul,%.3f")), thirteen);
    drawer.setFormat("%s%n");
    EXPECT_EQ(shapes(Datum(0, 0, Datum::DATA, 12.6f, "ul")), "");
}

TEST_F(DatumPlotTest, ColorsComeFromTheElementTheFillOrTheDefault) {
    EXPECT_NE(draw(Datum(0, 0, Datum::TEXT, "A", "")).find(colorOf("red")), std::string::npos);
    drawer.setColorFill("0-blue,10-green");
    drawer.first = 1;
    drawer.setInterval(10);
    const std::string text = draw(Datum(0, 0, Datum::VALUE, 5, ""));
    EXPECT_EQ(drawer.use_fill, 1);
    EXPECT_NE(text.find(colorOf(drawer.fill.get(5.0f).color)), std::string::npos) << text;
    // A color that the element names isn't touched.
    EXPECT_NE(draw(Datum(0, 0, Datum::VALUE, 5, "orange")).find(colorOf("orange")),
              std::string::npos);
}

TEST_F(DatumPlotTest, BarbsOfBothHemispheres) {
    // 0.05 of the height: a staff of 25 device units; a full barb 12.5 to the east in the north and
    // to the west in the south.
    EXPECT_EQ(shapes(Datum(4, 0, Datum::WBARB, 0, 10, "")),
              "line 1 500.0,125.0 512.5,122.0\nline 1 500.0,150.0 500.0,125.0\n");
    EXPECT_EQ(shapes(Datum(-4, 0, Datum::WBARB, 0, 10, "")),
              "line 1 500.0,325.0 487.5,322.0\nline 1 500.0,350.0 500.0,325.0\n");
    // Missing parts draw nothing, on either side of the equator.
    for (const float lat : {4.0f, -4.0f}) {
        EXPECT_EQ(shapes(Datum(lat, 0, Datum::WBARB, 0, Const::MISS, "")), "");
        EXPECT_EQ(shapes(Datum(lat, 0, Datum::WBARB, Const::MISS, 10, "")), "");
    }
    // Calm is a circle whatever the direction, of another size for each kind of barb.
    for (const int kind : {Datum::WBARB, Datum::CBARB, Datum::AVECT}) {
        drawer.draw(plot, Datum(0, 0, kind, Const::MISS, 0, ""));
        EXPECT_EQ(lines(), 1) << kind;
        device->take();
    }
    drawer.draw(plot, Datum(0, 0, Datum::DBARB, Const::MISS, 0, ""));
    EXPECT_EQ(lines(), 2);
    device->take();
    // A barb with a station circle starts at its rim, 0.01 of the height.
    EXPECT_EQ(shapes(Datum(0, 0, Datum::CBARB, 0, 2, "")), "line 1 500.0,245.0 500.0,225.0\n");
}

TEST_F(DatumPlotTest, CloudsAndSymbols) {
    EXPECT_EQ(shapes(Datum(0, 0, Datum::CLOUD, "OBX", "")),
              shapes(Datum(0, 0, Datum::CLOUD, "X", "")));
    EXPECT_NE(shapes(Datum(0, 0, Datum::SYMB, "-RA", "")), "");
    EXPECT_EQ(shapes(Datum(0, 0, Datum::SYMB, "no such weather", "")), "");
    EXPECT_EQ(shapes(Datum(0, 0, 5, "reserved", "")), "");
}

TEST_F(DatumPlotTest, LinesJoinElements) {
    // To a place given as values, then back to the element before.
    EXPECT_EQ(shapes(Datum(4, 0, Datum::LINE, 4, 10, "")), "line 1 500.0,150.0 750.0,150.0\n");
    Datum back(-4, 0, Datum::LINE, "pre", "");
    EXPECT_EQ(shapes(back), "line 1 500.0,350.0 500.0,150.0\n");
    // "post" waits for the next element.
    EXPECT_EQ(shapes(Datum(0, 0, Datum::LINE, "post", "")), "");
    EXPECT_EQ(shapes(Datum(0, 10, Datum::DATA, "", "mk=8")).substr(0, 32),
              "line 1 750.0,250.0 500.0,250.0\nl");
    // An element without a place drops it.
    shapes(Datum(0, 0, Datum::LINE, "post", ""));
    EXPECT_EQ(drawer.draw(plot, Datum(Const::MISS, Const::MISS, Datum::TEXT, "A", "")), 0);
    EXPECT_EQ(shapes(Datum(0, 10, Datum::TEXT, "", "")), "");
}

TEST_F(DatumPlotTest, ParametersAndResources) {
    Orv::setResrc("plot_scale", "0.5");
    Orv::setResrc("color_data", "blue:hi=2");
    Orv::setResrc("parameter", "fm=%.2f,ty=text,xx=1");
    const DatumPlot set_up;
    EXPECT_EQ(set_up.scale, 0.5f);
    EXPECT_STREQ(set_up.attr.color, "blue");
    EXPECT_EQ(set_up.attr.height, 2);
    EXPECT_STREQ(set_up.format, "%.2f");
    EXPECT_EQ(set_up.def_type, Datum::TEXT);
    Orv::resrc.clear();
    EXPECT_EQ(drawer.setType("wbarb"), 0);
}
