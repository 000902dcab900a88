#include "Projection.h"

#include "ORV/Calc.h"
#include "ORV/Domain.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ORV {
namespace {
// Plot coordinates are floats. A place right on the limb of a disc may come back this much outside
// of it, as a part of the radius.
constexpr double rounding = 2.4e-7;

double toRad(double degrees) {
    return degrees * Const::DRC;
}
double toDeg(double radians) {
    return radians * Const::RDC;
}

double atan2Deg(double y, double x) {
    return x == 0 && y == 0 ? 0 : toDeg(std::atan2(y, x));
}

// asin that takes a sine just above 1 for 1. False beyond that.
bool asinDeg(double sine, double& angle) {
    if (!(std::abs(sine) <= 1 + rounding))
        return false;
    angle = toDeg(std::asin(std::clamp(sine, -1.0, 1.0)));
    return true;
}

double wrapOnce(double value, double half_width) {
    if (value > half_width)
        return value - 2 * half_width;
    if (value < -half_width)
        return value + 2 * half_width;
    return value;
}

// Polar stereographic, also the plane that the radar's azimuths are on.

void derivePolar(Domain& d) {
    d.scale = d.plat >= 0 ? -1 : 1;
    d.xfactor = (1 - d.scale * std::sin(toRad(d.tlat1))) * d.earth_rad;
}

bool polarForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    if (e.lat * d.scale > 75)
        e.lat = static_cast<float>(d.scale * 75);
    const double r = std::tan(toRad((e.lat * d.scale + 90) / 2)) * d.xfactor;
    const double dlon = toRad(static_cast<double>(e.lon) - d.plon);
    x = r * std::sin(dlon);
    y = d.scale * r * std::cos(dlon);
    return true;
}

bool polarInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    const double r = std::sqrt(x * x + y * y);
    lat = (2 * toDeg(std::atan(r / d.xfactor)) - 90) * d.scale;
    lon = atan2Deg(x, y * d.scale) + d.plon;
    return true;
}

void deriveRadial(Domain& d) {
    derivePolar(d);
    EarthPoint radar(d.clat, d.clon);
    double x, y;
    polarForward(d, radar, x, y);
    d.cx = static_cast<float>(x);
    d.cy = static_cast<float>(y);
}

bool radialForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    double u, v;
    polarForward(d, e, u, v);
    // In float, as the radar's place is, so that the radar itself lies at range 0.
    const float east = static_cast<float>(u) - d.cx;
    const float north = static_cast<float>(v) - d.cy;
    x = atan2Deg(east, north);
    if (x < 0)
        x += 360;
    y = std::sqrt(static_cast<double>(east) * east + static_cast<double>(north) * north);
    return true;
}

bool radialInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    return polarInverse(d, d.cx + y * std::sin(toRad(x)), d.cy + y * std::cos(toRad(x)), lat, lon);
}

// Latitude-longitude.

bool latLonForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    x = wrapOnce(static_cast<double>(e.lon) - d.plon, 180);
    y = e.lat;
    return true;
}

bool latLonInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    lon = wrapOnce(x + d.plon, 180);
    lat = y;
    return true;
}

// Mercator. The sphere's map is true at the equator, the ellipsoid's at the origin.

void deriveMercator(Domain& d) {
    d.xfactor = 1;
    if (!d.ellipse)
        return;
    const double e2 = 1 - d.earth_ratio2;
    const double sine = std::sin(toRad(d.plat));
    d.scale = std::sqrt(e2);
    d.xfactor = std::cos(toRad(d.plat)) / std::sqrt(1 - e2 * sine * sine);
}

double mercatorRadius(const Domain& d) {
    return (d.ellipse ? Const::EARTH_MAJ : d.earth_rad) * d.xfactor;
}

// What flattening does to the tangent of the half colatitude (Snyder 1987, formula 15-9).
double flattening(const Domain& d, double lat_rad) {
    const double u = d.scale * std::sin(lat_rad);
    return std::pow((1 - u) / (1 + u), d.scale / 2);
}

bool mercatorForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    const double radius = mercatorRadius(d);
    const double lat = std::clamp(static_cast<double>(e.lat), -89.9, 89.9);
    x = wrapOnce(toRad(static_cast<double>(e.lon) - d.plon) * radius, toRad(180) * radius);
    const double t = std::tan(toRad((90 - lat) / 2));
    y = -radius * std::log(d.ellipse ? t / flattening(d, toRad(lat)) : t);
    return true;
}

