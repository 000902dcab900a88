// Functions of grids, as a plot list nests them: the vorticity of a wind made of direction and
// speed, and then its anomaly.
#include "ORV/GridMath.h"
#include "ORV/Grids.h"
#include "ORV/Orv.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace ORV;

namespace {
Domain makeDomain(int nx, int ny) {
    DomainVal val;
    val.proj = 1;
    val.clat = 40;
    val.clon = val.plon = -98;
    val.plat = 90;
    val.nx = nx;
    val.ny = ny;
    val.dx = val.dy = 60.0f / static_cast<float>(nx);
    return Domain(val);
}

Grid makeField(const benchmark::State& state, float mean, float range, const char* name,
               const char* units) {
    Grid grid;
    grid.setDomain(makeDomain(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))));
    grid.allocData();
    for (int j = 0; j < grid.ny; j++)
        for (int i = 0; i < grid.nx; i++)
            grid.setValue(i, j, mean + range * std::sin(0.05f * i) * std::cos(0.07f * j));
    grid.setLevel("850mb");
    GridMath::setInfo(grid, name, units);
    return grid;
}

Grids list(const Grid& a, const Grid& b) {
    Grids operands;
    operands.addGrid(a);
    operands.addGrid(b);
    return operands;
}

/// sub(rvort(uwnd(dir,spd),vwnd(dir,spd)),#2).
void depthThree(benchmark::State& state) {
    Orv::setDatabasePath(ORV_DATA);
    const Grid dir = makeField(state, 180, 170, "wdir", "deg");
    const Grid spd = makeField(state, 30, 20, "wspd", "knt");
    Grid two(1, 1);
    two.setValue(0, 0, 2);
    for (auto step : state) {
        const Grids wind = list(dir, spd);
        Grid u, v, vorticity, result;
        GridMath::process("uwnd", u, wind);
        GridMath::process("vwnd", v, wind);
        GridMath::process("rvort", vorticity, list(u, v));
        GridMath::process("sub", result, list(vorticity, two));
        benchmark::DoNotOptimize(result.data[0]);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}

/// thetae(temp,rhum), of temperatures in Celsius.
void thermodynamics(benchmark::State& state) {
    Orv::setDatabasePath(ORV_DATA);
    const Grids operands =
        list(makeField(state, 15, 20, "temp", "C"), makeField(state, 60, 35, "rhum", "%"));
    for (auto step : state) {
        Grid result;
        GridMath::process("thetae", result, operands);
        benchmark::DoNotOptimize(result.data[0]);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}

void sizes(benchmark::internal::Benchmark* bench) {
    bench->Args({100, 80})->Args({500, 400})->Args({2000, 1600})->Unit(benchmark::kMillisecond);
}

BENCHMARK(depthThree)->Apply(sizes);
BENCHMARK(thermodynamics)->Apply(sizes);
} // namespace
