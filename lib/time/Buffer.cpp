#include "ORV/Buffer.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace ORV {
namespace {
constexpr int spare = 2000; // bytes beyond the request, so that small additions rarely reallocate
constexpr int most = std::numeric_limits<int>::max() - spare;
} // namespace

Buffer::Buffer(int n) {
    init(n);
}

Buffer::Buffer(const Buffer& other) : size(other.size), max(other.max), data(other.data) {}

Buffer& Buffer::operator=(const Buffer& other) {
    size = other.size;
    max = other.max;
    ind = 0;
    data = other.data;
    return *this;
}

int Buffer::init(int n) {
    clear();
    max = std::max(n, 0);
    data = OwnedArray<unsigned char>(max);
    return 1;
}

int Buffer::clear() {
    size = ind = 0;
    return 1;
}

int Buffer::resize(int n) {
    OwnedArray<unsigned char> kept(n);
    size = std::min(size, kept.size());
    ind = std::min(ind, size);
    max = kept.size();
    std::copy_n(data.operator unsigned char*(), size, kept.operator unsigned char*());
    data = std::move(kept);
    return 1;
}

int Buffer::check(int n) {
    if (n <= max)
        return 1;
    return n <= most && resize(n + spare);
}

int Buffer::add(const void* bytes, int n) {
    return insert(size, bytes, n);
}

int Buffer::insert(int pos, const void* bytes, int n) {
    if (pos < 0 || pos > size || n < 0 || n > most - size || !check(size + n))
        return 0;
    if (n == 0)
        return 1;
    std::memmove(data + pos + n, data + pos, size - pos);
    std::memcpy(data + pos, bytes, n);
    size += n;
    return 1;
}

int Buffer::insert(int pos, const Buffer& other) {
    // A copy, as the buffer inserted may be this one.
    const OwnedArray<unsigned char> bytes = other.data;
    return insert(pos, bytes.operator unsigned char*(), other.size);
}

int Buffer::get(int i) const {
    return i >= -ind && i < getAvail() ? data[ind + i] : 0;
}

int Buffer::read(void* bytes, int n) {
    const int count = std::clamp(n, 0, getAvail());
    if (bytes && count > 0)
        std::memcpy(bytes, data + ind, count);
    ind += count;
    return count;
}

int Buffer::read(Buffer& out) {
    return read(out, out.max - out.size);
}

int Buffer::read(Buffer& out, int n) {
    const int count = read(out.data + out.size, std::min(n, out.max - out.size));
    out.size += count;
    return count;
}

int Buffer::readLine(void* bytes, int n) {
    const int most_bytes = std::min(n, getAvail());
    if (most_bytes <= 0)
        return 0;
    const unsigned char* start = data + ind;
    const void* end = std::memchr(start, '\n', most_bytes);
    return read(bytes, end ? int(static_cast<const unsigned char*>(end) - start) + 1 : most_bytes);
}

int Buffer::skipLine() {
    const int left = getAvail();
    if (left <= 0)
        return 0;
    const unsigned char* start = data + ind;
    const void* end = std::memchr(start, '\n', left);
    ind = end ? ind + int(static_cast<const unsigned char*>(end) - start) + 1 : size;
    return end != nullptr;
}

int Buffer::clearUsed() {
    if (ind > 0 && ind < size)
        std::memmove(data, data + ind, getAvail());
    size -= ind;
    ind = 0;
    return 1;
}

int Buffer::seek(int i) {
    if (i < 0 || i > size)
        return 0;
    ind = i;
    return 1;
}

int Buffer::inc(int n) {
    return n >= -ind && n <= getAvail() ? seek(ind + n) : 0;
}

int Buffer::trunc(int n) {
    const int length = n < 0 ? size + n : n;
    if (length < 0 || length > size)
        return 0;
    size = length;
    if (ind > size)
        ind = std::max(size - 1, 0);
    return 1;
}

bool Buffer::equal(int pos, const char* text) const {
    const int start = pos < 0 ? size + pos : pos;
    if (!text || start < 0 || start > size)
        return false;
    const std::size_t length = std::strlen(text);
    if (length > std::size_t(size - start))
        return false;
    return length == 0 || std::memcmp(data + start, text, length) == 0;
}

} // namespace ORV
