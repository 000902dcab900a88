#include "ORV/Datum.h"

#include "ORV/Orv.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace ORV {

Datum::Datum(float lat, float lon, int type, const char* data, const char* format) {
    set(lat, lon, type, data, format);
}

Datum::Datum(float lat, float lon, int type, float value, const char* format) {
    set(lat, lon, type, value, format);
}

Datum::Datum(float lat, float lon, int type, float value1, float value2, const char* format) {
    set(lat, lon, type, value1, value2, format);
}

int Datum::initVals() {
    type = Const::MISS;
    format[0] = data[0] = 0;
    std::fill_n(value, num_values, Const::MISS);
    return 1;
}

int Datum::setId(const char* text) {
    return StrLib::copy(id, sizeof id, text);
}

int Datum::setLoc(float lat, float lon) {
    ept.set(lat, lon);
    return 1;
}

int Datum::setLoc(const EarthPoint& point) {
    ept = point;
    return 1;
}

int Datum::setType(int kind) {
    type = kind;
    return 1;
}

int Datum::setIndex(int number) {
    index = number;
    return 1;
}

int Datum::setValue(int i, float x) {
    if (i < 0 || i >= num_values)
        return 0;
    value[i] = x;
    return 1;
}

int Datum::setValue(float first, float second) {
    return setValue(0, first), setValue(1, second);
}

int Datum::offsetValue(int i, float x) {
    if (i < 0 || i >= num_values)
        return 0;
    if (value[i] != Const::MISS)
        value[i] += x;
    return 1;
}

int Datum::scaleValue(int i, float factor) {
    if (i < 0 || i >= num_values)
        return 0;
    if (value[i] != Const::MISS)
        value[i] *= factor;
    return 1;
}

float Datum::getValue(int i) const {
    return i < 0 || i >= num_values ? Const::MISS : value[i];
}

int Datum::setData(const char* text) {
    return StrLib::copy(data, sizeof data, text);
}

int Datum::setData(char c) {
    const char text[] = {c, 0};
    return setData(text);
}

int Datum::formatData(const char* form, ...) {
    va_list args;
    va_start(args, form);
    std::vsnprintf(data, sizeof data, form, args);
    va_end(args);
    return 1;
}

int Datum::setFormat(const char* text) {
    return StrLib::copy(format, sizeof format, text);
}

int Datum::addFormat(const char* text) {
    if (format[0])
        StrLib::append(format, sizeof format, ",");
    return StrLib::append(format, sizeof format, text);
}

int Datum::setKind(const EarthPoint& point, int kind, const char* text) {
    initVals();
    ept = point;
    type = kind;
    return setFormat(text);
}

int Datum::set(const EarthPoint& point, int kind, const char* text, const char* attributes) {
    setKind(point, kind, attributes);
    setData(text);
    return 1;
}

int Datum::set(const EarthPoint& point, int kind, float first, const char* attributes) {
    setKind(point, kind, attributes);
    return setValue(first);
}

int Datum::set(const EarthPoint& point, int kind, float first, float second,
               const char* attributes) {
    setKind(point, kind, attributes);
    return setValue(first, second);
}

int Datum::set(float lat, float lon, int kind, const char* text, const char* attributes) {
    return set(EarthPoint(lat, lon), kind, text, attributes);
}

int Datum::set(float lat, float lon, int kind, float first, const char* attributes) {
    return set(EarthPoint(lat, lon), kind, first, attributes);
}

int Datum::set(float lat, float lon, int kind, float first, float second, const char* attributes) {
    return set(EarthPoint(lat, lon), kind, first, second, attributes);
}

int Datum::print() const {
    Orv::outMessage("Datum: %s %.3f %.3f type %d index %d format \"%s\" data \"%s\" values", id,
                    ept.lat, ept.lon, type, index, format, data);
    for (const float x : value)
        Orv::outMessage(" %g", x);
    return Orv::outMessage("\n");
}

} // namespace ORV
