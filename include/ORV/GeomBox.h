#pragma once

#include <cstdio>

namespace ORV {

/// The place and size of a window, a clip area or an image part, in the units of its surface.
/// Unlike the other records it starts with zeros.
class GeomBox {
public:
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;

    GeomBox() = default;
    GeomBox(float px, float py, float w, float h) { set(px, py, w, h); }

    int init() { return set(0, 0, 0, 0); }
    int set(float px, float py, float w, float h) {
        x = px;
        y = py;
        width = w;
        height = h;
        return 1;
    }
    /// Writes the box in the form of a window geometry, width x height + x + y.
    int print() const {
        std::printf("%.1fx%.1f+%.1f+%.1f\n", width, height, x, y);
        return 1;
    }
};

} // namespace ORV
