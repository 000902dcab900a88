// A plot list in the first line, and the variable file that it is to be worked out with.
#include "ORV/VarList.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& text) {
    const std::string line = text.substr(0, text.find('\n'));
    makeDatabase("fuzz.var", text.size() > line.size() ? text.substr(line.size() + 1) : "");
    VarList list;
    list.setFile("fuzz.var");
    VarList::process(line.c_str(), list);
    expect(list.num <= list.limit && list.num <= VarList::max_items);
    for (int i = 0; i < list.num; ++i) {
        String out;
        list.getString(i, out);
        list.item[i].spec.toInfoLabel(out);
        list.item[i].spec.toVarAbbr(out);
        list.item[i].spec.getVarCode();
    }
}
