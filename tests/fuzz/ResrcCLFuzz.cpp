#include "ORV/Orv.h"
#include "ORV/OrvResrc.h"
#include "ORV/Prog.h"
#include "ORV/ResrcDB.h"
#include "ORV/ResrcDBList.h"
#include "ORV/Strings.h"

#include <cstdint>
#include <string>
#include <vector>

using namespace ORV;

/// Each line of the input is an argument.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    std::vector<std::string> lines = {"obschart", "-df="};
    std::string line;
    for (std::size_t i = 0; i < size; i++) {
        if (bytes[i] != '\n')
            line += static_cast<char>(bytes[i]);
        else
            lines.push_back(std::move(line)), line.clear();
    }
    lines.push_back(line);
    lines.push_back("-df="); // no file of the machine is read
    lines.push_back("-me=none");
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
    for (const std::string& text : lines)
        Orv::setMessageLevel(text.c_str());
    Orv::setMessageLevel(0);
    return 0;
}
