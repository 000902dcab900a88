#include "ORV/Zlib.h"

#include <cstdint>

using namespace ORV;

/// Compressed blocks behind each other, into a small room that is emptied whenever it is full.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Buffer in;
    in.add(bytes, int(size));
    Buffer out(4096);
    Zlib zlib;
    for (int i = 0; i < 1000; i++) {
        const int unread = in.getAvail();
        const int status = zlib.decomp(in, out);
        const bool stuck = in.getAvail() == unread && out.size == 0;
        if ((status != Z_OK && status != Z_STREAM_END) || stuck)
            break;
        out.clear();
    }
    return 0;
}
