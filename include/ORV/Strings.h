#pragma once

#include "ORV/OwnedArray.h"

namespace ORV {

/// A list of texts that it owns, mostly the fields that a text was split into.
///
/// Fields count from 0. An index out of range is no error: it gives null, 0, false, or Const::MISS
/// from the numeric operations.
class Strings {
public:
    int max = 0;                       ///< room, in fields
    int num = 0;                       ///< fields in use
    OwnedArray<OwnedArray<char>> vals; ///< the texts; a field may be null

    Strings() = default;
    /// Has room for n fields, none in use.
    explicit Strings(int n) { set(n); }
    Strings(int argc, const char* const* argv) { set(argc, argv); }
    explicit Strings(const char* text) { set(text); }
    Strings(const char* text, char delim) { set(text, delim); }
    Strings(const char* text, char delim, int maxfields) { set(text, delim, maxfields); }
    Strings(const char* text, char delim, int maxfields, const char* quotes) {
        set(text, delim, maxfields, quotes);
    }

    int set(int n);
    /// Takes the arguments as they are, empty ones included; returns their number.
    int set(int argc, const char* const* argv);

    /// The forms below replace all contents by the fields of a text and return their number; a null
    /// or empty text has none.
    ///
    /// Fields between white space. Nothing is quoted, and there are no empty fields.
    int set(const char* text);
    /// Fields between delimiters. Empty ones count: "a,,b" has three, "a," two. A field that begins
    /// with a double quote ends at the next one that stands before a delimiter or at the end, or
    /// else with the text; it loses the pair of quotes.
    int set(const char* text, char delim) { return set(text, delim, -1); }
    /// At most maxfields of them, without limit when it is negative: the last one kept takes all
    /// the rest of the text as it stands, with its delimiters and quotes.
    int set(const char* text, char delim, int maxfields);
    /// Each character of `quotes` found in the text protects what follows, up to its closer: ")"
    /// for "(", "]" for "[", "}" for "{", else the same character. Such stretches don't nest.
    /// Only double quotes around a whole field are removed.
    int set(const char* text, char delim, int maxfields, const char* quotes);

    /// Appends a copy; a null or empty text isn't added. Room grows by 10, or by an eighth when
    /// that is more.
    int add(const char* text);
    /// Replaces field i, growing to hold it. An empty text leaves the field null.
    int set(int i, const char* text);
    /// Frees the texts and keeps the room.
    int clear();

    int getNum() const { return num; }
    const char* getString(int i) const { return inside(i) ? static_cast<char*>(vals[i]) : nullptr; }
    /// The field from its first c on, or null when it has none.
    const char* getString(int i, char c) const;
    /// The field from position pos on, or null when that isn't inside the field.
    const char* getString(int i, int pos) const;
    /// The text behind the first c, as in "key=value"; empty when the field ends there, and null
    /// when it holds no c.
    const char* getStringAfter(int i, char c) const;
    char getChar(int i, int pos) const;
    /// Whether the field exists and isn't empty.
    bool valid(int i) const { return getLength(i) > 0; }
    int getLength(int i) const;

    /// Compare the field, or the field from pos on, with the text; or their first n characters with
    /// the rule of StrLib::equal.
    bool equal(int i, const char* text) const;
    bool iequal(int i, const char* text) const;
    bool equal(int i, int pos, const char* text) const;
    bool iequal(int i, int pos, const char* text) const;
    bool equal(int i, const char* text, int n) const;
    bool iequal(int i, const char* text, int n) const;

    /// The index of the first equal field, or -1.
    int find(const char* text) const;
    /// As StrLib, on field i.
    int index(int i, char c) const;
    bool contains(int i, const char* text) const;
    int occurs(int i, char c) const;
    bool check(int i, const char* pattern) const;

    /// Scan the field, or the field from pos on, as Scan::text does; return the values stored.
    [[gnu::format(scanf, 3, 4)]] int scanf(int i, const char* fmt, ...) const;
    [[gnu::format(scanf, 4, 5)]] int scanf(int i, int pos, const char* fmt, ...) const;

    /// The number that the field begins with ("12abc" gives 12), or missing unless Tools::isInt or
    /// Tools::isFloat hold; from position pos on, or behind the first c.
    int getInt(int i) const;
    int getInt(int i, int pos) const;
    int getIntAfter(int i, char c) const;
    long getLong(int i) const;
    long getLong(int i, int pos) const;
    long getLongAfter(int i, char c) const;
    float getFloat(int i) const;
    float getFloat(int i, int pos) const;
    float getFloatAfter(int i, char c) const;

private:
    bool inside(int i) const { return i >= 0 && i < num; }
    void resize(int capacity);
};

} // namespace ORV
