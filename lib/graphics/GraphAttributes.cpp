#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/Graph.h"
#include "ORV/LineReader.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace ORV {
namespace {
enum Context { line = 1, mark = 2, fill = 3, text = 4 };

constexpr std::size_t most_kept = 16; // files kept, of each kind

std::string findInDatabase(const std::string& name) {
    String path;
    FileTool::addPath(Orv::getDatabasePath(), name.c_str(), path);
    return path.get();
}

// Stores a value that the device learns with what it draws.
template <class Value>
int store(const std::unique_ptr<Device>& device, Value& stored, Value value) {
    if (!device)
        return 0;
    stored = value;
    return 1;
}
} // namespace

template <class Value>
int Graph::change(Value& stored, Value value, int (Device::*tell)(int, Value), int context) {
    if (!device || stored == value)
        return 0;
    (device.get()->*tell)(context, value);
    stored = value;
    return 1;
}

int Graph::setLineColor(int color) {
    return change(line_color, color, &Device::setColor, line);
}

int Graph::setLineWidth(float width) {
    return change(line_width, width, &Device::setLineWidth, line);
}

int Graph::setLineStyle(int style) {
    return change(line_style, style, &Device::setLineStyle, line);
}

int Graph::setFillColor(int color) {
    return change(fill_color, color, &Device::setColor, fill);
}

int Graph::setFillStyle(int style) {
    return change(fill_style, style, &Device::setFillStyle, fill);
}

int Graph::setTextColor(int color) {
    return change(text_color, color, &Device::setColor, text);
}

int Graph::setTextWeight(float weight) {
    return change(text_weight, weight, &Device::setLineWidth, text);
}

int Graph::setMarkColor(int color) {
    return change(mark_color, color, &Device::setColor, mark);
}

int Graph::setMarkWeight(float weight) {
    return change(mark_weight, weight, &Device::setLineWidth, mark);
}

int Graph::setTextHeight(float height) {
    if (!device)
        return 0;
    text_height = height;
    return font_type == 3 ? setFontSpec() : 1;
}

int Graph::setTextExpansion(float expansion) {
    return store(device, text_expansion, expansion);
}

int Graph::setTextSpacing(float spacing) {
    return store(device, text_spacing, spacing);
}

int Graph::setTextCharWidth(float width) {
    return store(device, char_width, width);
}

int Graph::setTextAlign(int halign, int valign) {
    return store(device, text_halign, halign) && store(device, text_valign, valign);
}

int Graph::setTextDirection(float dx, float dy) {
    const float length = std::hypot(dx, dy);
    if (!device || !(length > 0))
        return 0;
    dir_x = dx / length;
    dir_y = dy / length;
    return 1;
}

int Graph::setTextBoxColor(int color) {
    return store(device, text_box_color, color);
}

int Graph::setMarkType(int type) {
    return store(device, mark_type, type);
}

int Graph::setMarkSize(float size) {
    return store(device, mark_size, size);
}

int Graph::setDropColor(int color) {
    return store(device, drop_color, color);
}

int Graph::setDropShadow(int size) {
    return store(device, drop_shadow, size);
}

int Graph::setDropWidth(int width) {
    return store(device, drop_width, width);
}

int Graph::setImageAlign(int halign, int valign) {
    return device ? device->setImageAlign(halign, valign) : 0;
}

int Graph::setSymbol(const char* file) {
    if (!device || !StrLib::valid(file) || StrLib::equal(file, symbol_file))
        return 0;
    StrLib::copy(symbol_file, sizeof symbol_file, file);
    if (symbols.size() >= most_kept)
        symbols.clear();
    const auto [entry, added] = symbols.try_emplace(symbol_file);
    const int ok = !added || entry->second.read(findInDatabase(symbol_file).c_str());
    symbol = entry->second;
    return ok;
}

std::string Graph::findFontSpec(const char* name) const {
    if (name[0] == '#')
        return name;
    File list(findInDatabase("orv.fnl").c_str(), "r");
    for (LineReader<251> line(list); list.isOpen() && line.next();) {
        char short_name[40] = "", spec[sizeof font_spec] = "";
        if (line.text()[0] != '#' &&
            Scan::text(line.text(), "%39s %119[^\n]", short_name, spec) == 2 &&
            StrLib::equal(name, short_name))
            return spec;
    }
    return name;
}

// The glyphs of a font file of the database, null when it has none.
const GFont* Graph::loadFont(const std::string& file) {
    if (fonts.size() >= most_kept)
        fonts.clear();
    const auto [entry, added] = fonts.try_emplace(file, nullptr);
    if (added)
        entry->second.read(findInDatabase(file).c_str());
    return entry->second.opened ? &entry->second : nullptr;
}

int Graph::setFont(const char* name) {
    if (!device || !StrLib::valid(name) || StrLib::equal(name, font_name))
        return 0;
    StrLib::copy(font_name, sizeof font_name, name);
    if (font_specs.size() >= most_kept)
        font_specs.clear();
    const auto [entry, added] = font_specs.try_emplace(font_name);
    if (added)
        entry->second = findFontSpec(name);
    StrLib::copy(font_spec, sizeof font_spec, entry->second.c_str());
    font_type = 0;

    if (font_spec[0] == '#' && setFontSpec()) {
        font_type = StrLib::index(font_spec, '{') > 0 ? 3 : 2;
        return 1;
    }
    const GFont* glyphs = font_spec[0] == '#' ? nullptr : loadFont(font_spec);
    const bool found = glyphs != nullptr;
    if (!found) {
        if (added)
            Orv::outWarning("setFont: unable to load font: %s, using modern\n", font_spec);
        StrLib::copy(font_spec, sizeof font_spec, "modern.fnt");
        glyphs = loadFont(font_spec);
    }
    if (glyphs)
        font = *glyphs;
    else
        font.init();
    font_type = 1;
    return found;
}

// Gives the device the font of font_spec, "{N}" in it replaced by a size that makes N tenths of the
// text height.
int Graph::setFontSpec() {
    const std::string spec = font_spec + 1;
    std::string name = spec;
    const std::size_t open = spec.find('{');
    if (open != std::string::npos) {
        const std::size_t close = std::min(spec.find('}', open), spec.size() - 1);
        double tenths = 0;
        Scan::number(spec.c_str() + open + 1, tenths);
        char size[40];
        std::snprintf(size, sizeof size, "%.0f",
                      text_height / cur().window.dy * device->getHeight() * tenths / 10);
        name.replace(open, close + 1 - open, size);
    }
    return device->setFont(name.c_str());
}

} // namespace ORV
