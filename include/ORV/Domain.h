#pragma once

#include "ORV/DomainVal.h"
#include "ORV/EarthPoint.h"
#include "ORV/EarthPoints.h"
#include "ORV/GridPoint.h"
#include "ORV/GridPoints.h"
#include "ORV/Point.h"
#include "ORV/Points.h"
#include "ORV/Rect.h"

namespace ORV {

class String;

/// What a plot or a grid covers: a map projection, a rectangular window on it, and a regular grid
/// in that window, all at once.
///
/// Projection codes, with the keywords that getProj knows (by their first letters):
///
///     1 polar stereographic (ps, st, polar)    20 pixel, y downward (pix)
///     2 latitude-longitude (ll, lat, re)       21 plain x-y (xy)
///     3 Mercator (me)                          22 plain x-z
///     4 Lambert conformal conic (lamb, lc)     23 value against pressure (xp)
///     5 orthographic (or)                      24 value against log pressure (xlogp, vert)
///     6 gnomonic (gn), a pass-through          25 hodograph, direction and speed (hodo)
///     7 Mollweide (mo)                         26 categories along x (cat)
///     8 Lambert azimuthal (la, az, lambaz)     40 skew-T log-p (skewt, therm)
///     9 Albers equal-area conic (alb)          41 Stueve (stuve)
///    10 geostationary satellite (sat)          42 emagram (ema)
///    11 radar azimuth and range (rad)          43 tephigram (teph), 44 unturned (rteph)
///
/// 50 (zoom) and 51 (size) are requests in domain texts. On the diagrams, codes 20 and up, an
/// EarthPoint carries other quantities than latitude and longitude: x and y, temperature in
/// Celsius and pressure in mb, direction and speed.
///
/// Plot coordinates are in 100 km on maps, in degrees for code 2. The grid's column 0, row 0 is
/// the upper left corner of the window, and rows count downward.
///
/// Map formulas: Snyder, Map Projections - A Working Manual, USGS Professional Paper 1395, 1987.
class Domain : public DomainVal {
public:
    Rect limits; ///< the window in plot coordinates, ymin < ymax; missing when it isn't known
    Rect view;   ///< place of the domain on its page, for the tephigram

    double earth_rad = Const::EARTH_MEAN; ///< radius in use, 100 km
    double sat_rad = 421.64;              ///< radius of the satellite's orbit, 100 km
    double sat_rad2 = 177780.2896;        ///< its square
    double sat_rad4 = 31605831370.0;      ///< and fourth power
    double sat2_earth2 = 173720.943;      ///< sat_rad2 less the earth radius squared
    double earth_sat_ratio = Const::MISS; ///< earth_rad / sat_rad
    double earth_ratio = 63.56752 / 63.78137;
    double earth_ratio2 = earth_ratio * earth_ratio;
    float tlat1 = 30; ///< true latitudes in use
    float tlat2 = 60;
    float cx = Const::MISS; ///< place of the radar on its stereographic plane
    float cy = Const::MISS;
    /// Constants of the projection:
    ///   1, 11: scale -1 in the north, +1 in the south; xfactor is the radius at the equator.
    ///   3: xfactor is the scale at the equator, 1 on the sphere; scale is the eccentricity of the
    ///      ellipsoid, whose map is true at plat.
    ///   4: scale +1 in the north, -1 in the south; xfactor is the cone constant, mult the factor
    ///      of the radius.
    ///   5: xfactor and yfactor are cosine and sine of plat.
    ///   8: xfactor and yfactor as in 5.
    ///   9: scale is the sine of plat, xfactor the radius of plat, yfactor Snyder's C, mult the
    ///      cone constant.
    ///   23: xfactor and yfactor, the magnification about the lower left corner, are 1: pressure
    ///      rises downward on a linear axis, centred on clon.
    ///   40: scale is -ln(clon), xfactor the skew dx/dy.
    ///   43: scale is ln(theta) at the origin, xfactor and yfactor bring the window to size 1.
    double xfactor = Const::MISS;
    double mult = Const::MISS;
    double yfactor = Const::MISS;
    double scale = Const::MISS;

    static constexpr float OFFSET_MERC = 400.31558f; ///< width of the Mercator world, 100 km
    static constexpr float OFFSET_LL = 360.0f;       ///< and of the latitude-longitude world

