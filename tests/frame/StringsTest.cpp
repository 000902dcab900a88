#include "ORV/Strings.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <string>

using namespace ORV;

namespace {
std::string fieldsOf(const Strings& list) {
    std::string fields;
    for (int i = 0; i < list.getNum(); i++)
        fields += std::string("<") + list.getString(i) + ">";
    return fields;
}
} // namespace

TEST(Strings, SplitsAtDelimiters) {
    for (const Row& c : readTable("frame/split_texts.txt")) {
        const Strings list(c.text("text"), ',', c.integer("maxfields"));
        EXPECT_EQ(fieldsOf(list), c.text("fields")) << c.text("what");
        EXPECT_EQ(list.max, list.num) << c.text("what");
    }
    EXPECT_EQ(Strings(nullptr, ',').getString(0), nullptr);
    EXPECT_EQ(fieldsOf(Strings(" a  b\tc\n")), "<a><b><c>");
}

TEST(Strings, ProtectsStretches) {
    for (const Row& c : readTable("frame/protected_texts.txt"))
        EXPECT_EQ(fieldsOf(Strings(c.text("text"), ',', -1, c.text("quotes"))), c.text("fields"));
}
