#include "ORV/Swap.h"

#include <algorithm>
#include <cstring>

namespace ORV {
namespace {
int reverse(bool swap, void* bytes, int width, int n) {
    if (!swap)
        return 0;
    auto* p = static_cast<unsigned char*>(bytes);
    for (int i = 0; i < n; i++, p += width)
        std::reverse(p, p + width);
    return 1;
}

template <class T>
int readValue(bool swap, File& file, T& value) {
    unsigned char bytes[sizeof(T)];
    const int count = file.read(bytes, sizeof bytes);
    if (count == int(sizeof bytes)) {
        reverse(swap, bytes, sizeof bytes, 1);
        std::memcpy(&value, bytes, sizeof bytes);
    }
    return count;
}

template <class T>
int writeValue(bool swap, File& file, T value) {
    unsigned char bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof bytes);
    reverse(swap, bytes, sizeof bytes, 1);
    return file.write(bytes, sizeof bytes);
}
} // namespace

int Swap::swap2(void* bytes) const {
    return reverse(swap, bytes, 2, 1);
}

int Swap::swap4(void* bytes) const {
    return reverse(swap, bytes, 4, 1);
}

int Swap::swap8(void* bytes) const {
    return reverse(swap, bytes, 8, 1);
}

int Swap::swap2(void* bytes, int n) const {
    return reverse(swap, bytes, 2, n);
}

int Swap::swap4(void* bytes, int n) const {
    return reverse(swap, bytes, 4, n);
}

int Swap::readInt2(File& file, short& value) const {
    return readValue(swap, file, value);
}

int Swap::readUInt2(File& file, unsigned short& value) const {
    return readValue(swap, file, value);
}

int Swap::readInt4(File& file, int& value) const {
    return readValue(swap, file, value);
}

int Swap::readUInt4(File& file, unsigned int& value) const {
    return readValue(swap, file, value);
}

int Swap::readFloat(File& file, float& value) const {
    return readValue(swap, file, value);
}

int Swap::readDouble(File& file, double& value) const {
    return readValue(swap, file, value);
}

int Swap::writeInt2(File& file, short value) const {
    return writeValue(swap, file, value);
}

int Swap::writeInt4(File& file, int value) const {
    return writeValue(swap, file, value);
}

int Swap::writeFloat(File& file, float value) const {
    return writeValue(swap, file, value);
}

} // namespace ORV
