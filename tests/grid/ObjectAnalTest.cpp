#include "ORV/ObjectAnal.h"

#include "ORV/Data.h"
#include "ORV/GridTool.h"
#include "ORV/Grids.h"
#include "ORV/Orv.h"

#include "Table.h"
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace ORV;

namespace {
constexpr float inf = std::numeric_limits<float>::infinity();

/// The analysis as a plain walk over all stations for each point.
class PlainAnal {
public:
    float filter, rad_inf, converg, miss_val;
    int num_pass, min_sta;

    explicit PlainAnal(const ObjectAnal& oa)
        : filter(oa.filter), rad_inf(oa.rad_inf), converg(oa.converg), miss_val(oa.miss_val),
          num_pass(oa.num_pass), min_sta(oa.min_sta) {}

    void compute(const Data& data, int f, Grid& grid) {
        std::vector<float> values;
        std::vector<GridPoint> places(data.num);
        for (int s = 0; s < data.num; s++) {
            grid.domain.tran(data.getLoc(s), places[s]);
            const float v = data.getValue(s, f);
            values.push_back(v == Const::MISS ? miss_val : v);
            if (places[s].gx == Const::MISS)
                places[s].gx = std::nanf(""); // in nobody's reach
        }
        pass(grid, places, values, true);
        for (int p = 2; p <= num_pass; p++) {
            for (int s = 0; s < data.num; s++) {
                const float v = data.getValue(s, f), g = grid.getValue(places[s]);
                values[s] = v == Const::MISS || g == Const::MISS ? Const::MISS : v - g;
            }
            filter = filter * converg;
            pass(grid, places, values, false);
        }
    }

private:
    void pass(Grid& grid, const std::vector<GridPoint>& places, const std::vector<float>& values,
              bool first) const {
        const float dx = grid.domain.dx;
        const float limit = rad_inf * rad_inf * dx * dx;
        for (int j = 0; j < grid.ny; j++)
            for (int i = 0; i < grid.nx; i++) {
                double sum = 0, wsum = 0;
                int count = 0;
                const float old = grid.getValue(i, j);
                const float guess = old == Const::MISS ? miss_val : old;
                if (first && guess != Const::MISS) {
                    sum += guess;
                    wsum += 1;
                    count++;
                }
                for (std::size_t s = 0; s < places.size(); s++) {
                    const float a = (places[s].gx - i) * dx, b = (places[s].gy - j) * dx;
                    const float d2 = a * a + b * b;
                    if (values[s] == Const::MISS || !(d2 <= limit))
                        continue;
                    const double w = std::exp(-static_cast<double>(d2) / filter);
                    sum += values[s] * w;
                    wsum += w;
                    count++;
                }
                float value = Const::MISS;
                if (wsum != 0 && count >= min_sta)
                    value = static_cast<float>(first ? sum / wsum : old + sum / wsum);
                grid.setValue(i, j, value);
            }
    }
};

bool sameBits(float a, float b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// Scattered stations, also outside the grid, some without a value or a place; values of two
/// fields, of which the second is seldom present.
Data makeTable(const Domain& domain, int stations, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> column(-5, static_cast<float>(domain.nx + 4));
    std::uniform_real_distribution<float> row(-5, static_cast<float>(domain.ny + 4));
    std::normal_distribution<float> value(10, 20);
    std::uniform_int_distribution<int> die(1, 6);
    Data table(2);
    for (int s = 0; s < stations; s++) {
        EarthPoint earth;
        GridPoint place(column(random), row(random));
        if (s % 3 == 0) // on grid points, where distances lie on the edge
            place.set(std::round(place.gx), std::round(place.gy));
        domain.tran(place, earth);
        table.setLoc(s, die(random) == 1 ? EarthPoint() : earth);
        if (die(random) > 1)
            table.setValue(s, 0, value(random));
        if (die(random) == 1)
            table.setValue(s, 1, value(random));
    }
    return table;
}

/// Two stations in a row of five points, at columns 0 and 3.
Data makePair(float first, float second) {
    Data table;
    table.addValue(EarthPoint(0, -2), first);
    table.addValue(EarthPoint(0, 1), second);
    return table;
}

Grids makeRow() {
    Grids grids;
    grids.setDomain(Domain("ll,0,0,5,1,1,1"));
    return grids;
}

TEST(ObjectAnal, EqualsThePlainWalkBitForBit) {
    unsigned seed = 1;
    for (const Row& row : readTable("grid/analysis_domains.txt"))
        for (const Row& analysis : readTable("grid/analysis_settings.txt"))
            for (const bool guess : {false, true}) {
                const char* text = row.text("domain");
                const char* setting = analysis.text("setting");
                const Domain domain(text);
                const Data table = makeTable(domain, 60, seed++);
                Grids grids;
                grids.setDomain(domain);
                grids.setNum(2);
                grids.allocData();
                for (int k = 0; guess && k < domain.nx * domain.ny; k += 3)
                    grids.grd[k % 2].data[k] = static_cast<float>(k);
                Grid plain[] = {grids.grd[0], grids.grd[1]};
                ObjectAnal oa;
                oa.setParam(setting);
                for (int f = 0; f < 2; f++)
                    PlainAnal(oa).compute(table, f, plain[f]);
                EXPECT_EQ(oa.compute(table, grids), 1);
                for (int f = 0; f < 2; f++)
                    for (int k = 0; k < domain.nx * domain.ny; k++)
                        ASSERT_TRUE(sameBits(grids.grd[f].data[k], plain[f].data[k]))
                            << text << " " << setting << " field " << f << " point " << k << ": "
                            << grids.grd[f].data[k] << " " << plain[f].data[k];
            }
}

// hour.txt and analysis.txt are made by analyse.py, a computation of its own.
TEST(ObjectAnal, AnalysesARealHour) {
    std::ifstream hour(ORV_TEST_DATA "/grid/hour.txt");
    Data table;
    for (float lat, lon, temp; hour >> lat >> lon >> temp;)
        table.addValue(EarthPoint(lat, lon), temp);
    ASSERT_GT(table.num, 2000);
    for (const int passes : {1, 2}) {
        Grids grids;
        grids.setDomain(Domain("ll,38,-96,59,27,1,1"));
        ObjectAnal oa;
        oa.set(1.5F, 3, passes, 0.3F);
        oa.setMinSta(3);
        oa.compute(table, grids);
        std::ifstream expected(ORV_TEST_DATA "/grid/analysis.txt");
        int points = 0;
        for (float first, second; expected >> first >> second; points++)
            EXPECT_FLOAT_EQ(grids.grd[0].data[points], passes == 1 ? first : second)
                << "point " << points << " pass " << passes;
        EXPECT_EQ(points, 59 * 27);
    }
}

TEST(ObjectAnal, WeightsByHand) {
    Grids grids = makeRow();
    ObjectAnal oa;
    oa.set(2, 2, 1, 0.2F);
    oa.compute(makePair(10, 30), grids);
    const double w1 = std::exp(-0.5), w2 = std::exp(-2.0); // at distances 1 and 2
    EXPECT_EQ(grids.getValue(0, 0, 0), 10) << "alone in reach";
    EXPECT_FLOAT_EQ(grids.getValue(0, 1, 0), (10 * w1 + 30 * w2) / (w1 + w2))
        << "the other one lies on the edge";
    EXPECT_EQ(grids.getValue(0, 4, 0), 30);
    EXPECT_EQ(oa.filter, 2);

    grids = makeRow();
    oa.setMinSta(2);
    oa.compute(makePair(10, 30), grids);
    EXPECT_EQ(grids.getValue(0, 0, 0), Const::MISS);
    EXPECT_NE(grids.getValue(0, 1, 0), Const::MISS);

    grids = makeRow();
    oa.set(2, 3, 2, 0.2F);
    oa.setMinSta(1);
    oa.compute(makePair(10, 30), grids);
    const double far = std::exp(-4.5), near = std::exp(-9 / 0.4); // at distance 3 in each pass
    const double first = (10 + 30 * far) / (1 + far);
    const double misfit = 10 - first; // and the opposite at the other station
    EXPECT_NEAR(grids.getValue(0, 0, 0), first + (misfit - misfit * near) / (1 + near), 1e-5);
    EXPECT_EQ(oa.filter, 0.4F) << "stays reduced";
}

TEST(ObjectAnal, UnderflowAndResidualsOutside) {
    Grids grids = makeRow();
    ObjectAnal oa("filter=1e-30");
    oa.compute(makePair(10, 30), grids);
    EXPECT_EQ(grids.getValue(0, 0, 0), 10) << "at the point itself the weight is 1";
    EXPECT_EQ(grids.getValue(0, 1, 0), Const::MISS);

    Data outside;
    outside.addValue(EarthPoint(0.5F, 0), 10);
    grids = makeRow();
    oa.set(1, 3, 2, 0.2F);
    oa.compute(outside, grids);
    EXPECT_EQ(grids.grd[0].getValid(), 0) << "no residual, so the second pass has no station";
}

TEST(ObjectAnal, ConstantsAndMissingDomainsStay) {
    Grids grids;
    Grid constant;
    GridTool::valueGrid(constant, 5);
    grids.addSpec(GridSpec());
    grids.add(constant);
    grids.setDomain(Domain("ll,0,0,5,1,1,1"));
    Data table(2);
    table.addValue(EarthPoint(0, 0), 7);
    ObjectAnal("pass=2,min_sta=1").compute(table, grids);
    EXPECT_EQ(grids.getValue(0, 2, 0), 7);
    EXPECT_EQ(grids.getValue(1, 4, 4), 5);
    EXPECT_STREQ(grids.grd[1].getInfo(), "Value grid");

    Grids empty;
    EXPECT_EQ(ObjectAnal().compute(table, empty), 1);
    EXPECT_FALSE(empty.grd[0].isData());
    Grids huge;
    huge.setDomain(Domain("ll,0,0,60000,60000,1,1"));
    EXPECT_EQ(ObjectAnal().compute(table, huge), 1);
    EXPECT_FALSE(huge.grd[0].isData());
}

TEST(ObjectAnal, ValuesBeyondTheUsual) {
    for (const Row& c : readTable("grid/unusual_values.txt")) {
        Grids grids = makeRow();
        ObjectAnal oa(c.text("params"));
        oa.compute(makePair(c.number("first"), c.number("second")), grids);
        EXPECT_EQ(grids.getValue(0, 0, 0), c.number("left")) << c.text("what");
        EXPECT_EQ(grids.getValue(0, 1, 0), c.number("middle")) << c.text("what");
    }
}

} // namespace
