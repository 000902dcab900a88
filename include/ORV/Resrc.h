#pragma once

#include "ORV/OwnedArray.h"

#include <deque>

namespace ORV {

class String;

/// One named setting.
class ResrcItem {
public:
    OwnedArray<char> name;
    OwnedArray<char> value; ///< null when there is none
    int type = 0;           ///< where the value came from, see Resrc
    ResrcItem* next = nullptr;
};

/// The settings of the program: named texts in the order in which they were first set. Names
/// compare with case. The type of an entry tells where its value came from: 1 program identity, 2
/// resource file, 3 environment, 4 command line, 5 set at run time, 0 none of these.
class Resrc {
public:
    ResrcItem* head = nullptr;
    ResrcItem* cur = nullptr; ///< cursor of the walk
    ResrcItem* last = nullptr;

    Resrc() = default;
    Resrc(const Resrc& other) { *this = other; }
    Resrc& operator=(const Resrc& other);

    /// Replaces value and type of an entry, or appends a new one. A null value is kept as none.
    int add(const char* name, const char* value, int type);
    int set(const char* name, const char* value, int type) { return add(name, value, type); }
    /// These set at run time, with type 5.
    int set(const char* name, const char* value) { return add(name, value, 5); }
    int set(const char* name, const String& value);
    int put(const char* name, const char* value) { return add(name, value, 5); }

    /// Join a value behind, or in front of, that of the entry, with sep or a newline when it is 0
    /// between them. The type stays; a new entry has type 0. A null value does nothing.
    int append(const char* name, const char* value, char sep = 0);
    int prepend(const char* name, const char* value, char sep = 0);

    /// The value: empty for an entry that has none, null for a name that isn't set. A flag without
    /// a value is set.
    const char* get(const char* name) const;
    const char* get(const char* name, const char* other) const;
    /// The number that the value begins with, or the other one when the resource isn't set or its
    /// first character isn't a digit; so "-5" and ".5" give the other one.
    float get(const char* name, float other) const;
    int get(const char* name, int other) const;
    /// False when not set, or for "no", "off" and "false" in any case; else true.
    bool getBool(const char* name) const;
    int getType(const char* name) const;
    /// Scans the value as Scan::text does; 0 when it isn't set.
    [[gnu::format(scanf, 3, 4)]] int scanf(const char* name, const char* format, ...) const;

    int rewind();
    /// The name at the cursor, which moves on; null at the end.
    const char* getNext();
    /// Name and value at the head when next is 0, else at the cursor, which moves on. Returns 0 at
    /// the end.
    int getValues(String& name, String& value, int next);

    /// Print one entry, or all of them with their origin, on standard output.
    int print(const char* name) const;
    int printAll() const;
    int clear();

private:
    ResrcItem* find(const char* name) const;
    int join(const char* name, const char* value, char sep, bool behind);

    std::deque<ResrcItem> items;
};

} // namespace ORV
