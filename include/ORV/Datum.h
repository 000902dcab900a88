#pragma once

#include "ORV/Const.h"
#include "ORV/EarthPoint.h"

namespace ORV {

/// One element of a station model: a place, a kind of drawing, up to five values and a text. What
/// the values are depends on the kind: a number in its own units, for winds the direction in
/// degrees and the speed in knots. Values are Const::MISS and texts empty while they aren't known.
class Datum {
public:
    static constexpr int num_values = 5;

    /// The kinds of drawing. Codes 5 and 15 are reserved and draw nothing.
    enum Type {
        DATA = 1,   ///< a value or a text, the general case
        VALUE = 2,  ///< a number
        TEXT = 3,   ///< the text
        MARK = 4,   ///< a marker, named by the text
        CLOUD = 6,  ///< a sky-cover circle
        WBARB = 7,  ///< a wind barb
        CBARB = 8,  ///< a barb with a station circle
        DBARB = 9,  ///< a barb with a dot at the station
        VECT = 10,  ///< an arrow that grows with the wind
        AVECT = 11, ///< an arrow of one length with the speed in figures
        TRACK = 12, ///< a movement arrow
        SYMB = 13,  ///< a symbol of the symbol file, named by the text
        LINE = 14,  ///< a line
    };

    char id[20] = "";
    EarthPoint ept;
    int type = Const::MISS;
    int index = Const::MISS;
    char format[80] = "";
    char data[40] = "";
    float value[num_values] = {Const::MISS, Const::MISS, Const::MISS, Const::MISS, Const::MISS};

    Datum() = default;
    Datum(float lat, float lon, int type, const char* data, const char* format);
    Datum(float lat, float lon, int type, float value, const char* format);
    Datum(float lat, float lon, int type, float value1, float value2, const char* format);

    /// Empties everything.
    int init() { return *this = Datum(), 1; }

    /// Empties all but id, place and index.
    int initVals();

    int setId(const char* text);
    const char* getId() const { return id; }

    /// Latitude and longitude in degrees.
    int setLoc(float lat, float lon);
    int setLoc(const EarthPoint& point);
    const EarthPoint& getLoc() const { return ept; }

    int setType(int kind);
    int getType() const { return type; }
    int setIndex(int number);
    int getIndex() const { return index; }

    /// Stores value i. Returns 0 for an i outside 0 to 4, as the two operations below do.
    int setValue(int i, float x);
    int offsetValue(int i, float x);
    int scaleValue(int i, float factor);
    /// Stores value 0, or values 0 and 1.
    int setValue(float x) { return setValue(0, x); }
    int setValue(float first, float second);
    /// Value i, missing for an i outside 0 to 4. A missing value stays missing when it is offset or
    /// scaled.
    float getValue(int i) const;
    float getValue() const { return value[0]; }

    /// The text, cut at 39 characters; formatData prints it.
    int setData(const char* text);
    int setData(char c);
    [[gnu::format(printf, 2, 3)]] int formatData(const char* form, ...);
    const char* getData() const { return data; }

    /// The attribute text of this element, cut at 79 characters; addFormat appends behind a ",".
    int setFormat(const char* text);
    int addFormat(const char* text);
    const char* getFormat() const { return format; }

    /// Sets a whole element; what isn't named becomes missing or empty, but for id and index.
    int set(float lat, float lon, int type, const char* data, const char* format);
    int set(float lat, float lon, int type, float value, const char* format);
    int set(float lat, float lon, int type, float value1, float value2, const char* format);
    int set(const EarthPoint& point, int type, const char* data, const char* format);
    int set(const EarthPoint& point, int type, float value, const char* format);
    int set(const EarthPoint& point, int type, float value1, float value2, const char* format);

    /// Prints the element on standard output.
    int print() const;

private:
    int setKind(const EarthPoint& point, int kind, const char* format);
};

} // namespace ORV
