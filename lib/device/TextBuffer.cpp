#include "ORV/TextBuffer.h"

#include "ORV/File.h"

#include <cmath>
#include <cstdio>
#include <cstring>

namespace ORV {
namespace {
constexpr double powers_of_ten[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
constexpr int most_decimals = 9;
constexpr double exact_integers = 9007199254740992; // 2^53: up to here doubles hold every integer

constexpr char pairs[] =
    "00010203040506070809101112131415161718192021222324252627282930313233343536"
    "37383940414243444546474849505152535455565758596061626364656667686970717273"
    "74757677787980818283848586878889909192939495969798"
    "99";

// Rounds value times scale, both positive, to the nearest integer, ties to even. False where the
// product in double doesn't tell which way: too large, not a number, or on a tie only because it
// was itself rounded to one.
bool roundScaled(double value, double scale, std::uint64_t& result) {
    const double product = value * scale;
    if (!(product < exact_integers))
        return false;
    result = static_cast<std::uint64_t>(product);
    const double rest = product - static_cast<double>(result);
    if (rest == 0.5) {
        if (std::fma(value, scale, -product) != 0)
            return false;
        result += result & 1;
    } else if (rest > 0.5) {
        result++;
    }
    return true;
}

// Writes the digits of a value to end right before `end`; returns where they begin.
char* writeDigits(char* end, std::uint64_t value) {
    while (value >= 100) {
        end -= 2;
        std::memcpy(end, pairs + 2 * (value % 100), 2);
        value /= 100;
    }
    if (value >= 10) {
        end -= 2;
        std::memcpy(end, pairs + 2 * value, 2);
        return end;
    }
    *--end = static_cast<char>('0' + value);
    return end;
}
} // namespace

TextBuffer& TextBuffer::fixed(double value, int decimals) {
    const int places = decimals < 0 ? 0 : decimals > most_decimals ? most_decimals : decimals;
    std::uint64_t scaled = 0;
    char field[32];
    if (!roundScaled(std::fabs(value), powers_of_ten[places], scaled)) {
        char text[400]; // the longest double has 309 digits before the point
        const int length = std::snprintf(text, sizeof text, "%.*f", places, value);
        bytes.append(text, length);
        return *this;
    }
    char* const end = field + sizeof field;
    char* begin = writeDigits(end, scaled);
    if (places > 0) {
        while (end - begin <= places)
            *--begin = '0';
        const std::ptrdiff_t whole = end - begin - places;
        std::memmove(begin - 1, begin, whole);
        begin--;
        begin[whole] = '.';
    }
    if (std::signbit(value))
        *--begin = '-';
    bytes.append(begin, end - begin);
    return *this;
}

TextBuffer& TextBuffer::integer(long long value) {
    char field[24];
    char* const end = field + sizeof field;
    const bool negative = value < 0;
    const auto size = static_cast<std::uint64_t>(value);
    char* begin = writeDigits(end, negative ? 0 - size : size);
    if (negative)
        *--begin = '-';
    bytes.append(begin, end - begin);
    return *this;
}

TextBuffer& TextBuffer::hex(unsigned value) {
    constexpr char digits[] = "0123456789ABCDEF";
    bytes.push_back(digits[value >> 4 & 15]);
    bytes.push_back(digits[value & 15]);
    return *this;
}

int TextBuffer::flush(File& file) {
    const int size = static_cast<int>(bytes.size());
    const int written = size > 0 ? file.write(bytes.data(), size) : 0;
    bytes.clear();
    return written == size;
}

} // namespace ORV
