#pragma once

#include "ORV/Const.h"

namespace ORV {

class PlotAttr;

/// How to draw a station element, as parsed from a text such as "red,ul,%4.1f". A field that is
/// missing, or empty, isn't given.
class DatumAttr {
public:
    int type = Const::MISS;     ///< a kind of Datum::Type
    float scale = Const::MISS;  ///< size factor
    float dx = Const::MISS;     ///< offset from the station to the right,
    float dy = Const::MISS;     ///< and upward, as a fraction of the scaled plot height
    int halign = Const::MISS;   ///< 1 left, 2 centre, 3 right
    int valign = Const::MISS;   ///< 1 top, 2 cap, 3 half, 4 base, 5 bottom
    float weight = Const::MISS; ///< stroke weight of text and marks
    float height = Const::MISS; ///< factor of the text height and mark size
    float width = Const::MISS;  ///< line width
    float expan = Const::MISS;  ///< text expansion
    int shadow = Const::MISS;   ///< drop shadow, in device pixels
    int marker = Const::MISS;   ///< marker type (Graph)
    float min = Const::MISS;    ///< limits; max is also the hours of a track
    float max = Const::MISS;
    int skip = Const::MISS;
    char form[10] = "";   ///< printf format of a number
    char color[20] = "";  ///< color name
    char font[120] = "";  ///< font name
    char symbol[40] = ""; ///< symbol file
    char resrc[20] = "";

    int init() { return *this = DatumAttr(), 1; }

    /// Takes over the width, weight, height, expansion, color and font that the attributes give.
    int set(const PlotAttr& attr);

    /// Reads an attribute text, separated by ":" when it holds one, else by ",". Each entry sets
    /// only its own fields; what isn't known is passed over. Entries, in any case: a kind
    /// ("wbarb"), a place around the station ("ul" to "lr"), a number format ("%4.1f"), key=value,
    /// or a color name. Returns 1.
    int parse(const char* text);
    int set(const char* text) { return parse(text); }

    /// Takes a kind by its name. Returns 0 for a name that isn't known.
    int setType(const char* name);
    int setColor(const char* name);
    int setFont(const char* name);
    int setSymbol(const char* name);
    /// Takes a marker by name ("plus", "crcl", ...) or number.
    int setMarker(const char* name);
    int setFormat(const char* text);
    int setResrc(const char* name);

    int getType() const { return type; }
    const char* getColor() const { return color; }
    const char* getFont() const { return font; }
    const char* getSymbol() const { return symbol; }
    int getMarker() const { return marker; }
    const char* getFormat() const { return form; }
    const char* getResrc() const { return resrc; }

private:
    int setPlace(const char* name);
    int setKey(const char* entry);
    void setOffset(const char* text);
    void setAlign(const char* text);
};

} // namespace ORV
