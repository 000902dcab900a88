#pragma once

#include "ORV/OwnedArray.h"

namespace ORV {

/// A growing array of bytes with a read cursor.
class Buffer {
public:
    int size = 0; ///< bytes in use
    int max = 0;  ///< capacity
    int ind = 0;  ///< read cursor, 0 to size
    OwnedArray<unsigned char> data;

    Buffer() = default;
    /// Makes an empty buffer with room for n bytes.
    explicit Buffer(int n);
    /// A copy has the bytes and the capacity, and its cursor at the start.
    Buffer(const Buffer& other);
    Buffer& operator=(const Buffer& other);
    ~Buffer() = default;

    /// Empties the buffer and gives it room for n bytes, none for n below 1.
    int init(int n);
    /// Empties the buffer and keeps its room.
    int clear();
    /// Changes the capacity and keeps the bytes, as far as they fit.
    int resize(int n);
    /// Makes room for n bytes in all, with 2000 to spare when it has to grow. Returns 0 for a size
    /// beyond what a buffer can hold.
    int check(int n);

    /// Appends n bytes; returns 0 for a negative number.
    int add(const void* bytes, int n);
    /// Puts bytes in front of position pos, 0 to size; returns 0 outside.
    int insert(int pos, const void* bytes, int n);
    int insert(int pos, const Buffer& other);

    unsigned char* get() const { return data; }
    /// Returns the byte i behind the cursor, 0 outside the data.
    int get(int i) const;

    /// Moves up to n bytes from the cursor; a null target skips them. Returns the number moved.
    int read(void* bytes, int n);
    /// Moves unread bytes behind those of another buffer, as many as it has room for, at most n.
    int read(Buffer& out);
    int read(Buffer& out, int n);
    /// Moves up to n bytes, up to and including a newline. Returns the number moved.
    int readLine(void* bytes, int n);
    /// Moves the cursor behind the next newline; returns 0, at the end of the data, when none is.
    int skipLine();
    /// Drops the bytes that are read.
    int clearUsed();

    /// Put the cursor at i, or n bytes further; return 0 outside 0 to size.
    int seek(int i);
    int inc(int n);
    /// Cuts to n bytes, a negative n counts from the end; returns 0 out of range. A cursor behind
    /// the new end moves to the last byte.
    int trunc(int n);

    /// Whether the bytes at pos are those of the text; a negative pos counts from the end.
    bool equal(int pos, const char* text) const;

    int getInd() const { return ind; }
    int getSize() const { return size; }
    int getMax() const { return max; }
    /// Returns the number of unread bytes.
    int getAvail() const { return size - ind; }
};

} // namespace ORV
