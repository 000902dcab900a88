// A font file, and every character of it drawn.
#include "ORV/GFont.h"

#include "MemoryFile.h"

#include <cstdlib>
#include <memory>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static MemoryFile file("font");
    static const auto font = std::make_unique<GFont>(nullptr);
    font->read(file.fill(bytes, size));
    for (int c = 0; c < 256; c++) {
        Point point;
        int count = 0;
        if (font->setChar(static_cast<char>(c)))
            while (font->get(point))
                count++;
        if (count >= GFont::max_points)
            std::abort();
    }
    font->read(("#" + std::string(reinterpret_cast<const char*>(bytes), size)).c_str());
    return 0;
}
