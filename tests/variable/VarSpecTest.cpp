#include "ORV/VarSpec.h"

#include "ORV/Date.h"
#include "ORV/Timezone.h"

#include "Database.h"

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
    class Row {
    public:
        const char* text;
        int type;
        float val1;
        float val2;
        const char* abbr;
        const char* code_text; // as toAbbrCode writes it
        const char* written;   // as toString does
        const char* label;
    };
    const Row rows[] = {
        {"temp", 0, none, none, "temp", "temp", "temp", "temp "},
        {"accum_prec", 1, none, none, "prec", "accum_prec", "accum_prec", "Accum prec "},
        {"mean_t", 2, none, none, "t", "mean_t", "mean_t", "Mean t "},
        {"max_t", 3, none, none, "t", "max_t", "max_t", "Max t "},
        {"min_t", 4, none, none, "t", "min_t", "min_t", "Min t "},
        {"prob[<5]t", 5, 5, none, "t", "prob[<5]t", "prob[%]_t_below_5", "Prob [%] t below 5"},
        {"prob[>2.5]t", 6, none, 2.5f, "t", "prob[>2.5]t", "prob[%]_t_above_2.5",
         "Prob [%] t above 2.5"},
        {"prob[2-5]t", 9, 2, 5, "t", "prob[2-5]t", "prob[%]_t_between_2_and_5",
         "Prob [%] t between 2 and 5"},
        {"ens[3]t", 10, 3, none, "t", "ens[+3]t", "ens[+3]_t", "Ens[+3] t "},
        {"ens[+3]t", 10, 3, none, "t", "ens[+3]t", "ens[+3]_t", "Ens[+3] t "},
        {"ens[-2]t", 10, -2, none, "t", "ens[-2]t", "ens[-2]_t", "Ens[-2] t "},
        {"ens[0]t", 10, 0, none, "t", "ens[0]t", "ens[0]_t", "Ens[0] t "},
        {"ensmean[]t", 11, none, none, "t", "ensmean[]t", "ens_mean_t", "Ens mean t "},
        {"ensdev[]t", 12, none, none, "t", "ensdev[]t", "ens_sdev_t", "Ens std dev t "},
        {"ensprob[<-5]t", 13, -5, none, "t", "ensprob[<-5]t", "ens prob[%]_t_below_-5",
         "Ens prob [%] t below -5"},
        {"ensprob[>5]t", 14, none, 5, "t", "ensprob[>5]t", "ens prob[%]_t_above_5",
         "Ens prob [%] t above 5"},
        {"ensprob[1-5]t", 15, 1, 5, "t", "ensprob[1-5]t", "ens prob[%]_t_between_1_and_5",
         "Ens prob [%] t between 1 and 5"},
        {"perc[50]t", 16, 50, none, "t", "perc[50]t", "perc[50]_t", "50 Perc t "},
        {"prob[x]t", 0, none, none, "prob[x]t", "prob[x]t", "prob[x]t", "prob[x]t "},
        {"ens[3t", 0, none, none, "ens[3t", "ens[3t", "ens[3t", "ens[3t "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        Variable var;
        EXPECT_EQ(var.decode(row.text), 1);
        EXPECT_EQ(var.type, row.type);
        EXPECT_FLOAT_EQ(var.val1, row.val1);
        EXPECT_FLOAT_EQ(var.val2, row.val2);
        EXPECT_STREQ(var.abbr, row.abbr);
        String out;
        var.toAbbrCode(out);
        EXPECT_STREQ(out.get(), row.code_text);
        var.toString(out);
        EXPECT_STREQ(out.get(), row.written);
        var.toLabel(out);
        EXPECT_STREQ(out.get(), row.label);
    }
    Variable lower_only;
    lower_only.decode("prob[^3]t");
    EXPECT_EQ(lower_only.type, 9);
    EXPECT_FLOAT_EQ(lower_only.val1, 3);
    EXPECT_EQ(lower_only.decode(nullptr), 0);
}

TEST(Variable, PacksIntoCodes) {
    class Row {
    public:
        const char* text;
        int code; // of index 61
    };
    const Row rows[] = {
        {"t", 61},
        {"accum_t", 2061},
        {"mean_t", 1061},
        {"max_t", 3061},
        {"min_t", 4061},
        {"ensmean[]t", 19000061},
        {"ensdev[]t", 19001061},
        {"ens[0]t", 19300061},
        {"ens[-2]t", 19322061},
        {"ens[3]t", 19343061},
        {"perc[50]t", 1950500061},
        // 5 packs as exponent 0, digits 50.
        {"prob[<5]t", 1940611050},
        {"prob[>5]t", 1940612050},
        {"prob[5-9]t", 1940613050},
        // -5 packs as -50, and so as 5050.
        {"ensprob[<-5]t", 1910616050},
    };
    for (const Row& row : rows) {
        Variable var;
        var.decode(row.text);
        EXPECT_EQ(var.toIndCode(), Const::MISS) << row.text;
        var.setInd(61);
        EXPECT_EQ(var.toIndCode(), row.code) << row.text;
    }
}

class VarSpecs : public Database {
protected:
    VarSpecs() {
        write("variable.lup", "# names\n11 temp Temperature\n61 prec Total precipitation  \n");
    }
};

