#include "ORV/Graph.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace ORV {
namespace {
constexpr int text = 4; // context
constexpr std::size_t longest_line = 100;
constexpr float line_step = 1.3f;     // of the text height
constexpr float cell = 100;           // width of a glyph cell, font units
constexpr float capital_height = 105; // font units that make the text height
constexpr float blank_width = 40;     // font units

// How far the glyphs are moved for a vertical alignment, font units.
float verticalOffset(int valign) {
    switch (valign) {
    case 0:
    case 4:
        return -35; // baseline
    case 1:
        return -160; // top of brackets
    case 2:
        return -140; // top of capitals
    case 3:
        return -85; // middle of capitals
    default:
        return 0; // foot of descenders
    }
}

int deviceAlign(int valign) {
    if (valign == 1 || valign == 2)
        return 1;
    return valign == 3 ? 2 : 3;
}
} // namespace

int Graph::drawText(float x, float y, const char* lines) {
    if (!device || !lines)
        return 0;
    if (hfont || font_type == 2 || font_type == 3)
        device->setTextAlign(text_halign == 2 || text_halign == 3 ? text_halign : 1,
                             deviceAlign(text_valign));

    const int below = StrLib::occurs(lines, '\n'); // lines below the first
    const int lift = text_valign == 1 || text_valign == 2 ? 0
                     : text_valign == 3                   ? below / 2
                                                          : below;
    const float step = line_step * text_height;
    for (int i = 0; i <= below; i++) {
        const std::size_t length = std::strcspn(lines, "\n");
        const std::string part(lines, std::min(length, longest_line));
        const float up = step * static_cast<float>(lift - i);
        drawTextPart(x + dir_x * up, y + dir_y * up, part.c_str());
        lines += length + 1;
    }
    return 1;
}

void Graph::drawTextPart(float x, float y, const char* part) {
    const auto draw = [&](float at_x, float at_y) {
        if (hfont || font_type == 2 || font_type == 3) {
            Point at(cur().windowToDeviceX(at_x), cur().windowToDeviceY(at_y));
            device->drawText(at, part);
        } else {
            drawTextLine(at_x, at_y, part);
        }
    };
    if (drop_shadow > 0) {
        const Point pixel = pixelSize();
        device->setColor(text, drop_color);
        for (int i = 0; i < drop_shadow; i++)
            draw(x + i * pixel.x, y + i * pixel.y);
        device->setColor(text, text_color);
    }
    draw(x, y);
}

// From the first glyph's left edge to the last one's right edge, font units before expansion.
float Graph::getLineWidth(const char* part) const {
    float total = 0;
    for (; *part; part++) {
        const float own = char_width > 0 ? char_width * cell : font.getWidth(*part);
        const float gap = char_width > 0 ? text_spacing * cell * char_width : text_spacing * cell;
        total += part[1] ? own + gap : own;
    }
    return total;
}

int Graph::drawTextLine(float x, float y, const char* part) {
    if (!device || !part)
        return 0;
    const bool fixed_width = char_width > 0;
    const float gap = text_spacing * cell;
    const float total = getLineWidth(part) * text_expansion;
    const float offset = verticalOffset(text_valign);
    float u = text_halign == 2 ? -0.5f * total : text_halign == 3 ? -total : 0;
    for (; *part; part++) {
        if (!font.setChar(*part)) {
            if (*part == ' ')
                u += fixed_width ? (cell + gap) * char_width * text_expansion
                                 : (gap + blank_width) * text_expansion;
            continue;
        }
        const float own = font.getWidth(*part);
        if (fixed_width)
            u += (char_width * cell - own) * text_expansion * 0.5f;
        drawGlyph(x, y, u, offset);
        u += fixed_width ? (own + char_width * cell) * text_expansion * 0.5f + gap * text_expansion
                         : (gap + own) * text_expansion;
    }
    return 1;
}

// Draws the glyph that the font has been set to, u font units along the line.
void Graph::drawGlyph(float x, float y, float u, float offset) {
    const float scale = text_height / capital_height;
    Point at;
    work.clear();
    for (int kind = font.get(at); kind != 0; kind = font.get(at)) {
        if (kind == 2)
            flushStroke(text);
        const float along = (at.x * text_expansion + u) * scale;
        const float up = (offset + at.y) * scale;
        work.add(cur().windowToDeviceX(x + dir_y * along + dir_x * up),
                 cur().windowToDeviceY(y - dir_x * along + dir_y * up));
    }
    flushStroke(text);
}

void Graph::flushStroke(int context) {
    if (work.num >= 2)
        device->drawLine(context, work);
    work.clear();
}

} // namespace ORV
