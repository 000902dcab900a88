#include "ORV/TextBuffer.h"

#include "ORV/File.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace ORV {
namespace {
constexpr double powers_of_ten[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
constexpr int most_decimals = 9;
constexpr int longest_number = 32;
constexpr std::uint64_t most_hundredths = 1000000;  // 10000.00: no digits beyond two pairs
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

char* writePair(char* at, std::uint32_t value) {
    std::memcpy(at, pairs + 2 * value, 2);
    return at + 2;
}

// Writes hundredths below most_hundredths with two decimals, as coordinates of a page are; returns
// the place behind.
char* writeHundredths(char* at, std::uint32_t hundredths) {
    const std::uint32_t whole = hundredths / 100;
    const std::uint32_t high = whole / 100;
    const std::uint32_t low = whole % 100;
    if (high >= 10)
        at = writePair(at, high);
    else if (high > 0)
        *at++ = static_cast<char>('0' + high);
    if (high > 0 || low >= 10)
        at = writePair(at, low);
    else
        *at++ = static_cast<char>('0' + low);
    *at++ = '.';
    return writePair(at, hundredths % 100);
}
} // namespace

TextBuffer& TextBuffer::fixed(double value, int decimals) {
    const int places = decimals < 0 ? 0 : decimals > most_decimals ? most_decimals : decimals;
    std::uint64_t scaled = 0;
    if (!roundScaled(std::fabs(value), powers_of_ten[places], scaled)) {
        constexpr int longest = 400; // a double has up to 309 digits before the point
        char* const at = room(longest);
        size += std::snprintf(at, longest, "%.*f", places, value);
        return *this;
    }
    char* at = room(longest_number);
    if (std::signbit(value))
        *at++ = '-';
    if (places == 2 && scaled < most_hundredths) {
        at = writeHundredths(at, static_cast<std::uint32_t>(scaled));
    } else {
        char field[longest_number];
        char* const end = field + sizeof field;
        char* begin = writeDigits(end, scaled);
        while (end - begin <= places)
            *--begin = '0';
        const std::ptrdiff_t whole = end - begin - places;
        std::memcpy(at, begin, whole);
        at += whole;
        if (places > 0) {
            *at++ = '.';
            std::memcpy(at, begin + whole, places);
            at += places;
        }
    }
    size = at - bytes.get();
    return *this;
}

TextBuffer& TextBuffer::integer(long long value) {
    char field[longest_number];
    char* const end = field + sizeof field;
    const bool negative = value < 0;
    const auto magnitude = static_cast<std::uint64_t>(value);
    char* begin = writeDigits(end, negative ? 0 - magnitude : magnitude);
    if (negative)
        *--begin = '-';
    return text(std::string_view(begin, end - begin));
}

TextBuffer& TextBuffer::hex(unsigned value) {
    constexpr char digits[] = "0123456789ABCDEF";
    return put(digits[value >> 4 & 15]).put(digits[value & 15]);
}

void TextBuffer::grow(std::size_t more) {
    const std::size_t wanted = std::max(2 * capacity, size + more + full / 8);
    std::unique_ptr<char[]> larger(new char[wanted]);
    if (size > 0)
        std::memcpy(larger.get(), bytes.get(), size);
    bytes = std::move(larger);
    capacity = wanted;
}

int TextBuffer::flush(File& file) {
    const int count = static_cast<int>(size);
    const int written = count > 0 ? file.write(bytes.get(), count) : 0;
    clear();
    failed |= written != count;
    return written == count;
}

} // namespace ORV
