#pragma once

namespace ORV {

class String;

/// Numbers as text, and the rules that choose round numbers for a plot.
class Tools {
public:
    Tools() = delete;

    /// Whether the text begins with a whole number: a digit, or "-" and a digit. Null is none.
    static bool isInt(const char* text);
    /// Whether it begins with a number: a digit, ".", "-" or "-." in front of a digit.
    static bool isFloat(const char* text);

    /// The text of a number on labels: at most five significant digits and no trailing zeros;
    /// "%e" outside 1e-5 to 1e6.
    static int toString(float x, String& out);
    /// The same with a chosen number of significant digits. A number of decimals below 0 writes
    /// none; digits above 40 count as 40.
    static int toString(float x, int digits, String& out);

    /// Packs a number into an integer: a decimal exponent in the hundreds (10 more for numbers
    /// below 1), two leading digits below. Worked in float, so that 0.7 counts as 0.7.
    static int toInt(float x);

    /// Chooses a contour interval, in the units of max and min, that makes about n steps of the
    /// range; n below 1 counts as 1. The raw step is rounded up, in float: to a whole number from
    /// 1 on, below that to one digit of its decade. A flat field gives 1; a step that is negative
    /// or below 0.0001 comes back as it is.
    static float calcInterval(float max, float min, int n);

    /// Prints n bytes in hexadecimal, 16 a line, on standard output.
    static int dumpHex(const void* bytes, int n);
};

} // namespace ORV
