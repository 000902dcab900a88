#include "ORV/Hash.h"

#include "ORV/Const.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace ORV {
namespace {
constexpr int default_size = 1000;
constexpr int max_keys = 4;
constexpr int key_factor = 257;
constexpr int key_modulus = 35177;

enum DataType { TEXT, INT, INT_TOO, FLOAT };
} // namespace

int Hash::set(int data_type, int buckets, int bytes, int keys) {
    clear();
    type = data_type;
    size = buckets < 1 ? default_size : buckets;
    data_size = std::max(bytes, 0);
    numkey = std::clamp(keys, 1, max_keys);
    for (int n = 0; n < max_keys; n++)
        table[n] = OwnedArray<HashEntry*>(n < numkey ? size : 0);
    return 1;
}

int Hash::getBucket(const char* key) const {
    int h = 0;
    for (; *key; key++)
        h = (h * key_factor + static_cast<signed char>(*key)) % key_modulus;
    return (h < 0 ? h + key_modulus : h) % size;
}

char* Hash::allocate(std::size_t bytes, std::size_t alignment) {
    std::size_t start = (block_used + alignment - 1) / alignment * alignment;
    if (blocks.empty() || start + bytes > block_size) {
        block_size = std::max<std::size_t>(16384, bytes);
        blocks.emplace_back(new char[block_size]());
        start = 0;
    }
    block_used = start + bytes;
    return blocks.back().get() + start;
}

HashEntry* Hash::find(int n, const char* key) const {
    if (n < 0 || n >= numkey || !key)
        return nullptr;
    HashEntry* entry = table[n][getBucket(key)];
    while (entry && std::strcmp(entry->key, key) != 0)
        entry = entry->link;
    return entry;
}

/// Makes an entry in key space n: behind the one of the same key, else at the end of the chain.
HashEntry* Hash::link(int n, const char* key, HashEntry* same) {
    HashEntry& entry = entries.emplace_back();
    const std::size_t bytes = std::strlen(key) + 1;
    entry.key = allocate(bytes, 1);
    std::memcpy(entry.key, key, bytes);
    HashEntry** place = same ? &same->link : &table[n][getBucket(key)];
    while (!same && *place)
        place = &(*place)->link;
    entry.link = *place;
    *place = &entry;
    return &entry;
}

/// Gives the entry the value. A text gets storage of its own, so that one still in use by another
/// key stays whole; numbers and blocks are written over.
void Hash::store(HashEntry& entry, const HashArg& value) {
    const auto whole = Scan::toInt(value.number);
    const auto real = static_cast<float>(value.number);
    const char* text = value.text ? value.text : "";
    const void* source = text;
    std::size_t bytes = std::strlen(text) + 1;
    if (type == INT || type == INT_TOO) {
        source = &whole;
        bytes = sizeof whole;
    } else if (type == FLOAT) {
        source = &real;
        bytes = sizeof real;
    } else if (data_size > 0) {
        source = value.block;
        bytes = static_cast<std::size_t>(data_size);
    }
    if (!entry.data || source == text)
        entry.data = allocate(bytes, alignof(std::max_align_t));
    if (source)
        std::memmove(entry.data, source, bytes);
}

int Hash::enterArgs(const HashArg* args, int count) {
    if (count != numkey + 1)
        return 0;
    HashEntry* found[max_keys] = {};
    bool known = true;
    for (int n = 0; n < numkey; n++) {
        if (!args[n].text)
            return 0;
        found[n] = find(n, args[n].text);
        known = known && found[n];
    }
    if (!known) {
        for (int n = 0; n < numkey; n++)
            found[n] = link(n, args[n].text, found[n]);
        (last ? last->next : head) = found[0];
        last = found[0];
        num++;
    }
    store(*found[0], args[numkey]);
    for (int n = 1; n < numkey; n++)
        found[n]->data = found[0]->data;
    return 1;
}

char* Hash::search(int n, const char* key) const {
    const HashEntry* entry = find(n, key);
    return entry ? entry->data : nullptr;
}

double Hash::getNumber(const char* data) const {
    double number = 0.0;
    if (type == INT || type == INT_TOO) {
        int value;
        std::memcpy(&value, data, sizeof value);
        number = value;
    } else if (type == FLOAT) {
        float value;
        std::memcpy(&value, data, sizeof value);
        number = value;
    } else {
        const int length = data_size > 0 ? data_size : StrLib::length(data);
        Scan::number(StrLib::own(data, length), number);
    }
    return number;
}

int Hash::searchInt(int n, const char* key) const {
    const char* data = search(n, key);
    return data ? Scan::toInt(getNumber(data)) : Const::MISS;
}

bool Hash::searchBool(int n, const char* key) const {
    const char* data = search(n, key);
    return data && getNumber(data) != 0;
}

float Hash::searchFloat(int n, const char* key) const {
    const char* data = search(n, key);
    return data ? static_cast<float>(getNumber(data)) : 0.0f;
}

char* Hash::first() {
    cur = head;
    at_first = true;
    return cur ? cur->data : nullptr;
}

HashEntry* Hash::step() {
    at_first = false;
    if (cur)
        cur = cur->next;
    return cur;
}

char* Hash::next() {
    const HashEntry* entry = step();
    return entry ? entry->data : nullptr;
}

const char* Hash::nextKey() {
    const HashEntry* entry = at_first ? cur : step();
    at_first = false;
    return entry ? entry->key : nullptr;
}

int Hash::clear() {
    for (OwnedArray<HashEntry*>& buckets : table)
        std::fill_n(static_cast<HashEntry**>(buckets), buckets.size(), nullptr);
    entries.clear();
    blocks.clear();
    block_size = block_used = 0;
    cur = head = last = nullptr;
    num = 0;
    at_first = false;
    return 1;
}

} // namespace ORV
