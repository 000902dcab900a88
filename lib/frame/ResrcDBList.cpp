#include "ORV/ResrcDBList.h"

namespace ORV {

int ResrcDBList::add(const char* name, const char* env, const char* cmdln, const char* help) {
    return add({name, env, cmdln, help, nullptr});
}

int ResrcDBList::add(const ResrcDBItem& item) {
    ResrcDBItem& added = items.emplace_back(item);
    added.next = nullptr;
    (last ? last->next : beg) = &added;
    last = &added;
    num++;
    return 1;
}

ResrcDBItem* ResrcDBList::next() {
    ResrcDBItem* item = cur;
    if (cur)
        cur = cur->next;
    return item;
}

ResrcDBItem* ResrcDBList::get(int index) const {
    ResrcDBItem* item = index < 0 ? nullptr : beg;
    for (; item && index > 0; index--)
        item = item->next;
    return item;
}

} // namespace ORV
