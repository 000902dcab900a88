#pragma once

#include "ORV/File.h"

namespace ORV {

/// Numbers of a given byte order, in memory and in a File. The host is little-endian.
class Swap {
public:
    int host = 1; ///< 1: little-endian
    int swap = 1; ///< 1: the bytes of each value are reversed

    /// Byte order of the file: -1 that of the host, 0 and 1 big-endian, 2 little-endian.
    explicit Swap(int order = 0) : swap(order != -1 && order != 2) {}

    /// Reverse one value, or n of them, in place; return 0 and do nothing when swap is off.
    int swap2(void* bytes) const;
    int swap4(void* bytes) const;
    int swap8(void* bytes) const;
    int swap2(void* bytes, int n) const;
    int swap4(void* bytes, int n) const;

    /// Read one value. Return the number of bytes read; a value cut short is left alone.
    int readInt2(File& file, short& value) const;
    int readUInt2(File& file, unsigned short& value) const;
    int readInt4(File& file, int& value) const;
    int readUInt4(File& file, unsigned int& value) const;
    int readFloat(File& file, float& value) const;
    int readDouble(File& file, double& value) const;

    /// Write one value. Return the number of bytes written.
    int writeInt2(File& file, short value) const;
    int writeInt4(File& file, int value) const;
    int writeFloat(File& file, float value) const;
};

} // namespace ORV
