#include "ORV/DateTool.h"
#include "ORV/FileTool.h"
#include "ORV/NameConv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include "NamePattern.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace ORV {
namespace {
using Item = NamePattern::Item;
using Items = std::vector<Item>;

constexpr int key_size = 20; // of the value of a key

/// Rounds a field down to the step of its directive and keeps it. Returns false when it is missing.
bool keepField(const Item& item, int value, int& kept) {
    if (value < 0) // missing is negative too
        return false;
    const int step = std::max(item.number, 1);
    kept = value / step * step;
    return true;
}

std::string writeNumber(int width, int value) {
    std::string digits = std::to_string(std::abs(static_cast<long>(value)));
    if (int(digits.size()) < width)
        digits.insert(0, width - digits.size(), '0');
    return value < 0 ? "-" + digits : digits;
}

/// Keeps month and day too, those of the day that is written.
std::string writeDayOfYear(const Item& item, const Date& value, DateVal& kept) {
    int jday = 0;
    if (!keepField(item, value.jday, jday))
        return "";
    if (!Date::setJulian(value.year, jday, kept.month, kept.day)) {
        kept.month = value.month;
        kept.day = value.day;
    }
    return writeNumber(3, jday);
}

/// A directive of the date: a number with its digits, or a month's name.
class DateField {
public:
    char letter;
    int DateVal::*field;
    int digits;
};

constexpr DateField date_fields[] = {
    {'Y', &DateVal::year, 4}, {'m', &DateVal::month, 2}, {'d', &DateVal::day, 2},
    {'h', &DateVal::hour, 2}, {'n', &DateVal::min, 2},
};

const DateField* findDateField(char letter) {
    for (const DateField& field : date_fields)
        if (field.letter == letter)
            return &field;
    return nullptr;
}

/// Writes a directive of the date; returns false when it is none.
bool writeDate(const Item& item, const Date& value, DateVal& kept, std::string& out) {
    if (const DateField* field = findDateField(item.letter)) {
        const bool known = keepField(item, value.*field->field, kept.*field->field);
        out += writeNumber(field->digits, known ? kept.*field->field : 0);
    } else if (item.letter == 'y') {
        out += writeNumber(2, keepField(item, value.year, kept.year) ? kept.year % 100 : 0);
    } else if (item.letter == 'j') {
        out += writeDayOfYear(item, value, kept);
    } else if (item.letter == 'B') {
        out += keepField(item, value.month, kept.month) ? DateTool::getMonth(kept.month) : "XXX";
    } else if (item.letter == 'b') {
        out +=
            keepField(item, value.month, kept.month) ? DateTool::getMonthLower(kept.month) : "xxx";
    } else {
        return false;
    }
    return true;
}

std::string writeForeTime(const NameConv& conv, int digits) {
    const char* text = conv.getKey('f');
    const int hours = StrLib::valid(text) ? StrLib::toInt(text, 0) : conv.fore_time;
    return writeNumber(std::max(digits, 1), hours);
}

std::string writeKey(const NameConv& conv, const Item& item) {
    const std::string text = conv.getKey(item.letter);
    if (text.empty())
        return "0";
    return item.number > 0 ? text.substr(0, item.number) : text;
}

void writePath(NameConv& conv, const Item& item, std::string& out) {
    const std::string list = NamePattern::getPathList(item, conv.path.get());
    conv.npath = FileTool::numPath(list.c_str());
    String part;
    if (!FileTool::getPath(list.c_str(), conv.cpath, part))
        FileTool::getPath(list.c_str(), 0, part);
    out += part.get();
    if (item.letter != '{' && !FileTool::exist(out.c_str()))
        conv.pexist = false;
}

/// The text of a name as far as it isn't matched yet.
class Rest {
public:
    const char* text;
    int slashes; // of the pattern

    bool skip(const std::string& part) {
        if (part.empty() || !StrLib::equal(text, int(part.size()), part.c_str()))
            return false;
        text += part.size();
        return true;
    }

    bool readNumber(int digits, int& value) {
        for (int i = 0; i < digits; i++)
            if (!std::isdigit(static_cast<unsigned char>(text[i])))
                return false;
        text += Scan::integer(text, value, digits);
        return true;
    }

    bool readMonth(int& month) {
        month = DateTool::decodeMonth(text);
        if (month == 0 || StrLib::length(text) < 3)
            return false;
        text += 3;
        return true;
    }

    /// Takes the text up to the next plain character of the pattern, but at most width when that
    /// isn't 0.
    std::string readWord(const Items& items, std::size_t i, int width) {
        char end = 0;
        for (i++; i < items.size() && !end; i++)
            end = items[i].plain;
        const char* stop = text;
        while (*stop && *stop != end && (width == 0 || stop - text < width))
            stop++;
        const std::string word(text, stop);
        text = stop;
        return word;
    }

