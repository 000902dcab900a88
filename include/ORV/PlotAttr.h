#pragma once

#include "ORV/Const.h"

namespace ORV {

/// One set of drawing attributes, as a user writes them: "red:wi=2:st=dsh". The same record serves
/// lines, marks, fills and text. Number fields are Const::MISS while unset.
class PlotAttr {
public:
    float width = Const::MISS;   ///< line width
    float height = Const::MISS;  ///< text height or mark size; a factor where labels scale it
    float weight = Const::MISS;  ///< stroke weight of text and marks
    float expan = Const::MISS;   ///< text expansion
    int style = Const::MISS;     ///< 1 solid, 2 dashed, 3 long-short, 4 long-long-short, 5 dotted
    int shadow = Const::MISS;    ///< drop shadow in device units
    int fill_pat = Const::MISS;  ///< fill pattern, 0 solid
    int color_ind = Const::MISS; ///< index of the color; missing: look up the name; -1: off
    char color[20] = "";
    char font[120] = "";
    char label[20] = "";

    PlotAttr() = default;
    explicit PlotAttr(const char* text) { set(text); }
    PlotAttr(const char* text, const char* dflt) { set(text, dflt); }

    int init();
    int set(const char* text);
    /// Takes the defaults first, then the text; either may be empty or null.
    int set(const char* text, const char* dflt);

    /// Changes what the text names, and nothing else. Items are separated by ":" when there is one
    /// in the text, otherwise by ","; a first item without "=" is the color. Any case:
    ///
    ///   co= color   la= label   wi= width   sh= shadow   st= style (sol dsh lsdsh llsdsh dot, or
    ///   a number)   fo= font   fi= fp= fill pattern   sc= hi= height   we= weight   te= expansion
    ///
    /// and the short forms wN sN fN hN eN and t..font. Other items are passed over; a number that
    /// cannot be read is missing.
    int parse(const char* text);
    /// Takes over what is set in the other record, all but label and shadow.
    int update(const PlotAttr& other);

    int setWidth(float w);
    float getWidth() const { return width; }
    bool validWidth() const { return width != Const::MISS; }
    int setWeight(float w);
    float getWeight() const { return weight; }
    bool validWeight() const { return weight != Const::MISS; }
    int setHeight(float h);
    float getHeight() const { return height; }
    bool validHeight() const { return height != Const::MISS; }
    int setExpan(float e);
    float getExpan() const { return expan; }
    bool validExpan() const { return expan != Const::MISS; }
    int setStyle(int s);
    int getStyle() const { return style; }
    bool validStyle() const { return style != Const::MISS; }
    int setShadow(int s);
    int getShadow() const { return shadow; }
    bool validShadow() const { return shadow != Const::MISS; }
    int setFillPat(int pattern);
    int getFillPat() const { return fill_pat; }
    bool validFillPat() const { return fill_pat != Const::MISS; }
    int setColorInd(int ind);
    int getColorInd() const { return color_ind; }
    bool validColorInd() const { return color_ind != Const::MISS; }
    /// Stores the name; its index is to be looked up anew.
    int setColor(const char* name);
    const char* getColor() const { return color; }
    /// False when the color is off: index -1, no name, or "off" in any case.
    bool validColor() const;
    int setFont(const char* name);
    const char* getFont() const { return font; }
    bool validFont() const { return font[0] != '\0'; }
    int setLabel(const char* text);
    const char* getLabel() const { return label; }
    bool validLabel() const { return label[0] != '\0'; }
    void print() const;

    /// The number of a fill pattern: "sol" 0, "st" 1 ... "clr" 10, "1%" to "9%" 11 to 19, any
    /// case, or the number itself. An unknown word is solid.
    static int parseFillStyle(const char* text);
    /// The number of a mark shape: "pnt" 1, "plus" 2, "star" 3, "crcl" 4, "x" 5, "sqr" 6, "tri" 7,
    /// "dot" 8, "itri" 9, "z" 10 and their other names, any case. An unknown word is a plus.
    static int parseMarker(const char* text);
};

} // namespace ORV
