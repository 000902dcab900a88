#include "ORV/Scan.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace ORV {
namespace {
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

const char* skipSpace(const char* text) {
    while (isSpace(*text))
        text++;
    return text;
}

/// Where a number stands in a text.
struct Decimal {
    const char* begin; // behind a "+", which from_chars doesn't take
    const char* end;
};

/// The end of the characters that a width allows; null without a width.
const char* getLimit(const char* start, int width) {
    return width > 0 ? start + strnlen(start, static_cast<std::size_t>(width)) : nullptr;
}

/// The longest decimal number from `start` on, short of `limit`; empty when there is none.
Decimal findDecimal(const char* start, const char* limit, bool whole) {
    const auto peek = [limit](const char* p) { return p == limit ? '\0' : *p; };
    const auto skip_digits = [peek](const char* p) {
        while (isDigit(peek(p)))
            p++;
        return p;
    };
    const char* begin = peek(start) == '+' ? start + 1 : start;
    const char* first = peek(start) == '-' ? start + 1 : begin;
    const char* end = skip_digits(first);
    bool found = end > first;
    if (!whole && peek(end) == '.') {
        const char* fraction = skip_digits(end + 1);
        found = found || fraction > end + 1;
        end = fraction;
    }
    if (!found)
        return {start, start};
    if (!whole && (peek(end) == 'e' || peek(end) == 'E')) {
        const char* power = end + 1;
        if (peek(power) == '+' || peek(power) == '-')
            power++;
        const char* last = skip_digits(power);
        if (last > power)
            end = last;
    }
    return {begin, end};
}

int readInteger(const char* text, int width, long long& value) {
    if (!text)
        return 0;
    const char* start = skipSpace(text);
    const Decimal number = findDecimal(start, getLimit(start, width), true);
    if (number.end == start)
        return 0;
    const auto result = std::from_chars(number.begin, number.end, value);
    if (result.ec == std::errc::result_out_of_range)
        value = *number.begin == '-' ? std::numeric_limits<long long>::min()
                                     : std::numeric_limits<long long>::max();
    return static_cast<int>(number.end - text);
}

/// Whether a number that no double holds is below 1 in size, not above.
bool isTiny(const Decimal& number) {
    double power = 0; // of ten, of the first digit that isn't 0
    bool counts = false;
    bool fraction = false;
    const char* p = number.begin;
    for (; p < number.end && (*p | 32) != 'e'; p++) {
        if (*p == '.')
            fraction = true;
        else if (isDigit(*p)) {
            counts = counts || *p != '0';
            power += fraction ? (counts ? 0 : -1) : (counts ? 1 : 0);
        }
    }
    long long exponent = 0;
    if (p < number.end)
        readInteger(p + 1, static_cast<int>(number.end - p - 1), exponent);
    return power + static_cast<double>(exponent) <= 0;
}

int readNumber(const char* text, int width, double& value) {
    if (!text)
        return 0;
    const char* start = skipSpace(text);
    const Decimal number = findDecimal(start, getLimit(start, width), false);
    if (number.end == start)
        return 0;
    const auto result = std::from_chars(number.begin, number.end, value);
    if (result.ec == std::errc::result_out_of_range) {
        const double size = isTiny(number) ? 0.0 : std::numeric_limits<double>::max();
        value = *number.begin == '-' ? -size : size;
    }
    return static_cast<int>(number.end - text);
}

int readHex(const char* text, int width, unsigned long long& value) {
    const char* start = skipSpace(text);
    const char* limit = width > 0 ? getLimit(start, width) : start + std::strlen(start);
    const char* digits =
        limit - start > 2 && start[0] == '0' && (start[1] | 32) == 'x' ? start + 2 : start;
    auto result = std::from_chars(digits, limit, value, 16);
    if (result.ptr == digits)
        return 0;
    if (result.ec == std::errc::result_out_of_range)
        value = std::numeric_limits<unsigned long long>::max();
    return static_cast<int>(result.ptr - text);
}

float toFloat(double value) {
    constexpr double most = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -most, most));
}

