#include "TimeFixture.h"

using namespace ORV;

namespace {
std::string encode(const char* pattern, const Date& date) {
    NameConv conv((std::string("@") + pattern).c_str());
    conv.setExt("cvt");
    conv.setForeTime(7);
    conv.setKey('k', "north");
    String name;
    conv.encodeFile(date, name);
    return name.get();
}
} // namespace

class NameConvCase : public TimeFixture {
protected:
    NameConvCase() {
        Orv::putResrc("file_path", dir.path.c_str());
        Orv::putResrc("con_path", dir.path.c_str());
        dir.write("name.cnv",
                  "# tag pattern\n"
                  "short %Y\n"
                  "sfc       %C/%Y%m%d%h_sfc.%e   %C/%Y.hdr  20,sfc  min=60\n"
                  "sfc_cvt   %C/%Y%m%d%h.dat      -          raw_word,7\n"
                  "radar     %C/%Y%m%d%h%5n.rad   -          img  min=3000,size=-9999\n");
    }
    std::string latest(NameConv& conv, const char* text) const {
        NameConvFile result;
        conv.setLatest(text, result);
        return shorten(result.filename);
    }
    /// A convention of hourly files in the folder of this test, with some files.
    NameConv makeHourly() const {
        dir.write("2007011216.dat", "data");
        dir.write("2007011218.dat", "");
        dir.write("2007011211.dat", "data");
        NameConv conv("@%D/%Y%m%d%h.dat");
        conv.setPath(dir.path.c_str());
        return conv;
    }
};

TEST_F(NameConvCase, LooksUpTheFirstTagThatFits) {
    NameConv conv("sfc_cvt");
    EXPECT_STREQ(conv.file, "%C/%Y%m%d%h_sfc.%e");
    EXPECT_STREQ(conv.hdr, "%C/%Y.hdr");
    EXPECT_STREQ(conv.ext, "cvt");
    EXPECT_STREQ(conv.type, "sfc");
    EXPECT_EQ(conv.min_size, 20);
    EXPECT_EQ(conv.min_time, 60);
    EXPECT_EQ(conv.off, 3600);
    conv.set("RADAR:k=north:j=x,,,size=5");
    EXPECT_STREQ(conv.file, "%C/%Y%m%d%h%5n.rad");
    EXPECT_STREQ(conv.hdr, "");
    EXPECT_STREQ(conv.type, "img");
    EXPECT_STREQ(conv.getKey('k'), "north");
    EXPECT_STREQ(conv.getKey('j'), "x");
    EXPECT_STREQ(conv.getKey('z'), "");
    EXPECT_EQ(conv.min_size, 5) << "the text wins over the file";
    EXPECT_EQ(conv.off, 300);
}

TEST_F(NameConvCase, KeptConventionsNameFilesInOrderOfTime) {
    Orv::putResrc("file_path", ORV_DATA);
    NameConv conv("sfc_cvt");
    EXPECT_EQ(conv.off, 3600);
    std::string last;
    for (Date date(2006, 12, 31, 22, 0, 0); date < Date(2007, 1, 1, 3, 0, 0); date += 3600) {
        String name;
        conv.encodeFile(date, name);
        EXPECT_LT(last, name.get());
        last = name.get();
        Date back;
        EXPECT_EQ(conv.decode(name.get()), 1);
        conv.getDate(back);
        EXPECT_EQ(back.secs, date.secs);
    }
    EXPECT_EQ(last, dir.path + "/2007010102_sfc.cvt");
}

TEST(NameConv, EncodesEachDirective) {
    const Date date(2007, 1, 12, 17, 20, 30);
    for (const Row& c : readTable("time/encodes_each_directive.txt"))
        EXPECT_EQ(encode(c.text("pattern"), date), c.text("name")) << c.text("pattern");
    EXPECT_EQ(encode("%Y%y%m%B%b%d%h%n|%j", Date()), "00000000XXXxxx000000|");
}

