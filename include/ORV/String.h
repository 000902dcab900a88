#pragma once

#include "ORV/OwnedArray.h"

namespace ORV {

/// A text that owns its storage and grows as it is added to.
///
/// Positions count characters from 0; a negative one counts from the end and stops at the first
/// character. Operations return 1 for success and 0 for failure unless told otherwise. A source
/// text may lie in the string itself.
class String {
public:
    int len = 0;           ///< length of the text, without its terminator
    int maxlen = 0;        ///< capacity, the terminator included
    OwnedArray<char> data; ///< the text, always terminated
    char* ptr = nullptr;   ///< scan cursor into data

    /// Has room for 79 characters.
    String() : String(80) {}
    /// Has a capacity of n characters, the terminator included; n below 1 counts as 1.
    explicit String(int n);
    /// Has the exact size of the text; null gives an empty string.
    String(const char* text);
    String(const String& other);
    String& operator=(const String& other);

    const char* get() const { return data; }
    char* get() { return data; }
    /// The text from position i on. An i beyond the length selects the last character.
    const char* get(int i) const { return data + place(i); }
    char* get(int i) { return data + place(i); }
    /// The character at position i, with the rule of get; 0 when i is the length.
    char getChar(int i) const { return data[place(i)]; }

    int length() const { return len; }
    int maxLength() const { return maxlen; }
    bool valid() const { return len > 0; }
    int clear();

    /// Replaces the text, growing to its exact size when it doesn't fit. Null empties the string.
    int copy(const char* text);
    int copy(const String& other) { return copy(other.get()); }
    /// Copies at most n characters; a negative n means length + n + 1, not below 0.
    int copy(const char* text, int n);
    int set(const char* text) { return copy(text); }
    int set(const String& other) { return copy(other); }

    /// Adds behind the text and keeps the scan cursor at its place. Null adds nothing.
    int append(const char* text);
    int append(const String& other) { return append(other.get()); }
    /// Adds at most n characters, n as in copy.
    int append(const char* text, int n);
    int append(char c);

    /// Formats into the capacity there is: the string doesn't grow and a longer text is cut.
    [[gnu::format(printf, 2, 3)]] int printf(const char* fmt, ...);
    /// The same behind the text.
    [[gnu::format(printf, 2, 3)]] int aprintf(const char* fmt, ...);
    /// Scans the whole text, as Scan::text does; returns the number of values stored.
    [[gnu::format(scanf, 2, 3)]] int scanf(const char* fmt, ...) const;

    /// Removes white space: trimWS at the end, stripWS everywhere.
    int trimWS();
    int stripWS();
    /// Removes the last character.
    int chop();
    /// Cuts to n characters; a negative n counts from the end; one beyond the length does nothing.
    int trunc(int n);
    /// Changes ASCII letters only.
    int lowCase();
    int upCase();

    /// Compare and search with the rules of StrLib, this text being the first.
    bool equal(const char* text) const;
    bool iequal(const char* text) const;
    bool equal(const char* text, int n) const;
    bool iequal(const char* text, int n) const;
    bool contains(const char* text) const;
    int index(char c) const;
    int occurs(char c) const;

private:
    int place(int i) const;
    OwnedArray<char> reserve(int capacity);
    int store(int start, const char* text, int n, int capacity);
};

} // namespace ORV
