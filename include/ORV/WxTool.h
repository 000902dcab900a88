#pragma once

#include "ORV/CloudLayer.h"
#include "ORV/String.h"

namespace ORV {

/// Translations among the notations of present weather, WMO code figures, and plain English.
///
/// The notations: numbers of WMO code table 4677 (4680 for automatic stations); METAR groups such
/// as "-SHRA", behind a '!' in SfcData; and the older surface aviation code such as "RW-". Several
/// METAR groups of one report are separated by '_'.
class WxTool {
public:
    WxTool() = delete;

    /// Reduces num layers, lowest first, to the one that a station model shows: `out` gets the
    /// dominant cover and the base of the lowest layer that reached it, or a blank cover and a
    /// missing height without layers. A negative num changes nothing.
    static int setCloud(int num, const CloudLayer* layers, CloudLayer& out);

    /// Older code to a METAR group. Only a whole code is understood; another text leaves `out` as
    /// it was and gives 0.
    static int getWeather(const char* text, String& out);

    /// METAR groups, with or without the leading '!', to the older code; of several groups the
    /// first. The result is empty when the code has no word for them.
    static int getSAWeather(const char* text, String& out);

    /// METAR groups, with or without the leading '!', to English words. Returns 1 if anything was
    /// understood, else 0 and an empty text.
    static int getTextFromWeather(const char* text, String& out);

    /// Present weather of WMO code table 4677 as METAR groups; a single blank for a number that
    /// has none.
    static const char* getWmoWeather(int code);

    /// Present weather of an automatic station, WMO code table 4680, as METAR groups; a single
    /// blank for a number that has none.
    static const char* getWmoAutoWeather(int code);

    /// Present weather in any notation as a number of WMO code table 4677; 0 if unknown.
    static int getWmoFromWeather(const char* text);

    /// Height of a cloud base in feet as a figure 0 to 9 of WMO code table 1600. A missing height
    /// is below every limit and gives 0, a NaN gives missing.
    static int getWmoCeilingToCode(float height);

    /// A figure of WMO code table 1600 as a height in feet; missing outside 0 to 9.
    static float getWmoCldBase(int code);

    /// Visibility of WMO code table 4377 in statute miles; missing for an unused figure.
    static float getWmoVis(int code);

    /// One of the sixteen compass points ("N", "NNE"), in capitals, as degrees; missing for
    /// anything else.
    static float decodeDir(const char* text);

    /// The word of a sky cover, by the first letter of the text: "broken" for 'B'. Empty for a
    /// letter without one.
    static const char* getCloudStr(const char* text);
};

} // namespace ORV
