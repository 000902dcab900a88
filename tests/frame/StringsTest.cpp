#include "ORV/Strings.h"

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
        {"", -1, {}, "empty text"},
        {"\"a,b\",c", -1, {"a,b", "c"}, "quoted"},
        {"x\"a,b\"", -1, {"x\"a", "b\""}, "quote inside a field"},
        {"\"a\"b,c\",d", -1, {"a\"b,c", "d"}, "quote that no delimiter follows"},
        {"\"a,b", -1, {"\"a,b"}, "quote left open"},
        {"\"\",b", -1, {"", "b"}, "quoted empty field"},
        {"\"", -1, {"\""}, "quote alone"},
        {"a,b,c", 2, {"a", "b,c"}, "rest in the last field"},
        {"a,\"b,c\",\"d\"", 2, {"a", "\"b,c\",\"d\""}, "rest keeps its quotes"},
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
