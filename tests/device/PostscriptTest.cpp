#include "ORV/Postscript.h"

#include "ORV/Graph.h"

#include "TempDir.h"
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

using namespace ORV;

namespace {
class PostscriptTest : public testing::Test {
protected:
    void open(const std::string& items = "") { ASSERT_EQ(open(page, items), 1); }
    int open(Postscript& device, const std::string& items) {
        testing::internal::CaptureStdout();
        device.setParam((path + "," + items).c_str());
        const int ok = device.open();
        told = testing::internal::GetCapturedStdout();
        return ok;
    }
    std::string text() {
        page.close();
        std::ifstream in(path);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    // What was written between the header and the trailer.
    std::string plot() {
        const std::string all = text();
        const std::string head = "%%ORV Plot: ORV Plot\n";
        const auto from = all.find(head) + head.size();
        return all.substr(from, all.find("%%End of plot") - from);
    }

    TempDir dir;
    std::string path = dir.path + "/page.ps";
    Postscript page;
    std::string told;
};

Points triangle() {
    Points points;
    points.add(0, 0);
    points.add(10.005f, 20);
    points.add(-3.125f, 7.5f);
    return points;
}
} // namespace

TEST_F(PostscriptTest, StartsAndEndsALandscapePage) {
    open();
    EXPECT_EQ(told, "Creating: " + path + "\n");
    const std::string all = text();
    EXPECT_EQ(all.rfind("%!PS-Adobe-1.0\n%%Title: ORV Graphics Display: ORV Plot\n"
                        "%%Creator: ORV Postscript Processor-5.5\n%%CreationDate: ",
                        0),
              0u);
    std::ifstream page_file(ORV_TEST_DATA "/device/landscape.ps"); // from where the date is past
    const std::string expected{std::istreambuf_iterator<char>(page_file), {}};
    EXPECT_EQ(all.substr(all.find("%%EndComments\n")), expected);
}

TEST_F(PostscriptTest, AnEncapsulatedPageEndsOnlyWhatItBegan) {
    open("EPS,port,color,scale=0.5");
    const std::string all = text();
    EXPECT_EQ(all.rfind("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 756 576\n", 0), 0u);
    EXPECT_EQ(all.find("dict begin"), std::string::npos);
    EXPECT_EQ(all.find("translate"), std::string::npos);
    EXPECT_NE(all.find("0 0 0 setrgbcolor\n"), std::string::npos);
    EXPECT_NE(all.find("[] 0 setdash\n0.50 0.50 scale\n%%Begin plot\n"), std::string::npos);
    EXPECT_NE(all.find("%%End of plot\nshowpage\n%%EOF\n"), std::string::npos);
}

TEST_F(PostscriptTest, WritesLinesWithTheStateOfTheirContext) {
    open("color,lwidth=2");
    page.setColor(1, page.allocColor(1, 0.5f, 0));
    page.setLineWidth(1, 1.5f);
    page.setLineStyle(1, 4);
    page.drawLine(1, 1, 2, 3.456f, -0.001f);
    page.setLineStyle(1, 6);
    Points points = triangle();
    page.drawLine(1, points);
    page.setColor(2, 0x0000ff);
    page.setLineWidth(2, 0);
    page.drawLine(2, 0, 0, 1, 1);
    page.setColor(3, 0x00ff00);
    page.drawFill(3, points);
    EXPECT_EQ(plot(), "%%PL:2\n1.00 0.50 0.00 setrgbcolor\n3.0 dot lw\n[6 6 3 6] 0 setdash\n"
                      "np\n1.00 2.00 mv\n3.46 -0.00 ln\nstroke\n"
                      "%%PL:3\n1.00 0.50 0.00 setrgbcolor\n3.0 dot lw\n"
                      "np\n0.00 0.00 mv\n10.01 20.00 ln\n-3.12 7.50 ln\nstroke\n"
                      "%%PL:2\n0.00 0.00 1.00 setrgbcolor\n[] 0 setdash\n2.0 dot lw\n"
                      "np\n0.00 0.00 mv\n1.00 1.00 ln\nstroke\n"
                      "%%FA:3\n0.00 1.00 0.00 setrgbcolor\n"
                      "np\n0.00 0.00 mv\n10.01 20.00 ln\n-3.12 7.50 ln\ncp\nfill\n");
}

TEST_F(PostscriptTest, WritesGrayEmptyPolygonsClipsAndComments) {
    open();
    Points none;
    page.setColor(3, page.allocColor(1, 1, 1));
    page.drawFill(3, none);
    page.setColor(4, page.allocColor(1, 0, 0));
    page.drawLine(4, 0, 0, 1, 1);
    page.setClip(0, 0, 100, 50);
    page.message("two\nlines");
    EXPECT_EQ(plot(), "%%FA:0\n1.00 setgray\nnp\n-9999.00 -9999.00 mv\ncp\nfill\n"
                      "%%PL:2\n0.33 setgray\n[] 0 setdash\n1.0 dot lw\n"
                      "np\n0.00 0.00 mv\n1.00 1.00 ln\nstroke\n"
                      "initclip\nnp\n-0.10 -0.10 mv\n-0.10 50.10 ln\n100.10 50.10 ln\n"
                      "100.10 -0.10 ln\ncp\nclip\n"
                      "%% two lines\n");
    EXPECT_NEAR(page.getClip().xmax, 100.1, 1e-4);
}

TEST_F(PostscriptTest, PadsAnImageToTheClipArea) {
    open("color");
    page.clip.set(5, 6, 3, 2);
    const auto pixel = [](int i, int j) {
        RGB c;
        c.set(i / 10.0f, j / 10.0f, 1);
        return c;
    };
    EXPECT_EQ(page.drawPixels(2, 2, pixel, -1, 1), 1);
    EXPECT_EQ(page.drawPixels(0, 2, pixel, 0, 0), 0);
    EXPECT_EQ(plot(), "gsave\n5 6 translate\n3 2 scale\n/picstr 3 string def\n"
                      "3 2 8 [ 3 0 0 -2 0 2 ]\n{ currentfile picstr readhexstring pop }\n"
                      "false 3 colorimage\n"
                      "FFFFFF0019FF1919FF\nFFFFFFFFFFFFFFFFFF\ngrestore\n");
}

TEST_F(PostscriptTest, TellsWhenTheFileCannotBeMade) {
    Postscript device;
    device.setParam("/proc/no/such/place.ps");
    testing::internal::CaptureStderr();
    EXPECT_EQ(device.open(), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Postscript: unable to output to file\n");
    Points points = triangle();
    EXPECT_EQ(device.drawLine(1, points), 0);
}

// A page drawn through Graph must come out of an independent interpreter with nothing outside the
// frame, and with ink in it.
TEST_F(PostscriptTest, NothingIsInkedOutsideTheFrame) {
    if (std::system("command -v gs > /dev/null 2>&1") != 0)
        GTEST_SKIP() << "needs Ghostscript";
    testing::internal::CaptureStdout();
    {
        Graph graph;
        graph.setDevice("postscript", (path + ",port,letter").c_str());
        ASSERT_EQ(graph.open(), 1);
        graph.setViewport(1, Rect(0.25f, 0.25f, 0.5f, 0.5f));
        graph.setWindow(1, Rect(-10, -10, 10, 10));
        graph.activateTran(1);
        graph.setLineWidth(0.3f);
        Points fan;
        for (int i = -40; i <= 40; i++) {
            fan.add(-100, static_cast<float>(i));
            fan.add(100, static_cast<float>(-i));
            fan.add(static_cast<float>(i), -100);
            fan.add(static_cast<float>(-i), 100);
        }
        graph.drawLine(fan);
        graph.setFillColor(0x808080);
        graph.drawFill(Rect(-50, 0, 3, 50));
        graph.setTextHeight(4);
        graph.drawText(-30, 8, "outside and in");
    }
    testing::internal::GetCapturedStdout();
    const std::string command = "gs -q -dBATCH -dNOPAUSE -dSAFER -sDEVICE=bbox " + path + " 2>&1";
    FILE* gs = popen(command.c_str(), "r");
    ASSERT_NE(gs, nullptr);
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    char line[300];
    bool found = false;
    while (std::fgets(line, sizeof line, gs))
        found |=
            std::sscanf(line, "%%%%HiResBoundingBox: %lf %lf %lf %lf", &x1, &y1, &x2, &y2) == 4;
    pclose(gs);
    ASSERT_TRUE(found);
    // The viewport in points: 756 to the unit, moved by a quarter inch.
    const double margin = 0.2;
    EXPECT_NEAR(x1, 0.25 * 756 + 18, margin);
    EXPECT_NEAR(x2, 0.50 * 756 + 18, margin);
    EXPECT_NEAR(y1, 0.25 * 756 + 18, margin);
    EXPECT_NEAR(y2, 0.50 * 756 + 18, margin);
}