TEST_F(NameConvCase, DecodesNames) {
    for (const Row& c : readTable("time/decodes_names.txt")) {
        NameConv conv((std::string("@") + c.text("pattern")).c_str());
        const int fits = conv.decode(c.text("name"));
        EXPECT_EQ(fits, *c.text("date") != 0) << c.text("name");
        if (fits) {
            EXPECT_EQ(write(conv.date), c.text("date")) << c.text("name");
        }
    }
}

TEST(NameConv, FixedHoursAreNeverInTheFuture) {
    for (const Row& c : readTable("time/fixed_hours_are_never_in_the_future.txt")) {
        NameConv conv("@%Y%m%d%h");
        conv.setFixDate(c.text("fix"));
        NameConvFile result;
        conv.setLatest(c.text("base"), result);
        EXPECT_STREQ(result.filename, c.text("name")) << c.text("fix") << " at " << c.text("base");
    }
}

TEST_F(NameConvCase, RequestsRelativeToNow) {
    NameConv conv = makeHourly();
    for (const Row& c : readTable("time/requests_relative_to_now.txt"))
        EXPECT_EQ(latest(conv, c.text("text")), c.text("name")) << c.text("text");
    EXPECT_EQ(latest(conv, nullptr), "2007011216.dat");
}

TEST_F(NameConvCase, SearchesStopAtTheirLimit) {
    NameConv conv = makeHourly();
    EXPECT_EQ(latest(conv, "2007011215la#3"), "2007011213.dat");
    conv.setLateLimit(2);
    EXPECT_EQ(latest(conv, "2007011215la"), "2007011214.dat");
    conv.min_time = 240;
    EXPECT_EQ(latest(conv, "2007011215la"), "2007011211.dat") << "at least four hours back";
    conv.setOutput(true);
    EXPECT_EQ(latest(conv, "2007011215la"), "2007011215.dat") << "output needn't exist";

    NameConv single("@no_time.dat");
    EXPECT_EQ(latest(single, "la"), "no_time.dat");
}

TEST_F(NameConvCase, PathsAreSearchedOneByOne) {
    dir.write("a/2007011203.dat", "data");
    dir.write("b/2007011217.dat", "data");
    NameConv conv("@%D/%Y%m%d%h.dat");
    conv.setPath((dir.path + "/none:" + dir.path + "/a:" + dir.path + "/b").c_str());
    EXPECT_EQ(latest(conv, "la"), "a/2007011203.dat");
    EXPECT_EQ(latest(conv, "1"), "b/2007011217.dat");
    EXPECT_EQ(conv.cpath, 2);
    EXPECT_EQ(latest(conv, "5"), "none/2007011213.dat");
    EXPECT_EQ(conv.npath, 3);

    Orv::putResrc("data_path", "+mine");
    Orv::putResrc("mine", (dir.path + "/b").c_str());
    conv.setPath("");
    EXPECT_EQ(latest(conv, "la"), "b/2007011217.dat");
    EXPECT_EQ(conv.setPath("res=mine"), 1);
    EXPECT_EQ(conv.getPath(), dir.path + "/b");
    EXPECT_EQ(conv.setPath("+unknown"), 0);
    conv.set("@%{mine}/%Y%m%d%h.dat");
    conv.setPath("");
    EXPECT_EQ(latest(conv, "la"), "b/2007011217.dat");
}

TEST_F(NameConvCase, TimeBasesInTheirOrder) {
    NameConv conv("@%Y%m%d%h");
    EXPECT_EQ(latest(conv, ""), "2007011218");
    setenv("orvcurtime", "#2008", 1);
    EXPECT_EQ(latest(conv, ""), "2008010100");
    conv.setLateDate(Date(2005, 5, 5, 5, 5, 5));
    EXPECT_EQ(latest(conv, ""), "2005050505");
    Orv::init_time = 0;
    EXPECT_EQ(latest(conv, ""), "1970010100");
}
