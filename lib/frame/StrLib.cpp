#include "ORV/StrLib.h"

#include "ORV/Const.h"
#include "ORV/Scan.h"
#include "ORV/Tools.h"

#include <strings.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <limits>

namespace ORV {
namespace {
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLower(char c) {
    return c >= 'a' && c <= 'z';
}
bool isUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
bool isLetter(char c) {
    return isLower(c) || isUpper(c);
}
bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool isGraphic(char c) {
    return c > ' ' && c < '\x7f';
}

struct CharClass {
    char element;
    bool (*accepts)(char c);
};
constexpr CharClass classes[] = {
    {'A', [](char c) { return isLetter(c) || isDigit(c); }},
    {'a', isLetter},
    {'d', isDigit},
    {'b', [](char c) { return c == ' '; }},
    {'c', [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }},
    {'l', isLower},
    {'u', isUpper},
    {'p', [](char c) { return isGraphic(c) && !isLetter(c) && !isDigit(c); }},
    {'s', isSpace},
    {'g', isGraphic},
};

/// Tests c by the element at `pattern`, which moves on to the next one.
bool accepts(char c, const char*& pattern) {
    if (*pattern == '[') {
        const char* set = ++pattern;
        while (*pattern && *pattern != ']')
            pattern++;
        const bool found = std::find(set, pattern, c) != pattern;
        if (*pattern)
            pattern++;
        return found;
    }
    const char element = *pattern++;
    for (const CharClass& row : classes)
        if (row.element == element)
            return row.accepts(c);
    return c == element;
}

/// The end of a text that fills at most size characters.
int boundedLength(const char* text, int size) {
    return static_cast<int>(strnlen(text, static_cast<std::size_t>(size)));
}

template <class Equal, class EqualN>
bool equalPart(const char* a, const char* b, int n, Equal whole, EqualN part) {
    if (!a || !b)
        return false;
    if (n >= 1)
        return part(a, b, static_cast<std::size_t>(n)) == 0;
    const long start = static_cast<long>(std::strlen(a)) + n;
    return start >= 0 && whole(a + start, b) == 0;
}

/// The number of characters that a count stands for, a negative one meaning length + count + 1.
int resolveCount(int count, int length) {
    return count >= 0 ? count : std::max(0, length + count + 1);
}

template <class Change>
int changeEach(char* text, Change change) {
    if (!text)
        return 0;
    for (; *text; text++)
        *text = change(*text);
    return 1;
}

int getDecimal(const char* text, long long lowest, long long highest, long long& value) {
    if (Scan::integer(text, value) == 0)
        return 0;
    value = std::clamp(value, lowest, highest);
    return 1;
}
} // namespace

bool StrLib::equal(const char* a, const char* b) {
    return a && b && std::strcmp(a, b) == 0;
}

bool StrLib::iequal(const char* a, const char* b) {
    return a && b && strcasecmp(a, b) == 0;
}

bool StrLib::equal(const char* a, const char* b, int n) {
    return equalPart(a, b, n, std::strcmp, std::strncmp);
}

bool StrLib::iequal(const char* a, const char* b, int n) {
    return equalPart(a, b, n, strcasecmp, strncasecmp);
}

bool StrLib::equal(const char* a, int n, const char* b) {
    return a && b && n >= 0 && length(b) == n &&
           std::strncmp(a, b, static_cast<std::size_t>(n)) == 0;
}

int StrLib::where(const char* a, const char* b) {
    const char* found = a && b ? std::strstr(a, b) : nullptr;
    return found ? static_cast<int>(found - a) : -1;
}

int StrLib::index(const char* a, char c, int n) {
    if (!a || n < 1)
        return -1;
    for (int i = 0; a[i]; i++)
        if (a[i] == c && --n == 0)
            return i;
    return -1;
}

int StrLib::lastIndex(const char* a, char c) {
    const char* found = a && c ? std::strrchr(a, c) : nullptr;
    return found ? static_cast<int>(found - a) : -1;
}

int StrLib::occurs(const char* a, char c) {
    return a ? static_cast<int>(std::count(a, a + std::strlen(a), c)) : 0;
}

bool StrLib::hasToken(const char* text, char delim, const char* token) {
    if (!text || !token)
        return false;
    const std::size_t wanted = std::strlen(token);
    for (const char* field = text;;) {
        const char* end = std::strchr(field, delim);
        const std::size_t size = end ? static_cast<std::size_t>(end - field) : std::strlen(field);
        if (size == wanted && std::memcmp(field, token, size) == 0)
            return true;
        if (!end || !*end)
            return false;
        field = end + 1;
    }
}

const char* StrLib::getField(const char* text, char delim, int n) {
    if (!text || n < 0)
        return nullptr;
    while (*text && *text == delim)
        text++;
    for (; n > 0 && *text; n--) {
        while (*text && *text != delim)
            text++;
        while (*text && *text == delim)
            text++;
    }
    return *text ? text : nullptr;
}

int StrLib::copy(char* dst, int size, const char* src) {
    if (!dst || size < 1)
        return 0;
    const int n = src ? boundedLength(src, size - 1) : 0;
    if (n > 0)
        std::memmove(dst, src, static_cast<std::size_t>(n));
    dst[n] = '\0';
    return src ? 1 : 0;
}

int StrLib::copy(char* dst, int n, const char* src, int m) {
    if (!dst)
        return 0;
    // The whole length is looked at only when a count needs it: src may be a bounded field.
    const int whole = src && (n < 0 || m < 0) ? length(src) : 0;
    const int most = std::min(resolveCount(n, whole), resolveCount(m, whole));
    const int size = most < std::numeric_limits<int>::max() ? most + 1 : most;
    return copy(dst, size, src);
}

int StrLib::append(char* dst, int size, const char* src) {
    if (!dst || size < 1 || !src)
        return 0;
    const int used = boundedLength(dst, size);
    return used < size ? copy(dst + used, size - used, src) : 0;
}

char* StrLib::acopy(const char* text) {
    return acopy(text, length(text));
}

char* StrLib::acopy(const char* text, int n) {
    if (!text)
        return nullptr;
    const int size = boundedLength(text, std::max(n, 0));
    char* copied = new char[static_cast<std::size_t>(size) + 1];
    copy(copied, size + 1, text);
    return copied;
}

OwnedArray<char> StrLib::own(const char* text) {
    return own(text, length(text));
}

OwnedArray<char> StrLib::own(const char* text, int n) {
    if (!text)
        return {};
    const int size = boundedLength(text, std::max(n, 0));
    OwnedArray<char> owned(size + 1);
    copy(owned, size + 1, text);
    return owned;
}

int StrLib::aprintf(char* dst, int size, const char* fmt, ...) {
    if (!dst || size < 1 || !fmt)
        return 0;
    const int used = boundedLength(dst, size);
    if (used >= size)
        return 0;
    va_list args;
    va_start(args, fmt);
    const int written =
        std::vsnprintf(dst + used, static_cast<std::size_t>(size - used), fmt, args);
    va_end(args);
    return written >= 0;
}

int StrLib::length(const char* text) {
    return text ? static_cast<int>(std::strlen(text)) : 0;
}

char StrLib::getChar(const char* text, int i) {
    return i >= 0 && i < length(text) ? text[i] : '\0';
}

int StrLib::getInt(const char* text) {
    long long value = Const::MISS;
    if (Tools::isInt(text))
        getDecimal(text, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), value);
    return static_cast<int>(value);
}

