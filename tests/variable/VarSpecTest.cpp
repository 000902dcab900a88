#include "ORV/VarSpec.h"

#include "ORV/Date.h"
#include "ORV/Timezone.h"

#include "Database.h"
#include "Table.h"

namespace ORV {
namespace {

constexpr float none = Const::MISS;

std::string text(const ForeTime& time) {
    String out;
    time.toString(out);
    return out.get();
}

std::string text(const Level& level) {
    String out;
    level.toString(out);
    return out.get();
}

TEST(Variable, ReadsAndWritesItsStatistic) {
    for (const Row& row : readTable("variable/statistics.txt")) {
        SCOPED_TRACE(row.text("text"));
        Variable var;
        EXPECT_EQ(var.decode(row.text("text")), 1);
        EXPECT_EQ(var.type, row.number("type"));
        EXPECT_FLOAT_EQ(var.val1, row.number("val1"));
        EXPECT_FLOAT_EQ(var.val2, row.number("val2"));
        EXPECT_STREQ(var.abbr, row.text("abbr"));
        String out;
        var.toAbbrCode(out);
        EXPECT_STREQ(out.get(), row.text("code"));
        var.toString(out);
        EXPECT_STREQ(out.get(), row.text("string"));
        var.toLabel(out);
        EXPECT_STREQ(out.get(), row.text("label"));
    }
    EXPECT_EQ(Variable().decode(nullptr), 0);
}

TEST(Variable, PacksIntoCodes) {
    for (const Row& row : readTable("variable/statistic_codes.txt")) {
        Variable var;
        var.decode(row.text("text"));
        EXPECT_EQ(var.toIndCode(), Const::MISS) << row.text("text");
        var.setInd(61);
        EXPECT_EQ(std::to_string(var.toIndCode()), row.text("code")) << row.text("text");
    }
}

class VarSpecs : public Database {
protected:
    VarSpecs() {
        write("variable.lup", "# names\n11 temp Temperature\n61 prec Total precipitation  \n");
    }
};

TEST_F(VarSpecs, ReadsItsParts) {
    for (const Row& row : readTable("variable/parts.txt")) {
        SCOPED_TRACE(row.text("text"));
        const VarSpec spec(row.text("text"));
        EXPECT_EQ(text(spec.fore), row.text("time"));
        EXPECT_EQ(text(spec.level), row.text("level"));
        EXPECT_STREQ(spec.var.abbr, row.text("abbr"));
        EXPECT_STREQ(spec.getUnits(), row.text("units"));
        EXPECT_STREQ(spec.format, row.text("format"));
        EXPECT_EQ(spec.plot, row.number("plot"));
        EXPECT_EQ(spec.abs, row.number("final"));
        EXPECT_EQ(spec.type, row.number("type"));
    }
    const VarSpec known("temp");
    EXPECT_EQ(known.getVarInd(), 11);
    EXPECT_STREQ(known.var.name, "Temperature");
    EXPECT_EQ(VarSpec("foo").getVarInd(), Const::MISS);
    EXPECT_EQ(VarSpec("prob[>5]prec[mm,cf]").getVarType(), 6);
}

TEST_F(VarSpecs, WritesTextsAndLabels) {
    String out("");
    const VarSpec spec("12hr-6acc:sfc:prec[mm]");
    spec.toString(out);
    EXPECT_STREQ(out.get(), "12hr-6acc:sfc:prec[mm]");
    spec.toInfoLabel(out);
    EXPECT_STREQ(out.get(), "6 hour acc Surface Total precipitation [mm]");
    VarSpec("temp").toInfoLabel(out);
    EXPECT_STREQ(out.get(), "Temperature ");

    const Date date(2007, 1, 12, 18, Const::MISS, Const::MISS);
    VarSpec("12hr:sfc:temp").toDateLabel(date, Timezone(), "", out);
    EXPECT_STREQ(out.get(), "12 hour valid 06Z SAT 13 JAN 07");
    VarSpec("anal:sfc:temp").toDateLabel(date, Timezone(), "", out);
    EXPECT_STREQ(out.get(), "Analysis for 18Z 12 JAN 07");
    VarSpec("temp").toDateLabel(date, Timezone(), "", out);
    EXPECT_STREQ(out.get(), "Data for 18Z 12 JAN 07");
}

TEST_F(VarSpecs, MergesTimes) {
    for (const Row& row : readTable("variable/merged_times.txt")) {
        SCOPED_TRACE(std::string(row.text("time")) + " with " + row.text("other"));
        VarSpec spec;
        VarSpec src;
        spec.setFore(row.text("time"));
        src.setFore(row.text("other"));
        spec.update(src);
        EXPECT_EQ(spec.fore.type, row.number("type"));
        EXPECT_FLOAT_EQ(spec.fore.tim1, row.number("tim1"));
        EXPECT_FLOAT_EQ(spec.fore.tim2, row.number("tim2"));
        EXPECT_FLOAT_EQ(spec.fore.off, row.number("off"));
        EXPECT_FLOAT_EQ(spec.fore.type_off, row.number("length"));
    }
}

TEST_F(VarSpecs, MergesPeriodsKnownByTheirLength) {
    const auto merge = [](const char* base, float length, float offset) {
        VarSpec spec;
        VarSpec src;
        spec.setFore(base);
        src.fore.set(4, none, length);
        src.fore.setOffset(offset);
        spec.update(src);
        return std::pair(spec.fore.tim1, spec.fore.tim2);
    };
    EXPECT_EQ(merge("12hr", 6, none), std::pair(6.f, 12.f));
    EXPECT_EQ(merge("3hr", 6, none), std::pair(0.f, 3.f));
    EXPECT_EQ(merge("12hr", 6, 3), std::pair(3.f, 9.f));
    EXPECT_EQ(merge("miss", 6, none), std::pair(none, 6.f));
}

TEST_F(VarSpecs, MergesTheRestByPart) {
    VarSpec spec("12hr:500mb:temp[F,cf]");
    spec.update(VarSpec("sfc:prec[mm,plot]"));
    EXPECT_EQ(text(spec.level), "sfc");
    EXPECT_EQ(text(spec.fore), "12hr");
    EXPECT_STREQ(spec.var.abbr, "prec");
    EXPECT_STREQ(spec.format, "plot");
    EXPECT_EQ(spec.plot, 3); // a station plot gives way
    spec.update(VarSpec("24hr::temp[F]"), VarSpec::FORE | VarSpec::LEVEL);
    EXPECT_STREQ(spec.var.abbr, "prec");
    EXPECT_EQ(text(spec.level), "sfc");
    EXPECT_EQ(spec.plot, 0);

    VarSpec bare("temp");
    bare.update(ForeTime("12hr"), Level("500mb"));
    EXPECT_EQ(text(bare.fore), "12hr");
    bare.update(ForeTime("24hr"), Level("sfc"));
    EXPECT_EQ(text(bare.fore), "12hr");
    EXPECT_EQ(text(bare.level), "500mb");

    VarSpec timed;
    timed.fore.setTime1(24);
    ForeTime period;
    period.set(4, none, 6);
    timed.update(period);
    EXPECT_FLOAT_EQ(timed.fore.tim1, 18);
    EXPECT_FLOAT_EQ(timed.fore.tim2, 24);
}

} // namespace
} // namespace ORV
