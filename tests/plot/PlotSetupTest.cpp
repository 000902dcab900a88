#include "PlotFixture.h"

#include <filesystem>
#include <fstream>

using namespace ORV;

namespace {

TEST_F(PlotTest, DrawingTextChoosesTheParts) {
    const struct {
        const char* text;
        const char* flags; // plot, data, map, ul, uc, ur, ll, lc, lr, border
    } rows[] = {
        {"", "1111111111"},
        {"data", "0100000000"},
        {"-data,-map", "1001111111"},
        {"text", "0001111111"},
        {"plot,text_ur,BORD", "1000010001"},
        {"text,-text_ll", "0001110111"},
        {"all,-grid,+none", "0000000000"},
        {"nonsense", "0000000000"},
    };
    for (const auto& row : rows) {
        plot.setDrawing(row.text);
        std::string flags;
        for (int i = 0; i < 10; i++)
            flags += plot.isDrawing(i) ? '1' : '0';
        EXPECT_EQ(flags, row.flags) << row.text;
    }
    EXPECT_FALSE(plot.isDrawing(10));
    EXPECT_FALSE(plot.isDrawing(-1));
}

TEST_F(PlotTest, OpeningTakesResourcesFirstAndItsOwnTextLast) {
    Orv::putResrc("geometry", "300x200");
    Orv::putResrc("parameter", "ti=Resource,full");
    Orv::putResrc("output", "gif:map.gif");
    Orv::putResrc("draw", "data");
    open("ge=800x600,ti=Text");
    EXPECT_EQ(device->width, 800);
    EXPECT_STREQ(plot.title, "Text");
    EXPECT_EQ(plot.full, 1);
    EXPECT_EQ(plot.image_output, 1);
    EXPECT_TRUE(plot.isDrawing(1));
    EXPECT_FALSE(plot.isDrawing(9));
    EXPECT_EQ(plot.colors.getMax(), 512);
    EXPECT_EQ(plot.getColorValue("white"), 0xFFFFFF);
    EXPECT_EQ(plot.getColorValue("#102030"), 0x102030);
    EXPECT_EQ(plot.update(), 0) << "a picture is saved, not shown";
}

TEST_F(PlotTest, PageFileOfTheTextWinsOverTheResource) {
    const std::filesystem::path dir = std::filesystem::path(testing::TempDir()) / "orvplot";
    std::filesystem::create_directories(dir);
    const std::string page = (dir / "page.ps").string(), other = (dir / "other.ps").string();
    const struct {
        const char* what;
        std::string resource, text;
    } rows[] = {
        {"resource alone", "p," + page, "ti=Map"},
        {"text alone", "", "de=p," + page},
        {"text over resource", "p," + other, "de=p," + page},
        {"quoted text", "p," + other, "ti=Map,\"de=p," + page + ",eps\""},
    };
    for (const auto& row : rows) {
        std::filesystem::remove(page);
        std::filesystem::remove(other);
        Orv::resrc.clear();
        if (!row.resource.empty())
            Orv::putResrc("device", row.resource.c_str());
        testing::internal::CaptureStdout();
        Plot ps;
        EXPECT_TRUE(ps.open(row.text.c_str()));
        ps.close();
        testing::internal::GetCapturedStdout();
        EXPECT_TRUE(std::filesystem::exists(page)) << row.what;
        EXPECT_FALSE(std::filesystem::exists(other)) << row.what;
    }
    std::filesystem::remove_all(dir);
}

TEST_F(PlotTest, DefaultColorShowsOnTheSurface) {
    open();
    plot.setLine();
    EXPECT_EQ(plot.graph.line_color, 0xFFFFFF);
    device->inverse = true;
    plot.setLine();
    EXPECT_EQ(plot.graph.line_color, 0);
    device->inverse = false;
    plot.graph.device_type = 2;
    plot.setText();
    EXPECT_EQ(plot.graph.text_color, 0) << "white on paper can't be read";
}

TEST_F(PlotTest, PositionQueryTellsThePlaceAndAsksTheDrawings) {
    class Query : public Listener {
    public:
        std::string place;
        void callback(const char* type, const char* data, const void*) override {
            if (std::string(type) == "QueryLoc")
                place = data;
        }
    } query;
    show("latlon:0:0,0,0,181,91,2,2");
    plot.addCallback("AnyEvent", &query, nullptr);
    testing::internal::CaptureStdout();
    plot.callback("KeyPress", "v-Alt:750:125", nullptr);
    // 360 degrees over 1000 pixels, 180 over 500.
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Lat: 45.0000 Lon: 90.0000 XY: 90.000 45.000 Grid: 135.00 22.50 Pixel: 750 125\n");
    EXPECT_EQ(query.place, "45.000000,90.000000");
    plot.callback("KeyPress", "v-Alt:", nullptr);
    plot.callback("KeyPress", "v-Alt", nullptr);
    plot.callback("KeyPress", nullptr, nullptr);
}

TEST_F(PlotTest, ReturnClosesAndLaterDrawingIsQuiet) {
    show("latlon:0:0,0,0,181,91,2,2");
    plot.callback("KeyPress", "Ret:1:1", nullptr);
    EXPECT_FALSE(plot.graph.isOpen());
    EXPECT_EQ(plot.drawLine(0, 0, 10, 10), 0);
    EXPECT_EQ(plot.newFrame() + plot.drawText(0, 0, "A") * 0, 1);
    EXPECT_FALSE(plot.newPanel("2x2+1+1") > 1);
}

} // namespace
