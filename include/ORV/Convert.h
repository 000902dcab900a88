#pragma once

#include "ORV/Const.h"

namespace ORV {

/// Unit factors. Each operation returns a missing value unchanged, so that no caller needs a guard;
/// the work is in double.
///
/// C, F, K are degrees of temperature; IN inches (of mercury in INtoMB and MBtoIN), MB millibars;
/// KT knots, MPS metres a second, KMH kilometres an hour, MPH statute miles an hour; FT feet,
/// M metres, MM millimetres, CM centimetres, KM kilometres, SM and MI statute miles, NM nautical
/// miles.
class Convert {
public:
    Convert() = delete;

    static float CtoF(float x) { return linear(x, 9.0 / 5.0, 32.0); }
    static float FtoC(float x) { return linear(x, 5.0 / 9.0, -32.0 * 5.0 / 9.0); }
    static float CtoK(float x) { return linear(x, 1.0, 273.15); }
    static float KtoC(float x) { return linear(x, 1.0, -273.15); }
    static float KtoF(float x) { return linear(x, 9.0 / 5.0, 32.0 - 273.15 * 9.0 / 5.0); }
    static float FtoK(float x) { return linear(x, 5.0 / 9.0, 273.15 - 32.0 * 5.0 / 9.0); }

    static float INtoMB(float x) { return linear(x, 33.85399); }
    static float MBtoIN(float x) { return linear(x, 0.0295386); }

    static float KTtoMPS(float x) { return linear(x, 0.5144); }
    static float MPStoKT(float x) { return linear(x, 1.944); }
    static float KTtoKMH(float x) { return linear(x, 1.852); }
    static float KMHtoKT(float x) { return linear(x, 0.53996); }
    static float KTtoMPH(float x) { return linear(x, 1.15078); }
    static float MPHtoKT(float x) { return linear(x, 0.86898); }
    static float MPHtoMPS(float x) { return linear(x, 0.44704); }
    static float MPStoMPH(float x) { return linear(x, 2.23694); }

    static float FTtoM(float x) { return linear(x, 0.3048); }
    static float MtoFT(float x) { return linear(x, 3.2808); }
    static float MtoMI(float x) { return linear(x, 0.00062137); }
    static float INtoMM(float x) { return linear(x, 25.4); }
    static float MMtoIN(float x) { return linear(x, 0.03937); }
    static float INtoCM(float x) { return linear(x, 2.54); }
    static float CMtoIN(float x) { return linear(x, 0.3937); }
    static float SMtoKM(float x) { return linear(x, 1.60934); }
    static float KMtoSM(float x) { return linear(x, 0.62137); }
    static float SMtoNM(float x) { return linear(x, 0.86898); }
    static float NMtoSM(float x) { return linear(x, 1.15078); }
    static float NMtoKM(float x) { return linear(x, 1.852); }
    static float KMtoNM(float x) { return linear(x, 0.53996); }
    static float NMtoFT(float x) { return linear(x, 6076.12); }

private:
    static float linear(float x, double factor, double offset = 0.0) {
        return x == Const::MISS ? x : static_cast<float>(x * factor + offset);
    }
};

} // namespace ORV
