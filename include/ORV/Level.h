#pragma once

#include "ORV/Const.h"
#include "ORV/String.h"

namespace ORV {

class VCoord;

/// One vertical position: a kind and a value in the units of the kind.
///
/// Kinds with a value: 1 surface (a sub-level, 0 for none), 100 pressure in mb, 102 height in m,
/// 103 height above ground in m, 104 sigma, 105 hybrid level, 106 depth in cm, 107 potential
/// temperature in K, 108 pressure above ground in mb, 109 potential vorticity in 10^-6 K m^2/(kg
/// s), 111 eta. Kinds 2 to 20, 101 and from 200 on are named places such as the tropopause; 0 is a
/// sounding and 199 stands for "no level", said explicitly. The numbers below 255 that have a
/// standard meaning are those of WMO FM 92 GRIB edition 1, table 3.
class Lev {
public:
    int type = Const::MISS; ///< missing while unset
    float lev = Const::MISS;
};

/// A vertical position, or a layer between two.
///
/// Texts: a number and a unit, "500mb", "10m_ag", "330K", where no unit means mb; a short form,
/// "p500", "h1000", "a10" (above ground), "k330", "s0.995" (sigma); or a name, "sfc", "trop", "sl".
/// Two of them with "-" between are a layer, "p1000-500"; the short forms order their bounds, other
/// texts keep them as written, and then a unit on the second bound alone gives the first its kind.
///
/// Pressures of 2000 and 1900 mb mean the surface in old data, 1950 the tropopause, above 2000 a
/// surface sub-level; so do heights of 99500 and 99600 m mean the tropopause as bounds of a layer.
class Level {
public:
    Lev l1; ///< the level, or the first bound of a layer
    Lev l2; ///< the second bound; unset for a single level

    Level() = default;
    Level(int type, float lev) { set(type, lev); }
    Level(int type1, float lev1, int type2, float lev2) { set(type1, lev1, type2, lev2); }
    Level(int type, float lev1, float lev2) { set(type, lev1, lev2); }
    explicit Level(const char* text) { decode(text); }

    int init();
    /// Whether a kind is known; valid says the same.
    bool isSet() const { return l1.type != Const::MISS; }
    bool valid() const { return isSet(); }

    /// Reads a text. Null, an empty text, "level", "none" and "miss" give 0 and an unset level.
    /// Every other text gives 1, also one that can't be understood; test isSet.
    int decode(const char* text);
    int set(const char* text) { return decode(text); }
    /// Reads one bound. Returns 3 for a name, 2 for a number with a unit, 1 for a number without,
    /// 0 and an unset bound for anything else.
    static int decodeLev(const char* text, Lev& out);

    /// Sets a layer and orders it upward: the larger value comes first when t1 is pressure or
    /// sigma, else the smaller. A missing t2 makes a single level.
    int set(int t1, float a, int t2, float b);
    /// Sets a layer of one kind, the smaller value first; a missing b makes a single level.
    int set(int t, float a, float b);
    int set(int t, float a);
    /// Reads the level codes of grid files, where the code of a layer holds its two bounds in
    /// thousands and ones: the smaller one becomes the first bound. Eta and potential vorticity
    /// have other codes here than toTypeCode gives.
    int decode(int codeType, int code);

    /// The kind as the key of grid data, in which single levels and layers differ; a missing t2
    /// means a single level.
    int toTypeCode() const { return toTypeCode(l1.type, l2.type); }
    static int toTypeCode(int t) { return toTypeCode(t, Const::MISS); }
    static int toTypeCode(int t1, int t2);
    /// The values packed into one integer, the other half of that key. Values that don't fit are
    /// cut.
    int toLevelCode() const;

    int getType() const { return l1.type; }
    int getType1() const { return l1.type; }
    int getType2() const { return l2.type; }
    float getLev1() const { return l1.lev; }
    float getLev2() const { return l2.lev; }
    /// The first and the second bound as a coordinate. 0 for a kind that has none.
    int getLower(VCoord& out) const;
    int getUpper(VCoord& out) const;

    /// Writes the text that decode reads. Unset levels, soundings, "no level" and unknown kinds are
    /// empty, eta is "0.5eta". Bounds of the same kind name its unit once, "500-700mb".
    int toString(String& out) const;
    /// Writes a readable label, "500 mb". An unknown kind gives "Unknown lvl: %d".
    int toLabel(String& out) const;

    bool isLayer() const { return l2.type != Const::MISS; }
    bool isPres() const { return l1.type == 1 || l1.type == 100 || l1.type == 108; }
    bool isHght() const { return l1.type == 102 || l1.type == 103; }
    bool isPot() const { return l1.type == 107; }

    int print() const;
};

} // namespace ORV
