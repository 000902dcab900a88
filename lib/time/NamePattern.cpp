#include "NamePattern.h"

#include "ORV/Orv.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cctype>

namespace ORV {
namespace {
constexpr int max_number = 999; // between "%" and the letter
constexpr const char* no_path = ".";

class PathLetter {
public:
    char letter;
    const char* resource;
};

constexpr PathLetter path_letters[] = {
    {'C', "con_path"},   {'D', "data_path"},  {'F', "file_path"}, {'G', "grid_path"},
    {'I', "image_path"}, {'M', "model_path"}, {'R', "raw_path"},  {'S', "sat_path"},
    {'T', "text_path"},  {'W', "watch_path"},
};

const char* getPathResource(char letter) {
    for (const PathLetter& path : path_letters)
        if (path.letter == letter)
            return path.resource;
    return "";
}

/// Reads the directive behind a "%" and moves p to its last character.
NamePattern::Item parseDirective(const char*& p) {
    NamePattern::Item item;
    for (; std::isdigit(static_cast<unsigned char>(*p)); p++)
        item.number = std::min(item.number * 10 + (*p - '0'), max_number);
    if (*p == '{') {
        const char* const start = p + 1;
        while (p[1] && p[1] != '}')
            p++;
        item.name.assign(start, p + 1);
        item.letter = '{';
        if (p[1])
            p++;
    } else if (*p == '%') {
        item.plain = '%';
    } else {
        item.letter = *p;
        item.name = getPathResource(*p);
    }
    return item;
}
} // namespace

std::vector<NamePattern::Item> NamePattern::parse(const char* pattern) {
    std::vector<Item> items;
    for (const char* p = pattern; *p; p++) {
        Item item;
        if (*p == '%') {
            p++;
            item = parseDirective(p);
            if (!*p)
                break;
        } else if (*p != '{' && *p != '}') {
            item.plain = *p == ' ' ? '_' : *p;
        }
        if (item.letter || item.plain)
            items.push_back(item);
    }
    return items;
}

std::string NamePattern::getPathList(const Item& item, const char* own) {
    const char* list = StrLib::valid(own) ? own : Orv::getResrc(item.name.c_str());
    if (item.letter == 'D' && StrLib::getChar(list, 0) == '+')
        list = Orv::getResrc(list + 1);
    return StrLib::valid(list) ? list : no_path;
}

} // namespace ORV
