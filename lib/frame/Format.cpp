#include "ORV/Format.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace ORV {
namespace {
constexpr int max_digits = 3; // of a width or precision

/// Passes over the digits of a width or precision; false when there are too many.
bool skipDigits(const char*& p) {
    const std::size_t digits = std::strspn(p, "0123456789");
    p += digits;
    return digits <= max_digits;
}

/// The kind of argument that the conversion at `p`, behind its "%", takes; 0 for none that is
/// accepted.
char readKind(const char*& p) {
    p += std::strspn(p, "-+ #0");
    if (!skipDigits(p))
        return 0;
    if (*p == '.' && !skipDigits(++p))
        return 0;
    const bool wide = *p == 'l';
    if (wide)
        p++;
    const char conversion = *p;
    if (!conversion)
        return 0;
    p++;
    if (std::strchr("diuoxX", conversion))
        return wide ? 'l' : 'd';
    if (std::strchr("eEfFgG", conversion))
        return 'f';
    return wide ? '\0' : conversion == 'c' ? 'd' : conversion == 's' ? 's' : '\0';
}
} // namespace

bool Format::check(const char* format, const char* kinds) {
    if (!format)
        return false;
    for (const char* p = format; *p;) {
        if (*p++ != '%')
            continue;
        if (*p == '%')
            p++;
        else if (!*kinds || readKind(p) != *kinds++)
            return false;
    }
    return !*kinds;
}

int Format::write(char* dst, int size, const char* format, ...) {
    if (!dst || size < 1)
        return 0;
    *dst = '\0';
    if (!format)
        return 0;
    va_list args;
    va_start(args, format);
    const int written = std::vsnprintf(dst, static_cast<std::size_t>(size), format, args);
    va_end(args);
    return written >= 0;
}

int Format::write(String& out, const char* format, ...) {
    if (!format) {
        out.clear();
        return 0;
    }
    va_list args;
    va_start(args, format);
    va_list again;
    va_copy(again, args);
    const int size = std::vsnprintf(nullptr, 0, format, args);
    va_end(args);
    String text(size + 1);
    if (size >= 0)
        std::vsnprintf(text.get(), static_cast<std::size_t>(size) + 1, format, again);
    va_end(again);
    out.copy(text.get());
    return size >= 0;
}

} // namespace ORV
