#pragma once

#include "ORV/CloudLayer.h"
#include "ORV/Const.h"
#include "ORV/Date.h"
#include "ORV/String.h"

namespace ORV {

/// One surface weather report of one station at one time, in fixed units whatever a file's own are.
///
/// A plain value: it is copied by assignment and may be used again for the next report after
/// init(). A number is missing when it is Const::MISS exactly, a code when it is a blank, a text
/// when it is empty. Unless said otherwise an operation returns 1, and a text that is too long for
/// its field is cut.
class SfcData {
public:
    static constexpr int max_cloud = 5; ///< most cloud layers of one report

    /// The groups of values that compare() tells apart and update() takes, one bit each.
    enum Group {
        TYPE = 0x0001,
        TIME = 0x0002,
        TEMP = 0x0004,
        PRES = 0x0008,
        WIND = 0x0010,
        WX = 0x0020,
        CLOUD = 0x0040,
        VIS = 0x0080,
        PTEND = 0x0100,
        PREC = 0x0200,
        EXT_TEMP = 0x0400,
        SNOW = 0x0800,
        SOLAR = 0x1000,
        SEA = 0x2000,
        CLOUD_TYPE = 0x4000,
        COMMENT = 0x8000,
    };

    char id[11] = "";         ///< station identifier
    char name[25] = "";       ///< station name
    char area[11] = "";       ///< area or state; "SHIP" when the position comes with the report
    int type = 0;             ///< report type, stored and compared only
    int stype = 0;            ///< report sub-type, stored only
    long wmo = Const::MISS;   ///< WMO station number
    float lat = Const::MISS;  ///< degrees north
    float lon = Const::MISS;  ///< degrees east
    float elev = Const::MISS; ///< metres
    int prior = Const::MISS;  ///< station priority, 0 the most important
    Date date;                ///< time of the report
    int flag = 0;             ///< free flag word
    float t = Const::MISS;    ///< temperature, degrees Celsius
    float td = Const::MISS;   ///< dewpoint, degrees Celsius
    float dir = Const::MISS;  ///< wind direction, degrees; missing with a speed: variable
    float spd = Const::MISS;  ///< wind speed, knots
    float gust = Const::MISS; ///< wind gust, knots
    float slp = Const::MISS;  ///< sea-level pressure, mb
    float alt = Const::MISS;  ///< altimeter setting, inches of mercury
    float vis = Const::MISS;  ///< visibility, statute miles
    CloudLayer cloud[max_cloud] = {{' '}, {' '}, {' '}, {' '}, {' '}}; ///< lowest first
    int num_cld = 0;                                                   ///< layers in use
    char weather[21] = "";        ///< present weather in one of the notations of WxTool
    int ptend_type = Const::MISS; ///< characteristic of the pressure tendency, WMO table 0200
    float ptend = Const::MISS;    ///< pressure tendency, mb in 3 hours
    float prec1 = Const::MISS;    ///< precipitation of 1 hour, mm
    float prec3 = Const::MISS;    ///< of 3 hours, mm
    float prec6 = Const::MISS;    ///< of 6 hours, mm
    float prec12 = Const::MISS;   ///< of 12 hours, mm
    float prec24 = Const::MISS;   ///< of 24 hours, mm
    float prec = Const::MISS;     ///< of prec_per hours, mm
    int prec_per = Const::MISS;   ///< period of prec, hours
    int cld_low = ' ';            ///< low-cloud amount, a character: '0' to '8' are eighths of sky
    char cld_type[3] = {' ', ' ', ' '}; ///< cloud types low, medium, high; not terminated
    float max_t = Const::MISS;          ///< 24-hour maximum temperature, degrees Celsius
    float min_t = Const::MISS;          ///< 24-hour minimum temperature, degrees Celsius
    float max6_t = Const::MISS;         ///< 6-hour maximum temperature, degrees Celsius
    float min6_t = Const::MISS;         ///< 6-hour minimum temperature, degrees Celsius
    float snow_cov = Const::MISS;       ///< snow depth, cm
    float solar = Const::MISS;          ///< duration of sunshine, minutes
    float sst = Const::MISS;            ///< sea surface temperature, degrees Celsius
    float wav_per = Const::MISS;        ///< wave period, seconds
    float wav_hgt = Const::MISS;        ///< wave height, metres
    char comment[100] = "";             ///< remarks

