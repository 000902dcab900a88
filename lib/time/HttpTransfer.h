#pragma once

#include "ORV/Buffer.h"

namespace ORV {

/// One download over http. It moves on only inside the calls, and never waits for more than it is
/// asked to. The library that does the work is loaded with the first transfer; without it, or
/// without a server, the transfer ends with an error.
class HttpTransfer {
public:
    static constexpr long unknown = -2; ///< size not told yet
    static constexpr long refused = -1; ///< the server doesn't give the file

    /// Starts a transfer whose bytes go behind those of the body, from which the bytes that were
    /// read are dropped. Without a body it is a question only: the bytes are dropped, and the
    /// answer that the file has moved for good (301) counts as much as the file itself (200).
    HttpTransfer(const char* url, Buffer* body);
    ~HttpTransfer();
    HttpTransfer(const HttpTransfer&) = delete;
    HttpTransfer& operator=(const HttpTransfer&) = delete;

    /// Takes what has arrived, after waiting for it up to so many seconds.
    void wait(float seconds);
    bool isRunning() const { return running > 0; }
    /// Whether the transfer ended, and without an error.
    bool isComplete() const { return complete; }
    /// Returns the size in bytes: as told by the server, or as counted, once complete.
    long getSize() const { return complete && size == unknown ? received : size; }

    void* easy = nullptr;
    void* multi = nullptr;

private:
    bool start(const char* url);
    void perform();
    void readHeader(const char* line, std::size_t length);
    std::size_t store(const char* bytes, std::size_t n);

    Buffer* body;
    int running = 0;
    bool complete = false;
    long size = unknown;
    long received = 0;
};

} // namespace ORV