long StrLib::getLong(const char* text) {
    long long value = Const::MISS;
    if (Tools::isInt(text))
        getDecimal(text, std::numeric_limits<long>::min(), std::numeric_limits<long>::max(), value);
    return static_cast<long>(value);
}

float StrLib::getFloat(const char* text) {
    float value = Const::MISS;
    if (Tools::isFloat(text))
        Scan::number(text, value);
    return value;
}

int StrLib::toInt(const char* text, int n) {
    if (!text || n < 0 || n > length(text))
        return Const::MISS;
    int value = 0;
    Scan::integer(text + n, value);
    return value;
}

float StrLib::toFloat(const char* text, int n) {
    if (!text || n < 0 || n > length(text))
        return Const::MISS;
    float value = 0.0f;
    Scan::number(text + n, value);
    return value;
}

int StrLib::replace(char* text, char c1, char c2) {
    return changeEach(text, [=](char c) { return c == c1 ? c2 : c; });
}

int StrLib::trimWS(char* text) {
    if (!text)
        return 0;
    int end = length(text);
    while (end > 0 && isSpace(text[end - 1]))
        end--;
    text[end] = '\0';
    return 1;
}

int StrLib::stripWS(char* text) {
    if (!text)
        return 0;
    *std::remove_if(text, text + length(text), isSpace) = '\0';
    return 1;
}

int StrLib::chop(char* text) {
    if (!valid(text))
        return 0;
    text[length(text) - 1] = '\0';
    return 1;
}

int StrLib::clear(char* text) {
    if (!text)
        return 0;
    *text = '\0';
    return 1;
}

int StrLib::lowCase(char* text) {
    return changeEach(text, [](char c) { return isUpper(c) ? static_cast<char>(c + 32) : c; });
}

int StrLib::upCase(char* text) {
    return changeEach(text, [](char c) { return isLower(c) ? static_cast<char>(c - 32) : c; });
}

int StrLib::splice(char* text, int start, int oldlen, int newlen, const char* insert) {
    if (!text || !insert || start < 0 || oldlen < 0 || newlen < 0)
        return 0;
    const int size = length(text);
    if (start > size || oldlen > size - start)
        return 0;
    const int added = std::min(newlen, length(insert));
    const int tail = start + oldlen;
    std::memmove(text + start + added, text + tail, static_cast<std::size_t>(size - tail) + 1);
    std::memcpy(text + start, insert, static_cast<std::size_t>(added));
    return 1;
}

bool StrLib::check(const char* text, const char* pattern) {
    if (!text || !pattern)
        return false;
    for (; *pattern; text++)
        if (!*text || !accepts(*text, pattern))
            return false;
    return true;
}

} // namespace ORV
