#pragma once

#include "ORV/Buffer.h"

#include <zlib.h>

namespace ORV {

/// One zlib stream, compressing or decompressing.
class Zlib {
public:
    int mode = 1; ///< 1 decompress, other values compress
    z_stream stream{};
    int status = Z_OK; ///< result of the last call

    /// Decompresses.
    Zlib() : Zlib(1) {}
    explicit Zlib(int mode);
    ~Zlib() { finish(); }
    Zlib(const Zlib&) = delete;
    Zlib& operator=(const Zlib&) = delete;

    /// Sets the bytes to work on and the room for the result; neither is owned.
    int set(const void* in, int in_size, void* out, int out_size);
    /// Decompresses. At the end of a stream, Z_STREAM_END, the object is ready for the next one in
    /// the same input. Returns the zlib status, -1 when this object compresses.
    int decomp();
    /// The same from the unread bytes of in to the room behind the bytes of out.
    int decomp(Buffer& in, Buffer& out);
    /// Compresses at the default level; flush is that of zlib. Returns the zlib status, -1 when
    /// this object decompresses.
    int comp(int flush);
    /// Releases the stream. Returns the zlib status.
    int finish();

private:
    int start();

    bool active = false;
};

} // namespace ORV
