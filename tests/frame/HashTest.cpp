#include "ORV/Hash.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

using namespace ORV;

namespace {
struct Station {
    char id[8];
    float lat;
};
} // namespace

TEST(Hash, FindsTextsInOneKeySpace) {
    Hash hash;
    for (int i = 0; i < 5000; i++)
        hash.enter(("key" + std::to_string(i)).c_str(), std::to_string(i).c_str());
    EXPECT_EQ(hash.getNum(), 5000);
    EXPECT_STREQ(hash.search("key4711"), "4711");
    EXPECT_EQ(hash.searchInt("key4711"), 4711);
    EXPECT_EQ(hash.search("Key4711"), nullptr);
    hash.enter("key4711", "a longer text than the one before");
    EXPECT_STREQ(hash.search("key4711"), "a longer text than the one before");
    EXPECT_EQ(hash.getNum(), 5000);
    hash.enter("\xC3\xA9", "beyond ASCII");
    EXPECT_STREQ(hash.search("\xC3\xA9"), "beyond ASCII");
}

TEST(Hash, WalksInInsertionOrder) {
    Hash hash(3, 0, 1);
    EXPECT_EQ(hash.first(), nullptr);
    EXPECT_EQ(hash.nextKey(), nullptr);
    const std::vector<std::string> keys = {"z", "a", "m", "b", "y"};
    for (const std::string& key : keys)
        hash.enter(key.c_str(), ("data " + key).c_str());
    hash.enter("a", "data a");
    std::vector<std::string> data, walked;
    for (const char* p = hash.first(); p; p = hash.next())
        data.push_back(p + 5);
    EXPECT_EQ(data, keys);
    hash.first();
    while (const char* key = hash.nextKey())
        walked.push_back(key);
    EXPECT_EQ(walked, keys);
    hash.clear();
    EXPECT_EQ(hash.getNum(), 0);
    EXPECT_EQ(hash.search("a"), nullptr);
    EXPECT_EQ(hash.getSize(), 3);
}
