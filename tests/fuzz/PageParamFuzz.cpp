// The device text of a page.
#include "ORV/Postscript.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    Postscript page;
    page.setParam(text.c_str());
    page.setTitle(text.c_str());
    if (!(page.width > 0) || !(page.height > 0) || !(page.scale > 0) || !(page.lwidth > 0))
        std::abort();
    return 0;
}
