#pragma once

#include "ORV/OwnedArray.h"

namespace ORV {

/// Operations on plain terminated texts. A null pointer is tolerated: it gives 0, false or, from
/// the numeric operations, Const::MISS. Letters are those of ASCII.
class StrLib {
public:
    StrLib() = delete;

    /// Exact, or ignoring case.
    static bool equal(const char* a, const char* b);
    static bool iequal(const char* a, const char* b);
    /// For n of 1 or more: the first n characters agree, or both texts end together before that.
    /// For n below 1: the last -n characters of a equal the whole of b.
    static bool equal(const char* a, const char* b, int n);
    static bool iequal(const char* a, const char* b, int n);
    /// The first n characters of a equal the whole of b, whose length is n.
    static bool equal(const char* a, int n, const char* b);

    static bool contains(const char* a, const char* b) { return where(a, b) >= 0; }
    /// The position of b in a, or -1.
    static int where(const char* a, const char* b);
    /// The position of the first, the nth (counted from 1) and the last c, or -1.
    static int index(const char* a, char c) { return index(a, c, 1); }
    static int index(const char* a, char c, int n);
    static int lastIndex(const char* a, char c);
    static int occurs(const char* a, char c);

    /// Whether the token equals one of the delimited fields of the text.
    static bool hasToken(const char* text, char delim, const char* token);
    /// The text from field n on, counted from 0; a run of delimiters is one separator, and leading
    /// ones are skipped. Null when there is no such field.
    static const char* getField(const char* text, char delim, int n);

    /// Copies at most size - 1 characters and terminates; a null src empties dst.
    static int copy(char* dst, int size, const char* src);
    /// Copies at most min(n, m) characters and terminates, so dst has room for one more. A
    /// negative value means the length of src + value + 1.
    static int copy(char* dst, int n, const char* src, int m);
    /// Adds behind dst, never past size - 1 characters in all.
    static int append(char* dst, int size, const char* src);
    /// A new array with the copy, which the caller frees by delete[]; null for a null text.
    static char* acopy(const char* text);
    static char* acopy(const char* text, int n);
    /// An owned copy of the text, or of at most its first n characters; null for a null text.
    static OwnedArray<char> own(const char* text);
    static OwnedArray<char> own(const char* text, int n);
    /// Formats behind the text in dst, cut at size - 1 characters in all.
    [[gnu::format(printf, 3, 4)]] static int aprintf(char* dst, int size, const char* fmt, ...);

    static bool valid(const char* text) { return text && *text; }
    static int length(const char* text);
    static char getChar(const char* text, int i);

    /// The number that the text begins with, or missing unless Tools::isInt or isFloat hold. What
    /// doesn't fit the type becomes its largest or smallest value.
    static int getInt(const char* text);
    static long getLong(const char* text);
    static float getFloat(const char* text);
    /// Convert from position n without that test, behind leading blanks: 0 for what isn't a number,
    /// missing when n lies outside the text.
    static int toInt(const char* text, int n);
    static float toFloat(const char* text, int n);

    /// Change the text in place.
    static int replace(char* text, char c1, char c2);
    static int trimWS(char* text);
    static int stripWS(char* text);
    static int chop(char* text);
    static int clear(char* text);
    static int lowCase(char* text);
    static int upCase(char* text);

    /// Replaces oldlen characters at start by the first newlen characters of the inserted text,
    /// moving the tail. The caller guarantees the room.
    static int splice(char* text, int start, int oldlen, int newlen, const char* insert);

    /// Tests each character of the text by one element of the pattern: "A" letter or digit, "a"
    /// letter, "d" digit, "b" blank, "c" control, "l" lower case, "u" upper case, "p" punctuation,
    /// "s" white space, "g" graphic, "[abc]" one of those listed, anything else itself. The text
    /// may go on behind the pattern, but not end before it.
    static bool check(const char* text, const char* pattern);
};

} // namespace ORV
