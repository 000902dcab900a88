#include "ORV/FileTool.h"
#include "ORV/Filename.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"

#include "NamePattern.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace ORV {
namespace {
constexpr const char* latest = "la";
constexpr std::size_t command_size = 120;
constexpr int search_level = 13; // of the message that shows the command

/// Wildcards of the directives whose width is known.
class Wildcard {
public:
    char letter;
    const char* text;
};

constexpr Wildcard wildcards[] = {
    {'Y', "????"}, {'b', "???"}, {'B', "???"}, {'j', "???"}, {'d', "??"},
    {'h', "??"},   {'m', "??"},  {'n', "??"},  {'y', "??"},
};

const char* findWildcard(char letter) {
    for (const Wildcard& wildcard : wildcards)
        if (wildcard.letter == letter)
            return wildcard.text;
    return nullptr;
}

/// Quotes what the shell would take for more than a name.
std::string quote(const std::string& text) {
    std::string quoted;
    for (const char c : text) {
        if (!std::isalnum(static_cast<unsigned char>(c)) && !std::strchr("/._-+=:,@%~", c))
            quoted += '\\';
        quoted += c;
    }
    return quoted;
}

/// Returns the first path of a list that exists, else the first one.
std::string findDirectory(const std::string& list) {
    String first;
    FileTool::getPath(list.c_str(), 0, first);
    String path;
    for (int i = 0; FileTool::getPath(list.c_str(), i, path); i++)
        if (FileTool::exist(path.get()))
            return path.get();
    return first.get();
}

/// Returns the words of the shell that stand for an item of the pattern.
std::string writeWildcard(const NameConv& conv, const NamePattern::Item& item) {
    if (!item.letter)
        return quote(std::string(1, item.plain));
    if (item.isPath())
        return quote(findDirectory(NamePattern::getPathList(item, conv.path.get())));
    if (const char* text = findWildcard(item.letter))
        return text;
    const char* value = item.letter == 'e' ? conv.getExt() : conv.getKey(item.letter);
    if (StrLib::valid(value))
        return quote(value);
    return item.number > 0 && item.letter != 'e' ? std::string(item.number, '?') : "*";
}

/// Returns the fields of a list from one on, as the text that they were split from.
std::string joinFrom(const Strings& fields, int first) {
    std::string text;
    for (int i = first; i < fields.getNum(); i++) {
        const char* field = fields.getString(i);
        text += (i > first ? "," : "") + std::string(field ? field : "");
    }
    return text;
}

/// Whether the text asks for a time before now: "cu=6", "cu-6".
bool isAge(const char* text) {
    return StrLib::iequal(text, "cu=", 3) || StrLib::iequal(text, "cu-", 3);
}
} // namespace

int Filename::setDecoded(const char* text) {
    if (!conv.decode(text))
        return 0;
    conv.getDate(date);
    NameConvFile result;
    conv.setFile(date, result);
    fixed = conv.off == Const::MISS;
    return take(result);
}

int Filename::checkFile(const char* text) {
    if (!text)
        return 0;
    if (StrLib::equal(text, "exit"))
        Orv::exit(Orv::NOERR);
    if (*text == '@')
        return setLiteral(text + 1);
    if (FileTool::isStdio(text))
        return setLiteral("-");
    if (!StrLib::valid(conv.file) || StrLib::equal(conv.file, "none"))
        return setLiteral(text);
    if (*text == '#') {
        setLatest(text);
        const Date wanted(text);
        if (wanted.isSet()) {
            date = wanted;
            setBaseDate(date);
        }
        return 1;
    }
    if (isAge(text))
        return setLatest(text + 3);
    if (StrLib::iequal(text, "cu"))
        return setLatest("");
    if (StrLib::iequal(text, latest, 2))
        return setLatest(text);
    if (FileTool::isFullPath(text) && FileTool::isFullPath(conv.file))
        return setLiteral(text);
    return setDecoded(text) || setLiteral(text);
}

/// Splits a list of files; the frames of a list before it are gone.
int Filename::setList(const char* text, char delim) {
    if (num_type == 2)
        num_file = 1;
    num_type = 0;
    return files.set(text, delim);
}

/// Makes each of several files a frame.
int Filename::setFrames() {
    if (files.getNum() < 2)
        return 0;
    num_file = files.getNum();
    num_type = 2;
    return 1;
}

int Filename::setFile() {
    const char* text = Orv::getResrc("filename");
    const char* current = Orv::getResrc("current");
    if (!StrLib::valid(text)) {
        setLatest(current ? current : latest);
        is_set = true;
        return exist();
    }
    if (StrLib::equal(text, "list")) {
        listFile();
        Orv::exit(Orv::NOERR);
    }
    setList(text, std::strchr(text + 1, '\n') ? '\n' : ',');
    setFrames();
    if (current) {
        setNameConv(files.getString(0));
        setLatest(current);
    } else {
        name.set(files.getString(0));
        checkFile(files.getString(0));
    }
    is_set = true;
    return exist();
}

int Filename::setFile(const char* text) {
    const char* input = StrLib::valid(text) ? text : Orv::getResrc("filename");
    if (!StrLib::valid(input)) {
        setLatest(Orv::getResrc("current", latest));
        is_set = true;
        return exist();
    }
    const bool lines = input != text && std::strchr(input + 1, '\n');
    setList(input, lines ? '\n' : ',');
    checkFile(files.getString(0));
    is_set = true;
    if (files.equal(1, "nh=", 3))
        setNumFiles(joinFrom(files, 1).c_str() + 3);
    else
        setFrames();
    return exist();
}

int Filename::listFile() {
    std::string command = "ls -x ";
    for (const NamePattern::Item& item : NamePattern::parse(conv.file))
        command += writeWildcard(conv, item);
    if (command.size() >= command_size)
        return 0;
    Orv::outMessage(search_level, "SEARCH: %s\n", command.c_str());
    std::fflush(stdout); // so that it comes before what the shell prints
    return std::system(command.c_str()) == 0;
}

} // namespace ORV
