#include "ORV/Resrc.h"

#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"

#include <cstdarg>
#include <cstdio>

namespace ORV {
namespace {
constexpr int run_time = 5; // type of what the program itself sets

const char* getOriginTag(int type) {
    constexpr const char* tags[] = {": ", ": ", " (file): ", " (env): ", " (cmd): ", ": "};
    return type > 0 && type <= run_time ? tags[type] : tags[0];
}

const char* textOf(const OwnedArray<char>& text) {
    return text ? text : "";
}

bool beginsWithDigit(const char* text) {
    return text && *text >= '0' && *text <= '9';
}
} // namespace

Resrc& Resrc::operator=(const Resrc& other) {
    if (this == &other)
        return *this;
    clear();
    for (const ResrcItem* item = other.head; item; item = item->next)
        add(item->name, item->value, item->type);
    return *this;
}

ResrcItem* Resrc::find(const char* name) const {
    ResrcItem* item = head;
    while (item && !StrLib::equal(item->name, name))
        item = item->next;
    return item;
}

int Resrc::add(const char* name, const char* value, int type) {
    if (!name)
        return 0;
    ResrcItem* item = find(name);
    if (!item) {
        item = &items.emplace_back();
        item->name = StrLib::own(name);
        (last ? last->next : head) = item;
        last = item;
    }
    item->value = StrLib::own(value);
    item->type = type;
    return 1;
}

int Resrc::set(const char* name, const String& value) {
    return set(name, value.get());
}

int Resrc::join(const char* name, const char* value, char sep, bool behind) {
    if (!value)
        return 0;
    const ResrcItem* item = find(name);
    if (!item || !item->value)
        return add(name, value, item ? item->type : 0);
    String joined(behind ? static_cast<const char*>(item->value) : value);
    joined.append(sep ? sep : '\n');
    joined.append(behind ? value : static_cast<const char*>(item->value));
    return add(name, joined.get(), item->type);
}

int Resrc::append(const char* name, const char* value, char sep) {
    return join(name, value, sep, true);
}

int Resrc::prepend(const char* name, const char* value, char sep) {
    return join(name, value, sep, false);
}

const char* Resrc::get(const char* name) const {
    const ResrcItem* item = find(name);
    return item ? textOf(item->value) : nullptr;
}

const char* Resrc::get(const char* name, const char* other) const {
    const char* value = get(name);
    return value ? value : other;
}

float Resrc::get(const char* name, float other) const {
    const char* value = get(name);
    return beginsWithDigit(value) ? StrLib::toFloat(value, 0) : other;
}

int Resrc::get(const char* name, int other) const {
    const char* value = get(name);
    return beginsWithDigit(value) ? StrLib::toInt(value, 0) : other;
}

bool Resrc::getBool(const char* name) const {
    const char* value = get(name);
    return value && !StrLib::iequal(value, "no") && !StrLib::iequal(value, "off") &&
           !StrLib::iequal(value, "false");
}

int Resrc::getType(const char* name) const {
    const ResrcItem* item = find(name);
    return item ? item->type : 0;
}

int Resrc::scanf(const char* name, const char* format, ...) const {
    va_list args;
    va_start(args, format);
    const int count = Scan::vtext(get(name), format, args);
    va_end(args);
    return count;
}

int Resrc::rewind() {
    cur = head;
    return 1;
}

const char* Resrc::getNext() {
    const ResrcItem* item = cur;
    if (cur)
        cur = cur->next;
    return item ? static_cast<const char*>(item->name) : nullptr;
}

int Resrc::getValues(String& name, String& value, int next) {
    if (next == 0)
        rewind();
    if (!cur)
        return 0;
    name.copy(cur->name);
    value.copy(cur->value);
    cur = cur->next;
    return 1;
}

int Resrc::print(const char* name) const {
    const char* value = get(name);
    std::printf("%s: %s\n", name ? name : "", value ? value : "not set");
    return value != nullptr;
}

int Resrc::printAll() const {
    for (const ResrcItem* item = head; item; item = item->next)
        std::printf("%s%s%s\n", textOf(item->name), getOriginTag(item->type), textOf(item->value));
    return 1;
}

int Resrc::clear() {
    items.clear();
    head = cur = last = nullptr;
    return 1;
}

} // namespace ORV
