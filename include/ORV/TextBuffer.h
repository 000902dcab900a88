#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

namespace ORV {

class File;

/// Collects the text of an output file, numbers above all, and hands it to the file in large
/// pieces. Page files are mostly coordinates: fixed() writes the very bytes that printf would,
/// without the cost of reading a format.
class TextBuffer {
public:
    TextBuffer& text(std::string_view piece) {
        std::memcpy(room(piece.size()), piece.data(), piece.size());
        size += piece.size();
        return *this;
    }
    TextBuffer& put(char c) {
        *room(1) = c;
        size++;
        return *this;
    }
    /// As "%.*f", decimals 0 to 9: rounded from the exact binary value, ties to even, "-0.00" for
    /// what a negative value rounds to.
    TextBuffer& fixed(double value, int decimals);
    /// As "%d".
    TextBuffer& integer(long long value);
    /// As "%02X" of the lowest 8 bits.
    TextBuffer& hex(unsigned value);

    bool empty() const { return size == 0; }
    std::string_view get() const { return {bytes.get(), size}; }
    void clear() { size = 0; }
    /// Writes all to the file and empties the buffer. 0 when the file didn't take it all.
    int flush(File& file);
    /// Whether a flush has ever failed.
    bool hasFailed() const { return failed; }
    /// Does so once enough has come together to be worth a write.
    int flushFull(File& file) { return size < full ? 1 : flush(file); }

private:
    static constexpr std::size_t full = 256 * 1024;

    /// Where the next bytes go, with room for so many.
    char* room(std::size_t more) {
        if (capacity - size < more)
            grow(more);
        return bytes.get() + size;
    }
    void grow(std::size_t more);

    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
    std::size_t capacity = 0;
    bool failed = false;
};

} // namespace ORV
