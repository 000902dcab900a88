#pragma once

#include <cstring>
#include <string_view>

namespace ORV {

/// The groups of a METAR, one after the other.
class MetarText {
public:
    explicit MetarText(const char* text) : p(text ? text : "") {}

    /// The next group; an empty one at the end.
    std::string_view next() {
        constexpr const char* white = " \t";
        p += std::strspn(p, white);
        const std::string_view word(p, std::strcspn(p, white));
        p += word.size();
        return word;
    }

private:
    const char* p;
};

} // namespace ORV
