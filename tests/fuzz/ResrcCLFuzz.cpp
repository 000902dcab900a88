// Each line of the input is an argument.
#include "ORV/OrvResrc.h"
#include "ORV/Prog.h"
#include "ORV/ResrcDB.h"
#include "ORV/ResrcDBList.h"
#include "ORV/Strings.h"

#include "Fuzz.h"

#include <sstream>
#include <vector>

using namespace ORV;

void fuzz(const std::string& text) {
    std::vector<std::string> lines = {"obschart", "-df="};
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    lines.emplace_back("-df="); // no file of the machine is read
    lines.emplace_back("-me=none");
    std::vector<const char*> argv;
    for (const std::string& arg : lines)
        argv.push_back(arg.c_str());
    Strings args(static_cast<int>(argv.size()), argv.data());
    ResrcDBList keyed, positional;
    for (int group = OrvResrc::BASE; group <= OrvResrc::DEVICE; group++)
        OrvResrc::add(keyed, group);
    OrvResrc::add(positional, OrvResrc::filename);
    Orv::resrc.clear();
    ResrcDB::create(args, keyed, positional);
    for (const std::string& line : lines)
        Orv::setMessageLevel(line.c_str());
}
