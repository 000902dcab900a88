#pragma once

namespace ORV {

/// The missing-value marker and the physical and geometric constants.
class Const {
public:
    Const() = delete;

    /// Marks a value that isn't known, in integers, and as exactly -9999.0 in floats. Compare with
    /// == before any arithmetic.
    static constexpr int MISS = -9999;

    static constexpr float G = 9.8f;    ///< gravity, m/s^2
    static constexpr float R = 287.05f; ///< gas constant of dry air, J/(kg K)
    static constexpr float CP =
        1004.0f;                        ///< specific heat of dry air at constant pressure, J/(kg K)
    static constexpr float CV = 717.0f; ///< specific heat of dry air at constant volume, J/(kg K)

    static constexpr double PI = 3.1415926535898;
    static constexpr double TWO_PI = 6.283185307;
    static constexpr double DRC = 0.017453293;    ///< degrees to radians
    static constexpr double RDC = 57.29577951;    ///< radians to degrees
    static constexpr double EARTH_MAJ = 63.78137; ///< equatorial radius, hundreds of km
    static constexpr double EARTH_MIN = 63.56752; ///< polar radius, hundreds of km
    static constexpr double EARTH_MEAN = 63.7122; ///< mean radius, hundreds of km
};

} // namespace ORV
