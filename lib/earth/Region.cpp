#include "ORV/Region.h"

#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"

#include <cstdio>
#include <cstring>

namespace ORV {
namespace {
// A line, cut to the size of the buffer. False at the end of the file.
template <int Size>
bool readLine(File& file, char (&line)[Size]) {
    const int length = file.getLine(line, Size);
    if (length == Size - 1 && line[length - 1] != '\n')
        file.skipLine();
    return length > 0;
}
} // namespace

int Region::get(const char* file, const char* name, String& out) {
    String path;
    FileTool::addPath(Orv::getDatabasePath(), file ? file : "orv.reg", path);
    File in;
    if (!in.open(path, "r")) {
        Orv::outWarning("Unable to open region file: %s\n", path.get());
        return 0;
    }
    out.clear();
    char line[160];
    while (readLine(in, line)) {
        char found[80], domain[80];
        const int num = std::sscanf(line, "%79s %*s %*d %79s", found, domain);
        if (line[0] == '#' || num < 1)
            continue;
        if (num == 1)
            return out.set(found);
        if (!name || StrLib::iequal(name, found))
            return out.set(domain);
    }
    return 0;
}

} // namespace ORV
