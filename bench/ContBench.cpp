// Contour lines and fills of 20 levels to PostScript, of an analysed-looking field on grids of
// three sizes, on the projection of the grid and on another.
#include "ORV/ContPlot.h"
#include "ORV/Grid.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <string>

using namespace ORV;

namespace {

constexpr int coarse_nx = 100, coarse_ny = 80;
constexpr char levels[] = "10"; // interval that makes 20 levels of the field

Grid makeGrid(int refinement) {
    Grid grid;
    char text[120];
    std::snprintf(text, sizeof text, "polar:90:-98,40,-98,%d,%d,%g,%g", coarse_nx * refinement,
                  coarse_ny * refinement, 0.6 / refinement, 0.6 / refinement);
    grid.setDomain(Domain(text));
    grid.allocData();
    for (int j = 0; j < grid.ny; j++)
        for (int i = 0; i < grid.nx; i++) {
            const double x = double(i) / grid.nx, y = double(j) / grid.ny;
            grid.setValue1(i, j,
                           static_cast<float>(100 + 60 * std::sin(9 * x + 3 * y) * std::cos(7 * y) +
                                              38 * std::sin(31 * x) * std::sin(23 * y)));
        }
    return grid;
}

/// Arguments: refinement of the grid, 1 for a plot of another projection.
void draw(benchmark::State& state, const char* type) {
    const std::string file = std::filesystem::temp_directory_path() / "orv_cont_bench.ps";
    const char* const database = std::getenv("orvfpath");
    Orv::setDatabasePath(database ? database : "data");
    Orv::setMessageLevel(0);
    Grid grid = makeGrid(static_cast<int>(state.range(0)));
    Domain domain = grid.domain;
    if (state.range(1))
        domain.set("lamb:90:-98:30:60,40,-98,100,80,0.6,0.6");
    ContPlot cont((std::string("ty=") + type + ",ci=" + levels).c_str());
    double size = 0;
    for (auto _ : state) {
        grid.xloc = OwnedArray<float>();
        grid.yloc = OwnedArray<float>();
        {
            Plot plot(("de=p," + file + ",color").c_str());
            plot.setPanel(domain);
            cont.draw(plot, grid);
        }
        size = static_cast<double>(std::filesystem::file_size(file));
    }
    state.counters["MB"] = size / 1e6;
    state.counters["levels"] = cont.num_cont;
    state.SetItemsProcessed(state.iterations() * grid.nx * grid.ny);
    std::filesystem::remove(file);
}

void lines(benchmark::State& state) {
    draw(state, "ln");
}
void fills(benchmark::State& state) {
    draw(state, "cf");
}

} // namespace

BENCHMARK(lines)->ArgsProduct({{1, 5, 20}, {0, 1}})->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(fills)->ArgsProduct({{1, 5, 20}, {0, 1}})->Unit(benchmark::kMillisecond)->UseRealTime();
