#include "ORV/ColorFile.h"

#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/LineReader.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"
#include "ORV/Tools.h"

#include <algorithm>

namespace ORV {
namespace {
// The text behind a leading number.
const char* skipNumber(const char* line) {
    int number = 0;
    return Tools::isInt(line) ? line + Scan::integer(line, number) : line;
}

int decode(const char* line, ColorMap& map) {
    const char* entry = skipNumber(line);
    char name[20] = "";
    float part[3] = {};
    if (Scan::text(entry, "%19s %f %f %f", name, &part[0], &part[1], &part[2]) < 4) {
        int of_255[3] = {};
        if (Scan::text(entry, "%19s #%2x%2x%2x", name, &of_255[0], &of_255[1], &of_255[2]) < 4)
            return 0;
        std::transform(of_255, of_255 + 3, part, [](int v) { return v / 255.0f; });
    }
    for (float& p : part)
        p = std::clamp(p, 0.0f, 1.0f);
    return map.add(name, part[0], part[1], part[2]) >= 0;
}

void closeFill(ColorMap& map) {
    if (map.num_fill == 0)
        map.num_fill = map.num;
}
} // namespace

int ColorFile::read(const char* list, ColorMap& map) {
    const Strings names(list, ',');
    int count = 0;
    for (int i = 0; i < names.getNum(); i++) {
        String path;
        FileTool::addPath(Orv::getDatabasePath(), names.getString(i), path);
        count += readFile(path.get(), map);
        closeFill(map);
    }
    return count > 0;
}

int ColorFile::readFile(const char* name, ColorMap& map) {
    File file(name, "r");
    if (!file.isOpen())
        return 0;
    if (map.max == 0)
        map.init(256);
    for (LineReader<256> line(file); line.next();) {
        if (line.text()[0] == '#')
            continue;
        if (StrLib::iequal(line.text(), "END"))
            closeFill(map);
        else if (decode(line.text(), map) == 0 && map.num >= map.max)
            break; // full: one warning is enough
    }
    closeFill(map);
    return 1;
}

} // namespace ORV
