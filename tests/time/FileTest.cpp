#include "ORV/File.h"

#include "ORV/FileTool.h"

#include "TempDir.h"
#include <gtest/gtest.h>

#include <string>

using namespace ORV;

namespace {
std::string find(const char* list, const char* name, int expected) {
    String out;
    EXPECT_EQ(FileTool::addPath(list, name, out), expected) << name;
    return out.get();
}
} // namespace

TEST(File, LinesOfAPlainFile) {
    const TempDir dir;
    File file(dir.write("lines", "first\n\nlonger line\nlast").c_str(), "r");
    ASSERT_TRUE(file.isOpen());
    char line[8];
    std::string pieces;
    for (int n; (n = file.getLine(line, sizeof line)) > 0;) {
        EXPECT_EQ(n, int(std::string(line).size()));
        pieces += std::string(line) + "|";
    }
    EXPECT_EQ(pieces, "first\n|\n|longer |line\n|last|");

    EXPECT_EQ(file.rewind(), 1);
    EXPECT_EQ(file.skipLine(), 1);
    EXPECT_EQ(file.skipLine(), 1);
    String text(8);
    EXPECT_EQ(file.getLine(text), 7);
    EXPECT_EQ(text.length(), 7);
    EXPECT_STREQ(text.get(), "longer ");
    file.endFile();
    EXPECT_EQ(file.tell(), 23);
    EXPECT_EQ(file.skipLine(), 0);
}

TEST(File, ZeroBytesDontEndTheLines) {
    const TempDir dir;
    File file(dir.write("zeros", std::string("\0\0\nab\0c\nd\n", 10)).c_str(), "r");
    char line[20];
    EXPECT_EQ(file.getLine(line, sizeof line), 1);
    EXPECT_EQ(file.getLine(line, sizeof line), 2);
    EXPECT_STREQ(line, "ab");
    EXPECT_EQ(file.getLine(line, sizeof line), 2);
    EXPECT_STREQ(line, "d\n");
    EXPECT_EQ(file.getLine(line, sizeof line), 0);
}

TEST(File, BlocksOfAPlainFile) {
    const TempDir dir;
    File file(dir.write("bytes", "0123456789").c_str(), 0);
    char bytes[10];
    EXPECT_EQ(file.read(bytes, 2, 3), 3);
    EXPECT_EQ(file.seek(-1, SEEK_CUR), 1);
    Buffer buffer(3);
    EXPECT_EQ(file.read(buffer), 3);
    EXPECT_TRUE(buffer.equal(0, "567"));
    EXPECT_EQ(file.read(buffer), 0) << "no room";
    EXPECT_EQ(file.read(buffer, 2000000000), 5) << "a count far beyond the file";
    EXPECT_LT(buffer.max, 10000000);
    buffer.init(3);
    EXPECT_EQ(file.read(buffer), -1);
    EXPECT_EQ(file.read(bytes, -1), 0);
    int number = 0;
    file.rewind();
    EXPECT_EQ(file.scanf("%3d", &number), 1);
    EXPECT_EQ(number, 12);
}

TEST(File, WritesAndAppends) {
    const TempDir dir;
    const std::string path = dir.path + "/a/new/folder/out";
    File file(path.c_str(), "w");
    ASSERT_TRUE(file.isOpen());
    EXPECT_EQ(file.printf("%s %d\n", "value", 5), 8);
    EXPECT_EQ(file.open(path.c_str(), 2), 1) << "closes the one before";
    EXPECT_EQ(file.write("more", 4), 4);
    EXPECT_EQ(file.close(), 1);
    EXPECT_EQ(dir.read("a/new/folder/out"), "value 5\nmore");
    EXPECT_EQ(file.printf("x"), -1);
    EXPECT_EQ(file.write("x", 1), -1);
}

TEST(File, LostOutputShows) {
    File full("/dev/full", "w");
    ASSERT_TRUE(full.isOpen());
    full.printf("text");
    EXPECT_EQ(full.close(), 0);
}

TEST(File, PipesWriteOnly) {
    const TempDir dir;
    for (const bool bar : {true, false}) {
        const std::string command = "cat > " + dir.path + "/piped";
        File file((bar ? "|" + command : command).c_str(), bar ? "w" : "pw");
        ASSERT_TRUE(file.isOpen());
        EXPECT_EQ(file.type, 1);
        char line[10];
        EXPECT_EQ(file.getLine(line, sizeof line), 0);
        EXPECT_EQ(file.read(line, 5), -1);
        EXPECT_EQ(file.rewind(), 0);
        file.printf("to the %s", bar ? "bar" : "mode");
        EXPECT_EQ(file.close(), 1);
        EXPECT_EQ(dir.read("piped"), bar ? "to the bar" : "to the mode");
    }
}

TEST(File, WhatCantBeOpened) {
    const TempDir dir;
    File file;
    EXPECT_EQ(file.open((dir.path + "/absent").c_str(), "r"), 0);
    EXPECT_EQ(file.open(dir.path.c_str(), "r"), 0) << "a folder";
    EXPECT_EQ(file.open(dir.path.c_str(), 3), 0) << "no mode";
    EXPECT_EQ(file.open("", "r"), 0);
    EXPECT_FALSE(file.isOpen());
    char line[10];
    EXPECT_EQ(file.getLine(line, sizeof line), 0);
    EXPECT_EQ(file.read(line, 5), -1);
    EXPECT_EQ(file.skipLine(), 0);
}

TEST(FileTool, FindsAlongAList) {
    const TempDir dir;
    const std::string path = dir.write("b/f", "x");
    const std::string list = dir.path + "/a:" + dir.path + "/b:" + dir.path + "/c";
    EXPECT_EQ(find(list.c_str(), "f", 1), path);
    EXPECT_EQ(find(list.c_str(), "g", 0), dir.path + "/c/g");
    EXPECT_EQ(find(list.c_str(), path.c_str(), 1), path);
    EXPECT_EQ(find(list.c_str(), "./f", 0), "./f");
    EXPECT_EQ(find(list.c_str(), "-", 1), "-");
    EXPECT_EQ(find("", "f", 0), "f");
    EXPECT_EQ(FileTool::checkPath(list.c_str(), "f"), 1);

    String out("new");
    EXPECT_EQ(FileTool::addOutPath(list.c_str(), out.get(), out), 1);
    EXPECT_EQ(out.get(), dir.path + "/b/new");
    EXPECT_EQ(FileTool::addOutPath("/no/such:/neither", "new", out), 0);
    EXPECT_STREQ(out.get(), "/neither/new");
}