/// The nearest value of a narrower type of the same sign.
template <class T, class Wide>
T narrow(Wide value) {
    static_assert(std::is_signed_v<T> == std::is_signed_v<Wide>);
    return static_cast<T>(
        std::clamp<Wide>(value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

/// One conversion of a format.
struct Conversion {
    bool keep = true; // false with "*"
    int width = 0;
    int size = 0; // -2 hh, -1 h, 1 l, 2 ll
    char kind = 0;
    const char* set_begin = nullptr;
    const char* set_end = nullptr;
};

/// Reads the conversion behind a "%"; its kind stays 0 in a broken format.
Conversion parseConversion(const char*& format) {
    Conversion conv;
    if (*format == '*') {
        conv.keep = false;
        format++;
    }
    for (; isDigit(*format); format++)
        conv.width = std::min(conv.width * 10 + (*format - '0'), 1000000);
    for (; *format == 'h' || *format == 'l'; format++)
        conv.size += *format == 'l' ? 1 : -1;
    if (!*format)
        return conv;
    const char kind = *format++;
    if (kind == '[') {
        conv.set_begin = format;
        // A "]" at the start of a set belongs to it.
        if (*format == '^')
            format++;
        if (*format == ']')
            format++;
        while (*format && *format != ']')
            format++;
        if (!*format)
            return conv;
        conv.set_end = format++;
    }
    conv.kind = kind;
    return conv;
}

bool inSet(const Conversion& conv, char c) {
    const char* p = conv.set_begin;
    const bool inverse = *p == '^';
    if (inverse)
        p++;
    const auto code = [](char x) { return static_cast<unsigned char>(x); };
    bool found = false;
    for (; p < conv.set_end && !found; p++) {
        if (p + 2 < conv.set_end && p[1] == '-') {
            found = code(*p) <= code(c) && code(c) <= code(p[2]);
            p += 2;
        } else
            found = *p == c;
    }
    return found != inverse;
}

/// The scan of one text, with the arguments that take its values.
class Scanner {
public:
    Scanner(const char* text, va_list list) : start(text), text(text) { va_copy(args, list); }
    ~Scanner() { va_end(args); }
    Scanner(const Scanner&) = delete;
    Scanner& operator=(const Scanner&) = delete;

    int run(const char* format) {
        while (*format) {
            if (isSpace(*format)) {
                format = skipSpace(format);
                text = skipSpace(text);
            } else if (*format != '%') {
                if (*text != *format++)
                    break;
                text++;
            } else if (!convert(parseConversion(++format)))
                break;
        }
        return count;
    }

private:
    bool convert(const Conversion& conv) {
        switch (conv.kind) {
        case 'd':
        case 'i':
            return takeInteger(conv);
        case 'u':
            return takeUnsigned(conv, false);
        case 'x':
        case 'X':
            return takeUnsigned(conv, true);
        case 'e':
        case 'f':
        case 'g':
            return takeNumber(conv);
        case 's':
            text = skipSpace(text);
            return takeText(
                conv, [](char c) { return !isSpace(c); }, true);
        case '[':
            return takeText(
                conv, [&conv](char c) { return inSet(conv, c); }, true);
        case 'c':
            return takeChars(conv);
        case 'n':
            *va_arg(args, int*) = static_cast<int>(text - start);
            return true;
        case '%':
            text = skipSpace(text);
            return *text == '%' && text++;
        default:
            return false;
        }
    }

    bool pass(int used) {
        text += used;
        return used > 0;
    }

    /// Stores a value by the size of its conversion, hh, h, none, l or ll.
    template <class Char, class Short, class Int, class Long, class Wide>
    bool store(const Conversion& conv, Wide value) {
        if (!conv.keep)
            return true;
        switch (conv.size) {
        case -2:
            *va_arg(args, Char*) = narrow<Char>(value);
            break;
        case -1:
            *va_arg(args, Short*) = narrow<Short>(value);
            break;
        case 0:
            *va_arg(args, Int*) = narrow<Int>(value);
            break;
        case 1:
            *va_arg(args, Long*) = narrow<Long>(value);
            break;
        default:
            *va_arg(args, Wide*) = value;
        }
        count++;
        return true;
    }

    bool takeInteger(const Conversion& conv) {
        long long value = 0;
        return pass(readInteger(text, conv.width, value)) &&
               store<signed char, short, int, long>(conv, value);
    }

    bool takeUnsigned(const Conversion& conv, bool hex) {
        unsigned long long bits = 0;
        long long value = 0;
        const int used =
            hex ? readHex(text, conv.width, bits) : readInteger(text, conv.width, value);
        if (!hex)
            bits = static_cast<unsigned long long>(std::max(value, 0LL));
        return pass(used) &&
               store<unsigned char, unsigned short, unsigned, unsigned long>(conv, bits);
    }

    bool takeNumber(const Conversion& conv) {
        double value = 0.0;
        if (!pass(readNumber(text, conv.width, value)))
            return false;
        if (!conv.keep)
            return true;
        if (conv.size > 0)
            *va_arg(args, double*) = value;
        else
            *va_arg(args, float*) = toFloat(value);
        count++;
        return true;
    }

    template <class Accept>
    bool takeText(const Conversion& conv, Accept accept, bool terminate) {
        if (conv.keep && conv.width == 0)
            return false;
        const char* end = text;
        while (*end && (conv.width == 0 || end - text < conv.width) && accept(*end))
            end++;
        if (end == text)
            return false;
        if (conv.keep) {
            char* out = va_arg(args, char*);
            out = std::copy(text, end, out);
            if (terminate)
                *out = '\0';
            count++;
        }
        text = end;
        return true;
    }

    bool takeChars(Conversion conv) {
        conv.width = std::max(conv.width, 1);
        // Unlike a word, this takes its full width or fails.
        return strnlen(text, static_cast<std::size_t>(conv.width)) ==
                   static_cast<std::size_t>(conv.width) &&
               takeText(
                   conv, [](char) { return true; }, false);
    }

    const char* start;
    const char* text;
    va_list args;
    int count = 0;
};
} // namespace

int Scan::text(const char* text, const char* format, ...) {
    va_list args;
    va_start(args, format);
    const int count = vtext(text, format, args);
    va_end(args);
    return count;
}

int Scan::vtext(const char* text, const char* format, va_list args) {
    return text && format ? Scanner(text, args).run(format) : 0;
}

int Scan::number(const char* text, double& value, int width) {
    return readNumber(text, width, value);
}

int Scan::number(const char* text, float& value, int width) {
    double wide = 0.0;
    const int used = readNumber(text, width, wide);
    if (used > 0)
        value = toFloat(wide);
    return used;
}

int Scan::integer(const char* text, long long& value, int width) {
    return readInteger(text, width, value);
}

int Scan::integer(const char* text, int& value, int width) {
    long long wide = 0;
    const int used = readInteger(text, width, wide);
    if (used > 0)
        value = narrow<int>(wide);
    return used;
}

int Scan::toInt(double value) {
    if (std::isnan(value))
        return 0;
    return static_cast<int>(std::clamp<double>(value, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

} // namespace ORV
