#include "ORV/ModelName.h"
#include "ORV/ModelSpec.h"
#include "ORV/VarFile.h"
#include "ORV/VarName.h"

#include "Database.h"
#include "Table.h"

namespace ORV {
namespace {

class Lookups : public Database {};

TEST_F(Lookups, FindsQuantitiesByNameAndIndex) {
    write("variable.lup",
          "# comment\n1,2,3 pres Pressure  \n11 temp Temperature\n\n12 late Late\n");
    VarName names;
    Variable var;
    var.set("pres", "mb");
    EXPECT_EQ(names.get(var), 1);
    EXPECT_EQ(var.ind, 1);
    EXPECT_STREQ(var.name, "Pressure");
    EXPECT_STREQ(var.units, "mb");
    EXPECT_EQ(names.get(11, var), 1);
    EXPECT_STREQ(var.abbr, "temp");
    EXPECT_STREQ(var.units, "");
    EXPECT_STREQ(names.get(1), "pres");
    EXPECT_STREQ(names.get(2), ""); // an alternative index isn't the quantity's own
    EXPECT_EQ(names.get("PRES"), 1);
    EXPECT_EQ(names.get("late"), -1);

    VarNameItem item;
    EXPECT_EQ(names.get("perc[50]pres", item), 1);
    EXPECT_EQ(item.ind[2], 3);
    EXPECT_EQ(item.ind[3], Const::MISS);

    EXPECT_EQ(names.get("Pres", var), 0);
    EXPECT_STREQ(var.abbr, "Pres");
    EXPECT_EQ(names.get("", var), 0);

    String label("");
    VarName::makeLabel("temp", "C", label);
    EXPECT_STREQ(label.get(), "Temperature [C]");
}

TEST_F(Lookups, WarnOfMissingFiles) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(VarName().get("temp"), -1);
    EXPECT_STREQ(ModelName().get(7, 96), "");
    EXPECT_EQ(ModelSpec().set("gfs"), 0);
    const std::string& path = dir.path;
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "VarName: Unable to open file: " + path + "/variable.lup\n" +
                  "ModelName: Unable to open file: " + path + "/mod_name.lup\n");
}

TEST_F(Lookups, SplitModelsIntoPieces) {
    write("model.lup", "# c\nquad 2x2 a#21,b,c#23,d\nrow 3 x,y,z\n"
                       "many 20 1,2,3,4,5,6,7,8,9,10,11,12,13,14\nbad\nnone 0x0 a,b\n");
    ModelSpec model;
    EXPECT_EQ(model.set("quad"), 1);
    EXPECT_EQ(model.getNum(), 4);
    EXPECT_STREQ(model.getName(2), "c");
    EXPECT_EQ(model.getType(2), 23);
    EXPECT_EQ(model.getType(1), Const::MISS);
    EXPECT_EQ(model.getX(3), 1);
    EXPECT_EQ(model.getY(3), 1);
    EXPECT_EQ(model.set("row"), 1);
    EXPECT_EQ(model.getX(2), 2);
    EXPECT_EQ(model.getNy(), 1);
    EXPECT_EQ(model.set("many"), 1);
    EXPECT_EQ(model.getNum(), 12);
    EXPECT_EQ(model.set("none"), 1);
    EXPECT_EQ(model.set("bad"), 0);
    EXPECT_FALSE(model.valid());
    EXPECT_STREQ(model.getName(12), "");
}

TEST_F(Lookups, ReadNamedPlotLists) {
    write("test.var", "temp Temperature_in_C 0 sfc:temp[C,plot]\n"
                      "# no comment\n"
                      "long A_very_long_label_that_is_cut 0 {a, \\\n  b,\\\nc}\n"
                      "short\n\n"
                      "open Open 0 a\\");
    VarFile file;
    VarFileData entry;
    ASSERT_EQ(file.open("test.var"), 1);
    EXPECT_EQ(file.read(entry), 1);
    EXPECT_STREQ(entry.name, "temp");
    EXPECT_STREQ(entry.label, "Temperature in C");
    EXPECT_STREQ(entry.value.get(), "sfc:temp[C,plot]");
    EXPECT_EQ(file.read(entry), 1);
    EXPECT_STREQ(entry.name, "#");
    EXPECT_EQ(file.read(entry), 1);
    EXPECT_STREQ(entry.label, "A very long label t");
    EXPECT_STREQ(entry.value.get(), "{a,b,c}");
    EXPECT_EQ(file.read(entry), 1);
    EXPECT_STREQ(entry.name, "short");
    EXPECT_STREQ(entry.value.get(), "");
    EXPECT_EQ(file.read(entry), 1);
    EXPECT_STREQ(entry.name, "");
    EXPECT_EQ(file.read(entry), 1);
    EXPECT_STREQ(entry.value.get(), "a");
    EXPECT_EQ(file.read(entry), 0);
    EXPECT_EQ(file.open("no.var"), 0);
}

TEST_F(Lookups, ShipEveryStationElementWithALabel) {
    useShipped();
    VarName names;
    for (const Row& row : readTable("variable/station_elements.txt")) {
        const char* element = row.text("name");
        Variable var;
        EXPECT_EQ(names.get(element, var), 1) << element;
        EXPECT_GT(var.ind, 0) << element;
        EXPECT_STRNE(var.name, element);
        EXPECT_STREQ(names.get(var.ind), element) << "another has the same index";
    }
}

TEST_F(Lookups, ShipLinesThatFitTheReader) {
    useShipped();
    std::ifstream lines(ORV_DATA "/variable.lup");
    std::string line;
    VarName names;
    int entries = 0;
    while (std::getline(lines, line)) {
        ASSERT_FALSE(line.empty());
        ASSERT_LT(line.size(), 119u);
        if (line[0] == '#')
            continue;
        char abbr[40];
        ASSERT_EQ(std::sscanf(line.c_str(), "%*s %39s", abbr), 1);
        Variable var;
        EXPECT_EQ(names.get(abbr, var), 1) << abbr;
        // The label is whole.
        EXPECT_EQ(line.substr(line.size() - std::string(var.name).size()), var.name);
        ++entries;
    }
    EXPECT_GT(entries, 250);
    EXPECT_STREQ(ModelName().get(7, 96), "gfs");
    ModelSpec model;
    EXPECT_EQ(model.set("wmo2"), 1);
    EXPECT_EQ(model.getType(3), 64);
}

} // namespace
} // namespace ORV
