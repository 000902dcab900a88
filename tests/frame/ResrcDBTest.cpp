#include "ORV/ResrcDB.h"

#include "ORV/OrvResrc.h"
#include "ORV/ResrcCL.h"
#include "ORV/ResrcEnv.h"
#include "ORV/String.h"
#include "ORV/Strings.h"

#include "frame/FrameFixture.h"

using namespace ORV;

namespace {
class ResrcDBTest : public FrameFixture {
protected:
    ResrcDBTest() {
        for (const int id :
             {OrvResrc::BASE, OrvResrc::PATH, OrvResrc::DOMAIN, OrvResrc::PLOT, OrvResrc::DEVICE})
            OrvResrc::add(keyed, id);
        OrvResrc::add(positional, OrvResrc::filename);
    }
    void create(std::vector<const char*> args) {
        args.insert(args.begin(), "/usr/bin/obschart");
        Strings list(static_cast<int>(args.size()), args.data());
        ResrcDB::create(list, keyed, positional);
    }
    /// Sets everything anew by these arguments and gives one setting; "(unset)" when it isn't set.
    std::string getAfter(const std::vector<const char*>& args, const char* name) {
        Orv::resrc.clear();
        create(args);
        return Orv::getResrc(name, "(unset)");
    }

    ResrcDBList keyed, positional;
};
using ResrcEnvTest = FrameFixture;
} // namespace

TEST(ResrcCL, TellsOptionsFromArguments) {
    const struct {
        std::vector<const char*> args;
        const char* read;
    } cases[] = {
        {{"-pd", "us", "foo.dat", "bar.dat"}, "pd=us 0:foo.dat 1:bar.dat "},
        {{"-pl=cf", "--pl=cf"}, "pl=cf pl=cf "},
        {{"-le", "-5", "-ho", "--5", "-h"}, "le=-5 ho=--5 h= "},
        {{"-ic", "-iv", "x"}, "ic= iv=x "},
        {{"-", "-5", "--5", "", "--", "-me", "none"}, "0:- 1:-5 2:--5 3: = me=none "},
        {{"-va=a=b,c", "-x="}, "va=a=b,c x= "},
        {{"-ti", ""}, "ti= "},
    };
    for (const auto& c : cases) {
        std::vector<const char*> args = c.args;
        args.insert(args.begin(), "obschart");
        ResrcCL line(Strings(static_cast<int>(args.size()), args.data()));
        std::string read;
        String key, value;
        for (int kind; (kind = line.getKeyed(key, value)) >= 0;) {
            read += kind ? key.get() : std::to_string(line.getPosition(value));
            read += kind ? "=" : ":";
            read += std::string(value.get()) + " ";
        }
        EXPECT_EQ(read, c.read);
        EXPECT_EQ(line.getPosition(value), -1);
        line.rewind();
        EXPECT_NE(line.getKeyed(key, value), -1);
    }
}

TEST_F(ResrcEnvTest, TriesTheComposedNameFirst) {
    String value;
    Resrc store;
    store.put("prog", "obschart");
    store.put("name", "obschart");
    EXPECT_EQ(ResrcEnv::get(store, "background", "orvback", value), 0);
    setVariable("orvbackground", "third");
    EXPECT_EQ(ResrcEnv::get(store, "background", "orvback", value), 1);
    EXPECT_STREQ(value.get(), "third");
    setVariable("orvback", "second");
    ResrcEnv::get(store, "background", "orvback", value);
    EXPECT_STREQ(value.get(), "second");
    setVariable("orv_obschart_background", "");
    ResrcEnv::get(store, "background", "orvback", value);
    EXPECT_STREQ(value.get(), "");
    store.put("name", "+night");
    setVariable("orv_obschart_night_background", "night");
    ResrcEnv::get(store, "background", "orvback", value);
    EXPECT_STREQ(value.get(), "night");
    store.put("name", "other");
    setVariable("orv_other_background", "other");
    ResrcEnv::get(store, "background", "orvback", value);
    EXPECT_STREQ(value.get(), "other");
}

TEST_F(ResrcDBTest, OptionsGoByShortNameThenByTheirBeginning) {
    EXPECT_EQ(getAfter({"-pl", "cf"}, "plot_type"), "cf");
    EXPECT_EQ(getAfter({"-plot_t=cf"}, "plot_type"), "cf");
    EXPECT_EQ(getAfter({"--plot_type=cf"}, "plot_type"), "cf");
    // "de" is the option of the device, and stands nowhere for the beginning of another.
    EXPECT_EQ(getAfter({"-de", "ps"}, "device"), "ps");
    // "plot" begins several names: the first one listed takes it.
    EXPECT_EQ(getAfter({"-plot=us"}, "plot_domain"), "us");
    EXPECT_EQ(getAfter({"-xyz=1"}, "xyz"), "1");
    EXPECT_EQ(getAfter({"-PL=cf"}, "plot_type"), "(unset)");
    EXPECT_EQ(getAfter({"--", "x"}, "filename"), "x");
    EXPECT_EQ(getAfter({"-h", "word"}, "filename"), "(unset)");
    EXPECT_EQ(getAfter({"-h", "word"}, "help"), "word");
}

TEST_F(ResrcDBTest, NameAndPathSteerTheFiles) {
    writeFile("a.cfg", "obschart.title day\nnight.title dark\nobschart.night.title both\n");
    EXPECT_EQ(getAfter({"-df", "a.cfg"}, "title"), "day");
    EXPECT_EQ(getAfter({"-na", "night", "-df=a.cfg"}, "title"), "dark");
    EXPECT_EQ(getAfter({"-DEFAULT=a.cfg", "-n=+night"}, "title"), "both");
    EXPECT_STREQ(Orv::getResrc("name"), "+night");
    EXPECT_STREQ(Orv::getResrc("prog"), "obschart");
    EXPECT_EQ(getAfter({"-df", "missing.cfg:a.cfg"}, "title"), "day");
    writeFile("orv.cfg", "*.title unread\n");
    EXPECT_EQ(getAfter({"-df="}, "title"), "(unset)");
}

TEST_F(ResrcDBTest, WildcardsMatchSeveralSettings) {
    writeFile("orv.cfg", "*.color_map red\n*title Noon\nobschart* lost\n");
    create({});
    EXPECT_STREQ(Orv::getResrc("title"), "Noon");
    EXPECT_STREQ(Orv::getResrc("color_map"), "red"); // not one that is registered here
}