bool mercatorInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    const double radius = mercatorRadius(d);
    lon = wrapOnce(toDeg(x / radius) + d.plon, 180);
    const double t = std::exp(-y / radius);
    double phi = 0.5 * Const::PI - 2 * std::atan(t);
    for (int i = 0; d.ellipse && i < 15; i++) {
        const double next = 0.5 * Const::PI - 2 * std::atan(t * flattening(d, phi));
        const double change = next - phi;
        phi = next;
        if (std::abs(change) < 1e-6)
            break;
    }
    lat = toDeg(phi);
    return true;
}

// Lambert conformal conic.

void deriveLambert(Domain& d) {
    d.scale = d.plat >= 0 ? 1 : -1;
    const double t1 = toRad(d.tlat1);
    const double half1 = std::tan(toRad(45 - d.scale * d.tlat1 / 2));
    const double half2 = std::tan(toRad(45 - d.scale * d.tlat2 / 2));
    if (d.tlat1 == d.tlat2)
        d.xfactor = std::cos(toRad(90 - d.scale * d.tlat1));
    else
        d.xfactor = (std::log(std::cos(t1)) - std::log(std::cos(toRad(d.tlat2)))) /
                    (std::log(half1) - std::log(half2));
    d.mult = std::cos(t1) / (d.xfactor * std::pow(half1, d.xfactor));
}

void keepOffFarPole(const Domain& d, EarthPoint& e) {
    if (d.plat >= 0)
        e.lat = std::max(e.lat, -89.99f);
    else
        e.lat = std::min(e.lat, 89.99f);
}

// A cone is cut opposite to its central meridian.
double coneAngle(const Domain& d, EarthPoint& e, double cone) {
    if (e.lon - d.plon > 180)
        e.lon -= 360;
    if (e.lon - d.plon < -180)
        e.lon += 360;
    return toRad(static_cast<double>(e.lon) - d.plon) * cone;
}

bool lambertForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    keepOffFarPole(d, e);
    const double half = std::tan(toRad(45 - e.lat * d.scale / 2));
    const double rho = d.earth_rad * d.mult * std::pow(std::max(half, 0.0), d.xfactor);
    const double gamma = coneAngle(d, e, d.xfactor);
    x = rho * std::sin(gamma);
    y = -d.scale * rho * std::cos(gamma);
    return true;
}

bool lambertInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    const double r = std::sqrt(x * x + y * y);
    const double half = std::atan(std::pow(r / (d.mult * d.earth_rad), 1 / d.xfactor));
    lat = d.scale * (90 - 2 * toDeg(half));
    lon = atan2Deg(x, -d.scale * y) / d.xfactor + d.plon;
    return true;
}

// The views of a sphere onto a plane that touches it at the origin.

void deriveTangent(Domain& d) {
    if (d.plat == Const::MISS)
        d.plat = 0;
    d.xfactor = std::cos(toRad(d.plat));
    d.yfactor = std::sin(toRad(d.plat));
}

// A place in coordinates turned to the origin: the axes point east and north along the plane,
// and up at its middle.
void turn(const Domain& d, const EarthPoint& e, double& east, double& north, double& up) {
    const double lat = toRad(e.lat);
    const double dlon = toRad(static_cast<double>(e.lon) - d.plon);
    const double sin_lat = std::sin(lat), cos_lat = std::cos(lat), cos_dlon = std::cos(dlon);
    east = cos_lat * std::sin(dlon);
    north = d.xfactor * sin_lat - d.yfactor * cos_lat * cos_dlon;
    up = cos_lat * d.xfactor * cos_dlon + sin_lat * d.yfactor;
}

bool orthographicForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    double east, north, up;
    turn(d, e, east, north, up);
    x = d.earth_rad * east;
    y = d.earth_rad * north;
    return up >= 0;
}

bool orthographicInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    const double q = d.earth_rad * d.earth_rad - x * x - y * y;
    if (q < -rounding * d.earth_rad * d.earth_rad)
        return false;
    const double z = std::sqrt(std::max(q, 0.0));
    lon = atan2Deg(x, d.xfactor * z - d.yfactor * y) + d.plon;
    return asinDeg((d.yfactor * z + d.xfactor * y) / d.earth_rad, lat);
}

bool azimuthalForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    double east, north, up;
    turn(d, e, east, north, up);
    if (up <= -1)
        return false;
    const double k = d.earth_rad * std::sqrt(2 / (1 + up));
    x = k * east;
    y = k * north;
    return true;
}