    Domain() = default;
    explicit Domain(const char* text) { set(text); }
    explicit Domain(const DomainVal& val) { set(val); }

    int init() {
        *this = Domain();
        return 1;
    }
    bool isSet() const { return proj != Const::MISS; }

    /// A missing plat or plon becomes clat or clon.
    int set(const DomainVal& val);
    /// Reads "proj[:e][:plat:plon:param...],clat,clon,nx,ny,dx,dy", or the projection alone, which
    /// leaves the window missing. A projection field is cut at 100 characters. Returns 0, with the
    /// domain partly set, for any other number of values. No defaults, no names: that is
    /// DomainTool.
    int set(const char* text);
    /// Puts the window between two corners, with the projection already set. Returns 0 and changes
    /// nothing when a corner has no image or a size is below 2.
    int set(const EarthPoint& a, const EarthPoint& b, int size_x, int size_y);
    /// A plain x-y domain for a picture of that size, with spacing 1 around (0,0).
    int set(int size_x, int size_y);

    using DomainVal::setParam;
    /// Works out everything that follows from the value part, and the window.
    int setParam();
    /// Puts the window around the centre. It is missing while centre, size or spacing are, or when
    /// the centre has no image.
    int setLimits();
    int setView(const Rect& rect);

    DomainVal get() const { return *this; }
    int getProj() const { return proj; }
    float getPLat() const { return plat; }
    float getPLon() const { return plon; }
    float getCLat() const { return clat; }
    float getCLon() const { return clon; }
    int getNx() const { return nx; }
    int getNy() const { return ny; }
    float getDx() const { return dx; }
    float getDy() const { return dy; }
    /// param[i], missing when i is outside 0 to 4.
    float getParam(int i) const;
    Rect getLimits() const { return limits; }
    int getLimits(Rect& out) const;
    /// Height of the window in plot coordinates; missing when the window is.
    float getVert() const;

    /// Forward projection. Returns 1, or 0 with a missing point where the projection has no image.
    /// A missing coordinate gives a missing point and 1.
    ///
    /// On maps, codes 1 to 10, a latitude outside -90 to 90 or a longitude outside -3600 to 3600 is
    /// refused. earth is brought to what is drawn: its longitude into -180 to 180, and a latitude
    /// that the projection can't reach is cut (75 degrees into the far hemisphere for codes 1 and
    /// 11, 0.01 degree off the far pole for 4 and 9). A const point stays as it is.
    int tran(EarthPoint& earth, Point& plot) const;
    int tran(const EarthPoint& earth, Point& plot) const;
    /// Inverse projection. Returns 1, or 0 with a missing place outside of the projected world.
    /// The centre of code 8 gives its place, too, with 0.
    int tran(const Point& plot, EarthPoint& earth) const;
    /// Between grid and plot. A missing coordinate gives a missing point and 0.
    int tran(const GridPoint& grid, Point& plot) const;
    int tran(const Point& plot, GridPoint& grid) const;
    /// Between earth and grid, by way of the plot.
    int tran(EarthPoint& earth, GridPoint& grid) const;
    int tran(const EarthPoint& earth, GridPoint& grid) const;
    int tran(const GridPoint& grid, EarthPoint& earth) const;
    /// Replaces the target list by one point for each of the source, missing where there is none.
    int tran(const EarthPoints& earth, Points& plot) const;
    int tran(const EarthPoints& earth, GridPoints& grid) const;
    /// A corner of the window: 0 upper left, 1 upper right, 2 lower left, 3 lower right, 4 the
    /// centre. Any other number returns 0.
    int tran(int which, EarthPoint& earth) const;
    int tran(int which, GridPoint& grid) const;
    int tran(int which, Point& plot) const;
    int tranCenter(Point& plot) const;
    /// From the coordinates of one domain to those of another.
    static int translate(const Domain& from, const Domain& to, const Point& in, Point& out);
    static int translate(const Domain& from, const Domain& to, const GridPoint& in, GridPoint& out);

    /// Whether a point lies in the window, its border included. An unset domain holds all points.
    bool within(const Point& plot) const;
    bool within(const EarthPoint& earth) const;
    /// The same with n grid spacings more on each side.
    bool withinExt(const Point& plot, int n) const;
    bool withinExt(const EarthPoint& earth, int n) const;
    /// Where a point lies, as on a telephone keypad: 1 beyond the upper left corner, 5 inside, 9
    /// beyond the lower right one. 0 for an unset domain and a missing point.
    int where(const Point& plot) const;
    int where(const EarthPoint& earth) const;

