#pragma once

#include "ORV/Point.h"

namespace ORV {

/// A font: either the strokes of all its characters, read from a file, or the name of a font of the
/// device. A glyph stands in a cell of about 100 by 105 units with the baseline at y = 35; capitals
/// reach 140.
///
/// The file holds whitespace-separated numbers. "255 c" opens the glyph of the character c, and
/// pairs x y follow; an x of 128 or more, less 128, starts a stroke. "254" ends the file. What goes
/// beyond the limits of the format, 7500 points, is not read.
class GFont {
public:
    static constexpr int max_points = 7500;

    char name[100] = ""; ///< of a device font
    int type = 1;        ///< 1 vector font, 2 device font
    int x[max_points] = {};
    int y[max_points] = {};
    int width[256];  ///< largest x of a glyph, 0 without one; 40 for the blank
    int start[256];  ///< first point of a glyph, -1 without one
    int height = 12; ///< of a device font
    int cur = -1;    ///< read position
    bool opened = false;

    /// Reads "modern.fnt".
    GFont();
    explicit GFont(const char* file);

    int init();
    /// Reads a font file by its path; 0, and a font without glyphs, when it cannot be opened. A
    /// name such as "#courier_new:14" stands for a device font, "_" for a blank, the number for
    /// its height.
    int read(const char* name);

    int getWidth(char c) const { return width[static_cast<unsigned char>(c)]; }
    /// Starts the walk over a glyph; false when there is none.
    bool setChar(char c);
    /// Gives the next point of the glyph: 2 for the first of a stroke, 1 for a following one, 0 at
    /// the end.
    int get(Point& point);
    void print() const;

private:
    int setDeviceFont(const char* spec);
};

} // namespace ORV
