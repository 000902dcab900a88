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

TEST(Hash, NumbersAndWhatIsAbsent) {
    Hash whole(1);
    whole.enter("a", 7);
    whole.enter("zero", 0);
    EXPECT_EQ(whole.searchInt("a"), 7);
    EXPECT_EQ(whole.searchFloat("a"), 7.0f);
    EXPECT_TRUE(whole.searchBool("a"));
    EXPECT_FALSE(whole.searchBool("zero"));
    EXPECT_EQ(whole.searchInt("b"), -9999);
    EXPECT_FALSE(whole.searchBool("b"));
    EXPECT_EQ(whole.searchFloat("b"), 0.0f);
    Hash real(3);
    real.enter("a", 2.75f);
    real.enter("a", -2.75f);
    EXPECT_EQ(real.searchFloat("a"), -2.75f);
    EXPECT_EQ(real.searchInt("a"), -2);
    Hash text;
    text.enter("a", "1.5e3");
    EXPECT_EQ(text.searchFloat("a"), 1500);
}

TEST(Hash, BlocksAreSharedByTheirKeys) {
    Hash hash(10, sizeof(Station), 3);
    const Station ord = {"KORD", 41.98f};
    const Station mdw = {"KMDW", 41.79f};
    EXPECT_EQ(hash.enter("KORD", "72530", "ORD", &ord), 1);
    EXPECT_EQ(hash.enter("KMDW", "72534", "MDW", &mdw), 1);
    EXPECT_EQ(hash.enter("KXXX", &mdw), 0); // two keys short
    EXPECT_EQ(hash.search("KORD"), hash.search(2, "ORD"));
    Station found;
    std::memcpy(&found, hash.search(1, "72534"), sizeof found);
    EXPECT_STREQ(found.id, "KMDW");
    EXPECT_EQ(hash.search(0, "72534"), nullptr);
    EXPECT_EQ(hash.search(3, "KORD"), nullptr);
    EXPECT_EQ(hash.getNum(), 2);
}

TEST(Hash, AllKnownKeysSeeTheNewValue) {
    Hash hash(100, 0, 2);
    hash.enter("a", "1", "first");
    hash.enter("b", "2", "second");
    // Keys of two records: both lead to the new value, the rest of those records keeps theirs.
    hash.enter("a", "2", "third");
    EXPECT_EQ(hash.getNum(), 2);
    EXPECT_STREQ(hash.search(0, "a"), "third");
    EXPECT_STREQ(hash.search(1, "2"), "third");
    EXPECT_STREQ(hash.search(1, "1"), "first");
    EXPECT_STREQ(hash.search(0, "b"), "second");
}

TEST(Hash, AKeyKnownInOneSpaceOnlyKeepsItsOlderEntry) {
    Hash hash(100, 0, 2);
    hash.enter("a", "1", "first");
    hash.enter("b", "1", "second");
    EXPECT_STREQ(hash.search(1, "1"), "first");
    EXPECT_STREQ(hash.search(0, "b"), "second");
    EXPECT_EQ(hash.getNum(), 2);
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
