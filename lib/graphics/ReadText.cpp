#include "ReadText.h"

#include "ORV/File.h"

#include <algorithm>

namespace ORV {

bool readText(const char* path, std::size_t limit, std::string& text) {
    text.clear();
    File file(path, "r");
    if (!file.isOpen())
        return false;
    char piece[4096];
    while (text.size() < limit) {
        const int count =
            file.read(piece, static_cast<int>(std::min(sizeof piece, limit - text.size())));
        if (count <= 0)
            break;
        text.append(piece, count);
    }
    return true;
}

} // namespace ORV
