#include "ORV/Filename.h"

#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdlib>

namespace ORV {
namespace {
constexpr const char* latest = "la";
constexpr int hour_secs = 3600;

/// Reads "H:M", "H" or ":M" and moves the text behind it. Returns seconds.
int readSpan(const char*& text) {
    int hours = 0;
    int minutes = 0;
    text += Scan::integer(text, hours);
    if (*text == ':')
        text += 1 + Scan::integer(text + 1, minutes);
    const double seconds = hours * 3600.0 + minutes * 60.0;
    return Scan::toInt(seconds);
}
} // namespace

Filename::Filename(const char* text) {
    set(text);
}

Filename::Filename(const char* a_conv, const char* text) {
    set(a_conv, text);
}

Filename::Filename(const char* a_conv, const Date& value) {
    set(a_conv, value);
}

int Filename::init() {
    *this = Filename();
    return 1;
}

/// Takes over the outcome of a search.
int Filename::take(const NameConvFile& result) {
    name.set(result.filename);
    hdr.set(result.header);
    date = result.date;
    return setBaseDate(date);
}

int Filename::setLiteral(const char* text) {
    name.set(text);
    hdr.clear();
    fixed = true;
    return 1;
}

int Filename::setLatest(const char* text) {
    NameConvFile result;
    conv.setLatest(text, result);
    fixed = false;
    return take(result);
}

int Filename::set(const char* text) {
    name.set(text);
    is_set = true;
    return 1;
}

int Filename::set(const char* a_conv, const char* text) {
    if (!StrLib::valid(a_conv))
        return set(text) && exist();
    setNameConv(a_conv);
    setLatest(text);
    is_set = true;
    return exist();
}

int Filename::set(const char* a_conv, const Date& value) {
    setNameConv(a_conv);
    NameConvFile result;
    conv.setFile(value, result);
    fixed = false;
    is_set = true;
    return take(result);
}

int Filename::setNameConv(const char* text) {
    const int result = conv.set(text);
    file_off = conv.getOffset();
    setType(conv.getType());
    return result;
}

int Filename::setPath(const char* text) {
    return conv.setPath(text);
}

int Filename::setFixDate(const char* text) {
    return conv.setFixDate(text);
}

int Filename::setFixDate(const DateVal& vals) {
    return conv.setFixDate(vals);
}

int Filename::setForeTime(int n) {
    return conv.setForeTime(n);
}

int Filename::setKey(char letter, const char* text) {
    return conv.setKey(letter, text);
}

int Filename::setOutput(bool value) {
    return conv.setOutput(value);
}

int Filename::setLateLimit(int n) {
    return conv.setLateLimit(n);
}

int Filename::setLateDate(const Date& value) {
    return conv.setLateDate(value);
}

int Filename::setDate(const Date& value) {
    date = value;
    return 1;
}

int Filename::getDate(Date& value) const {
    value = date;
    return 1;
}

int Filename::setType(const char* text) {
    return StrLib::copy(type, sizeof type, text);
}

int Filename::setName(const char* text) {
    return name.set(text);
}

const char* Filename::getName(int i) const {
    return i == 0 ? name.get() : files.getString(i);
}

int Filename::setHeader(const char* text) {
    return hdr.set(text);
}

int Filename::setBaseDate(const Date& value) {
    base_date = value;
    return base_date.fix();
}

bool Filename::exist() const {
    return FileTool::exist(name.get());
}

int Filename::setNumFiles(int n) {
    num_dir = n < 0 ? -1 : 1;
    num_file = n == INT_MIN ? INT_MAX : std::abs(n);
    return 1;
}

int Filename::setNumFiles(const char* text) {
    if (!text)
        return 0;
    num_dir = *text == '-' ? -1 : 1;
    num_off = 0;
    file_off = conv.getOffset();
    if (*text == '-')
        text++;
    const long span = readSpan(text);
    if (*text == '-')
        num_off = readSpan(++text);
    if (*text == ',')
        file_off = readSpan(++text);

    const long step = file_off == 0 ? hour_secs : file_off;
    const long steps = file_off == Const::MISS ? 0 : (span + num_off) / step;
    num_file = int(std::clamp(steps + 1, 1L, long(INT_MAX)));
    return 1;
}

int Filename::setFile(const Date& value) {
    if (!value.isSet())
        return 0;
    if (!fixed) {
        NameConvFile result;
        conv.setFile(value, result);
        take(result);
        is_set = true;
    }
    return exist();
}

int Filename::setFile(const Date& value, const char*) {
    if (!value.isSet())
        return 0;
    if (!fixed) {
        const Date wanted = value; // which may be a date of this object
        conv.setLateDate(wanted);
        conv.setLateLimit(1);
        NameConvFile result;
        conv.setLatest(wanted, latest, result);
        take(result);
        is_set = true;
    }
    return exist();
}

int Filename::setFile(int frame) {
    if (frame < 0 || frame >= num_file)
        return 0;
    if (num_type == 2) {
        name.set(files.getString(frame));
        hdr.clear();
        return 1;
    }
    if (fixed)
        return frame == 0;
    if (!base_date.isSet())
        return 0;
    const long index = num_dir < 0 ? long(frame) - num_file + 1 : frame;
    const long step = file_off == Const::MISS ? 0 : file_off;
    NameConvFile result;
    conv.setFile(Date(base_date.secs + index * step + num_off), result);
    name.set(result.filename);
    hdr.set(result.header);
    date = result.date;
    return 1;
}

int Filename::addOutPath(const char* path) {
    FileTool::addOutPath(path, name.get(), name);
    if (hdr.valid())
        FileTool::addOutPath(path, hdr.get(), hdr);
    return 1;
}

} // namespace ORV
