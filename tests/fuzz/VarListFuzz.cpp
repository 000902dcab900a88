// A plot list in the first line, and the variable file that it is to be worked out with.
#include "ORV/VarList.h"

#include "FuzzDatabase.h"

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const FuzzDatabase database;
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    const std::string line = text.substr(0, text.find('\n'));
    database.write("fuzz.var", text.size() > line.size() ? text.substr(line.size() + 1) : "");

    VarList list;
    list.setFile("fuzz.var");
    VarList::process(line.c_str(), list);
    if (list.num > list.limit || list.num > VarList::max_items)
        std::abort();
    for (int i = 0; i < list.num; ++i) {
        String out;
        list.getString(i, out);
        list.item[i].spec.toInfoLabel(out);
        list.item[i].spec.toVarAbbr(out);
        list.item[i].spec.getVarCode();
    }
    return 0;
}
