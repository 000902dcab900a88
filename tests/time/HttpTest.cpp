#include "ORV/Date.h"
#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/NameConv.h"

#include "HttpServer.h"
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

using namespace ORV;

namespace {
std::string makeLines(int n) {
    std::string text;
    for (int i = 0; i < n; i++)
        text += "report " + std::to_string(i) + "\n";
    return text;
}

std::string readAll(const std::string& url) {
    File file(url.c_str(), "r");
    std::string text(4000000, ' ');
    const int n = file.read(text.data(), int(text.size()));
    text.resize(std::max(n, 0));
    return text;
}

/// Whether the library that transfers files is in this process.
bool isLibraryLoaded() {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.find("libcurl") != std::string::npos)
            return true;
    return false;
}

const std::string chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                            "5\r\nfirst\r\n7\r\n second\r\n0\r\n\r\n";
const std::string cut = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nline 1\nline";
const std::string moved = "HTTP/1.1 301 Moved Permanently\r\nLocation: /obs\r\n"
                          "Content-Length: 6\r\n\r\nmoved\n";
const std::string found = "HTTP/1.1 302 Found\r\nLocation: /obs\r\nContent-Length: 0\r\n\r\n";
} // namespace

class Http : public testing::Test {
protected:
    void SetUp() override { setenv("no_proxy", "127.0.0.1", 1); }

    HttpServer server{{
        {"/obs", HttpServer::page("18Z\n\nlast")},
        {"/long", HttpServer::page(makeLines(30000))},
        {"/empty", HttpServer::page("")},
        {"/chunked", chunked},
        {"/cut", cut},
        {"/moved", moved},
        {"/found", found},
        {"/noise", "SMTP ready\r\n\r\n"},
        {"/data/2007011206.cvt", HttpServer::page("x")},
        {"/data", HttpServer::page("index")},
    }};
    char line[80] = "";
};

TEST_F(Http, LibraryIsLoadedByTheFirstRemoteName) {
    if (isLibraryLoaded())
        GTEST_SKIP() << "an earlier test in this process has loaded it";
    File plain("/dev/null", "r");
    EXPECT_FALSE(isLibraryLoaded());
    FileTool::exist(server.url("/obs").c_str());
    EXPECT_TRUE(isLibraryLoaded());
}

TEST_F(Http, LinesComeWithoutTheirNewline) {
    File file(server.url("/obs").c_str(), "r");
    ASSERT_TRUE(file.isOpen());
    EXPECT_EQ(file.type, 7);
    EXPECT_NE(file.easy, nullptr);
    EXPECT_EQ(file.getLine(line, sizeof line), 3);
    EXPECT_STREQ(line, "18Z");
    EXPECT_EQ(file.getLine(line, sizeof line), 1) << "an empty line isn't the end";
    EXPECT_STREQ(line, "\n");
    EXPECT_EQ(file.getLine(line, 3), 2) << "piece of a line";
    EXPECT_STREQ(line, "la");
    EXPECT_EQ(file.getLine(line, sizeof line), 2);
    EXPECT_STREQ(line, "st");
    EXPECT_EQ(file.getLine(line, sizeof line), 0);
    EXPECT_EQ(file.close(), 1);
    EXPECT_FALSE(file.isOpen());
}

TEST_F(Http, LongFilesArriveWhole) {
    const std::string expected = makeLines(30000);
    EXPECT_EQ(readAll(server.url("/long")), expected);

    File file(server.url("/long").c_str(), "r");
    EXPECT_EQ(file.skipLine(), 1);
    std::string text = "report 0\n";
    while (const int n = file.getLine(line, sizeof line))
        text.append(line, n) += '\n';
    EXPECT_EQ(text, expected);
    EXPECT_EQ(file.skipLine(), 0);
}

TEST_F(Http, OnlyWhatIsntReadYetIsKept) {
    const std::string block(100000, 'x');
    std::string body;
    for (int i = 0; i < 100; i++)
        body += block;
    const HttpServer big({{"/big", HttpServer::page(body)}});
    File file(big.url("/big").c_str(), "r");
    std::string bytes(block.size(), ' ');
    int blocks = 0;
    while (file.read(bytes.data(), int(bytes.size())) == int(bytes.size()) && bytes == block)
        blocks++;
    EXPECT_EQ(blocks, 100);
    EXPECT_LT(file.buf.max, 5000000);
}

TEST_F(Http, FilesWithoutASize) {
    EXPECT_EQ(readAll(server.url("/chunked")), "first second");
    EXPECT_EQ(FileTool::getSize(server.url("/chunked").c_str()), 12);
    EXPECT_EQ(readAll(server.url("/empty")), "");
    EXPECT_EQ(FileTool::getSize(server.url("/empty").c_str()), 0);
}

TEST_F(Http, WhatArrivedOfACutFileIsRead) {
    EXPECT_EQ(readAll(server.url("/cut")), "line 1\nline");
}

TEST_F(Http, PagesOfARefusalAreNoData) {
    for (const char* path : {"/absent", "/moved", "/found", "/noise"})
        EXPECT_EQ(readAll(server.url(path)), "") << path;
    File file(server.url("/absent").c_str(), "r");
    EXPECT_EQ(file.getLine(line, sizeof line), 0);
}

TEST_F(Http, DeadPortIsNoFile) {
    std::string url;
    {
        const HttpServer closed({});
        url = closed.url("/obs");
    }
    EXPECT_FALSE(FileTool::exist(url.c_str()));
    EXPECT_EQ(FileTool::getSize(url.c_str()), -1);
    EXPECT_EQ(readAll(url), "");
}

TEST_F(Http, SearchesFindRemoteFiles) {
    NameConv conv("@%D/%Y%m%d%h.cvt");
    conv.setPath(("/nowhere:" + server.url("/data")).c_str());
    NameConvFile result;
    conv.setLatest("2007011210la", result);
    EXPECT_EQ(result.filename, server.url("/data/2007011206.cvt"));
}
