#pragma once

#include <string>
#include <vector>

namespace ORV {

/// The pattern of a name convention, item by item.
class NamePattern {
public:
    NamePattern() = delete;

    /// One plain character, or one directive.
    class Item {
    public:
        char letter = 0;  ///< of the directive, "{" for "%{name}", 0 for a plain character
        char plain = 0;   ///< the plain character
        int number = 0;   ///< between "%" and letter, 0 when absent
        std::string name; ///< the resource of a path directive, else empty

        bool isPath() const { return !name.empty(); }
    };

    /// A blank becomes "_", single braces are dropped, and "%%" is a plain percent.
    static std::vector<Item> parse(const char* pattern);
    /// Returns the path list of a path directive: the own one when it isn't empty, else that of the
    /// resource, else ".".
    static std::string getPathList(const Item& item, const char* own);
};

} // namespace ORV
