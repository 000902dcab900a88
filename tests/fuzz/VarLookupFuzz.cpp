// The tables of quantities and models, searched for what their first bytes name.
#include "ORV/ModelName.h"
#include "ORV/ModelSpec.h"
#include "ORV/VarName.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& text) {
    for (const char* name : {"variable.lup", "mod_name.lup", "model.lup"})
        makeDatabase(name, text);
    const std::string word = text.substr(0, text.find_first_of(" \n"));
    VarName names;
    Variable var;
    VarNameItem item;
    names.get(word.c_str(), var);
    names.get(word.c_str(), item);
    names.get(11, var);
    String label;
    VarName::makeLabel(word.c_str(), "C", label);
    ModelName().get(7, 11);
    ModelSpec model;
    if (model.set(word.c_str()))
        expect(model.getNum() <= 12 && model.getName(model.getNum() - 1));
}
