#include "ORV/Resrc.h"

#include "ORV/OrvResrc.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace ORV;

TEST(Resrc, NumbersNeedADigitInFront) {
    Resrc store;
    const struct {
        const char* value;
        int whole;
        float number;
    } cases[] = {{"12.5mb", 12, 12.5f}, {"-5", 3, 4.5f},  {".5", 3, 4.5f},
                 {"", 3, 4.5f},         {"inf", 3, 4.5f}, {"0", 0, 0}};
    for (const auto& c : cases) {
        store.put("x", c.value);
        EXPECT_EQ(store.get("x", 3), c.whole) << c.value;
        EXPECT_EQ(store.get("x", 4.5f), c.number) << c.value;
    }
    EXPECT_EQ(store.get("absent", 3), 3);
}

TEST(OrvResrc, RowsAgreeWithTheirHelp) {
    std::set<std::string> names, variables, options;
    ResrcDBItem item;
    int count = 0;
    for (; OrvResrc::get(count, item); count++) {
        EXPECT_TRUE(names.insert(item.name).second) << item.name;
        EXPECT_TRUE(variables.insert(item.env).second) << item.env;
        if (count == OrvResrc::filename)
            continue; // it is positional
        EXPECT_TRUE(options.insert(item.cmdln).second) << item.cmdln;
        EXPECT_EQ(std::string(item.help).find(std::string("-") + item.cmdln + " "), 0u)
            << item.help;
    }
    EXPECT_EQ(count, 73);
    EXPECT_EQ(OrvResrc::get(-1, item), 0);
    OrvResrc::get(OrvResrc::plot_domain, item);
    EXPECT_STREQ(item.name, "plot_domain");
    OrvResrc::get(OrvResrc::vect_mag, item);
    EXPECT_STREQ(item.name, "vect_mag");
}
