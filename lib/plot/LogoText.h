#pragma once

#include "ORV/Point.h"
#include "ORV/Rect.h"

#include <string>

namespace ORV {

/// One picture to be placed on a plot, from its text: "name.png", "name.png:ur:dx:dy" with a place
/// and an offset from it, either behind "im:" (in the map) or "if:" (on the whole frame).
class LogoText {
public:
    std::string name;
    int tran = 1;   ///< the graph's transform, 1 the map, 0 the frame
    int halign = 3; ///< of the picture
    int valign = 1;
    float dx = 0; ///< in window units of the transform
    float dy = 0;

    /// 0 for a text that names no picture file.
    int set(const char* text);
    /// The place in a window, with the offset.
    Point getAnchor(const Rect& window) const;

private:
    int column = 2; // left, middle, right
    bool upper = false;
};

} // namespace ORV