    /// Puts every field back to not reported.
    int init();

    const char* getId() const { return id; }
    const char* getName() const { return name; }
    const char* getArea() const { return area; }
    int getType() const { return type; }
    long getWmo() const { return wmo; }
    float getLat() const { return lat; }
    float getLon() const { return lon; }
    float getElev() const { return elev; }
    int getPrior() const { return prior; }
    int getDate(Date& out) const { return out = date, 1; }
    const Date& getDate() const { return date; }
    float getT() const { return t; }
    float getTd() const { return td; }
    float getDir() const { return dir; }
    float getSpd() const { return spd; }
    float getGust() const { return gust; }
    float getSlp() const { return slp; }
    float getAlt() const { return alt; }
    float getVis() const { return vis; }
    const char* getWeather() const { return weather; }
    int getNumCld() const { return num_cld; }
    int getPtendType() const { return ptend_type; }
    float getPtend() const { return ptend; }
    float getPrec1() const { return prec1; }
    float getPrec3() const { return prec3; }
    float getPrec6() const { return prec6; }
    float getPrec12() const { return prec12; }
    float getPrec24() const { return prec24; }
    float getPrec() const { return prec; }
    int getPrecPer() const { return prec_per; }
    int getCldLow() const { return cld_low; }
    float getMaxT() const { return max_t; }
    float getMinT() const { return min_t; }
    float getMax6T() const { return max6_t; }
    float getMin6T() const { return min6_t; }
    float getSnowCov() const { return snow_cov; }
    float getSolar() const { return solar; }
    float getSst() const { return sst; }
    float getWavPer() const { return wav_per; }
    float getWavHgt() const { return wav_hgt; }
    const char* getComment() const { return comment; }
    int getFlag() const { return flag; }

    int setId(const char* text);
    int setName(const char* text);
    int setArea(const char* text);
    int setType(int value) { return type = value, 1; }
    /// Takes the decimal number at the start of the text; 0 for a text without one.
    int setWmo(const char* text);
    int setLoc(float new_lat, float new_lon) { return lat = new_lat, lon = new_lon, 1; }
    int setElev(float value) { return elev = value, 1; }
    int setPrior(int value) { return prior = value, 1; }
    int setDate(const Date& value) { return date = value, 1; }
    int setT(float value) { return t = value, 1; }
    int setTd(float value) { return td = value, 1; }
    int setDir(float value) { return dir = value, 1; }
    int setSpd(float value) { return spd = value, 1; }
    int setGust(float value) { return gust = value, 1; }
    int setSlp(float value) { return slp = value, 1; }
    int setAlt(float value) { return alt = value, 1; }
    int setVis(float value) { return vis = value, 1; }
    int setWeather(const char* text);
    /// Numbers outside 0 to max_cloud are brought to the nearer end.
    int setNumCld(int value);
    int setPtendType(int value) { return ptend_type = value, 1; }
    int setPtend(float value) { return ptend = value, 1; }
    int setPrec1(float value) { return prec1 = value, 1; }
    int setPrec3(float value) { return prec3 = value, 1; }
    int setPrec6(float value) { return prec6 = value, 1; }
    int setPrec12(float value) { return prec12 = value, 1; }
    int setPrec24(float value) { return prec24 = value, 1; }
    int setPrec(float value) { return prec = value, 1; }
    int setPrecPer(int value) { return prec_per = value, 1; }
    int setCldLow(int code) { return cld_low = code, 1; }
    int setMaxT(float value) { return max_t = value, 1; }
    int setMinT(float value) { return min_t = value, 1; }
    int setMax6T(float value) { return max6_t = value, 1; }
    int setMin6T(float value) { return min6_t = value, 1; }
    int setSnowCov(float value) { return snow_cov = value, 1; }
    int setSolar(float value) { return solar = value, 1; }
    int setSst(float value) { return sst = value, 1; }
    int setWavPer(float value) { return wav_per = value, 1; }
    int setWavHgt(float value) { return wav_hgt = value, 1; }
    int setFlag(int value) { return flag = value, 1; }
    int orFlag(int value) { return flag |= value, 1; }

