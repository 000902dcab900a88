// Compressed blocks behind each other, into a small room that is emptied whenever it is full.
#include "ORV/Zlib.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& bytes) {
    Buffer in;
    in.add(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
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
}