bool azimuthalInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    const double rho = std::sqrt(x * x + y * y);
    double q = rho / (2 * d.earth_rad);
    if (q > 1 + rounding)
        return false;
    q = std::min(q, 1.0);
    lat = d.plat;
    lon = d.plon;
    if (rho < 1e-10)
        return false;

    const double c = 2 * std::asin(q);
    const double sin_c = std::sin(c), cos_c = std::cos(c);
    if (!asinDeg(cos_c * d.yfactor + sin_c * d.xfactor * y / rho, lat))
        return false;
    if (std::abs(std::abs(d.plat) - 90) > 1e-10) {
        const double e = cos_c - std::sin(toRad(lat)) * d.yfactor;
        if (e != 0)
            lon += atan2Deg(sin_c * x * d.xfactor, rho * e);
    } else if (d.plat < 0) {
        lon -= atan2Deg(-x, y);
    } else {
        lon += atan2Deg(x, -y);
    }
    return true;
}

// Mollweide.

bool mollweideForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    float theta = static_cast<float>(toRad(e.lat));
    const float target = static_cast<float>(Const::PI * std::sin(toRad(e.lat)));
    for (int i = 0; i < 15; i++) {
        const float slope = 1 + std::cos(theta);
        if (slope == 0) // at the pole in single precision
            break;
        const float change = -(theta + std::sin(theta) - target) / slope;
        theta += change;
        if (std::abs(change) < 1e-10f)
            break;
    }
    const double dlon = wrapOnce(static_cast<double>(e.lon) - d.plon, 180);
    x = std::abs(e.lat) > 89.99f ? 0 : d.earth_rad * dlon / 90 * std::cos(theta / 2.0);
    y = d.earth_rad * std::sin(theta / 2.0);
    return true;
}

bool mollweideInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    double q = y / d.earth_rad;
    if (std::abs(q) > 1 + rounding)
        return false;
    q = std::clamp(q, -1.0, 1.0);
    const double a = std::asin(q);
    const double width = std::cos(a) * d.earth_rad;
    const double v = x == 0 ? 0 : x / width;
    if (!(std::abs(v) <= 2 + 2 * rounding))
        return false;
    lon = v * 90 + d.plon;
    return asinDeg((2 * a + std::sin(2 * a)) / Const::PI, lat);
}

// Albers equal-area conic.

void deriveAlbers(Domain& d) {
    const double sin1 = std::sin(toRad(d.tlat1)), cos1 = std::cos(toRad(d.tlat1));
    d.scale = std::sin(toRad(d.plat));
    d.mult = (sin1 + std::sin(toRad(d.tlat2))) / 2;
    d.yfactor = cos1 * cos1 + 2 * d.mult * sin1;
    d.xfactor = d.earth_rad * std::sqrt(d.yfactor - 2 * d.mult * d.scale) / d.mult;
}

bool albersForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    keepOffFarPole(d, e);
    const double inside = d.yfactor - 2 * d.mult * std::sin(toRad(e.lat));
    const double rho = d.earth_rad * std::sqrt(std::max(inside, 0.0)) / d.mult;
    const double theta = coneAngle(d, e, d.mult);
    x = rho * std::sin(theta);
    y = d.xfactor - rho * std::cos(theta);
    return true;
}

bool albersInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    const double b = d.xfactor - y;
    const double rho_n = std::sqrt(x * x + b * b) * d.mult / d.earth_rad;
    // A cone that opens southward has negative radii: the angle is that of the opposite point.
    const double side = d.mult < 0 ? -1 : 1;
    lon = atan2Deg(side * x, side * b) / d.mult + d.plon;
    return asinDeg((d.yfactor - rho_n * rho_n) / (2 * d.mult), lat);
}

// Satellite view.

bool satelliteForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    double lat = toRad(e.lat);
    if (d.ellipse)
        lat = std::atan(std::tan(lat) * d.earth_ratio2);
    const double dlon = toRad(static_cast<double>(e.lon) - d.plon);
    const double cos_lat = std::cos(lat), toward = cos_lat * std::cos(dlon);
    if (toward < d.earth_sat_ratio)
        return false;

    double r = d.earth_rad;
    if (d.ellipse)
        r = Const::EARTH_MIN / std::sqrt(1 - (1 - d.earth_ratio2) * cos_lat * cos_lat);
    const double away = d.sat_rad - r * toward;
    const double east = r * cos_lat * std::sin(dlon);
    const double north = r * std::sin(lat);
    const double in_plane = std::sqrt(away * away + north * north);
    if (d.param[1] == 1) {
        x = std::atan2(east, in_plane) * d.sat_rad;
        y = std::atan2(north, away) * d.sat_rad;
    } else {
        x = east / in_plane * d.sat_rad;
        y = north / away * d.sat_rad;
    }
    return true;
}

