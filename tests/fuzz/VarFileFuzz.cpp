// A variable file: all its entries, the first few worked out as plot lists.
#include "ORV/VarFile.h"
#include "ORV/VarList.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& bytes) {
    constexpr int few = 4; // working a list out reads the whole file
    makeDatabase("fuzz.var", bytes);
    VarFile file;
    VarFileData entry;
    expect(file.open("fuzz.var"));
    for (int i = 0; file.read(entry); ++i) {
        VarList list;
        list.setFile("fuzz.var");
        if (i < few)
            VarList::process(entry.name, list);
    }
}
