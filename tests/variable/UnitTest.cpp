#include "ORV/Unit.h"

#include "ORV/Const.h"

#include "Database.h"
#include "Table.h"

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

TEST_F(UnitFiles, ShipsTheUnitsOfStationReports) {
    useShipped();
    for (const Row& row : readTable("variable/units.txt"))
        EXPECT_NEAR(unit.convert(row.number("value"), row.text("from"), row.text("to")),
                    row.number("expected"), row.number("tolerance"))
            << row.text("from") << " to " << row.text("to");
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
    for (const Row& row : readTable("variable/scaled_units.txt")) {
        String out("");
        Unit::scale(row.text("units"), row.number("factor"), row.text("suffix"), out);
        EXPECT_STREQ(out.get(), row.text("scaled"));
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
