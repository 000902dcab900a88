#pragma once

#include "ORV/OwnedArray.h"

#include <deque>
#include <memory>
#include <vector>

namespace ORV {

/// One key of a Hash and the data it leads to.
class HashEntry {
public:
    char* key = nullptr;
    char* data = nullptr;      ///< shared by the entries of one enter
    HashEntry* link = nullptr; ///< next in the bucket
    HashEntry* next = nullptr; ///< next in insertion order, in key space 0 only
};

/// One argument of Hash::enter: a key, or the value as text, block or number.
class HashArg {
public:
    const char* text = nullptr;
    const void* block = nullptr;
    double number = 0.0;

    HashArg(const char* text) : text(text), block(text) {}
    HashArg(const void* block) : block(block) {}
    HashArg(int number) : number(number) {}
    HashArg(double number) : number(number) {}
};

/// A chained hash table. Up to four kinds of key, each in a space of its own, lead to the same
/// data: a station is found by its name, its number or its call sign. Keys compare with case.
class Hash {
public:
    /// What the data is: 0 text, or a block of data_size bytes when that is above 0; 1 and 2 int;
    /// 3 float.
    int type = 0;
    int size = 1000;           ///< buckets of each table
    int data_size = 0;         ///< bytes of a block
    HashEntry* cur = nullptr;  ///< cursor of first, next, nextKey
    HashEntry* head = nullptr; ///< the entries of key space 0 in insertion order
    HashEntry* last = nullptr;
    int num = 0;                     ///< entries in that order
    int numkey = 1;                  ///< key spaces, 1 to 4
    OwnedArray<HashEntry*> table[4]; ///< the buckets of each key space

    Hash() { set(); }
    explicit Hash(int type) { set(type); }
    Hash(int size, int data_size, int numkey) { set(size, data_size, numkey); }
    Hash(int type, int size, int data_size, int numkey) { set(type, size, data_size, numkey); }
    Hash(const Hash&) = delete;
    Hash& operator=(const Hash&) = delete;

    /// Clear the table and rebuild it; what isn't given takes its default (text, 1000 buckets, no
    /// block, one key). A size below 1 is the default.
    int set() { return set(0, 1000, 0, 1); }
    int set(int data_type) { return set(data_type, 1000, 0, 1); }
    int set(int buckets, int bytes, int keys) { return set(0, buckets, bytes, keys); }
    int set(int data_type, int buckets, int bytes, int keys);

    /// enter(key1, ..., keyN, value): one key for each key space, then the value, a text, a pointer
    /// to a block, an int or a float as the type has it. When every key is known, all of them lead
    /// to the new value from then on. Otherwise each space gets a new entry, behind any entry of
    /// the same key, which search keeps finding first. Returns 0 when the arguments don't count
    /// numkey + 1 or a key is null.
    template <class... Args>
    int enter(const char* key, const Args&... rest) {
        const HashArg args[] = {key, rest...};
        return enterArgs(args, 1 + static_cast<int>(sizeof...(rest)));
    }

    /// The data of a key, in key space n or 0; null when absent.
    char* search(const char* key) const { return search(0, key); }
    char* search(int n, const char* key) const;
    /// The data as a number; a text is converted. Absent keys give -9999, false and 0.
    int searchInt(const char* key) const { return searchInt(0, key); }
    int searchInt(int n, const char* key) const;
    bool searchBool(const char* key) const { return searchBool(0, key); }
    bool searchBool(int n, const char* key) const;
    float searchFloat(const char* key) const { return searchFloat(0, key); }
    float searchFloat(int n, const char* key) const;

    /// Walk the entries in insertion order. first gives the data of the first entry, next and
    /// nextKey those of the following one; a nextKey directly behind first gives the first key.
    /// Null at the end.
    char* first();
    char* next();
    const char* nextKey();

    /// Frees all entries and keeps the tables.
    int clear();
    int getNum() const { return num; }
    int getNumKey() const { return numkey; }
    int getSize() const { return size; }
    int getDataSize() const { return data_size; }

private:
    int enterArgs(const HashArg* args, int count);
    int getBucket(const char* key) const;
    HashEntry* find(int n, const char* key) const;
    HashEntry* link(int n, const char* key, HashEntry* same);
    void store(HashEntry& entry, const HashArg& value);
    double getNumber(const char* data) const;
    HashEntry* step();

    char* allocate(std::size_t bytes, std::size_t alignment);

    std::deque<HashEntry> entries;
    std::vector<std::unique_ptr<char[]>> blocks; // hold all keys and data
    std::size_t block_size = 0;                  // bytes of the last one
    std::size_t block_used = 0;                  // and those given out
    bool at_first = false;                       // first was the last step of the cursor
};

} // namespace ORV
