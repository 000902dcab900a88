#include "ORV/Unit.h"

#include "ORV/Const.h"

#include "Database.h"

namespace ORV {
namespace {

constexpr float none = Const::MISS;

class UnitFiles : public Database {
protected:
    Unit unit;
};

TEST_F(UnitFiles, LeavesEqualNamesAndMissingValues) {
    EXPECT_EQ(unit.convert(none, "C", "F"), none);
    EXPECT_FLOAT_EQ(unit.convert(5, "", ""), 5);
    EXPECT_FLOAT_EQ(unit.convert(5, "mb", "MB"), 5);
    EXPECT_FLOAT_EQ(unit.convert(5, "mm_Hg", "mm Hg"), 5);
    EXPECT_EQ(unit.convert(5, "mb", ""), none);
    EXPECT_EQ(unit.convert(5, nullptr, "mb"), none);
    EXPECT_EQ(unit.valid("", ""), 0);
    EXPECT_NE(unit.valid("mb", "mb"), 0);
    EXPECT_EQ(unit.valid("mb", ""), 0);
}

TEST_F(UnitFiles, ConvertsInTheDirectionOfTheFile) {
    write("units.lup", "# C F *9\n C F *1.8+32 # more\nC\nF *2\nX Y +5\nY X -5\nQ Z -32*0.55\n");
    EXPECT_FLOAT_EQ(unit.convert(10, "C", "F"), 50);
    EXPECT_FLOAT_EQ(unit.convert(10, "c", "f"), 50);
    EXPECT_EQ(unit.convert(10, "F", "C"), none);
    EXPECT_FLOAT_EQ(unit.convert(1, "X", "Y"), 6);
    EXPECT_FLOAT_EQ(unit.convert(6, "Y", "X"), 1);
    // What stands behind the addend doesn't count.
    EXPECT_FLOAT_EQ(unit.convert(40, "Q", "Z"), 8);
    EXPECT_NE(unit.valid("C", "F"), 0);
    EXPECT_EQ(unit.valid("F", "C"), 0);
}

TEST_F(UnitFiles, SplitsNumbersOffNames) {
    write("units.lup", "ft m *0.3048\nin_Hg mb *33.8\n");
    EXPECT_FLOAT_EQ(unit.convert(3, "100 ft", "ft"), 300);
    EXPECT_FLOAT_EQ(unit.convert(3, "100_ft", "1000 ft"), 0.3f);
    EXPECT_FLOAT_EQ(unit.convert(3, "100_ft", "m"), 91.44f);
    EXPECT_FLOAT_EQ(unit.convert(3, "ft", "m"), 0.9144f);
    EXPECT_FLOAT_EQ(unit.convert(2, "/s", "10^-5 /s"), 200000);
    EXPECT_FLOAT_EQ(unit.convert(2, "-ft", "ft"), -2);
    EXPECT_FLOAT_EQ(unit.convert(30, "in Hg", "mb"), 1014);
    EXPECT_EQ(unit.convert(2, "ft", "0 ft"), none);
    EXPECT_EQ(unit.convert(2, "1e300 ft", "m"), none);
}

TEST_F(UnitFiles, KeepsAnsweringBeyondItsTenSlots) {
    std::string text;
    for (char c = 'a'; c <= 'p'; ++c)
        text += std::string("z ") + c + " *" + std::to_string(c) + "\n";
    write("units.lup", text);
    for (int round = 0; round < 2; ++round)
        for (char c = 'a'; c <= 'p'; ++c)
            EXPECT_FLOAT_EQ(unit.convert(1, "z", std::string(1, c).c_str()), c);
    EXPECT_EQ(unit.num, 10);

    // The slot with the lowest stamp is the one given up.
    Unit fresh;
    for (char c = 'a'; c <= 'k'; ++c)
        fresh.convert(1, "z", std::string(1, c).c_str());
    EXPECT_STREQ(fresh.data[0].to, "k");
    EXPECT_STREQ(fresh.data[1].to, "b");
}

class Known {
public:
    float value;
    const char* from;
    const char* to;
    float expected;
    float tolerance;
};

TEST_F(UnitFiles, ShipsTheUnitsOfStationReports) {
    useShipped();
    const Known rows[] = {
        {100, "C", "F", 212, 1e-4f},
        {-40, "F", "C", -40, 1e-4f},
        {0, "C", "K", 273.15f, 1e-4f},
        {300, "K", "F", 80.33f, 1e-3f},
        {10, "dC", "F", 18, 1e-4f},
        {10, "knt", "m/s", 5.144444f, 1e-5f},
        {10, "m/s", "knt", 19.43844f, 1e-4f},
        {10, "knt", "mph", 11.50779f, 1e-4f},
        {10, "knt", "km/hr", 18.52f, 1e-4f},
        {29.92f, "in_Hg", "mb", 1013.207f, 1e-2f},
        {1013.25f, "mb", "in_Hg", 29.92126f, 1e-4f},
        {10, "mi", "km", 16.09344f, 1e-4f},
        {25.4f, "mm", "in", 1, 1e-5f},
        {2.54f, "cm", "in", 1, 1e-5f},
        {1, "m", "ft", 3.28084f, 1e-5f},
        {35, "100 ft", "ft", 3500, 1e-2f},
        {35, "100 ft", "m", 1066.8f, 1e-2f},
        {1.5f, "mb/3hr", "mb/hr", 0.5f, 1e-5f},
        {90, "min", "hr", 1.5f, 1e-5f},
        {50, "%", "okta", 4, 1e-5f},
        {8, "sec", "s", 8, 1e-5f},
    };
    for (const Known& row : rows)
        EXPECT_NEAR(unit.convert(row.value, row.from, row.to), row.expected, row.tolerance)
            << row.from << " to " << row.to;
}

TEST_F(UnitFiles, ShipsEachConversionWithItsWayBack) {
    useShipped();
    std::ifstream lines(ORV_DATA "/units.lup");
    std::string line;
    int pairs = 0;
    while (std::getline(lines, line)) {
        char from[15];
        char to[15];
        if (line.empty() || line[0] == '#' || std::sscanf(line.c_str(), "%14s %14s", from, to) != 2)
            continue;
        // A temperature difference goes into degrees, but not back.
        const auto difference = [](const std::string& name) {
            return name == "dC" || name == "dF" || name == "dK";
        };
        if (difference(from) && !difference(to))
            continue;
        Unit once;
        const float there = once.convert(20, from, to);
        EXPECT_NEAR(once.convert(there, to, from), 20, 2e-3) << line;
        ++pairs;
    }
    EXPECT_GT(pairs, 400);
}

TEST(UnitText, ScalesUnits) {
    class Row {
    public:
        const char* units;
        float factor;
        const char* suffix;
        const char* expected;
    };
    const Row rows[] = {
        {"10^-5 /s", 1, "", "10^-5 /s"}, {"m", 0.5f, "", "5e-01 m"},
        {"m", 1e-5f, "/s", "10^-5 m/s"}, {"100_ft", 10, "", "10^3 ft"},
        {"m", 0, "", "0e+00 m"},         {"K", -1, "", "-1e+00 K"},
    };
    for (const Row& row : rows) {
        String out("");
        Unit::scale(row.units, row.factor, row.suffix, out);
        EXPECT_STREQ(out.get(), row.expected);
    }
}

TEST(UnitText, SplitsAndChangesLabels) {
    String name;
    String units;
    EXPECT_EQ(Unit::parse("Sea level Pressure [mb]", name, units), 1);
    EXPECT_STREQ(name.get(), "Sea level Pressure");
    EXPECT_STREQ(units.get(), "mb");
    EXPECT_EQ(Unit::parse("Height (m)", name, units), 1);
    EXPECT_STREQ(name.get(), "Height");
    EXPECT_EQ(Unit::parse("[", name, units), 1);
    EXPECT_EQ(Unit::parse("Height", name, units), 0);
    EXPECT_STREQ(name.get(), "Height");
    EXPECT_STREQ(units.get(), "");
    String label("Temperature [C]");
    Unit::change(label, "F");
    EXPECT_STREQ(label.get(), "Temperature [F]");
}

} // namespace
} // namespace ORV
