#pragma once

#include <deque>

namespace ORV {

/// One setting that a program knows. The texts are constants and not owned.
class ResrcDBItem {
public:
    const char* name = nullptr;  ///< of the resource
    const char* env = nullptr;   ///< its environment variable
    const char* cmdln = nullptr; ///< its short option, without the dash
    const char* help = nullptr;  ///< its help line
    ResrcDBItem* next = nullptr;
};

/// The settings that a program registers, in the order of its help.
class ResrcDBList {
public:
    ResrcDBItem* beg = nullptr;
    ResrcDBItem* last = nullptr;
    ResrcDBItem* cur = nullptr; ///< read cursor
    int num = 0;

    ResrcDBList() = default;
    ResrcDBList(const ResrcDBList&) = delete;
    ResrcDBList& operator=(const ResrcDBList&) = delete;

    int add(const char* name, const char* env, const char* cmdln, const char* help);
    int add(const ResrcDBItem& item);
    int rewind() {
        cur = beg;
        return 1;
    }
    /// The item at the cursor, which moves on; null at the end.
    ResrcDBItem* next();
    ResrcDBItem* first() const { return beg; }
    /// The item at an index from 0, or null.
    ResrcDBItem* get(int index) const;
    int getNum() const { return num; }

private:
    std::deque<ResrcDBItem> items;
};

} // namespace ORV