    /// Turns a direction in degrees relative to north into one relative to the plot's upward, in
    /// 0 to 360. Polar stereographic, Lambert conformal and satellite views turn; on the last the
    /// result is missing at the limb, where a step of 1 km leaves the disc. The Lambert cone turns
    /// by dir - atan2(x, -y) in the north and dir - atan2(x, y) in the south.
    float adjustDir(float dir, const Point& plot) const;
    float adjustDir(float dir, const EarthPoint& earth) const;
    /// The way back. The satellite view stays as it is.
    float unadjustDir(float dir, const Point& plot) const;
    float unadjustDir(float dir, const EarthPoint& earth) const;
    /// Direction on the plot from a to b in degrees, on a polar stereographic plot relative to
    /// north. It isn't brought into 0 to 360. Missing when a coordinate is.
    float direct(const Point& a, const Point& b) const;
    /// The place at dist km from another, going in direction dir, on the small flat around it, with
    /// 111.195 km to the degree. to may be from. Missing when anything is.
    static int offsetLatLon(const EarthPoint& from, float dir, float dist, EarthPoint& to);
    /// The same on the plot. Returns 0 with a missing point when either place has no image.
    int offset(const Point& from, float dir, float dist, Point& to) const;
    /// Scale of the map relative to true: of a polar stereographic map true at 60 degrees, and of a
    /// Mercator map true at the equator. 1 for others.
    float getMapFactor(const EarthPoint& earth) const;
    /// Great circle distance in km.
    static float calcEarthDist(const EarthPoint& a, const EarthPoint& b);

    /// Moves the centre to c and divides the spacing by f. Returns 0 and changes nothing when c is
    /// off the earth or f isn't above 0.
    int zoom(const Point& c, float f);
    /// Moves the centre to c. Returns 0 and changes nothing when c is off the earth.
    int pan(const Point& c);
    /// Gives the window another grid of square cells; limits stays. 0 when a size is below 1, or
    /// when there is no window to go by.
    int scaleSize(int size_x, int size_y);
    /// Refines the grid by the factor f, in the same window. 0 when f isn't above 0.
    int scaleGrid(float f);

    /// Brings a point into the world of codes 2 and 3 by one width. Returns -1, 1 or 0 for a step
    /// to the west, to the east or none; for a list the result of the first point.
    int adjust(Point& plot) const;
    int adjust(Points& plot) const;
    /// Moves the points of a line that runs over the world's edge, so that it is whole, in codes 2,
    /// 3, 7 and 4 with a cone of half the world or less. Returns the sign of the first move.
    int wrapLine(Point& a, Point& b) const;
    int wrapLine(Points& line) const;
    /// Moves a line that wrapLine made whole to the other side of the world, west for side 1, east
    /// for -1. 0 for side 0; 1, without a move, where the projection doesn't wrap.
    int offsetLine(Point& a, Point& b, int side) const;
    int offsetLine(Points& line, int side) const;

    /// The domain text that DomainTool::decode reads, at most 200 characters.
    int toString(String& out) const;
    int print() const;
    int printLimits() const;

    /// Code of a projection word; Const::MISS for "miss", -1 for an unknown word.
    static int getProj(const char* text);

    bool isProj(int code) const { return proj == code; }
    /// The groups of codes: maps 1 to 11, plain axes 20 to 26, thermodynamic diagrams 40 to 44,
    /// and the hodograph.
    static bool isMap(int code) { return code >= 1 && code <= 11; }
    static bool isCoord(int code) { return code >= 20 && code <= 26; }
    static bool isTherm(int code) { return code >= 40 && code <= 44; }
    static bool isPolar(int code) { return code == 25; }
    bool isMap() const { return isMap(proj); }
    bool isCoord() const { return isCoord(proj); }
    bool isTherm() const { return isTherm(proj); }
    bool isPolar() const { return isPolar(proj); }

private:
    bool hasWindow() const;
    bool isDerived() const;
    void derive();
    float worldWidth(float y) const;
    int moveCenter(const Point& c);
};

} // namespace ORV
