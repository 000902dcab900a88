#include "ORV/Tools.h"

#include "ORV/String.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace ORV {
namespace {
constexpr float whole_units[] = {1000, 100, 10, 1};      // decades of a step, coarsest first
constexpr float parts_of_one[] = {10, 100, 1000, 10000}; // and those below 1

constexpr double nudge = 0.0001; // lifts the logarithm of a power of ten over its whole number
constexpr int max_exponent = 5;  // of a number written without one
constexpr int max_digits = 40;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isPlain(double exponent) {
    return std::abs(exponent) <= max_exponent;
}

int setExponential(double x, int decimals, String& out) {
    char text[80];
    std::snprintf(text, sizeof text, "%.*e", decimals, x);
    return out.copy(text);
}

/// Writes x with at most this many decimals, the zeros at the end left out.
int setDecimal(double x, int decimals, String& out) {
    char text[80];
    std::snprintf(text, sizeof text, "%.*f", std::max(decimals, 0), x);
    std::size_t end = std::strlen(text);
    for (; decimals > 0 && text[end - 1] == '0'; decimals--)
        end--;
    if (decimals <= 0 && text[end - 1] == '.')
        end--;
    text[end] = '\0';
    return out.copy(text);
}
} // namespace

bool Tools::isInt(const char* text) {
    return text && isDigit(text[*text == '-' ? 1 : 0]);
}

bool Tools::isFloat(const char* text) {
    if (!text)
        return false;
    if (*text == '-')
        text++;
    return isDigit(text[*text == '.' ? 1 : 0]);
}

int Tools::toString(float x, String& out) {
    if (x == 0)
        return out.copy("0");
    const double exponent = std::trunc(std::log10(std::abs(static_cast<double>(x))) + nudge);
    if (!isPlain(exponent))
        return setExponential(x, 6, out);
    return setDecimal(x, 4 - static_cast<int>(exponent), out);
}

int Tools::toString(float x, int digits, String& out) {
    if (x == 0)
        return out.copy("0");
    digits = std::clamp(digits, -max_digits, max_digits);
    const double exponent = std::ceil(std::log10(std::abs(static_cast<double>(x))) + nudge);
    if (!isPlain(exponent))
        return setExponential(x, std::max(digits - 1, 0), out);
    return setDecimal(x, digits - static_cast<int>(exponent), out);
}

int Tools::toInt(float x) {
    if (x == 0 || !std::isfinite(x))
        return 0;
    float scaled = std::abs(x);
    const int power = static_cast<int>(std::log10(static_cast<double>(scaled)) + 5.0) - 5;
    for (int k = power; power < 0 && k < 2; k++)
        scaled *= 10;
    for (int k = power; k > 1; k--)
        scaled /= 10;
    if (power == 0)
        scaled *= 10;
    const int exponent = power < 0 ? power + 10 : power;
    const int code = exponent * 100 + static_cast<int>(scaled) % 100;
    return x < 0 ? -code : code;
}

float Tools::calcInterval(float max, float min, int n) {
    const float step = (max - min) / std::max(n, 1);
    if (step == 0)
        return 1;

    // Scaled down and back on purpose: in float this lifts some whole steps to the next, 107 to
    // 108, which ceil(step) alone wouldn't.
    for (const float unit : whole_units)
        if (step >= unit)
            return std::ceil(unit * (step / unit));
    for (const float parts : parts_of_one)
        if (step >= 1 / parts)
            return std::ceil(step * parts) / parts;
    return step;
}

int Tools::dumpHex(const void* bytes, int n) {
    constexpr int row = 16;
    const auto* p = static_cast<const unsigned char*>(bytes);
    for (int i = 0; p && i < n; i++)
        std::printf("%02x%c", p[i], i % row == row - 1 || i == n - 1 ? '\n' : ' ');
    return p != nullptr;
}

} // namespace ORV
