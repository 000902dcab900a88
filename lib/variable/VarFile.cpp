#include "ORV/VarFile.h"

#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"

#include <cctype>
#include <string>

namespace ORV {

namespace {

constexpr int line_size = 150;

std::string nextWord(const char*& p) {
    const auto blank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    while (*p && blank(*p))
        ++p;
    const char* start = p;
    while (*p && !blank(*p))
        ++p;
    return std::string(start, p);
}

bool endsInBackslash(const char* line) {
    const int length = StrLib::length(line);
    return length > 0 && line[length - 1] == '\\';
}

} // namespace

int VarFileData::init() {
    *this = VarFileData();
    return 1;
}

int VarFile::open(const char* name) {
    String path;
    FileTool::addPath(Orv::getDatabasePath(), name, path);
    return File::open(path, "r");
}

int VarFile::read(VarFileData& entry) {
    char line[line_size];
    entry.init();
    if (getLine(line, sizeof line) <= 0)
        return 0;
    StrLib::trimWS(line);
    const char* p = line;
    StrLib::copy(entry.name, sizeof entry.name, nextWord(p).c_str());
    constexpr int label_size = 20;
    StrLib::copy(entry.label, label_size, nextWord(p).c_str());
    StrLib::replace(entry.label, '_', ' ');
    nextWord(p);

    std::string value = p;
    while (endsInBackslash(line)) {
        if (!value.empty())
            value.pop_back();
        if (getLine(line, sizeof line) <= 0)
            break;
        StrLib::trimWS(line);
        value += line;
    }
    entry.value.set(value.c_str());
    return entry.value.stripWS();
}

} // namespace ORV
