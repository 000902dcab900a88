#include "ORV/ObsChart.h"

#include "ORV/Domain.h"
#include "ORV/Figure.h"
#include "ORV/Orv.h"
#include "ORV/OrvResrc.h"
#include "ORV/Prog.h"
#include "ORV/ResrcDB.h"
#include "ORV/ResrcDBList.h"
#include "ORV/Strings.h"

using namespace ORV;

namespace {
constexpr int heap_bytes = 16 << 20; // of a usual run

/// The settings of this tool, in the order of its help.
constexpr int keyed_settings[] = {
    OrvResrc::BASE,    OrvResrc::PATH,   OrvResrc::DATABASE, OrvResrc::IO,         OrvResrc::FILE,
    OrvResrc::CURRENT, OrvResrc::DOMAIN, OrvResrc::var_file, OrvResrc::variable,   OrvResrc::OBJECT,
    OrvResrc::CONT,    OrvResrc::PLOT,   OrvResrc::COLOR,    OrvResrc::COLOR_CONT, OrvResrc::DEVICE,
};

/// Draws the chart, over all its frames, until the output is finished or the window is closed.
int plot() {
    Domain domain;
    ObsChart chart;
    chart.setMap(true);
    chart.getDomain(domain);
    chart.setFilename();

    Figure figure;
    if (!figure.open()) {
        constexpr int window = 1;
        if (figure.plot.graph.device_type == window)
            Orv::outError("%s: no window can be opened; draw to a file with -de p,file.ps\n",
                          Orv::getProgramName());
        else
            Orv::outError("%s: unable to open the output: %s\n", Orv::getProgramName(),
                          Orv::getResrc("device", ""));
        return Orv::NOGRAPH;
    }
    figure.startPlot(domain);
    figure.addDrawing(chart);
    figure.endPlot();
    figure.manage();
    figure.close();
    return Orv::error == Orv::NOWRITE ? Orv::NOWRITE : Orv::NOERR;
}
} // namespace

int main(int argc, char** argv) {
    Prog::reserveHeap(heap_bytes);
    ResrcDBList keyed, positional;
    for (const int setting : keyed_settings)
        OrvResrc::add(keyed, setting);
    OrvResrc::add(positional, OrvResrc::filename);

    Strings args(argc, argv);
    Prog::findDatabase();
    ResrcDB::create(args, keyed, positional);
    if (Prog::printHelp(keyed, positional, "This program plots surface data"))
        Orv::exit(Orv::NOERR);
    Prog::printProg("SURFACE PLOTTING PROGRAM");
    return plot();
}
