#include "ORV/Resrc.h"

#include "ORV/OrvResrc.h"
#include "ORV/String.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using namespace ORV;

TEST(Resrc, LaterValuesReplaceEarlierOnes) {
    Resrc store;
    store.add("title", "from file", 2);
    store.add("Title", "another name", 2);
    store.add("title", "from command line", 4);
    EXPECT_STREQ(store.get("title"), "from command line");
    EXPECT_EQ(store.getType("title"), 4);
    store.add("title", nullptr, 3);
    EXPECT_STREQ(store.get("title"), "");
    EXPECT_EQ(store.get("titl"), nullptr);
    EXPECT_EQ(store.getType("titl"), 0);
    // A value may come out of the store itself.
    store.put("title", store.get("Title"));
    store.put("title", store.get("title"));
    EXPECT_STREQ(store.get("title"), "another name");
}

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

TEST(Resrc, FlagsAreOnUnlessTheySayNo) {
    Resrc store;
    const struct {
        const char* value;
        bool on;
    } cases[] = {{"", true},    {"yes", true},  {"0", true},
                 {"No", false}, {"OFF", false}, {"false", false}};
    for (const auto& c : cases) {
        store.put("flag", c.value);
        EXPECT_EQ(store.getBool("flag"), c.on) << c.value;
    }
    EXPECT_FALSE(store.getBool("absent"));
}

TEST(Resrc, JoinsValues) {
    Resrc store;
    store.append("file", "b", ',');
    EXPECT_EQ(store.getType("file"), 0);
    store.add("file", "b", 4);
    store.append("file", "c");
    store.prepend("file", "a", ',');
    EXPECT_STREQ(store.get("file"), "a,b\nc");
    EXPECT_EQ(store.getType("file"), 4);
    EXPECT_EQ(store.append("file", nullptr), 0);
    store.add("file", nullptr, 3);
    store.append("file", "alone", ',');
    EXPECT_STREQ(store.get("file"), "alone");
    EXPECT_EQ(store.getType("file"), 3);
}

TEST(Resrc, WalksAndCopies) {
    Resrc store;
    store.put("b", "1");
    store.add("a", "2", 2);
    store.add("c", nullptr, 3);
    Resrc copied = store;
    store.clear();
    EXPECT_EQ(store.get("b"), nullptr);
    std::vector<std::string> walked;
    String name, value;
    for (int next = 0; copied.getValues(name, value, next); next = 1)
        walked.push_back(std::string(name.get()) + "=" + value.get());
    EXPECT_EQ(walked, (std::vector<std::string>{"b=1", "a=2", "c="}));
    copied.rewind();
    EXPECT_STREQ(copied.getNext(), "b");
    int number = 0;
    EXPECT_EQ(copied.scanf("a", "%d", &number), 1);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(copied.scanf("absent", "%d", &number), 0);

    testing::internal::CaptureStdout();
    copied.printAll();
    copied.print("a");
    copied.print("d");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "b: 1\na (file): 2\nc (env): \na: 2\nd: not set\n");
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

TEST(OrvResrc, GroupsListTheirSettingsInOrder) {
    ResrcDBList list;
    OrvResrc::add(list, OrvResrc::CURRENT);
    OrvResrc::add(list, OrvResrc::var_file);
    EXPECT_EQ(OrvResrc::add(list, OrvResrc::DEVICE + 1), 0);
    std::string names;
    list.rewind();
    while (const ResrcDBItem* item = list.next())
        names += std::string(item->name) + " ";
    EXPECT_EQ(names, "current hour num_hour timezone var_file ");
    EXPECT_STREQ(list.get(4)->name, "var_file");
    EXPECT_EQ(list.get(5), nullptr);
    EXPECT_EQ(list.get(-1), nullptr);
    for (const auto& [group, members] : {std::pair{OrvResrc::PATH, 9},
                                         {OrvResrc::COLOR, 8},
                                         {OrvResrc::COLOR_CONT, 5},
                                         {OrvResrc::DEVICE, 7},
                                         {OrvResrc::BASE, 2},
                                         {OrvResrc::PLOT, 6}}) {
        ResrcDBList part;
        OrvResrc::add(part, group);
        EXPECT_EQ(part.getNum(), members) << group;
    }
}