bool satelliteInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    const bool angles = d.param[1] == 1;
    const double a = angles ? x / d.sat_rad : std::atan(x / d.sat_rad);
    const double b = angles ? y / d.sat_rad : std::atan(y / d.sat_rad);
    const double sin_a = std::sin(a), cos_a = std::cos(a);
    const double sin_b = std::sin(b), cos_b = std::cos(b);
    // The distance along the line of sight: the nearer root of a quadratic.
    double square = 1;
    if (d.ellipse)
        square = (sin_b * sin_b / d.earth_ratio2 + cos_b * cos_b) * cos_a * cos_a + sin_a * sin_a;
    const double linear = -2 * d.sat_rad * cos_a * cos_b;
    const double root = linear * linear - 4 * square * d.sat2_earth2;
    if (root < -rounding * linear * linear)
        return false;
    const double dist = (-linear - std::sqrt(std::max(root, 0.0))) / (2 * square);

    const double away = d.sat_rad - dist * cos_a * cos_b;
    const double east = dist * sin_a;
    const double north = dist * cos_a * sin_b;
    double across = std::sqrt(away * away + east * east);
    if (d.ellipse)
        across *= d.earth_ratio2;
    lat = atan2Deg(north, across);
    lon = toDeg(std::atan(east / away)) + d.plon;
    return true;
}

// Plain axes.

bool pixelForward(const Domain&, EarthPoint& e, double& x, double& y) {
    x = e.lat;
    y = -e.lon;
    return true;
}

bool pixelInverse(const Domain&, double x, double y, double& lat, double& lon) {
    lat = x;
    lon = -y;
    return true;
}

void derivePressureAxis(Domain& d) {
    d.xfactor = 1;
    d.yfactor = 1;
}

bool pressureAxisForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    x = (static_cast<double>(e.lat) - d.limits.xmin) * d.xfactor + d.limits.xmin;
    y = (static_cast<double>(d.limits.ymin) - e.lon) * d.yfactor + d.limits.ymin;
    return true;
}

bool pressureAxisInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    lat = (x - d.limits.xmin) / d.xfactor + d.limits.xmin;
    lon = (d.limits.ymin - y) / d.yfactor + d.limits.ymin;
    return true;
}

bool logAxisForward(const Domain&, EarthPoint& e, double& x, double& y) {
    x = e.lat;
    y = -std::log(static_cast<double>(e.lon));
    return true;
}

bool logAxisInverse(const Domain&, double x, double y, double& lat, double& lon) {
    lat = x;
    lon = std::exp(-y);
    return true;
}

bool hodographForward(const Domain&, EarthPoint& e, double& x, double& y) {
    x = e.lon * std::sin(toRad(e.lat));
    y = e.lon * std::cos(toRad(e.lat));
    return true;
}

bool hodographInverse(const Domain&, double x, double y, double& lat, double& lon) {
    lat = atan2Deg(x, y);
    if (lat < 0)
        lat += 360;
    lon = std::sqrt(x * x + y * y);
    return true;
}

// Thermodynamic diagrams.

constexpr double kappa = 0.285714; // R/cp of the Stueve axis
constexpr double kappa_inverse = 3.5;
constexpr double zero_celsius = 273.15; // K

void deriveSkewT(Domain& d) {
    d.scale = -std::log(static_cast<double>(d.clon));
    d.xfactor = static_cast<double>(d.dx) / d.dy;
}

bool skewTForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    y = -std::log(static_cast<double>(e.lon));
    x = e.lat + (y - d.scale) * d.xfactor;
    return true;
}

bool skewTInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    lat = x - (y - d.scale) * d.xfactor;
    lon = std::exp(-y);
    return true;
}

bool stueveForward(const Domain&, EarthPoint& e, double& x, double& y) {
    x = e.lat;
    y = -std::pow(static_cast<double>(e.lon), kappa);
    return true;
}

bool stueveInverse(const Domain&, double x, double y, double& lat, double& lon) {
    lat = x;
    lon = std::pow(-y, kappa_inverse);
    return true;
}

