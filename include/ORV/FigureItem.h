#pragma once

#include "ORV/OwnedArray.h"

#include <memory>

namespace ORV {

class Drawing;

/// One entry of a figure's queue: a drawing, or a change to the next panel.
class FigureItem {
public:
    int type = 0;               ///< 0 a drawing, 1 a panel.
    Drawing* drawing = nullptr; ///< Belongs to the caller; null for a panel.
    OwnedArray<char> panel;     ///< The panel's text; null for a drawing.
    std::unique_ptr<FigureItem> next;
};

} // namespace ORV
