#include "ORV/ObsConv.h"

#include "ORV/Orv.h"
#include "ORV/OrvResrc.h"
#include "ORV/Prog.h"
#include "ORV/ResrcDB.h"
#include "ORV/ResrcDBList.h"
#include "ORV/Strings.h"

using namespace ORV;

namespace {
constexpr int heap_bytes = 16 << 20; // of a usual run
} // namespace

int main(int argc, const char** argv) {
    Prog::reserveHeap(heap_bytes);
    ResrcDBList keyed;
    keyed.add("con_path", "orvcpath", "o", "-o dir       Directory of the hour files");
    keyed.add("type", "orvtype", "t", "-t type      File type of the hour files (orv)");
    for (const int id : {OrvResrc::city_file, OrvResrc::file_path, OrvResrc::name_conv,
                         static_cast<OrvResrc::Resources>(OrvResrc::BASE)})
        OrvResrc::add(keyed, id);
    ResrcDBList positional;
    OrvResrc::add(positional, OrvResrc::filename);

    Prog::findDatabase();
    Strings args(argc, argv);
    ResrcDB::create(args, keyed, positional);
    if (Prog::printHelp(keyed, positional,
                        "This program turns METAR caches (- for standard input) into hour files"))
        Orv::exit(Orv::NOERR);

    ObsConv converter;
    Orv::exit(converter.run(Strings(Orv::getResrc("filename", ""), '\n')));
}
