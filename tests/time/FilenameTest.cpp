#include "ORV/Filename.h"

#include "TimeFixture.h"

using namespace ORV;

/// Hourly files of 11 and 16 UTC.
class FilenameCase : public TimeFixture {
protected:
    FilenameCase() {
        Orv::putResrc("data_path", dir.path.c_str());
        dir.write("2007011216.dat", "data");
        dir.write("2007011211.dat", "data");
        files.setNameConv("@%D/%Y%m%d%h.dat");
    }
    std::string name() const { return shorten(files.getName()); }

    Filename files;
};

TEST_F(FilenameCase, MeaningOfAnInput) {
    for (const Row& c : readTable("time/inputs.txt")) {
        SCOPED_TRACE(c.text("text"));
        files.hdr.set("header");
        std::string text = c.text("text");
        if (text[0] == '%')
            text.replace(0, 1, dir.path);
        EXPECT_EQ(files.setFile(text.c_str()), c.integer("exists"));
        EXPECT_EQ(name(), c.text("name"));
        EXPECT_EQ(files.isFixed(), c.integer("fixed"));
        EXPECT_FALSE(files.validHeader());
        if (*c.text("base")) {
            EXPECT_EQ(write(files.base_date), c.text("base"));
        }
    }
}

TEST_F(FilenameCase, SeveralFilesAreFrames) {
    EXPECT_EQ(files.setFile("a,b,c"), 0);
    EXPECT_EQ(files.getNumFiles(), 3);
    EXPECT_EQ(files.getNumType(), 2);
    EXPECT_EQ(files.setFile(1), 1);
    EXPECT_STREQ(files.getName(), "b");
    EXPECT_STREQ(files.getName(2), "c");
    EXPECT_EQ(files.setFile(3), 0);
    files.setFile("la");
    EXPECT_EQ(files.getNumFiles(), 1) << "the list is gone";
    EXPECT_EQ(files.getNumType(), 0);
    files.setFile("la,nh=-5:00,2");
    EXPECT_EQ(files.getNumFiles(), 3);
    EXPECT_EQ(files.getNumType(), 0);
    EXPECT_EQ(files.getOffset(), 7200);
    EXPECT_EQ(name(), "2007011216.dat");
}

TEST_F(FilenameCase, FramesCountFromTheBaseDate) {
    for (const Row& c : readTable("time/frames_count_from_the_base_date.txt")) {
        files.setFile("la");
        EXPECT_EQ(files.setNumFiles(c.text("text")), 1);
        EXPECT_EQ(files.getNumFiles(), c.integer("count")) << c.text("text");
        EXPECT_EQ(files.setFile(0), 1);
        EXPECT_EQ(name(), c.text("first_name")) << c.text("text");
        EXPECT_EQ(files.setFile(c.integer("last")), 1);
        EXPECT_EQ(name(), c.text("last_name")) << c.text("text");
        EXPECT_EQ(files.setFile(c.integer("count")), 0) << c.text("text");
    }
    EXPECT_EQ(files.setNumFiles(nullptr), 0);
    files.setNumFiles("99999999999:99999999999");
    EXPECT_GT(files.getNumFiles(), 500000);
    files.setNumFiles(-4);
    EXPECT_EQ(files.num_dir * files.num_file, -4);
}

TEST_F(FilenameCase, ListAndExitEndTheProgram) {
    EXPECT_EXIT(files.checkFile("exit"), testing::ExitedWithCode(0), "");
    Orv::putResrc("filename", "list");
    EXPECT_EXIT(files.setFile(), testing::ExitedWithCode(0), "");
}
