// Maps to PostScript, each on an empty plot that is open already: the world at middle resolution,
// and the list that a state-sized chart with its counties draws.
#include "ORV/Domain.h"
#include "ORV/MapFile.h"
#include "ORV/MapPlot.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

using namespace ORV;

namespace {

void draw(benchmark::State& state, const char* items, const char* domain) {
    const std::string page = std::filesystem::temp_directory_path() / "orv_map_bench.ps";
    Orv::setDatabasePath(ORV_DATA);
    Orv::resrc.set("file_path", ORV_DATA);
    Orv::setMessageLevel(0);
    Plot plot(("de=p," + page + ",color").c_str());
    plot.setPanel(Domain(domain));
    MapPlot map;
    map.setMapFiles(items);
    for (auto _ : state)
        map.draw(plot);
    plot.close();
    std::filesystem::remove(page);
}

void worldLines(benchmark::State& state) {
    draw(state, "orv.map", "ll:0:0,0,0,73,37,5,5");
}
void worldFilled(benchmark::State& state) {
    draw(state, "fill.mpl", "ll:0:0,0,0,73,37,5,5");
}
void globeLines(benchmark::State& state) {
    draw(state, "orv.map", "ortho:25:-95,25,-95,61,61,2.2,2.2");
}
void stateWithCounties(benchmark::State& state) {
    draw(state, "std.mpl", "lamb:35:-97:33:37,35.5,-97.5,61,41,0.1,0.1");
}

/// All segments of a large file passed over, without a point of them.
void skipped(benchmark::State& state) {
    for (auto _ : state) {
        MapFile file(ORV_DATA "/coast_high.map");
        MapFileHeader header;
        int segments = 0;
        for (; file.readHeader(header); segments++)
            file.skipData();
        benchmark::DoNotOptimize(segments);
    }
}

BENCHMARK(worldLines)->Unit(benchmark::kMillisecond);
BENCHMARK(worldFilled)->Unit(benchmark::kMillisecond);
BENCHMARK(globeLines)->Unit(benchmark::kMillisecond);
BENCHMARK(stateWithCounties)->Unit(benchmark::kMillisecond);
BENCHMARK(skipped)->Unit(benchmark::kMillisecond);

} // namespace