    /// Time of the report as hour * 100 + minute; a missing minute counts as 0. Missing when the
    /// date isn't set or has no hour.
    int getTime() const;
    /// The hour that the report belongs to, 0 to 23: from minute 50 on it is the next one. Missing
    /// when the date isn't set or has no hour.
    int getHour() const;
    /// Seconds since 1 January 1970; missing when the date isn't set.
    long getSeconds() const { return date.getSeconds(); }

    /// Present weather in English; returns 1 if anything was understood.
    int weatherText(String& out) const;

    /// Stores the base of layer i in feet, and raises the number of layers to hold it. 0 and no
    /// change outside 0 to 4.
    int setCldHeight(int i, float height);
    /// Base of layer i in feet; missing outside 0 to 4.
    float getCldHeight(int i) const;
    /// The ceiling in feet: the lowest broken or overcast base, else the highest few or scattered
    /// one; an obscured layer outranks both, a layer of any other cover starts afresh. The height
    /// of a single layer, whatever its cover. Missing without layers.
    float getCldHeight() const;
    /// As setCldHeight, but missing outside 0 to 4.
    int setCldCover(int i, char cover);
    /// Cover of layer i; the byte 241 outside 0 to 4.
    char getCldCover(int i) const;
    /// The cover of the last of several layers as one of the letters F, S, B, O, X and C; the code
    /// of a single layer as it is; a blank without layers.
    char getCldCover() const;
    /// Cloud type, i from 0 low to 2 high; 0 outside.
    int setCldType(int i, char code);
    /// A blank outside 0 to 2.
    char getCldType(int i) const;

    int setComment(const char* text);
    /// Appends the text and one blank, as far as there is room.
    int addComment(const char* text);
    /// Appends up to n words of the text, each of at most 20 characters and with one blank behind
    /// it; a longer word counts as several.
    int addComment(const char* text, int n);

    /// Writes the report to standard output, one labelled line for each value that is there.
    int print() const;
    /// One line of a table in fixed columns. Without an id: the heading of that table, and 0.
    int outString(String& out) const;
    /// Writes the line of outString to standard output.
    int printLine() const;

    /// The groups in which two reports differ, as a mask of Group.
    static int compare(const SfcData& a, const SfcData& b);
    /// Writes the mask and the names of its groups to standard output.
    static int printDiff(int mask);

    /// Takes from src what it reports in the groups of the mask; what it doesn't report stays,
    /// with these exceptions. A src with a supplementary section (tendency, precipitation,
    /// extremes, snow, sea or cloud types) that is silent on one of the 3- to 24-hour
    /// precipitations erases it. An empty weather text erases the weather; one that begins with a
    /// blank leaves it. The date is never taken.
    int update(const SfcData& src, int mask);

    /// Makes values missing that can't be: temperatures outside -100 to 150 C, slp 900 to 1150 mb,
    /// alt 26 to 33 in, wind 0 to 360 degrees, 0 to 100 and gust 0 to 150 knots, cloud bases 0 to
    /// 35000 ft, vis 0 to 150 miles, tendency -10 to 10 mb with a characteristic of 0 to 9,
    /// precipitation 0 to 300 mm (3 h), 400 (6 h), 500 (12 and 24 h), waves 0 to 10 s and 0 to
    /// 20 m. A dewpoint above the temperature comes down to it, and is missing when that is.
    int validate();

private:
    int printWeather() const;
    void printWind() const;
    void printClouds() const;
};

} // namespace ORV
