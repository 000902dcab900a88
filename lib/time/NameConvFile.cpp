#include "ORV/NameConvFile.h"

#include "ORV/StrLib.h"

namespace ORV {
namespace {
constexpr int name_size = 120;
constexpr int param_size = 20;
} // namespace

int NameConvFile::init() {
    *this = NameConvFile();
    return 1;
}

int NameConvFile::setType(const char* text) {
    return StrLib::copy(type, sizeof type, text);
}

int NameConvFile::setFilename(const char* text) {
    return StrLib::copy(filename, name_size, text);
}

int NameConvFile::setHeader(const char* text) {
    return StrLib::copy(header, name_size, text);
}

int NameConvFile::setDate(const Date& value) {
    date = value;
    return 1;
}

int NameConvFile::setParam(const char* text) {
    return StrLib::copy(param, param_size, text);
}

int NameConvFile::setOffset(int value) {
    offset = value;
    return 1;
}

int NameConvFile::getDate(Date& value) const {
    value = date;
    return 1;
}

} // namespace ORV
