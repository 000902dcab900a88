#include "ORV/Strings.h"

#include "ORV/Const.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ORV;

namespace {
using Fields = std::vector<std::string>;

Fields fieldsOf(const Strings& list) {
    Fields fields;
    for (int i = 0; i < list.getNum(); i++)
        fields.push_back(list.getString(i) ? list.getString(i) : "(null)");
    return fields;
}
} // namespace

TEST(Strings, SplitsAtDelimiters) {
    const struct {
        const char* text;
        int maxfields;
        Fields fields;
        const char* what;
    } cases[] = {
        {"a,b,c", -1, {"a", "b", "c"}, "plain"},
        {"a,,b", -1, {"a", "", "b"}, "empty field"},
        {"a,", -1, {"a", ""}, "delimiter at the end"},
        {",", -1, {"", ""}, "delimiter alone"},
        {"", -1, {}, "empty text"},
        {"\"a,b\",c", -1, {"a,b", "c"}, "quoted"},
        {"c,\"a,b\"", -1, {"c", "a,b"}, "quoted at the end"},
        {"x\"a,b\"", -1, {"x\"a", "b\""}, "quote inside a field"},
        {"\"a\"b,c\",d", -1, {"a\"b,c", "d"}, "quote that no delimiter follows"},
        {"\"a,b", -1, {"\"a,b"}, "quote left open"},
        {"\"\",b", -1, {"", "b"}, "quoted empty field"},
        {"\"", -1, {"\""}, "quote alone"},
        {"a,b,c", 2, {"a", "b,c"}, "rest in the last field"},
        {"a,b,c", 3, {"a", "b", "c"}, "limit just reached"},
        {"a,\"b,c\",\"d\"", 2, {"a", "\"b,c\",\"d\""}, "rest keeps its quotes"},
        {"\"a,b\",c", 1, {"\"a,b\",c"}, "one field"},
    };
    for (const auto& c : cases) {
        const Strings list(c.text, ',', c.maxfields);
        EXPECT_EQ(fieldsOf(list), c.fields) << c.what;
        EXPECT_EQ(list.max, list.num) << c.what;
    }
    EXPECT_EQ(Strings(nullptr, ',').getString(0), nullptr);
    EXPECT_EQ(fieldsOf(Strings(" a  b\tc\n")), (Fields{"a", "b", "c"}));
}

TEST(Strings, ProtectsStretches) {
    const struct {
        const char* text;
        const char* quotes;
        Fields fields;
    } cases[] = {
        {"map[a,b],c", "\"[", {"map[a,b]", "c"}},
        {"f(a,(b,c),d)", "(", {"f(a,(b,c)", "d)"}}, // the first closer ends it
        {"x\"a,b\"y,c", "\"[", {"x\"a,b\"y", "c"}},
        {"\"a,b\",{c,d}", "\"{", {"a,b", "{c,d}"}},
        {"a[b,c", "[", {"a[b,c"}},
        {"a(b,c)", "[", {"a(b", "c)"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(fieldsOf(Strings(c.text, ',', -1, c.quotes)), c.fields) << c.text;
}

TEST(Strings, SetReplacesAllEvenByItsOwnField) {
    Strings list("a,b;c,d", ',');
    EXPECT_EQ(list.set(list.getString(1), ';'), 2);
    EXPECT_EQ(fieldsOf(list), (Fields{"b", "c"}));
    EXPECT_EQ(list.set("", ','), 0);
    EXPECT_EQ(list.getNum(), 0);
}

TEST(Strings, ReadsParameters) {
    const Strings list("ct=file,co=,ct,size=12.5x,n=-3", ',');
    EXPECT_STREQ(list.getStringAfter(0, '='), "file");
    EXPECT_STREQ(list.getStringAfter(1, '='), "");
    EXPECT_EQ(list.getStringAfter(2, '='), nullptr);
    EXPECT_EQ(list.getStringAfter(9, '='), nullptr);
    EXPECT_EQ(list.getFloatAfter(3, '='), 12.5f);
    EXPECT_EQ(list.getIntAfter(4, '='), -3);
    EXPECT_EQ(list.getIntAfter(1, '='), Const::MISS);
    EXPECT_EQ(list.getInt(4, 3), 3);
    EXPECT_STREQ(list.getString(0, 3), "file");
    EXPECT_EQ(list.getString(0, 7), nullptr);
    EXPECT_EQ(list.getString(0, -1), nullptr);
    EXPECT_FALSE(list.valid(-1));
    EXPECT_TRUE(list.equal(0, 3, "file"));
    EXPECT_TRUE(list.equal(3, "si", 2));
    EXPECT_TRUE(list.iequal(0, "CT=FILE"));
    EXPECT_EQ(list.find("ct"), 2);
    EXPECT_EQ(list.find("none"), -1);
}

TEST(Strings, EditsKeepTheirGaps) {
    Strings list;
    EXPECT_EQ(list.add(""), 0);
    list.add("a");
    list.set(3, "d");
    EXPECT_EQ(fieldsOf(list), (Fields{"a", "(null)", "(null)", "d"}));
    list.set(3, "");
    EXPECT_EQ(list.getString(3), nullptr);
    for (int i = 0; i < 30; i++)
        list.add(list.getString(0));
    EXPECT_EQ(list.getNum(), 34);
    const Strings copied = list;
    list.clear();
    EXPECT_STREQ(copied.getString(33), "a");
    EXPECT_EQ(list.getString(0), nullptr);
}

TEST(Strings, ArgumentsStayWhereTheyWere) {
    const char* argv[] = {"prog", "", "x"};
    const Strings list(3, argv);
    EXPECT_EQ(fieldsOf(list), (Fields{"prog", "", "x"}));
}
