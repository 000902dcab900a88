#include "ORV/Plot.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <cstdio>

namespace ORV {
namespace {

constexpr int key_length = 5; // "v-Alt"; what follows are other modifiers and the position

/// How a kind of picture is named after the plot's title.
class PictureNames {
public:
    const char* type;
    const char* extension;
    int single_length; // of the title in the name of a single picture
    bool shows_single; // whether a single frame is set before it is saved
};
constexpr PictureNames picture_names[] = {
    {"GIF", "gif", 40, false},
    {"PNG", "png", 5, true},
};

// Names the file of a frame; of a single picture when the number is negative.
String nameFrame(const char* title, const PictureNames& names, int frame) {
    char text[80];
    const char* base = *title ? title : "output";
    if (frame < 0)
        std::snprintf(text, sizeof text, "%.*s.%s", *title ? names.single_length : 40, base,
                      names.extension);
    else
        std::snprintf(text, sizeof text, "%.40s-%2.2d.%s", base, frame, names.extension);
    StrLib::replace(text, ' ', '_');
    return text;
}

} // namespace

int Plot::printPosition(const char* pixel) {
    float x, y, wx, wy;
    if (Scan::text(pixel, "%f:%f", &x, &y) != 2 || !tranPlotWindow(x, y, wx, wy))
        return 0;
    const Domain& domain = getDomain();
    EarthPoint earth;
    GridPoint grid;
    domain.tran(Point(wx, wy), earth);
    domain.tran(Point(wx, wy), grid);

    if (domain.proj >= 40 && domain.proj <= 44) {
        std::printf("Temp: %.4f Pres: %.4f XY: %.3f %.3f Pixel: %.0f %.0f\n", earth.lat, earth.lon,
                    wx, wy, x, y);
    } else {
        const bool plain = domain.proj >= 20 && domain.proj <= 26;
        const bool polar = domain.proj == 25;
        std::printf("%s: %.4f %s: %.4f XY: %.3f %.3f Grid: %.2f %.2f Pixel: %.0f %.0f\n",
                    polar   ? "A"
                    : plain ? "X"
                            : "Lat",
                    earth.lat,
                    polar   ? "R"
                    : plain ? "Y"
                            : "Lon",
                    earth.lon, wx, wy, grid.gx, grid.gy, x, y);
    }
    std::fflush(stdout);

    char place[60];
    std::snprintf(place, sizeof place, "%f,%f", earth.lat, earth.lon);
    return graph.doCallback("QueryLoc", place);
}

int Plot::saveFrames(const char* type) {
    const PictureNames& names =
        StrLib::equal(type, picture_names[0].type) ? picture_names[0] : picture_names[1];
    const int num = graph.getNumFrames();
    const int shown = graph.getFrame();
    if (num <= 1) {
        if (names.shows_single)
            graph.setFrame(shown);
        return saveImage(nameFrame(title, names, -1).get(), type);
    }
    if (!graph.isLooping()) {
        graph.setFrame(shown);
        return saveImage(nameFrame(title, names, shown).get(), type);
    }
    int saved = 1;
    for (int frame = 0; frame < num; frame++) {
        graph.setFrame(frame);
        saved &= saveImage(nameFrame(title, names, frame).get(), type);
    }
    graph.setFrame(shown);
    return saved;
}

void Plot::callback(const char* type, const char* data, const void*) {
    if (!StrLib::equal(type, "KeyPress") || !data)
        return;
    if (StrLib::equal(data, "Ret", 3)) {
        graph.bell();
        graph.unmanage();
        graph.close();
    } else if (StrLib::equal(data, "v-Alt", key_length)) {
        printPosition(StrLib::length(data) > 6 ? data + 6 : "");
    } else if (StrLib::equal(data, "s-Alt", key_length)) {
        saveFrames("GIF");
    } else if (StrLib::equal(data, "S-Alt", key_length)) {
        saveFrames("PNG");
    }
}

} // namespace ORV
