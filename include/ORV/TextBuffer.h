#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ORV {

class File;

/// Collects the text of an output file, numbers above all, and hands it to the file in large
/// pieces. Page files are mostly coordinates: fixed() writes the very bytes that printf would,
/// without the cost of reading a format.
class TextBuffer {
public:
    TextBuffer& text(std::string_view piece) {
        bytes.append(piece);
        return *this;
    }
    TextBuffer& put(char c) {
        bytes.push_back(c);
        return *this;
    }
    /// As "%.*f", decimals 0 to 9: rounded from the exact binary value, ties to even, "-0.00" for
    /// what a negative value rounds to.
    TextBuffer& fixed(double value, int decimals);
    /// As "%d".
    TextBuffer& integer(long long value);
    /// As "%02X" of the lowest 8 bits.
    TextBuffer& hex(unsigned value);

    bool empty() const { return bytes.empty(); }
    const std::string& get() const { return bytes; }
    void clear() { bytes.clear(); }
    /// Writes all to the file and empties the buffer.
    int flush(File& file);
    /// Does so once enough has come together to be worth a write.
    int flushFull(File& file) { return bytes.size() < full ? 1 : flush(file); }

private:
    static constexpr std::size_t full = 256 * 1024;
    void digits(std::uint64_t value, int least);

    std::string bytes;
};

} // namespace ORV
