#include "ORV/Calc.h"

#include <algorithm>
#include <cmath>

namespace ORV {
namespace {
constexpr float miss = Const::MISS;

constexpr double zero_c = 273.15;       // freezing point, K
constexpr double kappa = 0.286;         // of dry air, R / cp
constexpr double latent = 2.6518986;    // latent heat of condensation over cp, K per g/kg
constexpr double chill_limit = 306.15;  // skin temperature of the wind-chill formulas, K
constexpr float chill_max_wind = 26;    // m/s; above it the loss doesn't grow any more
constexpr double std_temp = 288.15;     // standard atmosphere: surface temperature, K,
constexpr double std_lapse = 0.0065;    // lapse rate, K/m,
constexpr double std_pres = 1013.25;    // surface pressure, mb,
constexpr double tropo_pres = 226.32;   // pressure, mb,
constexpr double tropo_height = 11000;  // height, m,
constexpr double tropo_scale = 6341.62; // and scale height, m, of the tropopause

bool isMissing(float x) {
    return x == miss;
}

double toFahrenheit(double t) {
    return (t - zero_c) * 9 / 5 + 32;
}

// Up to this value a moisture argument is a vapour pressure or mixing ratio, above a temperature.
constexpr float max_moisture = 100;
double getVaporPres(float x) {
    return x <= max_moisture ? x : Calc::vaporPres(x);
}

bool badParcel(float t, float td, float p) {
    return t <= 0 || td < 0 || p < 0;
}

// Equivalent potential temperature of the parcel at its condensation level; missing without one.
float parcelThetae(float t, float td, float p) {
    const float pres = Calc::lclPres(t, td, p);
    return isMissing(pres) ? miss : Calc::thetaeOnSatAd(Calc::lclTemp(t, p, pres), pres);
}
} // namespace

float Calc::windSpd(float u, float v) {
    if (isMissing(u) || isMissing(v))
        return miss;
    return std::sqrt(u * u + v * v);
}

float Calc::windDir(float u, float v) {
    if (isMissing(u) || isMissing(v))
        return miss;
    if (std::fabs(u) + std::fabs(v) < 0.01)
        return 0;
    const double dir = std::atan2(-u, -v) * Const::RDC;
    return static_cast<float>(dir < 0 ? dir + 360 : dir);
}

float Calc::windU(float dir, float spd) {
    return isMissing(dir) ? miss : static_cast<float>(-spd * std::sin(dir * Const::DRC));
}

float Calc::windV(float dir, float spd) {
    return isMissing(dir) ? miss : static_cast<float>(-spd * std::cos(dir * Const::DRC));
}

float Calc::vaporPres(float t) {
    if (t < 0)
        return miss;
    if (t < 100)
        return 0;
    const double x = t;
    const double exponent = 23.832241 - 5.02808 * std::log10(x) -
                            1.3816e-7 * std::pow(10.0, 11.344 - 0.0303998 * x) +
                            0.008132801 * std::pow(10.0, 3.49149 - 1302.8844 / x) - 2949.076 / x;
    return static_cast<float>(std::pow(10.0, exponent));
}

float Calc::tempVaporPres(float e) {
    if (e <= 0)
        return 0;
    const double a = std::pow(static_cast<double>(e), 0.0915) - 1.2035;
    const double b = std::pow(10.0, 0.0498646455 * std::log10(static_cast<double>(e)) + 2.4082965);
    return static_cast<float>(38.9114 * a * a + (b - 7.08475));
}

float Calc::dewTemp(float t, float rh) {
    if (isMissing(rh) || t <= 0)
        return miss;
    const double humidity = std::clamp(rh, 2.0f, 100.0f);
    return tempVaporPres(static_cast<float>(vaporPres(t) * humidity / 100));
}

float Calc::relHum(float t, float td) {
    if (t <= 100 && td <= 100) {
        t = isMissing(t) ? miss : static_cast<float>(t + zero_c);
        td = isMissing(td) ? miss : static_cast<float>(td + zero_c);
    }
    if (t <= 0 || td <= 0)
        return miss;
    const double saturated = vaporPres(t);
    return saturated == 0 ? miss : static_cast<float>(vaporPres(td) / saturated * 100);
}

float Calc::mixRatio(float x, float p) {
    if (isMissing(x) || isMissing(p))
        return miss;
    if (x <= 0 || p <= 0)
        return 0;
    const double e = getVaporPres(x);
    return p == e ? miss : static_cast<float>(622 * e / (p - e));
}

float Calc::specHum(float x, float p) {
    if (isMissing(x) || isMissing(p))
        return miss;
    if (x <= 0 || p <= 0)
        return 0;
    return static_cast<float>(622 * getVaporPres(x) / p);
}

float Calc::potTemp(float t, float p) {
    if (t <= 0 || p <= 0)
        return miss;
    return static_cast<float>(t * std::pow(1000.0 / p, kappa));
}

float Calc::virtTemp(float t, float x, float p) {
    if (t <= 0 || x < 0 || p < 0)
        return miss;
    if (x == 0)
        return t;
    const double w = x > max_moisture ? mixRatio(x, p) : x;
    return static_cast<float>((1 + 0.609 * w / 1000) * t);
}

float Calc::virtPotTemp(float t, float x, float p) {
    if (t <= 0 || x < 0 || p <= 0)
        return miss;
    if (x == 0)
        return potTemp(t, p);
    return static_cast<float>(virtTemp(t, x, p) * std::pow(1000.0 / p, kappa));
}

float Calc::tempOnDryAd(float theta, float p) {
    if (theta <= 0 || p <= 0)
        return 0;
    return static_cast<float>(theta * std::pow(p / 1000.0, kappa));
}

float Calc::thetaeOnSatAd(float t, float p) {
    if (t <= 0 || p <= 0)
        return 0;
    const double w = mixRatio(t, p);
    return static_cast<float>(t * std::pow(1000.0 / p, kappa) / std::exp(-latent * w / t));
}

float Calc::tempOnSatAd(float thetae, float p) {
    if (thetae <= 0 || p <= 0 || p > 2000)
        return miss;
    constexpr int max_pass = 12;
    constexpr double close_enough = 0.00002; // K^2
    double t = 253.16, step = 120;
    for (int pass = 0; pass < max_pass; pass++) {
        const float temp = static_cast<float>(t);
        const double w = mixRatio(temp, p);
        const double d = thetae * std::exp(-latent * w / t) - potTemp(temp, p);
        if (d * d < close_enough)
            break;
        step /= 2;
        t += d > 0 ? step : -step;
    }
    return static_cast<float>(t);
}

float Calc::tempOnMixRat(float w, float p) {
    if (w <= 0 || p <= 0)
        return 0;
    return tempVaporPres(static_cast<float>(static_cast<double>(p) * w / (w + 622.0)));
}

float Calc::convTemp(float w, float p, float psfc) {
    return tempOnDryAd(potTemp(tempOnMixRat(w, p), p), psfc);
}

int Calc::lcl(float t, float td, float p, LclData& out) {
    out.init();
    if (t <= 100 || td <= 100 || p <= 0 || p > 1100)
        return 0;
    constexpr int max_pass = 8;
    constexpr double close_enough = 0.0001; // K^2
    const float w = mixRatio(td, p), theta = potTemp(t, p);
    float pres = p;
    for (int pass = 0; pass <= max_pass; pass++) {
        const double d = tempOnMixRat(w, pres) - tempOnDryAd(theta, pres);
        if (pass == max_pass || d * d <= close_enough)
            break;
        pres = static_cast<float>(pres * std::pow(2.0, 0.02 * d));
    }
    out.pres = pres;
    out.temp = tempOnDryAd(theta, pres);
    return 1;
}

LclData Calc::lcl(float t, float td, float p) {
    LclData level;
    lcl(t, td, p, level);
    return level;
}

float Calc::lclPres(float t, float td, float p) {
    return lcl(t, td, p).pres;
}

float Calc::lclTemp(float t, float p, float plcl) {
    return tempOnDryAd(potTemp(t, p), plcl);
}

float Calc::equivPotTemp(float t, float td, float p) {
    if (badParcel(t, td, p))
        return miss;
    return td == 0 ? potTemp(t, p) : parcelThetae(t, td, p);
}

float Calc::wetBulb(float t, float td, float p) {
    if (badParcel(t, td, p))
        return miss;
    return td == 0 ? 0 : tempOnSatAd(parcelThetae(t, td, p), p);
}

float Calc::wetBulbPotTemp(float t, float td, float p) {
    if (badParcel(t, td, p))
        return miss;
    return td == 0 ? 0 : tempOnSatAd(parcelThetae(t, td, p), 1000);
}

float Calc::windChillTemp(float t, float v) {
    if (t < 0 || v < 0)
        return miss;
    if (v < 2 || t > chill_limit)
        return t;
    const double wind = std::min(v, chill_max_wind);
    const double factor = 0.453843 * std::sqrt(wind) + 0.474266 - 0.0453843 * wind;
    return static_cast<float>(chill_limit - factor * (chill_limit - t));
}

float Calc::windChillTemp2(float t, float v) {
    if (t < 0 || v < 0)
        return miss;
    if (v < 1 || t > chill_limit)
        return t;
    const double wind = std::pow(static_cast<double>(v), 0.16);
    const double chill = (0.4863 * t - 146.774) * wind + 0.6215 * t + 116.514;
    return std::min(t, static_cast<float>(chill));
}

float Calc::windChill(float t, float v) {
    if (t < 0 || v < 2 || t > chill_limit)
        return miss;
    const double wind = std::min(v, chill_max_wind);
    return static_cast<float>((10 * std::sqrt(wind) + 10.45 - wind) * 1.1627 * (chill_limit - t));
}

float Calc::heatIndex(float t, float td) {
    if (t < 0 || td < 0 || td > t)
        return miss;
    const float saturated = vaporPres(t);
    if (saturated == 0)
        return miss;
    const float f = static_cast<float>(toFahrenheit(t));
    const float r = vaporPres(td) / saturated * 100;

    double index = (f - 68.0) * 1.2 + 60.8 + 0.0936 * r;
    if (index >= 77) {
        const float f2 = f * f, f3 = f2 * f, r2 = r * r, r3 = r2 * r;
        index = 16 + 0.185212 * f + 5.37941 * r - 0.100254 * (f * r) + 0.00941695 * f2 +
                0.00728898 * r2 + 0.000345372 * (f2 * r) - 0.000814971 * (f * r2) +
                0.0000102102 * (f2 * r2) - 0.000038646 * f3 + 0.0000291583 * r3 +
                0.00000142721 * (f3 * r) + 0.000000197483 * (f * r3) - 0.0000000218429 * (f3 * r2) +
                0.000000000843296 * (f2 * r3) - 0.0000000000481975 * (f3 * r3);
    }
    return static_cast<float>((index - 32) * 5 / 9 + zero_c);
}

float Calc::humiture(float t, float td) {
    if (t < 0 || td < 0)
        return miss;
    const double surplus = vaporPres(td) - 21.0;
    return static_cast<float>(toFahrenheit(t) + std::max(surplus, 0.0));
}

float Calc::tempHumIndex(float t, float td) {
    if (t < 0 || td < 0)
        return miss;
    return static_cast<float>(0.55 * t + 0.2 * td + 17.5);
}

float Calc::sfcPrAlt(float alt, float elev) {
    const double temp = std_temp - std_lapse * elev;
    if (alt <= 0 || isMissing(elev) || temp <= 0)
        return miss;
    return static_cast<float>(alt * std::pow(temp / std_temp, 5.2558));
}

float Calc::presAlt(float p) {
    if (p <= 0)
        return miss;
    if (p < tropo_pres)
        return static_cast<float>(tropo_scale * std::log(tropo_pres / p) + tropo_height);
    const double temp = std_temp * std::pow(p / std_pres, 0.190263);
    return static_cast<float>((std_temp - temp) / std_lapse);
}

float Calc::stdAtmsPres(float z) {
    if (isMissing(z))
        return miss;
    if (z > tropo_height)
        return static_cast<float>(tropo_pres * std::pow(2.71828, (tropo_height - z) / tropo_scale));
    return static_cast<float>(std_pres * std::pow((std_temp - std_lapse * z) / std_temp, 5.25588));
}

float Calc::interpLinear(float x, float x1, float x2, float y1, float y2) {
    return static_cast<float>((static_cast<double>(y2) - y1) * (static_cast<double>(x) - x1) /
                                  (static_cast<double>(x2) - x1) +
                              y1);
}

float Calc::interpTemp(float t1, float t2, float p1, float p2, float p) {
    if (p1 <= 0 || p2 <= 0)
        return miss;
    if (isMissing(t1) || isMissing(t2))
        return isMissing(t1) ? t2 : t1;
    if (p <= 0 || p1 == p2)
        return miss;
    const double share =
        std::log(static_cast<double>(p) / p1) / std::log(static_cast<double>(p1) / p2);
    return static_cast<float>(t1 - (static_cast<double>(t2) - t1) * share);
}

float Calc::earthAngle(float lat1, float lon1, float lat2, float lon2) {
    if (isMissing(lat1) || isMissing(lat2))
        return miss;
    const double a1 = lat1 * Const::DRC, a2 = lat2 * Const::DRC;
    const double o1 = lon1 * Const::DRC, o2 = lon2 * Const::DRC;
    const double cosine = std::cos(o1) * std::cos(a1) * std::cos(a2) * std::cos(o2) +
                          std::sin(o1) * std::cos(a1) * std::cos(a2) * std::sin(o2) +
                          std::sin(a1) * std::sin(a2);
    // Rounding may carry the cosine of one and the same place beyond 1.
    const float bounded = std::clamp(static_cast<float>(cosine), -1.0f, 1.0f);
    return static_cast<float>(std::acos(bounded) * Const::RDC);
}

float Calc::earthDist(float lat1, float lon1, float lat2, float lon2) {
    const float angle = earthAngle(lat1, lon1, lat2, lon2);
    return isMissing(angle) ? miss
                            : static_cast<float>(angle * 100 * Const::EARTH_MEAN * Const::DRC);
}

float Calc::dist(float x1, float y1, float x2, float y2) {
    if (isMissing(x1) || isMissing(y1) || isMissing(x2) || isMissing(y2))
        return miss;
    return static_cast<float>(
        std::hypot(static_cast<double>(x1) - x2, static_cast<double>(y1) - y2));
}

} // namespace ORV
