#include "ORV/VarList.h"

#include "Database.h"
#include "Table.h"

namespace ORV {
namespace {

class VarLists : public Database {
protected:
    VarLists() {
        write("variable.lup", "11 temp Temperature\n");
        write("units.lup", "C F *1.8+32\nF C *0.5555556-17.777778\n");
    }

    /// The items as "layer kind level:name[units,format]", joined by blanks.
    static std::string show(const VarList& list) {
        constexpr char kinds[] = "?PVGFWM";
        std::string out;
        for (int i = 0; i < list.num; ++i) {
            const VarSpec& spec = list.item[i].spec;
            String level;
            spec.level.toString(level);
            out += (i ? " " : "") + std::to_string(list.getLayer(i)) + kinds[list.getType(i)];
            out += std::string(level.get()) + ":" + spec.var.abbr;
            if (*spec.var.units || *spec.format)
                out += std::string("[") + spec.var.units + "," + spec.format + "]";
        }
        return out;
    }
    static std::string decoded(const char* text) {
        VarList list;
        EXPECT_EQ(list.decode(text), 1);
        return show(list);
    }
    std::string processed(const char* text, const char* definitions) {
        write("test.var", definitions);
        VarList list;
        list.setFile("test.var");
        EXPECT_EQ(VarList::process(text, list), 1);
        for (int i = 0; i < list.num; ++i)
            EXPECT_TRUE(list.item[i].spec.abs);
        return show(list);
    }
};

TEST_F(VarLists, ParseElementsAndNesting) {
    for (const Row& row : readTable("variable/plot_lists.txt"))
        EXPECT_EQ(decoded(row.text("text")), row.text("items")) << row.text("text");
}

TEST_F(VarLists, StopAtCloserWithoutOpener) {
    const char* rows[][2] = {
        {"a}", "unexpected } at }"},
        {"a]", "unexpected ] at ]"},
        {"{a)b", "unexpected ) at )b"},
        {"(a>", "unexpected > at >"},
    };
    for (const auto& row : rows) {
        VarList list;
        testing::internal::CaptureStderr();
        EXPECT_EQ(list.decode(row[0]), 0);
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  std::string("VarList::decode error, ") + row[1] + "\n");
    }
    VarList list;
    EXPECT_EQ(list.decode("{{{{{{{{{{{a}}}}}}}}}}}"), 1);
    EXPECT_EQ(list.getLayer(11), 11);
    testing::internal::CaptureStderr();
    EXPECT_EQ(list.decode("{{{{{{{{{{{{a}}}}}}}}}}}}"), 0);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(list.decode(""), 0);
    EXPECT_EQ(list.decode(static_cast<const char*>(nullptr)), 0);
}

TEST_F(VarLists, GrowWithTheLine) {
    std::string line = "v0";
    for (int i = 1; i < 200; ++i)
        line += ",v" + std::to_string(i);
    VarList list;
    EXPECT_EQ(list.decode(line.c_str()), 1);
    ASSERT_EQ(list.num, 200);
    EXPECT_GT(list.limit, list.num);
    EXPECT_STREQ(list.getName(199), "v199");
    const VarList copy = list;
    EXPECT_STREQ(copy.getName(40), "v40");

    int count = 0;
    for (list.rewind(); !list.done(); list.next())
        ++count;
    EXPECT_EQ(count, 200);
    EXPECT_EQ(list.next(), 0);
    EXPECT_STREQ(list.getName(), "");

    testing::internal::CaptureStderr();
    EXPECT_EQ(list.decode(std::string(5000, '{').c_str()), 0);
    line.clear();
    for (int i = 0; i < 5000; ++i)
        line += "v,";
    EXPECT_EQ(list.decode(line.c_str()), 0);
    EXPECT_EQ(list.num, VarList::max_items);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_STREQ(list.getUnits(-1), "");
}

TEST_F(VarLists, TellHowItemsAreDrawn) {
    VarList list;
    list.decode("a[F,plot],b[,data],c[,cf],d[,pl=cf,ln],e[,ln],f[,vect],map[x],panel,g");
    const auto plots = [&list](bool (VarList::*test)(int) const) {
        std::string out;
        for (int i = 0; i < list.num; ++i)
            out += (list.*test)(i) ? list.getName(i)[0] : '.';
        return out;
    };
    EXPECT_EQ(plots(&VarList::isPlot), "ab.......");
    EXPECT_EQ(plots(&VarList::isData), ".b.......");
    EXPECT_EQ(plots(&VarList::isContour), "..cde....");
    EXPECT_EQ(plots(&VarList::isFillContour), "..cd.....");
    EXPECT_EQ(plots(&VarList::isVector), ".....f...");
    EXPECT_EQ(plots(&VarList::isMap), "......m..");
    EXPECT_EQ(plots(&VarList::isPanel), ".......p.");
    EXPECT_EQ(plots(&VarList::isParam), "abcdef..g");
    list.decode("{a,}");
    EXPECT_FALSE(list.isEmpty(0));
    EXPECT_FALSE(list.isEmpty(1));
    EXPECT_TRUE(list.isEmpty(2));
}

TEST_F(VarLists, ReplaceNames) {
    for (const Row& row : readTable("variable/replaced_names.txt"))
        EXPECT_EQ(processed(row.text("text"), row.text("definitions")), row.text("items"))
            << row.text("text");
}

TEST_F(VarLists, HandUnitsAndOptionsDownAGroup) {
    EXPECT_EQ(processed("m,a", "m M 0 {temp,wind[knt,y]}[F,x]\n"),
              "0G:[F,x] 1P:temp[F,x,] 1P:wind[knt,x,y] 0P:a");
    EXPECT_EQ(processed("sfc:m[C,z],a", "m M 0 {temp,wind[knt,y]}[F,x]\n"),
              "0Gsfc:[C,x,z] 1Psfc:temp[C,x,,z] 1Psfc:wind[knt,x,y,z] 0P:a");
}

TEST_F(VarLists, KeepTheDrawingAskedFor) {
    write("test.var", "alias Alias 0 temp[C,plot]\n");
    VarList list;
    list.setFile("test.var");
    VarList::process("alias[,cf],alias", list);
    EXPECT_TRUE(list.isContour(0));
    EXPECT_TRUE(list.isParam(1));
    EXPECT_FALSE(list.isContour(1));
}

TEST_F(VarLists, EndDefinitionsThatContainEachOther) {
    write("test.var", "a A 0 b\nb B 0 a\nc C 0 c,c,c,c,c,c,c,c\n");
    VarList list;
    list.setFile("test.var");
    EXPECT_EQ(VarList::process("a", list), 1);
    EXPECT_EQ(list.num, 1);
    testing::internal::CaptureStderr();
    EXPECT_EQ(VarList::process("c", list), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "VarList::process error, c grows without end\n");
}

} // namespace
} // namespace ORV
