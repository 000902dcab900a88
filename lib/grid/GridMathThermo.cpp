#include "ORV/Calc.h"
#include "ORV/StrLib.h"

#include "GridCompute.h"

#include <cstdio>

namespace ORV {

using namespace GridCompute;

namespace {

// What a function asks of its operands, and what its result is called.
class Recipe {
public:
    const char* name;
    const char* units;
    const char* not_temp;             // message for a first operand that is no temperature
    const char* second = nullptr;     // variable that the second operand must be
    const char* not_second = nullptr; // message when it isn't
};

constexpr Recipe dew_temp = {"dewp", "K", "GridMath::dewpoint: not a temperature grid"};
constexpr Recipe rel_hum = {"rhum", "%", "GridMath::relHum: not a temperature grid"};
constexpr Recipe wet_bulb = {"wetblb", "K", "GridMath::dewpoint: not a temperature grid"};
constexpr Recipe pot_temp = {"theta", "K", "GridMath::potTemp: not a temperature grid"};
constexpr Recipe spec_hum = {"shum", "gm/kg", "GridMath::specHum: not a temperature grid", "rhum",
                             "GridMath::specHum: not a rel humidity grid"};
constexpr Recipe mix_ratio = {"mrat", "g/kg", "GridMath::mixRatio: not a temperature grid", "rhum",
                              "GridMath::mixRatio: not a rel humidity grid"};
constexpr Recipe heat_index = {"heat", "K", "GridMath::heatIndex: not a temperature grid", "rhum",
                               "GridMath::heatIndex: not a rel humidity grid"};
constexpr Recipe virt_temp = {"vtemp", "K", "GridMath::virtPotTemp: not a temperature grid", "rhum",
                              "GridMath::virtPotTemp: not a rel hum grid"};
constexpr Recipe virt_pot_temp = {"thetav", "K", "GridMath::virtPotTemp: not a temperature grid",
                                  "rhum", "GridMath::virtPotTemp: not a rel hum grid"};
constexpr Recipe equiv_pot_temp = {"thetae", "K", "GridMath::equivPotTemp: not a temperature grid",
                                   "rhum", "GridMath::equivPotTemp: not a rel hum grid"};
constexpr Recipe wind_chill = {"wchill", "K", "GridMath::windChill: not a temperature grid", "wspd",
                               "GridMath::windChill: not a wind speed grid"};
constexpr Recipe showalter_index = {"show", "dC", "GridMath::showalter: not a temperature grid",
                                    "temp", "GridMath::showalter: not a temperature grid"};

bool isVariable(const Grid& grid, const char* abbr, const char* message) {
    const bool is = GridMath::checkVar(grid, abbr);
    if (!is)
        std::puts(message);
    return is;
}

// The checks in their order: data, then the variables, then that the points are the same.
int check(const Recipe& recipe, const Grid& t, const Grid& second) {
    return t.isData() && second.isData() && isVariable(t, "temp", recipe.not_temp) &&
           (!recipe.second || isVariable(second, recipe.second, recipe.not_second)) &&
           isTogether(t, second);
}

// value(t, second, pressure) for operands that have been checked and converted.
template <class Value>
int compute(Grid& out, const Recipe& recipe, const char* name, const Grid& t, const Grid& second,
            Value value) {
    const float pres = t.getLevel().l1.lev;
    const auto at_level = [value, pres](float x, float y) { return value(x, y, pres); };
    return make(out, t, name, recipe.units, pointwise(at_level, t, second));
}

template <class Value>
int computeMoist(Grid& out, const Recipe& recipe, Grid& t, const Grid& rh, Value value) {
    if (!check(recipe, t, rh))
        return 0;
    GridMath::units(t, "K");
    return compute(out, recipe, recipe.name, t, rh, value);
}

// A function of temperature, dewpoint and pressure as one of the relative humidity.
template <class Value>
auto ofHumidity(Value value) {
    return [value](float t, float rh, float pres) { return value(t, Calc::dewTemp(t, rh), pres); };
}

// The temperature at 500 mb of a parcel from 850 mb; missing when it can't be lifted.
float liftParcel(float t, float rh) {
    constexpr float from = 850, to = 500;
    LclData level;
    if (!Calc::lcl(t, Calc::dewTemp(t, rh), from, level))
        return miss;
    if (level.pres < to)
        return Calc::tempOnDryAd(Calc::potTemp(t, from), to);
    return Calc::tempOnSatAd(Calc::thetaeOnSatAd(level.temp, level.pres), to);
}

} // namespace

int GridMath::dewTemp(Grid& out, Grid& t, const Grid& rh) {
    return computeMoist(out, dew_temp, t, rh,
                        ofHumidity([](float, float dewpoint, float) { return dewpoint; }));
}

int GridMath::relHum(Grid& out, Grid& t, Grid& td) {
    if (!check(rel_hum, t, td))
        return 0;
    units(t, "K");
    units(td, "K");
    return compute(out, rel_hum, rel_hum.name, t, td,
                   [](float x, float dewpoint, float) { return Calc::relHum(x, dewpoint); });
}

int GridMath::specHum(Grid& out, Grid& t, const Grid& rh) {
    return computeMoist(out, spec_hum, t, rh, ofHumidity([](float, float dewpoint, float pres) {
                            return Calc::specHum(dewpoint, pres);
                        }));
}

int GridMath::mixRatio(Grid& out, Grid& t, const Grid& rh) {
    return computeMoist(out, mix_ratio, t, rh, ofHumidity([](float, float dewpoint, float pres) {
                            return Calc::mixRatio(dewpoint, pres);
                        }));
}

int GridMath::wetBulb(Grid& out, Grid& t, const Grid& rh) {
    return computeMoist(out, wet_bulb, t, rh, ofHumidity(Calc::wetBulb));
}

int GridMath::virtTemp(Grid& out, Grid& t, const Grid& rh) {
    return computeMoist(out, virt_temp, t, rh, ofHumidity(Calc::virtTemp));
}

int GridMath::virtPotTemp(Grid& out, Grid& t, const Grid& rh) {
    return computeMoist(out, virt_pot_temp, t, rh, ofHumidity(Calc::virtPotTemp));
}

int GridMath::equivPotTemp(Grid& out, Grid& t, const Grid& rh) {
    return computeMoist(out, equiv_pot_temp, t, rh, ofHumidity(Calc::equivPotTemp));
}

int GridMath::potTemp(Grid& out, Grid& t) {
    return computeMoist(out, pot_temp, t, t,
                        [](float x, float, float pres) { return Calc::potTemp(x, pres); });
}

int GridMath::heatIndex(Grid& out, Grid& t, const Grid& rh) {
    return computeMoist(out, heat_index, t, rh, [](float x, float humidity, float) {
        return Calc::heatIndex(x, humidity);
    });
}

int GridMath::windChill(Grid& out, const char* name, Grid& t, Grid& spd) {
    if (!check(wind_chill, t, spd))
        return 0;
    units(t, "K");
    units(spd, "m/s");
    const char* variable = name ? name : wind_chill.name;
    const auto formula =
        StrLib::equal(variable, "wchill2") ? Calc::windChillTemp2 : Calc::windChillTemp;
    return compute(out, wind_chill, variable, t, spd,
                   [formula](float x, float wind, float) { return formula(x, wind); });
}

int GridMath::showalter(Grid& out, Grid& t, const Grid& rh, Grid& tu) {
    if (!rh.isData() || !check(showalter_index, t, tu) || !isTogether(t, rh))
        return 0;
    units(t, "K");
    units(tu, "K");
    const auto value = [](float low, float humidity, float high) {
        const float parcel = liftParcel(low, humidity);
        return parcel == miss ? miss : high - parcel;
    };
    return make(out, t, showalter_index.name, showalter_index.units, pointwise(value, t, rh, tu));
}

} // namespace ORV
