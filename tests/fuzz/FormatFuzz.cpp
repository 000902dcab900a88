#include "ORV/Format.h"

#include <cstdint>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string format(reinterpret_cast<const char*>(bytes), size);
    char text[16];
    String grown;
    Format::print(text, sizeof text, format.c_str(), 1013.25f);
    Format::print(text, sizeof text, format.c_str(), "text", 7);
    Format::print(grown, format.c_str());
    Format::print(grown, format.c_str(), "text");
    Format::print(grown, format.c_str(), 42L);
    return 0;
}
