#pragma once

#include "ORV/LclData.h"

namespace ORV {

/// Thermodynamic and wind formulas. Temperatures are in kelvins, pressures in millibars, speeds in
/// metres per second, mixing ratios in g/kg, angles in degrees, unless said otherwise. A missing or
/// impossible input gives a missing result or the substitute stated; nothing here is an error.
class Calc {
public:
    Calc() = delete;

    /// Speed of a wind with the components u (eastward) and v (northward), in their units.
    static float windSpd(float u, float v);
    /// Direction that the wind comes from, 0 to 360; 0 for a wind below 0.01.
    static float windDir(float u, float v);
    /// Eastward component of a wind; missing if the direction is. The speed isn't checked.
    static float windU(float dir, float spd);
    /// Northward component of a wind; missing if the direction is. The speed isn't checked.
    static float windV(float dir, float spd);

    /// Saturation vapour pressure over water, mb (Goff and Gratch 1946, in the form of Nordquist
    /// 1973). 0 below 100 K.
    static float vaporPres(float t);
    /// The temperature at which e mb is the saturation vapour pressure, K; 0 if e is 0 or less.
    static float tempVaporPres(float e);
    /// Dewpoint of air at t with a relative humidity of rh percent, taken as 2 to 100; K.
    static float dewTemp(float t, float rh);
    /// Relative humidity in percent. Both temperatures in kelvins, or both in Celsius: then both
    /// are 100 or less.
    static float relHum(float t, float td);

    /// Mixing ratio in g/kg at p. x is a vapour pressure in mb up to 100, above a dewpoint in K.
    static float mixRatio(float x, float p);
    /// Specific humidity in g/kg at p, x as in mixRatio.
    static float specHum(float x, float p);
    /// Potential temperature, K.
    static float potTemp(float t, float p);
    /// Virtual temperature, K. x is a mixing ratio in g/kg up to 100, above a dewpoint in K.
    static float virtTemp(float t, float x, float p);
    /// Virtual potential temperature, K, x as in virtTemp.
    static float virtPotTemp(float t, float x, float p);
    /// Temperature of the dry adiabat theta at p, K; 0 if either is 0 or less.
    static float tempOnDryAd(float theta, float p);
    /// Equivalent potential temperature of the saturated adiabat through t and p, K; 0 if either
    /// is 0 or less.
    static float thetaeOnSatAd(float t, float p);
    /// Temperature of the saturated adiabat thetae at p, K, by bisection in at most 12 steps.
    /// Missing above 2000 mb.
    static float tempOnSatAd(float thetae, float p);
    /// Temperature at which w g/kg is the saturation mixing ratio at p, K; 0 if either is 0 or
    /// less.
    static float tempOnMixRat(float w, float p);
    /// Convective temperature at the surface pressure psfc, K, of the mixing ratio w taken at p.
    static float convTemp(float w, float p, float psfc);

    /// Lifted condensation level of a parcel, by iteration on pressure. 0 and a missing result if
    /// a temperature is 100 K or less or p outside 0 to 1100 mb.
    static int lcl(float t, float td, float p, LclData& out);
    static LclData lcl(float t, float td, float p);
    static float lclPres(float t, float td, float p);
    /// Temperature at the condensation level plcl of a parcel that starts at t and p, K.
    static float lclTemp(float t, float p, float plcl);
    /// Equivalent potential temperature, K; the potential temperature if td is 0.
    static float equivPotTemp(float t, float td, float p);
    /// Wet-bulb temperature, K; 0 if td is 0.
    static float wetBulb(float t, float td, float p);
    /// Wet-bulb potential temperature, K; 0 if td is 0.
    static float wetBulbPotTemp(float t, float td, float p);

    /// Wind-chill temperature, K (Siple and Passel 1945). The temperature itself below 2 m/s or
    /// above 306.15 K; winds count up to 26 m/s.
    static float windChillTemp(float t, float v);
    /// Wind-chill temperature, K (the joint American and Canadian index of 2001). The temperature
    /// itself below 1 m/s or above 306.15 K, and never more than that.
    static float windChillTemp2(float t, float v);
    /// Heat loss by wind chill, W/m^2 (Siple and Passel 1945). Missing where the formula doesn't
    /// hold: below 2 m/s or above 306.15 K. Winds count up to 26 m/s.
    static float windChill(float t, float v);
    /// Heat index, K. Missing if td is above t.
    static float heatIndex(float t, float td);
    /// Humiture, degrees Fahrenheit.
    static float humiture(float t, float td);
    /// Temperature-humidity index, from t and td as given.
    static float tempHumIndex(float t, float td);

    /// Station pressure from an altimeter setting in mb and an elevation in m, mb.
    static float sfcPrAlt(float alt, float elev);
    /// Height of a pressure in the standard atmosphere, m; missing if p is 0 or less.
    static float presAlt(float p);
    /// Pressure of a height in m in the standard atmosphere, mb.
    static float stdAtmsPres(float z);

    /// The value at x of the line through (x1, y1) and (x2, y2). Nothing is checked: equal x1 and
    /// x2 give no finite number.
    static float interpLinear(float x, float x1, float x2, float y1, float y2);
    /// The temperature at p between t1 at p1 and t2 at p2, linear in the logarithm of pressure;
    /// the one that is there if the other is missing.
    static float interpTemp(float t1, float t2, float p1, float p2, float p);
    /// Arc between two places, degrees; missing if a latitude is.
    static float earthAngle(float lat1, float lon1, float lat2, float lon2);
    /// Distance of two places on the mean sphere, km; missing if a latitude is.
    static float earthDist(float lat1, float lon1, float lat2, float lon2);
    /// Distance in the plane; missing if any coordinate is.
    static float dist(float x1, float y1, float x2, float y2);
};

} // namespace ORV