// ln(theta) of a temperature in Celsius and a pressure in mb. It is no number where theta is
// missing.
double logTheta(float temp, float pres) {
    return std::log(
        static_cast<double>(Calc::potTemp(static_cast<float>(temp + zero_celsius), pres)));
}

double pressureOf(double temp, double log_theta) {
    return std::pow((temp + zero_celsius) / std::exp(log_theta), kappa_inverse) * 1000;
}

void deriveTephigram(Domain& d) {
    d.scale = logTheta(d.plat, d.plon);
    d.xfactor = 1 / ((static_cast<double>(d.nx) - 1) * d.dx);
    d.yfactor = 1 / ((static_cast<double>(d.ny) - 1) * d.dy);
}

bool tephigramForward(const Domain& d, EarthPoint& e, double& x, double& y) {
    const double x0 = d.view.xmin, y0 = d.view.ymin;
    const double x1 = (static_cast<double>(e.lat) - d.plat) * d.xfactor + x0;
    const double y1 = (logTheta(e.lat, e.lon) - d.scale) * d.yfactor + y0;
    const double x2 = (x1 + x0) / 2 + (y1 - y0) / 2;
    const double y2 = y1 - (x2 - x0);
    x = (x2 - x0) / d.xfactor + d.plat;
    y = (y2 - y0) / d.yfactor + d.scale;
    return true;
}

bool tephigramInverse(const Domain& d, double x, double y, double& lat, double& lon) {
    const double x0 = d.view.xmin, y0 = d.view.ymin;
    const double x2 = (x - d.plat) * d.xfactor + x0;
    const double y2 = (y - d.scale) * d.yfactor + y0;
    const double w = y2 + (x2 - x0) - y0;
    lat = (2 * x2 - w - 2 * x0) / d.xfactor + d.plat;
    lon = pressureOf(lat, w / d.yfactor + d.scale);
    return true;
}

bool unturnedForward(const Domain&, EarthPoint& e, double& x, double& y) {
    x = e.lat;
    y = logTheta(e.lat, e.lon);
    return true;
}

bool unturnedInverse(const Domain&, double x, double y, double& lat, double& lon) {
    lat = x;
    lon = pressureOf(x, y);
    return true;
}

constexpr Projection projections[] = {
    {1, "pstereo", polarForward, polarInverse, derivePolar},
    {2, "latlon", latLonForward, latLonInverse, nullptr},
    {3, "merc", mercatorForward, mercatorInverse, deriveMercator},
    {4, "lamb", lambertForward, lambertInverse, deriveLambert},
    {5, "ortho", orthographicForward, orthographicInverse, deriveTangent},
    {6, "gnom", nullptr, nullptr, nullptr},
    {7, "moll", mollweideForward, mollweideInverse, nullptr},
    {8, "lambaz", azimuthalForward, azimuthalInverse, deriveTangent},
    {9, "albers", albersForward, albersInverse, deriveAlbers},
    {10, "sat", satelliteForward, satelliteInverse, nullptr},
    {11, "radial", radialForward, radialInverse, deriveRadial},
    {20, "pixel", pixelForward, pixelInverse, nullptr},
    {21, "xy", nullptr, nullptr, nullptr},
    {22, "xz", nullptr, nullptr, nullptr},
    {23, "", pressureAxisForward, pressureAxisInverse, derivePressureAxis},
    {24, "xlogp", logAxisForward, logAxisInverse, nullptr},
    {25, "polar", hodographForward, hodographInverse, nullptr},
    {26, "cat", nullptr, nullptr, nullptr},
    {40, "skewt", skewTForward, skewTInverse, deriveSkewT},
    {41, "stuve", stueveForward, stueveInverse, nullptr},
    {42, "ema", logAxisForward, logAxisInverse, nullptr},
    {43, "teph", tephigramForward, tephigramInverse, deriveTephigram},
    {44, "rteph", unturnedForward, unturnedInverse, nullptr},
    {50, "zoom", nullptr, nullptr, nullptr},
};

constexpr int num_code = 51;

// Rows by code, for one look per point.
constexpr std::array<signed char, num_code> makeIndex() {
    std::array<signed char, num_code> index{};
    for (auto& row : index)
        row = -1;
    signed char row = 0;
    for (const Projection& projection : projections)
        index[projection.code] = row++;
    return index;
}
constexpr auto row_of_code = makeIndex();
} // namespace

const Projection* Projection::find(int code) {
    if (code < 0 || code >= num_code || row_of_code[code] < 0)
        return nullptr;
    return &projections[row_of_code[code]];
}

} // namespace ORV
