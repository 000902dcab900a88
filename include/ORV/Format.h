#pragma once

#include "ORV/String.h"

#include <type_traits>

namespace ORV {

/// printf with formats that come from a file or a user: a format is used only when its conversions
/// are the expected ones.
class Format {
public:
    Format() = delete;

    /// Whether the format has exactly the conversions given by `kinds`, in order: "d" an int, "l" a
    /// long, "f" a double, "s" a text; "" means none but "%%". "%n", "*", numbered arguments, and
    /// widths or precisions above 999 are never accepted.
    static bool check(const char* format, const char* kinds);

    /// Writes the arguments (int, long, float, double, texts) by the format, cut at size - 1
    /// characters. Returns 1; or 0, with dst empty, when the format doesn't fit the arguments.
    template <class... Args>
    static int print(char* dst, int size, const char* format, Args... args) {
        static constexpr char kinds[] = {kind<Args>()..., '\0'};
        return write(dst, size, check(format, kinds) ? format : nullptr, pass(args)...);
    }
    /// The same into a string, which grows as needed.
    template <class... Args>
    static int print(String& out, const char* format, Args... args) {
        static constexpr char kinds[] = {kind<Args>()..., '\0'};
        return write(out, check(format, kinds) ? format : nullptr, pass(args)...);
    }

private:
    template <class T>
    static constexpr char kind() {
        static_assert(std::is_arithmetic_v<T> || std::is_convertible_v<T, const char*>);
        if constexpr (std::is_floating_point_v<T>)
            return 'f';
        else if constexpr (std::is_arithmetic_v<T>)
            return sizeof(T) > sizeof(int) ? 'l' : 'd';
        else
            return 's';
    }
    template <class T>
    static auto pass(T value) {
        if constexpr (std::is_arithmetic_v<T>)
            return value;
        else
            return value ? static_cast<const char*>(value) : "";
    }
    static int write(char* dst, int size, const char* format, ...);
    static int write(String& out, const char* format, ...);
};

} // namespace ORV