TEST_F(VarSpecs, ReadsItsParts) {
    class Row {
    public:
        const char* text;
        const char* fore;
        const char* level;
        const char* abbr;
        const char* units;
        const char* format;
        int plot;
        bool abs = false;
        int type = 1;
    };
    const Row rows[] = {
        {"temp", "", "", "temp", "", "", 0},
        {"sfc:temp", "", "sfc", "temp", "", "", 0},
        {"12hr:500mb:temp", "12hr", "500mb", "temp", "", "", 0},
        {"12hr:500mb:temp:F", "12hr", "500mb", "temp", "F", "", 0},
        {"12hr:500mb:temp[F]", "12hr", "500mb", "temp", "F", "", 0},
        {"12hr:500mb:temp:F[,cf]", "12hr", "500mb", "temp", "F", "cf", 3},
        {"::temp", "", "", "temp", "", "", 0},
        {"temp[F,plot]", "", "", "temp", "F", "plot", 1},
        {"temp [ F , co=red , ul ]", "", "", "temp", "F", "co=red,ul", 0},
        {"temp[,cf]", "", "", "temp", "", "cf", 3},
        {"temp[,cf,data,x]", "", "", "temp", "", "cf,data,x", 2},
        {"temp[C,a[1,2],vect]", "", "", "temp", "C", "a[1,2],vect", 4},
        {"+temp", "", "", "temp", "", "", 0, true},
        {"sfc:+temp", "", "sfc", "temp", "", "", 0, true},
        {"prob[>5]prec[mm,cf]", "", "", "prec", "mm", "cf", 3},
        {"+ensmean[]temp", "", "", "temp", "", "", 0, true},
        {"map[sfc]", "", "", "map", "", "sfc", 5, false, 6},
        {"panel[2x2]", "", "", "panel", "", "2x2", 6, false, 6},
        {"map", "", "", "map", "", "", 5, false, 6},
        {"", "", "", "", "", "", 0},
        {"500mb:", "", "500mb", "", "", "", 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const VarSpec spec(row.text);
        EXPECT_EQ(text(spec.fore), row.fore);
        EXPECT_EQ(text(spec.level), row.level);
        EXPECT_STREQ(spec.var.abbr, row.abbr);
        EXPECT_STREQ(spec.getUnits(), row.units);
        EXPECT_STREQ(spec.format, row.format);
        EXPECT_EQ(spec.plot, row.plot);
        EXPECT_EQ(spec.abs, row.abs);
        EXPECT_EQ(spec.type, row.type);
    }
    const VarSpec known("temp");
    EXPECT_EQ(known.getVarInd(), 11);
    EXPECT_STREQ(known.var.name, "Temperature");
    EXPECT_EQ(VarSpec("foo").getVarInd(), Const::MISS);
    EXPECT_EQ(VarSpec("prob[>5]prec[mm,cf]").getVarType(), 6);
}

TEST_F(VarSpecs, WarnsOfBrokenTexts) {
    testing::internal::CaptureStderr();
    const VarSpec colons("a:b:c:d:e");
    const VarSpec bracket("temp[F,plot");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "VarSpec: invalid, wrong number of colons\nVarSpec: missing ]\n");
    EXPECT_STREQ(colons.var.abbr, "");
    EXPECT_STREQ(bracket.getUnits(), "F");
    EXPECT_EQ(bracket.plot, 1);
}

TEST_F(VarSpecs, SetsVariablesByNameAndIndex) {
    VarSpec spec("temp[F]");
    EXPECT_EQ(spec.setVar("prec"), 1);
    EXPECT_STREQ(spec.getUnits(), "F");
    EXPECT_STREQ(spec.var.name, "Total precipitation");
    EXPECT_EQ(spec.setVar("11", "K"), 1);
    EXPECT_STREQ(spec.var.abbr, "temp");
    EXPECT_STREQ(spec.getUnits(), "K");
    EXPECT_EQ(spec.setVar("foo"), 0);
    EXPECT_STREQ(spec.var.name, "foo");
    EXPECT_STREQ(spec.getUnits(), "");
    EXPECT_EQ(spec.getVarInd(), Const::MISS);
    EXPECT_EQ(spec.setVar(999, "m"), 0);
    EXPECT_STREQ(spec.var.abbr, "");
    EXPECT_EQ(spec.getVarType(), 999);
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
    class Row {
    public:
        const char* time;
        const char* update;
        int type;
        float tim1;
        float tim2;
        float off = none;
        float type_off = none;
    };
    const Row rows[] = {
        {"12hr", "24hr", 0, 24, none},
        {"12hr", "foo", 0, 12, none},
        {"12hr", "time-3-6acc", 4, 3, 9, none, 6},
        {"24hr-12avg", "time-3-6acc", 4, 15, 21, none, 6},
        {"12hr", "time-3-acc", 4, none, 9},
        {"miss", "time-3-6acc", 4, none, none, 3, 6},
        {"24hr-12avg", "time-3", 3, 12, none, 3},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.time) + " with " + row.update);
        VarSpec spec;
        VarSpec src;
        spec.setFore(row.time);
        src.setFore(row.update);
        spec.update(src);
        EXPECT_EQ(spec.fore.type, row.type);
        EXPECT_FLOAT_EQ(spec.fore.tim1, row.tim1);
        EXPECT_FLOAT_EQ(spec.fore.tim2, row.tim2);
        EXPECT_FLOAT_EQ(spec.fore.off, row.off);
        EXPECT_FLOAT_EQ(spec.fore.type_off, row.type_off);
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
