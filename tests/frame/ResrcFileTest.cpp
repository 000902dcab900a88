#include "ORV/ResrcFile.h"

#include "Table.h"
#include "frame/FrameFixture.h"

using namespace ORV;

namespace {
class ResrcFileTest : public FrameFixture {
protected:
    ResrcFileTest() {
        Orv::putResrc("prog", "obschart");
        Orv::putResrc("name", "obschart");
    }
    /// The pairs of a file as "key=value ".
    static std::string read(ResrcFile& file, const std::string& text) {
        writeFile("x.cfg", text);
        EXPECT_EQ(file.open("x.cfg"), 1);
        std::string pairs;
        String key, value;
        while (file.get(key, value) == 1)
            pairs += std::string(key.get()) + "=" + value.get() + " ";
        EXPECT_EQ(file.get(key, value), -1);
        file.close();
        return pairs;
    }
    static std::string read(const std::string& text) {
        ResrcFile file(Orv::resrc);
        return read(file, text);
    }
};
} // namespace

TEST_F(ResrcFileTest, ReadsPairs) {
    for (const Row& c : readTable("frame/reads_pairs.txt"))
        EXPECT_EQ(read(c.text("text")), c.text("pairs")) << c.text("what");
}

TEST_F(ResrcFileTest, ConditionsChooseBranches) {
    for (const Row& c : readTable("frame/conditions_choose_branches.txt")) {
        ResrcFile file(Orv::resrc);
        file.setTag("yes");
        EXPECT_EQ(read(file, c.text("text")), c.text("pairs")) << c.text("what");
    }
}

TEST_F(ResrcFileTest, HoldsToItsLimits) {
    std::string deep, defs;
    for (int i = 0; i < 40; i++)
        deep += "IF V6\n";
    deep += "a 1\nELSE\na 2\n";
    for (int i = 0; i < 28; i++)
        deep += "END\n";
    EXPECT_EQ(read(deep + "a 3\n"), "a=3 "); // twelve levels are left, all of them live

    ResrcFile file(Orv::resrc);
    for (int i = 0; i < 10; i++)
        EXPECT_EQ(file.setTag(("tag" + std::to_string(i)).c_str()), 1);
    EXPECT_EQ(file.setTag("tag10"), 0);
    EXPECT_EQ(file.setTag("TAG9"), 1); // defined already
    EXPECT_EQ(file.num_tag, 10);
    EXPECT_EQ(read(file, "UNDEF tag0\nDEF a_tag_that_is_too_long_by_far\nIF "
                         "a_tag_that_is_too_long_by_far\na 1\nEND\n"),
              "undef=tag0 def=a_tag_that_is_too_long_by_far a=1 ");
}

TEST_F(ResrcFileTest, KeysNameProgramsByPattern) {
    ResrcFile file(Orv::resrc);
    for (const Row& c : readTable("frame/keys_name_programs_by_pattern.txt"))
        EXPECT_EQ(file.compare("color_map", c.text("key")), c.integer("fits")) << c.text("key");
    EXPECT_TRUE(file.valid("*.anything"));
    EXPECT_TRUE(file.valid("obschart.anything"));
    EXPECT_FALSE(file.valid("anything"));
    EXPECT_FALSE(file.valid("other.anything"));
    file.set("obschart", "+night");
    EXPECT_TRUE(file.compare("title", "obschart.night.title"));
    EXPECT_FALSE(file.compare("title", "obschart.title"));
    file.set("obschart", "");
    EXPECT_TRUE(file.compare("title", "obschart.title"));
}
