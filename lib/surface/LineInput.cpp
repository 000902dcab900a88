#include "ORV/LineInput.h"

#include <zlib.h>

#include <algorithm>
#include <cstring>

namespace ORV {
namespace {
constexpr int chunk = 1 << 16; // bytes read at once
} // namespace

/// A gzip text on its way from a file.
class GzipStream {
public:
    GzipStream() { good = inflateInit2(&stream, gzip_window) == Z_OK; }
    ~GzipStream() { inflateEnd(&stream); }
    GzipStream(const GzipStream&) = delete;
    GzipStream& operator=(const GzipStream&) = delete;

    /// Adds packed bytes; those given before must be used up.
    void give(const char* bytes, int n) {
        std::copy_n(bytes, n, packed);
        stream.next_in = packed;
        stream.avail_in = n;
    }
    bool isHungry() const { return stream.avail_in == 0; }
    /// Unpacks up to n bytes; 0 when more packed bytes are needed, or when it isn't good.
    int take(char* bytes, int n);

    bool good = false;
    bool ended = false; ///< behind the end of a packed text

private:
    static constexpr int gzip_window = 15 + 16; // the largest window, in a gzip wrapper

    z_stream stream{};
    unsigned char packed[chunk];
};

int GzipStream::take(char* bytes, int n) {
    // Packed texts may follow one another; what else stands behind one is padding.
    if (ended && !isHungry()) {
        if (*stream.next_in != 0x1F) {
            stream.avail_in = 0;
            return 0;
        }
        good = inflateReset(&stream) == Z_OK;
        ended = false;
    }
    stream.next_out = reinterpret_cast<unsigned char*>(bytes);
    stream.avail_out = n;
    while (good && !ended && stream.avail_out > 0 && stream.avail_in > 0) {
        const int status = inflate(&stream, Z_NO_FLUSH);
        ended = status == Z_STREAM_END;
        good = ended || status == Z_OK || status == Z_BUF_ERROR;
        if (status == Z_BUF_ERROR)
            break;
    }
    return n - static_cast<int>(stream.avail_out);
}

LineInput::LineInput() = default;
LineInput::~LineInput() = default;

int LineInput::open(const char* name) {
    gzip.reset();
    buffer.clear();
    start = 0;
    number = 0;
    after_return = cut = damaged = false;
    line_end = true;
    if (!file.open(name, 0))
        return 0;

    char first[chunk];
    const int n = std::max(file.read(first, chunk), 0);
    if (n >= 2 && first[0] == '\x1F' && first[1] == '\x8B') {
        gzip = std::make_unique<GzipStream>();
        gzip->give(first, n);
    } else {
        buffer.assign(first, n);
    }
    return 1;
}

int LineInput::read(const char*& text, int& length) {
    if (after_return && (start < static_cast<int>(buffer.size()) || fill())) {
        if (buffer[start] == '\n')
            start++;
        after_return = false;
    }

    int from = 0, end = -1;
    for (;;) {
        end = findLineEnd(from);
        from = static_cast<int>(buffer.size()) - start;
        if (end >= 0 || from > max_line || !fill())
            break;
    }
    cut = (end < 0 ? from : end) > max_line;
    line_end = end >= 0;
    if (end < 0 && from == 0)
        return 0;

    number++;
    length = std::min(end < 0 ? from : end, static_cast<int>(max_line));
    if (end < 0 && cut) {
        skipLine();
        text = buffer.data();
        return 1;
    }
    text = buffer.data() + start;
    start += end < 0 ? from : end + 1;
    after_return = end >= 0 && text[end] == '\r';
    return 1;
}

// The place of the line end behind start, looking from there on; -1 when it isn't read yet.
int LineInput::findLineEnd(int from) const {
    const char* line = buffer.data() + start;
    const char* last = buffer.data() + buffer.size();
    const auto find = [&](char c, const char* stop) {
        return static_cast<const char*>(std::memchr(line + from, c, stop - (line + from)));
    };
    const char* newline = find('\n', last);
    const char* back = find('\r', newline ? newline : last);
    const char* end = back ? back : newline;
    return end ? static_cast<int>(end - line) : -1;
}

// Drops the rest of a line that is too long. What is kept of it then begins the buffer.
void LineInput::skipLine() {
    const std::string head = buffer.substr(start, max_line);
    int end = -1;
    do {
        start = static_cast<int>(buffer.size());
        if (!fill())
            break;
        end = findLineEnd(0);
    } while (end < 0);
    line_end = end >= 0;
    after_return = line_end && buffer[end] == '\r';
    buffer = head + (line_end ? buffer.substr(end + 1) : "");
    start = static_cast<int>(head.size());
}

// Reads more bytes behind those in the buffer; false at the end.
bool LineInput::fill() {
    buffer.erase(0, start);
    start = 0;
    const int had = static_cast<int>(buffer.size());
    buffer.resize(had + chunk);
    const int n = readBytes(buffer.data() + had, chunk);
    buffer.resize(had + n);
    return n > 0;
}

int LineInput::readBytes(char* bytes, int n) {
    if (!gzip)
        return std::max(file.read(bytes, n), 0);
    for (;;) {
        const int got = gzip->take(bytes, n);
        if (got > 0)
            return got;
        if (!gzip->good) {
            damaged = true;
            return 0;
        }
        char more[chunk];
        const int read = std::max(file.read(more, chunk), 0);
        if (read == 0) {
            damaged = !gzip->ended;
            return 0;
        }
        gzip->give(more, read);
    }
}

} // namespace ORV
