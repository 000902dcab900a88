#include "ORV/Strings.h"

#include "ORV/Const.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <vector>

namespace ORV {
namespace {
/// A field inside the text that is split.
struct Span {
    const char* begin;
    const char* end;
};

/// The end of the field from `p` on: behind the closing quote when it is quoted as a whole.
const char* endOfQuoted(const char* p, char delim) {
    const auto find_delim = [delim](const char* from) {
        const char* end = std::strchr(from, delim);
        return end ? end : from + std::strlen(from);
    };
    if (*p != '"')
        return find_delim(p);
    for (p++; *p; p++)
        if (*p == '"' && (p[1] == '\0' || p[1] == delim))
            return p + 1;
    return p;
}

char closerOf(char opener) {
    switch (opener) {
    case '(':
        return ')';
    case '[':
        return ']';
    case '{':
        return '}';
    default:
        return opener;
    }
}

/// The end of the field from `p` on, over stretches that one of the `quotes` protects.
const char* endOfProtected(const char* p, char delim, const char* quotes) {
    for (; *p && *p != delim; p++) {
        if (!std::strchr(quotes, *p))
            continue;
        const char* close = std::strchr(p + 1, closerOf(*p));
        if (!close)
            return p + std::strlen(p);
        p = close;
    }
    return p;
}

Span unquote(const Span& field) {
    const bool quoted = field.end - field.begin >= 2 && *field.begin == '"' && field.end[-1] == '"';
    return quoted ? Span{field.begin + 1, field.end - 1} : field;
}

template <class EndOfField>
std::vector<Span> split(const char* text, int maxfields, EndOfField find_end) {
    std::vector<Span> fields;
    for (const char* p = text; maxfields != 0; p++) {
        const char* end = find_end(p);
        if (*end && static_cast<int>(fields.size()) + 1 == maxfields) {
            fields.push_back({p, end + std::strlen(end)});
            break;
        }
        fields.push_back(unquote({p, end}));
        p = end;
        if (!*p)
            break;
    }
    return fields;
}

std::vector<Span> splitWords(const char* text) {
    constexpr char blanks[] = " \t\n\v\f\r";
    std::vector<Span> fields;
    for (const char* p = text + std::strspn(text, blanks); *p; p += std::strspn(p, blanks)) {
        const char* begin = p;
        p += std::strcspn(p, blanks);
        fields.push_back({begin, p});
    }
    return fields;
}

/// Owned copies of the fields; they are made before the old contents go, which the text may lie in.
OwnedArray<OwnedArray<char>> ownFields(const std::vector<Span>& fields) {
    OwnedArray<OwnedArray<char>> owned(static_cast<int>(fields.size()));
    for (std::size_t i = 0; i < fields.size(); i++)
        owned[i] = StrLib::own(fields[i].begin, static_cast<int>(fields[i].end - fields[i].begin));
    return owned;
}

int take(Strings& list, const std::vector<Span>& fields) {
    list.vals = ownFields(fields);
    list.num = list.max = static_cast<int>(fields.size());
    return list.num;
}
} // namespace

int Strings::set(int n) {
    vals = OwnedArray<OwnedArray<char>>(n);
    max = vals.size();
    num = 0;
    return 1;
}

int Strings::set(int argc, const char* const* argv) {
    set(argv ? argc : 0);
    for (; num < max; num++)
        vals[num] = StrLib::own(argv[num]);
    return num;
}

int Strings::set(const char* text) {
    return take(*this, splitWords(text ? text : ""));
}

int Strings::set(const char* text, char delim, int maxfields) {
    if (!StrLib::valid(text))
        return take(*this, {});
    return take(*this,
                split(text, maxfields, [delim](const char* p) { return endOfQuoted(p, delim); }));
}

int Strings::set(const char* text, char delim, int maxfields, const char* quotes) {
    if (!StrLib::valid(text))
        return take(*this, {});
    if (!quotes)
        quotes = "";
    return take(*this, split(text, maxfields, [delim, quotes](const char* p) {
        return endOfProtected(p, delim, quotes);
    }));
}

void Strings::resize(int capacity) {
    OwnedArray<OwnedArray<char>> wider(capacity);
    for (int i = 0; i < num; i++)
        wider[i] = std::move(vals[i]);
    vals = std::move(wider);
    max = capacity;
}

int Strings::add(const char* text) {
    if (!StrLib::valid(text))
        return 0;
    OwnedArray<char> copied = StrLib::own(text);
    if (num >= max)
        resize(max + std::max(10, max / 8));
    vals[num++] = std::move(copied);
    return 1;
}

int Strings::set(int i, const char* text) {
    if (i < 0)
        return 0;
    OwnedArray<char> copied = StrLib::valid(text) ? StrLib::own(text) : OwnedArray<char>();
    if (i >= max)
        resize(i + 1);
    num = std::max(num, i + 1);
    vals[i] = std::move(copied);
    return 1;
}

int Strings::clear() {
    for (int i = 0; i < num; i++)
        vals[i] = {};
    num = 0;
    return 1;
}

const char* Strings::getString(int i, char c) const {
    const int at = index(i, c);
    return at < 0 ? nullptr : vals[i] + at;
}

const char* Strings::getString(int i, int pos) const {
    return pos >= 0 && pos < getLength(i) ? vals[i] + pos : nullptr;
}

const char* Strings::getStringAfter(int i, char c) const {
    const char* found = getString(i, c);
    return found ? found + 1 : nullptr;
}

char Strings::getChar(int i, int pos) const {
    return StrLib::getChar(getString(i), pos);
}

int Strings::getLength(int i) const {
    return StrLib::length(getString(i));
}

bool Strings::equal(int i, const char* text) const {
    return StrLib::equal(getString(i), text);
}

bool Strings::iequal(int i, const char* text) const {
    return StrLib::iequal(getString(i), text);
}

bool Strings::equal(int i, int pos, const char* text) const {
    return StrLib::equal(getString(i, pos), text);
}

bool Strings::iequal(int i, int pos, const char* text) const {
    return StrLib::iequal(getString(i, pos), text);
}

bool Strings::equal(int i, const char* text, int n) const {
    return StrLib::equal(getString(i), text, n);
}

bool Strings::iequal(int i, const char* text, int n) const {
    return StrLib::iequal(getString(i), text, n);
}

int Strings::find(const char* text) const {
    for (int i = 0; i < num; i++)
        if (equal(i, text))
            return i;
    return -1;
}

int Strings::index(int i, char c) const {
    return StrLib::index(getString(i), c);
}

bool Strings::contains(int i, const char* text) const {
    return StrLib::contains(getString(i), text);
}

int Strings::occurs(int i, char c) const {
    return StrLib::occurs(getString(i), c);
}

bool Strings::check(int i, const char* pattern) const {
    return StrLib::check(getString(i), pattern);
}

int Strings::scanf(int i, const char* fmt, ...) const {
    va_list args;
    va_start(args, fmt);
    const int count = Scan::vtext(getString(i), fmt, args);
    va_end(args);
    return count;
}

int Strings::scanf(int i, int pos, const char* fmt, ...) const {
    va_list args;
    va_start(args, fmt);
    const int count = Scan::vtext(getString(i, pos), fmt, args);
    va_end(args);
    return count;
}

int Strings::getInt(int i) const {
    return StrLib::getInt(getString(i));
}

int Strings::getInt(int i, int pos) const {
    return StrLib::getInt(getString(i, pos));
}

int Strings::getIntAfter(int i, char c) const {
    return StrLib::getInt(getStringAfter(i, c));
}

long Strings::getLong(int i) const {
    return StrLib::getLong(getString(i));
}

long Strings::getLong(int i, int pos) const {
    return StrLib::getLong(getString(i, pos));
}

long Strings::getLongAfter(int i, char c) const {
    return StrLib::getLong(getStringAfter(i, c));
}

float Strings::getFloat(int i) const {
    return StrLib::getFloat(getString(i));
}

float Strings::getFloat(int i, int pos) const {
    return StrLib::getFloat(getString(i, pos));
}

float Strings::getFloatAfter(int i, char c) const {
    return StrLib::getFloat(getStringAfter(i, c));
}

} // namespace ORV
