#pragma once

namespace ORV {

/// One text that stands in the margin of a plot.
class PlotLabel {
public:
    int line = -1;        ///< Label line, from 0; -1 for a fixed label that has its position alone.
    char pos[10] = "";    ///< "ul", "uc", "ur", "ll", "lc" or "lr"; anything else counts as "ul".
    char text[100] = "";  ///< The text, with the escapes that Plot::formatLabel resolves.
    char format[50] = ""; ///< Attributes, as PlotAttr reads them; empty for the default ones.
};

} // namespace ORV
