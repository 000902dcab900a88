#pragma once

namespace ORV {

class Domain;
class EarthPoint;

/// The formulas of one projection. They take angles and lengths as Domain tells them, and find
/// the constants of the projection in the domain. A point without an image gives false; what comes
/// out as no finite number has none either.
class Projection {
public:
    /// Earth to plot, longitude already within the world. It may change a latitude or longitude
    /// that the projection can't take as it is.
    using Forward = bool (*)(const Domain&, EarthPoint&, double& x, double& y);
    /// Plot to earth, in degrees. It may give a valid place along with false.
    using Inverse = bool (*)(const Domain&, double x, double y, double& lat, double& lon);
    /// Works out the constants from origin, radius and true latitudes.
    using Derive = void (*)(Domain&);

    int code;
    const char* name; ///< as domain texts write it, empty when it has none
    Forward forward;  ///< null: lat is x, lon is y
    Inverse inverse;
    Derive derive; ///< null: there are no constants

    /// The projection of a code, null when it isn't known.
    static const Projection* find(int code);
};

} // namespace ORV
