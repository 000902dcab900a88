// A variable file: all its entries, each worked out as a plot list.
#include "ORV/VarFile.h"
#include "ORV/VarList.h"

#include "FuzzDatabase.h"

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const FuzzDatabase database;
    database.write("fuzz.var", std::string(reinterpret_cast<const char*>(bytes), size));
    VarFile file;
    VarFileData entry;
    if (!file.open("fuzz.var"))
        std::abort();
    constexpr int few = 4; // working a list out reads the whole file
    for (int i = 0; file.read(entry); ++i) {
        VarList list;
        list.setFile("fuzz.var");
        if (i < few)
            VarList::process(entry.name, list);
    }
    return 0;
}
