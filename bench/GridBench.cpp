// The objective analysis of 2,000 stations onto grids of three sizes, with a radius of 3 grid
// lengths of the coarsest.
#include "ORV/Data.h"
#include "ORV/Grids.h"
#include "ORV/ObjectAnal.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

using namespace ORV;

namespace {
constexpr int stations = 2000;
constexpr int coarse_nx = 100, coarse_ny = 80;
constexpr float coarse_dx = 0.6f; // 60 km

Domain makeDomain(int refinement) {
    DomainVal val;
    val.proj = 1;
    val.clat = 40;
    val.clon = val.plon = -98;
    val.plat = 90;
    val.nx = coarse_nx * refinement;
    val.ny = coarse_ny * refinement;
    val.dx = val.dy = coarse_dx / static_cast<float>(refinement);
    return Domain(val);
}

Data makeTable(const Domain& domain, int fields) {
    std::mt19937 random(2000);
    std::uniform_real_distribution<float> column(0, static_cast<float>(domain.nx - 1));
    std::uniform_real_distribution<float> row(0, static_cast<float>(domain.ny - 1));
    std::normal_distribution<float> noise(0, 1);
    Data table(fields);
    for (int s = 0; s < stations; s++) {
        const GridPoint place(column(random), row(random));
        EarthPoint earth;
        domain.tran(place, earth);
        table.setLoc(s, earth);
        for (int f = 0; f < fields; f++)
            table.setValue(s, f, 1013 + 10 * std::sin(earth.lat + f) + noise(random));
    }
    return table;
}

/// Arguments: refinement of the grid, fields, passes.
void analysis(benchmark::State& state) {
    const int refinement = static_cast<int>(state.range(0));
    const Domain domain = makeDomain(refinement);
    const Data table = makeTable(domain, static_cast<int>(state.range(1)));
    Grids grids;
    for (auto step : state) {
        state.PauseTiming();
        grids.setSize(20);
        grids.setDomain(domain);
        ObjectAnal anal;
        anal.set(1, static_cast<float>(3 * refinement), static_cast<int>(state.range(2)), 0.2f);
        state.ResumeTiming();
        anal.compute(table, grids);
        benchmark::DoNotOptimize(grids.getValue(0, 0, 0));
    }
}
BENCHMARK(analysis)
    ->ArgNames({"refined", "fields", "passes"})
    ->ArgsProduct({{1, 5, 20}, {1, 10}, {1, 2}})
    ->Unit(benchmark::kMillisecond);
} // namespace
