#include "ORV/ResrcFile.h"

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
    const struct {
        std::string text;
        const char* pairs;
        const char* what;
    } cases[] = {
        {"*.a 1\n# *.b 2\n *.c: 3 rest\n\n*.Alone\n", "*.a=1 *.c=3 ",
         "comments, colons, lone keys"},
        {"Color_Map Red", "color_map=Red ", "key in lower case, no newline at the end"},
        {"*.title \"Noon map\" rest\n", "*.title=Noon map ", "quoted"},
        {"*.title \"Noon map\n", "*.title=Noon map ", "quote left open"},
        {"*.title \"\"\n", "*.title= ", "quoted empty value"},
        {"*.a\tx\r\n", "*.a=x ", "tab and carriage return"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(read(c.text), c.pairs) << c.what;
}

TEST_F(ResrcFileTest, ConditionsChooseBranches) {
    const struct {
        const char *text, *pairs, *what;
    } cases[] = {
        {"IF no\na 1\nELSE\na 2\nEND\nb 3\n", "a=2 b=3 ", "else"},
        {"IF yes\na 1\nELIF yes\na 2\nELIF yes\na 3\nELSE\na 4\nEND\n", "a=1 ",
         "all behind a taken one are dead"},
        {"IF no\na 1\nELIF yes\na 2\nELSE\na 3\nEND\n", "a=2 ", "elif"},
        {"if V6\na 1\nend\n", "a=1 ", "built-in tag"},
        {"IF no\na 1\nELIF V6\na 2\nEND\n", "", "the built-in tag is none for elif"},
        {"IF no\nIF yes\na 1\nEND\nELSE\na 2\nEND\n", "a=2 ", "nested in a dead branch"},
        {"IF yes\nIF no\na 1\nELSE\na 2\nEND\na 3\nEND\n", "a=2 a=3 ", "nested in a live branch"},
        {"UNDEF YES\nIF yes\na 1\nEND\n", "undef=YES ", "undefined"},
        {"IF no\nDEF late\nEND\nIF LATE\na 1\nEND\n", "a=1 ", "defined in a dead branch"},
        {"IF\na 1\n", "a=1 ", "a word alone is no condition"},
    };
    for (const auto& c : cases) {
        ResrcFile file(Orv::resrc);
        file.setTag("yes");
        EXPECT_EQ(read(file, c.text), c.pairs) << c.what;
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
    const struct {
        const char* key;
        bool fits;
    } cases[] = {
        {"*color_map", true}, {"*chart*color*map", true},
        {"color_map", false}, {"obschart.*", false},
        {"*", false},         {"*.color_maps", false},
        {"*o*_map", true},    {"", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(file.compare("color_map", c.key), c.fits) << c.key;
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