    /// Takes what stands before as many slashes from the end as the pattern has.
    bool readDirectory(std::string& directory) {
        const std::string whole = text;
        std::size_t end = whole.size();
        for (int i = 0; i < slashes && end != std::string::npos; i++)
            end = end == 0 ? std::string::npos : whole.rfind('/', end - 1);
        if (end == std::string::npos)
            return false;
        directory = whole.substr(0, end);
        text += end;
        return true;
    }
};

bool readYear(Rest& rest, int& year) {
    if (!rest.readNumber(2, year))
        return false;
    year += year < 50 ? 2000 : 1900;
    return true;
}

bool readDayOfYear(Rest& rest, DateVal& vals) {
    int jday = 0;
    return rest.readNumber(3, jday) && Date::setJulian(vals.year, jday, vals.month, vals.day);
}

bool readPath(NameConv& conv, const Item& item, Rest& rest) {
    const std::string list = NamePattern::getPathList(item, conv.path.get());
    const char next = StrLib::getChar(rest.text, int(list.size()));
    if ((next == '/' || next == 0) && rest.skip(list))
        return true;
    std::string directory;
    if (!rest.readDirectory(directory))
        return false;
    conv.path.set(directory.c_str());
    return true;
}

int countSlashes(const Items& items) {
    return int(std::count_if(items.begin(), items.end(),
                             [](const Item& item) { return item.plain == '/'; }));
}

/// Returns the last n components of a path, all of it when it has fewer.
const char* getLastParts(const char* text, int n) {
    const char* p = text + StrLib::length(text);
    while (p > text && (p[-1] != '/' || --n > 0))
        p--;
    return p;
}

/// Stores a key read from a name, in place of the value it had.
void storeKey(NameConv& conv, char letter, const std::string& text) {
    for (int i = 0; i < conv.numkey; i++)
        if (conv.key[i] == letter) {
            StrLib::copy(conv.keyval[i], key_size, text.c_str());
            return;
        }
    conv.setKey(letter, text.c_str());
}

bool decodeItem(NameConv& conv, const Items& items, std::size_t i, Rest& rest, DateVal& vals) {
    const Item& item = items[i];
    if (!item.letter)
        return rest.skip(std::string(1, item.plain));
    if (item.isPath())
        return readPath(conv, item, rest);
    if (const DateField* field = findDateField(item.letter))
        return rest.readNumber(field->digits, vals.*field->field);
    switch (item.letter) {
    case 'y':
        return readYear(rest, vals.year);
    case 'j':
        return readDayOfYear(rest, vals);
    case 'b':
    case 'B':
        return rest.readMonth(vals.month);
    case 'e':
        if (!rest.skip(conv.ext))
            conv.setExt(rest.readWord(items, i, item.number).c_str());
        return true;
    default:
        if (!rest.skip(conv.getKey(item.letter)))
            storeKey(conv, item.letter, rest.readWord(items, i, item.number));
        return true;
    }
}

} // namespace

int NameConv::encode(const Date& value, int which, String& out) {
    const char* pattern = which == 1 ? hdr : file;
    out.clear();
    if (!*pattern)
        return 0;
    const Date wanted = value; // which may be this date
    npath = 1;
    pexist = true;
    DateVal kept;
    std::string name;
    for (const Item& item : NamePattern::parse(pattern)) {
        if (!item.letter)
            name += item.plain;
        else if (item.isPath())
            writePath(*this, item, name);
        else if (item.letter == 'e')
            name += ext;
        else if (item.letter == 'f')
            name += writeForeTime(*this, item.number);
        else if (!writeDate(item, wanted, kept, name))
            name += writeKey(*this, item);
    }
    date.init();
    date.set(kept);
    out.set(name.c_str());
    return 1;
}

int NameConv::encodeFile(const Date& value, String& out) {
    return encode(value, 0, out);
}

int NameConv::encodeHdr(const Date& value, String& out) {
    return encode(value, 1, out);
}

int NameConv::decode(const char* text) {
    Items items = NamePattern::parse(file);
    if (items.empty() || !StrLib::valid(text))
        return 0;
    int slashes = countSlashes(items);
    if (StrLib::occurs(text, '/') < slashes) {
        const auto last = std::find_if(items.rbegin(), items.rend(),
                                       [](const Item& item) { return item.plain == '/'; });
        items.erase(items.begin(), last.base());
        slashes = 0;
    }
    if (items.empty())
        return 0;
    const bool whole = items[0].isPath();
    Rest rest{whole ? text : getLastParts(text, slashes + 1), slashes};
    DateVal vals;
    for (std::size_t i = 0; i < items.size(); i++)
        if (!decodeItem(*this, items, i, rest, vals))
            return 0;
    date.init();
    date.set(vals);
    return 1;
}

} // namespace ORV
