#include "ORV/FileTool.h"
#include "ORV/ModelName.h"
#include "ORV/ModelSpec.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace ORV {

namespace {

constexpr int name_line_size = 80;
constexpr int spec_line_size = 160;
constexpr int own_centre = 7; // of lines that name none

bool isBlank(const char* line) {
    return line[std::strspn(line, " \t\r\n")] == '\0';
}

int parseName(const char* line, int& source, int& model, char (&text)[20]) {
    if (Scan::text(line, "%d:%d %19[^\n]\n", &source, &model, text) == 3)
        return 1;
    source = own_centre;
    return Scan::text(line, "%d %19[^\n]\n", &model, text) == 2;
}

bool readName(File& file, int source, int model, char (&text)[20]) {
    char line[name_line_size];
    while (file.getLine(line, sizeof line) > 0 && !isBlank(line)) {
        int src = 0;
        int mod = 0;
        if (*line != '#' && parseName(line, src, mod, text) && src == source && mod == model)
            return true;
    }
    return false;
}

// Finds the line of a set and scans its size and its list.
int readSet(const char* name, int& nx, int& ny, char (&list)[spec_line_size]) {
    String path;
    FileTool::addPath(Orv::getDatabasePath(), "model.lup", path);
    File file(path, "r");
    char line[spec_line_size];
    while (file.isOpen() && file.getLine(line, sizeof line) > 0) {
        char word[20];
        if (*line == '#' || Scan::text(line, "%19s", word) < 1 || !StrLib::equal(word, name))
            continue;
        if (Scan::text(line, "%*s %dx%d %159s", &nx, &ny, list) == 3)
            return 1;
        ny = 1;
        return Scan::text(line, "%*s %d %159s", &nx, list) == 2;
    }
    return 0;
}

} // namespace

const char* ModelName::get(int source, int model) {
    if (source == src && model == mod)
        return name;
    src = mod = Const::MISS;
    *name = '\0';
    String path;
    FileTool::addPath(Orv::getDatabasePath(), "mod_name.lup", path);
    if (!file.open(path, "r")) {
        Orv::outWarning("ModelName: Unable to open file: %s\n", path.get());
        return name;
    }
    char text[20];
    if (readName(file, source, model, text)) {
        StrLib::trimWS(text);
        StrLib::copy(name, sizeof name, text);
    }
    file.close();
    src = source;
    mod = model;
    return name;
}

bool ModelName::get(int source, int model, String& out) {
    out.set(get(source, model));
    return out.valid();
}

int ModelSpec::init() {
    *this = ModelSpec();
    return 1;
}

int ModelSpec::set(const char* text) {
    init();
    char list[spec_line_size];
    if (!StrLib::valid(text) || !readSet(text, nx, ny, list)) {
        init();
        return 0;
    }
    StrLib::copy(name, sizeof name, text);
    nx = std::max(nx, 1);
    ny = std::max(ny, 1);
    const Strings pieces(list, ',');
    num = std::min(pieces.getNum(), static_cast<int>(std::size(spec)));
    for (int i = 0; i < num; ++i) {
        ModelType& piece = spec[i];
        piece.x = i % nx;
        piece.y = i / nx;
        piece.type = pieces.contains(i, "#") ? pieces.getIntAfter(i, '#') : itype;
        const int length = pieces.index(i, '#');
        StrLib::copy(piece.name, sizeof piece.name, pieces.getString(i));
        if (length >= 0 && length < static_cast<int>(sizeof piece.name))
            piece.name[length] = '\0';
    }
    return 1;
}

} // namespace ORV
