#pragma once

#include <cstdarg>

namespace ORV {

/// Reads numbers and words out of a text, safely for any text.
///
/// Numbers are decimal: "inf", "nan" and hexadecimal digits are no numbers. The longest part that
/// makes a number is taken, so "0.5eta" holds 0.5 and "2e" holds 2. A number that is too large for
/// its type becomes the largest, or smallest, value of the type.
class Scan {
public:
    Scan() = delete;

    /// As sscanf, with the numbers above, and the conversions d i u f e g x s c [ n %, the sizes h
    /// l ll, "*" and widths. "%s" and "%[" need a width, that of the array less 1; without one the
    /// scan stops. Returns the number of values stored, and 0 also where sscanf gives EOF.
    [[gnu::format(scanf, 2, 3)]] static int text(const char* text, const char* format, ...);
    static int vtext(const char* text, const char* format, va_list args);

    /// Read the number at the start of the text, behind white space, of at most `width` characters
    /// when that is above 0. Return the characters passed, or 0 when there is no number; then the
    /// value stays.
    static int number(const char* text, double& value, int width = 0);
    static int number(const char* text, float& value, int width = 0);
    static int integer(const char* text, long long& value, int width = 0);
    static int integer(const char* text, int& value, int width = 0);

    /// The nearest int of a value, cut toward zero and kept within the range of int; 0 for a NaN.
    static int toInt(double value);
};

} // namespace ORV
