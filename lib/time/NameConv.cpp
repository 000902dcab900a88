#include "ORV/NameConv.h"

#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include "DateScan.h"
#include "NamePattern.h"

#include <algorithm>
#include <cctype>
#include <climits>

namespace ORV {
namespace {
constexpr int max_keys = 20;
constexpr int key_size = 20; // of a key's value
constexpr int shortest = 20; // line of the convention file, characters
constexpr const char* conv_file = "name.cnv";
constexpr const char* old_conv_file = "name_conv";

/// Finds the convention file. Returns 0 when there is none, with the path of the usual one.
int findConvFile(String& path) {
    const char* list = Orv::getResrc("file_path", Orv::getDatabasePath());
    if (FileTool::addPath(list, Orv::getResrc("name_conv", conv_file), path))
        return 1;
    String other;
    if (!FileTool::addPath(list, old_conv_file, other))
        return 0;
    path.set(other);
    return 1;
}

/// Returns the seconds that one step of a time directive takes, 0 for others.
long getStep(char letter) {
    switch (letter) {
    case 'd':
    case 'j':
        return 86400;
    case 'h':
        return 3600;
    case 'n':
        return 60;
    default:
        return 0;
    }
}

/// Form of a fixed date by its length, when it is all digits.
class FixForm {
public:
    int length;
    const char* pattern;
};

constexpr FixForm fix_forms[] = {{6, "%2m%2d%2H"}, {4, "%2d%2H"}, {3, "%1d%2H"}};

bool isDigits(const char* text, int n) {
    return std::all_of(text, text + n,
                       [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; });
}
} // namespace

int NameConv::init() {
    NameConv fresh;
    fresh.path.set(path);
    fresh.limit = limit;
    fresh.output = output;
    fresh.fix_date = fix_date;
    fresh.late_date = late_date;
    *this = fresh;
    return 1;
}

int NameConv::set(const char* text) {
    init();
    if (!StrLib::valid(text))
        return 0;
    if (StrLib::iequal(text, "none"))
        return 1;
    if (*text == '@') {
        StrLib::copy(file, sizeof file, text + 1);
        off = setOffset(file);
        return 1;
    }

    const Strings fields(text, ',');
    const Strings words(fields.getString(0), ':');
    for (int i = 1; i < words.getNum(); i++)
        if (words.getChar(i, 1) == '=')
            setKey(words.getChar(i, 0), words.getString(i, 2));
    const char* name = words.valid(0) ? words.getString(0) : "";

    String path_name;
    findConvFile(path_name);
    File conventions(path_name, "r");
    if (!conventions.isOpen()) {
        Orv::outWarning("NameConv: No file name convention file: %s\n", path_name.get());
        StrLib::copy(file, sizeof file, name);
        return 0;
    }
    char line[400];
    int found = 0;
    while (!found && conventions.getLine(line, sizeof line) > 0) {
        StrLib::trimWS(line);
        found = readLine(line, name);
    }
    if (!found) {
        StrLib::copy(file, sizeof file, name);
        StrLib::copy(hdr, sizeof hdr, fields.getString(1));
        StrLib::copy(type, sizeof type, fields.getString(2));
    }
    for (int i = 3; i < fields.getNum(); i++)
        setLimit(fields.getString(i));
    off = setOffset(file);
    return 1;
}

/// Takes the convention from a line when it is the one with this name. Returns 0 when it isn't.
int NameConv::readLine(const char* line, const char* name) {
    if (*line == '#' || StrLib::length(line) < shortest)
        return 0;
    char tag[21] = "";
    char pattern[81] = "";
    char header[81] = "";
    char kind[31] = "";
    char params[51] = "";
    Scan::text(line, "%20s %80s %80s %30s %50s", tag, pattern, header, kind, params);
    if (!StrLib::iequal(tag, name)) {
        if (!StrLib::equal(name, StrLib::length(tag), tag))
            return 0;
        const int last = StrLib::lastIndex(name, '_');
        if (last >= 0)
            setExt(name + last + 1);
    }

    StrLib::copy(file, sizeof file, pattern);
    StrLib::copy(hdr, sizeof hdr, StrLib::equal(header, "-") ? "" : header);
    int size = 0;
    if (std::isdigit(static_cast<unsigned char>(*kind)) && Scan::integer(kind, size)) {
        min_size = size;
        const int comma = StrLib::index(kind, ',');
        StrLib::copy(type, sizeof type, comma >= 0 ? kind + comma + 1 : "");
    } else {
        StrLib::copy(type, sizeof type, kind);
    }
    StrLib::copy(param, sizeof param, params);
    const Strings limits(params, ',');
    for (int i = 0; i < limits.getNum(); i++)
        setLimit(limits.getString(i));
    return 1;
}

void NameConv::setLimit(const char* text) {
    int value = 0;
    if (StrLib::equal(text, "min=", 4) && Scan::integer(text + 4, value))
        min_time = value;
    else if (StrLib::equal(text, "size=", 5) && Scan::integer(text + 5, value))
        min_size = value;
}

int NameConv::setOutput(bool value) {
    output = value;
    return 1;
}

int NameConv::setFixDate(const DateVal& vals) {
    fix_date = vals;
    return 1;
}

int NameConv::setFixDate(const char* text) {
    fix_date.init();
    if (!StrLib::valid(text))
        return 0;
    if (*text == '#')
        return DateScan::scan(++text, "%4Y%2m%2d%2H%2M", fix_date).count > 0;
    for (const FixForm& form : fix_forms)
        if (StrLib::length(text) == form.length && isDigits(text, form.length))
            return DateScan::scan(text, form.pattern, fix_date).count > 0;
    if (StrLib::index(text, 'd') >= 0)
        return Scan::text(text, "%dd%d:%d", &fix_date.day, &fix_date.hour, &fix_date.min) > 0;
    if (*text == ':')
        return Scan::integer(text + 1, fix_date.min) > 0;

    const bool negative = *text == '-';
    const bool minutes = negative && text[1] == ':';
    const int count = minutes ? Scan::integer(text + 2, fix_date.min)
                              : Scan::text(text, "%d:%d", &fix_date.hour, &fix_date.min);
    const bool no_hour = minutes || fix_date.hour == 0;
    if (negative && no_hour && fix_date.min != Const::MISS)
        fix_date.min = fix_date.min > 0 ? -fix_date.min : Const::MISS;
    return count > 0;
}

int NameConv::getFixDate(DateVal& vals) const {
    vals = fix_date;
    return 1;
}

int NameConv::setLateLimit(int n) {
    limit = n;
    return 1;
}

int NameConv::setLateDate(const Date& value) {
    late_date = value;
    return 1;
}

int NameConv::setForeTime(int n) {
    fore_time = n;
    return 1;
}

int NameConv::setOffset(int n) {
    off = n;
    return 1;
}

int NameConv::setOffset(const char* pattern) {
    long least = LONG_MAX;
    for (const NamePattern::Item& item : NamePattern::parse(pattern ? pattern : ""))
        if (const long step = getStep(item.letter))
            least = std::min(least, step * std::max(item.number, 1));
    return least == LONG_MAX ? Const::MISS : int(least);
}

int NameConv::setExt(const char* text) {
    return StrLib::copy(ext, sizeof ext, text);
}

int NameConv::setKey(char letter, const char* text) {
    if (numkey >= max_keys)
        return 0;
    key[numkey] = letter;
    StrLib::copy(keyval[numkey], key_size, text);
    numkey++;
    return 1;
}

const char* NameConv::getKey(char letter) const {
    for (int i = 0; i < numkey; i++)
        if (key[i] == letter)
            return keyval[i];
    return "";
}

int NameConv::setPath(const char* text) {
    const bool plus = StrLib::equal(text, "+", 1);
    const bool named = StrLib::equal(text, "res=", 4) || StrLib::equal(text, "res:", 4);
    if (!plus && !named) {
        path.set(text);
        return 1;
    }
    const char* list = Orv::getResrc(text + (plus ? 1 : 4));
    if (list)
        path.set(list);
    return list != nullptr;
}

int NameConv::setPathNum(int n) {
    cpath = n;
    return 1;
}

int NameConv::getDate(Date& value) const {
    value = date;
    return 1;
}

} // namespace ORV
