#include "ORV/SfcFile.h"

#include "ORV/FileTool.h"
#include "ORV/StrLib.h"

#include <cstring>
#include <iterator>

namespace ORV {
namespace {
class Magic {
public:
    const char* bytes;
    SfcFile::Type type;
};
constexpr Magic magics[] = {
    {"ORVSFC", SfcFile::ORV},
    {"CDF", SfcFile::CDF},
    {"<?xml", SfcFile::XML},
    {"\x1F\x8B", SfcFile::XMLC},
};

constexpr const char* type_names[] = {"", "orv", "cdf", "xml", "xmlc"};
} // namespace

int SfcFile::checkType(const char* name) {
    File probe(name, 0);
    char start[11] = "";
    const int n = probe.isOpen() ? probe.read(start, sizeof start - 1) : 0;
    if (n <= 0)
        return -1;
    for (const auto& row : magics)
        if (std::strncmp(start, row.bytes, std::strlen(row.bytes)) == 0)
            return row.type;
    return UNKNOWN;
}

int SfcFile::getType(const char* text) {
    for (int i = 1; i < static_cast<int>(std::size(type_names)); i++)
        if (StrLib::iequal(text, type_names[i]))
            return i;
    return UNKNOWN;
}

int SfcFile::open(const char* name, int new_mode, int new_type) {
    close();
    if (new_type == UNKNOWN) {
        // What is read from standard input to find out its format would be lost.
        const bool ours = new_mode == 1 || FileTool::isStdio(name);
        new_type = ours ? static_cast<int>(ORV) : checkType(name);
    }
    mode = new_mode;
    type = new_type;
    if (type == ORV)
        opened = orv.open(name, mode);
    else if (type == PLAIN)
        opened = file.open(name, mode);
    return opened;
}

int SfcFile::close() {
    if (!opened)
        return 1;
    opened = false;
    return type == ORV ? orv.close() : file.close();
}

int SfcFile::rewind() {
    return opened && type == ORV ? orv.rewind() : 1;
}

int SfcFile::setDate(const Date& value) {
    date = value;
    return orv.setDate(value);
}

int SfcFile::getDate(Date& out) const {
    if (type == ORV)
        return orv.getDate(out);
    out = date;
    return 1;
}

const char* SfcFile::getDatim() const {
    return type == ORV ? orv.getDatim() : "";
}

int SfcFile::read(SfcData& data) {
    if (opened && type == ORV)
        return orv.read(data);
    data.init();
    return 0;
}

bool SfcFile::atEnd() {
    return !opened || type != ORV || orv.atEnd();
}

int SfcFile::write(const SfcData& data) {
    return opened && type == ORV ? orv.write(data) : 0;
}

} // namespace ORV
