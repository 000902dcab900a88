// The tables of quantities and models, searched for what their first bytes name.
#include "ORV/ModelName.h"
#include "ORV/ModelSpec.h"
#include "ORV/VarName.h"

#include "FuzzDatabase.h"

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const FuzzDatabase database;
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    for (const char* name : {"variable.lup", "mod_name.lup", "model.lup"})
        database.write(name, text);
    const std::string word = text.substr(0, text.find_first_of(" \n"));

    VarName names;
    Variable var;
    VarNameItem item;
    names.get(word.c_str(), var);
    names.get(word.c_str(), item);
    names.get(11, var);
    String label;
    VarName::makeLabel(word.c_str(), "C", label);
    ModelName models;
    models.get(7, 11);
    ModelSpec model;
    if (model.set(word.c_str()) && (model.getNum() > 12 || !model.getName(model.getNum() - 1)))
        std::abort();
    return 0;
}
