#include "ORV/Zlib.h"

#include <algorithm>

namespace ORV {

Zlib::Zlib(int a_mode) : mode(a_mode) {
    start();
}

int Zlib::start() {
    status = mode == 1 ? inflateInit(&stream) : deflateInit(&stream, Z_DEFAULT_COMPRESSION);
    active = status == Z_OK;
    return status;
}

int Zlib::set(const void* in, int in_size, void* out, int out_size) {
    // zlib takes its input as non-const, and leaves it alone.
    stream.next_in = static_cast<Bytef*>(const_cast<void*>(in));
    stream.avail_in = std::max(in_size, 0);
    stream.next_out = static_cast<Bytef*>(out);
    stream.avail_out = std::max(out_size, 0);
    return 1;
}

int Zlib::decomp() {
    if (mode != 1)
        return -1;
    if (!active && start() != Z_OK)
        return status;
    const int result = inflate(&stream, Z_PARTIAL_FLUSH);
    if (result == Z_STREAM_END) {
        finish();
        start();
    }
    status = result;
    return status;
}

int Zlib::decomp(Buffer& in, Buffer& out) {
    const int avail = in.getAvail();
    const int room = out.max - out.size;
    // Without bytes or room the pointers may be null, to which nothing may be added.
    set(avail > 0 ? in.get() + in.ind : nullptr, avail, room > 0 ? out.get() + out.size : nullptr,
        room);
    if (room < 1)
        return mode == 1 ? status = Z_BUF_ERROR : -1;
    decomp();
    in.ind += avail - int(stream.avail_in);
    out.size += room - int(stream.avail_out);
    return mode == 1 ? status : -1;
}

int Zlib::comp(int flush) {
    if (mode == 1)
        return -1;
    if (!active && start() != Z_OK)
        return status;
    status = deflate(&stream, flush);
    return status;
}

int Zlib::finish() {
    if (!active)
        return status;
    active = false;
    status = mode == 1 ? inflateEnd(&stream) : deflateEnd(&stream);
    return status;
}

} // namespace ORV
