// Arrows, barbs and streamlines of a wind field on the plot of its grid and on another one, to
// PostScript.
#include "ORV/Grid.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/VectPlot.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <string>

using namespace ORV;

namespace {
constexpr int coarse_nx = 100, coarse_ny = 80;
constexpr float coarse_dx = 0.6f; // 60 km
constexpr const char* page = "/tmp/orv_vect_bench.ps";

Domain makeDomain(int proj, int refinement) {
    DomainVal val;
    val.proj = proj;
    val.clat = 40;
    val.clon = val.plon = -98;
    val.plat = proj == 1 ? 90 : 0;
    val.nx = coarse_nx * refinement;
    val.ny = coarse_ny * refinement;
    val.dx = val.dy = coarse_dx / static_cast<float>(refinement);
    return Domain(val);
}

/// A row of lows and highs in a westerly flow.
void fillWinds(Grid& u, Grid& v, const Domain& domain) {
    for (Grid* grid : {&u, &v}) {
        grid->setDomain(domain);
        grid->allocData();
    }
    for (int j = 0; j < u.ny; j++)
        for (int i = 0; i < u.nx; i++) {
            const double x = 12.0 * i / u.nx, y = 10.0 * j / u.ny;
            u.setValue1(i, j, static_cast<float>(6 + 10 * std::sin(y) * std::cos(x / 2)));
            v.setValue1(i, j, static_cast<float>(9 * std::cos(y) * std::sin(x)));
        }
}

/// Arguments: type, refinement of the grid, points skipped, projection of the grid.
void vectors(benchmark::State& state) {
    Orv::setDatabasePath(ORV_DATA);
    Orv::setMessageLevel(0);
    Grid u, v;
    fillWinds(u, v, makeDomain(static_cast<int>(state.range(3)), static_cast<int>(state.range(1))));
    VectPlot vect;
    vect.setType(static_cast<int>(state.range(0)));
    vect.setSkip(static_cast<int>(state.range(2)));
    for (auto step : state) {
        Plot plot;
        plot.open((std::string("de=p,") + page + ",color").c_str());
        plot.newFrame();
        plot.setDomain(makeDomain(1, 1));
        vect.draw(plot, u, v);
    }
    std::remove(page);
}
BENCHMARK(vectors)
    ->ArgNames({"type", "refined", "skip", "proj"})
    ->Args({0, 1, 2, 1})
    ->Args({1, 1, 2, 1})
    ->Args({2, 1, 2, 1})
    ->Args({2, 5, 10, 1})
    ->Args({2, 5, 1, 1})
    ->Args({2, 20, 40, 1})
    ->Args({2, 1, 2, 2})
    ->Args({2, 5, 10, 2})
    ->Unit(benchmark::kMillisecond);
} // namespace
