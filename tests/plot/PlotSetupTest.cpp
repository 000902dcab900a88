#include "PlotFixture.h"
#include "TempDir.h"

#include <filesystem>
#include <fstream>

using namespace ORV;

namespace {

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
    const TempDir dir;
    const std::string page = dir.path + "/page.ps", other = dir.path + "/other.ps";
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

} // namespace
