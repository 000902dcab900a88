#include "ORV/Orv.h"

#include "ORV/Prog.h"
#include "ORV/String.h"

#include "Table.h"
#include "frame/FrameFixture.h"

#include <cstdio>

using namespace ORV;

namespace {
class OrvTest : public FrameFixture {
protected:
    /// What one message of each kind gives on the two streams.
    static std::string sendAll() {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        Orv::outMessage("plain ");
        Orv::outMessage(4, "%s ", "banner");
        Orv::outWarning("warning ");
        Orv::outError("error ");
        Orv::outDebug("debug ");
        Orv::outDebug(2, "debug%d ", 2);
        return testing::internal::GetCapturedStdout() + "| " +
               testing::internal::GetCapturedStderr();
    }
    static int maskAfter(const char* text) {
        Orv::message_mask = 63;
        Orv::setMessageLevel(text);
        return Orv::message_mask;
    }
    static void feed(const std::string& input) {
        writeFile("input", input);
        ASSERT_NE(std::freopen("input", "r", stdin), nullptr);
    }
};
using PromptTest = OrvTest;
} // namespace

TEST_F(OrvTest, LevelsChooseMessages) {
    for (const Row& c : readTable("frame/levels_choose_messages.txt")) {
        maskAfter(c.text("text"));
        EXPECT_EQ(sendAll(), c.text("sent")) << c.text("text");
    }
}

TEST_F(PromptTest, AsksUntilItIsAnswered) {
    feed("set title = Noon map\nset\n  answer here \n");
    testing::internal::CaptureStdout();
    const String answer = Prog::prompt("100%% sure? ");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "100% sure? 100% sure? Set resources\ntitle: Noon map\n\n100% sure? ");
    EXPECT_STREQ(answer.get(), "  answer here");
    EXPECT_STREQ(Orv::getResrc("title"), "Noon map");
}

TEST_F(PromptTest, EndsAtAnEmptyLineAndAtTheEnd) {
    feed("\n" + std::string(500, 'x') + "\nnext\n");
    testing::internal::CaptureStdout();
    char buffer[10] = "old";
    EXPECT_EQ(Prog::prompt("? ", buffer, sizeof buffer), 1);
    EXPECT_STREQ(buffer, "");
    Prog::prompt("%s? ", buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "xxxxxxxx");
    Prog::prompt("? ", buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "next");
    EXPECT_EQ(Prog::prompt("? ", buffer, sizeof buffer), 0);
    EXPECT_STREQ(buffer, "");
    // A prompt that isn't a whole format is shown as it is.
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "? %s? ? ? ");
}

TEST_F(OrvTest, ReadsResourceFilesLater) {
    writeFile("a.cfg", "IF extra\n*.title tagged\nELSE\n*.title plain\nEND\ntool.label "
                       "1\nother.label 2\n*.message warn\n"
                       "*.file_path /base\n*.cur_time 20240510_12\n");
    Prog::readResrcFile("tool", "extra", "a.cfg");
    EXPECT_STREQ(Orv::getResrc("title"), "tagged");
    EXPECT_STREQ(Orv::getResrc("label"), "1");
    EXPECT_EQ(Orv::getResrcType("label"), 5);
    EXPECT_EQ(Orv::message_mask, 7);
    EXPECT_STREQ(Orv::getDatabasePath(), "/base");
    EXPECT_EQ(Orv::getInitTime(), 1715342400); // 2024-05-10 12:00 UTC
    setVariable("orvdefault", "a.cfg");
    Prog::readResrcFile(nullptr, nullptr);
    EXPECT_STREQ(Orv::getResrc("title"), "plain");
}
