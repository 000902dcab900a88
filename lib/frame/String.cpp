#include "ORV/String.h"

#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace ORV {
namespace {
/// The characters of a text that a count takes: at most n, or length + n + 1 for a negative n.
int countTaken(const char* text, int n) {
    if (!text)
        return 0;
    if (n < 0)
        return std::max(0, StrLib::length(text) + n + 1);
    return static_cast<int>(strnlen(text, static_cast<std::size_t>(n)));
}
} // namespace

String::String(int n) {
    reserve(std::max(n, 1));
}

String::String(const char* text) : String(StrLib::length(text) + 1) {
    copy(text);
}

String::String(const String& other) : String(other.maxlen) {
    *this = other;
}

String& String::operator=(const String& other) {
    if (this != &other) {
        const auto cursor = other.ptr - other.data;
        copy(other);
        ptr = data + std::min<std::ptrdiff_t>(cursor, len);
    }
    return *this;
}

/// The position that i means, between 0 and the length.
int String::place(int i) const {
    if (i > len)
        return std::max(len - 1, 0);
    return i < 0 ? std::max(len + i, 0) : i;
}

/// Makes room for `capacity` characters, terminator included. Returns the storage left, which keeps
/// a source text inside it alive while the caller copies.
OwnedArray<char> String::reserve(int capacity) {
    OwnedArray<char> old;
    if (capacity <= maxlen)
        return old;
    const auto cursor = data ? ptr - data : 0;
    OwnedArray<char> wider(capacity);
    if (data)
        std::memcpy(wider, data, static_cast<std::size_t>(len) + 1);
    old = std::move(data);
    data = std::move(wider);
    maxlen = capacity;
    ptr = data + cursor;
    return old;
}

/// Puts n characters of the text at `start` as the end of the string.
int String::store(int start, const char* text, int n, int capacity) {
    const OwnedArray<char> old = reserve(std::max(capacity, start + n + 1));
    if (n > 0)
        std::memmove(data + start, text, static_cast<std::size_t>(n));
    len = start + n;
    data[len] = '\0';
    ptr = std::min<char*>(ptr, data + len);
    return 1;
}

int String::clear() {
    return store(0, nullptr, 0, 0);
}

int String::copy(const char* text) {
    return store(0, text, StrLib::length(text), 0);
}

int String::copy(const char* text, int n) {
    return store(0, text, countTaken(text, n), 0);
}

int String::append(const char* text) {
    return append(text, StrLib::length(text));
}

int String::append(const char* text, int n) {
    const int taken = countTaken(text, n);
    const int needed = len + taken + 1;
    // Half as much again, so that a text built piece by piece isn't copied for each piece.
    return store(len, text, taken, needed > maxlen ? needed + needed / 2 : 0);
}

int String::append(char c) {
    return append(&c, 1);
}

int String::printf(const char* fmt, ...) {
    if (!fmt)
        return 0;
    // Through a buffer of its own: an argument may be this very text.
    OwnedArray<char> text(maxlen);
    va_list args;
    va_start(args, fmt);
    const int written = std::vsnprintf(text, static_cast<std::size_t>(maxlen), fmt, args);
    va_end(args);
    return written >= 0 && copy(text);
}

int String::aprintf(const char* fmt, ...) {
    if (!fmt)
        return 0;
    OwnedArray<char> text(maxlen - len);
    va_list args;
    va_start(args, fmt);
    const int written = std::vsnprintf(text, static_cast<std::size_t>(text.size()), fmt, args);
    va_end(args);
    return written >= 0 && append(text);
}

int String::scanf(const char* fmt, ...) const {
    va_list args;
    va_start(args, fmt);
    const int count = Scan::vtext(data, fmt, args);
    va_end(args);
    return count;
}

int String::trimWS() {
    StrLib::trimWS(data);
    return trunc(StrLib::length(data));
}

int String::stripWS() {
    StrLib::stripWS(data);
    return store(0, data, StrLib::length(data), 0);
}

int String::chop() {
    return len > 0 && trunc(len - 1);
}

int String::trunc(int n) {
    if (n > len)
        return 1;
    return store(0, data, n < 0 ? std::max(len + n, 0) : n, 0);
}

int String::lowCase() {
    return StrLib::lowCase(data);
}

int String::upCase() {
    return StrLib::upCase(data);
}

bool String::equal(const char* text) const {
    return StrLib::equal(data, text);
}

bool String::iequal(const char* text) const {
    return StrLib::iequal(data, text);
}

bool String::equal(const char* text, int n) const {
    return StrLib::equal(data, text, n);
}

bool String::iequal(const char* text, int n) const {
    return StrLib::iequal(data, text, n);
}

bool String::contains(const char* text) const {
    return StrLib::contains(data, text);
}

int String::index(char c) const {
    return StrLib::index(data, c);
}

int String::occurs(char c) const {
    return StrLib::occurs(data, c);
}

} // namespace ORV
