#include "ORV/ResrcFile.h"

#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace ORV {
namespace {
constexpr const char* default_name = "orv.cfg";
constexpr const char* folder_names[] = {default_name, ".orvdef", "Orv.res"};
constexpr const char* builtin_tag = "V6";

constexpr int max_line = 250;
constexpr int max_key = 50;
constexpr int max_value = 250;
constexpr int max_target = 60; // room of a composed key

/// States of a conditional block.
constexpr char open_state = 0;
constexpr char live = 1;
constexpr char taken_before = 99;

/// The file to read in a folder.
void chooseInFolder(const char* folder, String& path) {
    for (const char* name : folder_names) {
        path.copy(folder);
        FileTool::addPathDelim(path);
        path.append(name);
        if (FileTool::exist(path.get()))
            return;
    }
}

/// Matches a key with wildcards against the whole target.
bool match(const char* key, const char* target) {
    for (; *key && *key != '*'; key++, target++)
        if (*key != *target)
            return false;
    while (*key == '*') {
        key++;
        const char* end = key + std::strcspn(key, "*");
        const char* found = std::search(target, target + std::strlen(target), key, end);
        if (key == end && !*key)
            return false;
        if (found == target + std::strlen(target))
            return false;
        target = found + (end - key);
        key = end;
    }
    return !*target;
}

/// The text between double quotes, or up to the end of the line.
void scanQuoted(const char* text, char* value) {
    const int length = static_cast<int>(std::strcspn(text, "\"\n"));
    StrLib::copy(value, std::min(length + 1, max_value), text);
}
} // namespace

ResrcFile::ResrcFile(const Resrc& store) {
    set(store.get("prog"), store.get("name"));
}

int ResrcFile::set(const char* prog_text, const char* name_text) {
    StrLib::copy(prog, sizeof prog, prog_text);
    StrLib::copy(name, sizeof name, name_text);
    return 1;
}

bool ResrcFile::isTag(const char* tag) const {
    return std::any_of(tags, tags + num_tag,
                       [tag](const char* defined) { return StrLib::iequal(defined, tag); });
}

int ResrcFile::setTag(const char* tag) {
    char cut[sizeof tags[0]];
    if (!StrLib::copy(cut, sizeof cut, tag))
        return 0;
    if (isTag(cut))
        return 1;
    if (num_tag >= static_cast<int>(std::size(tags)))
        return 0;
    return StrLib::copy(tags[num_tag++], sizeof tags[0], cut);
}

void ResrcFile::removeTag(const char* tag) {
    for (int i = 0; i < num_tag; i++) {
        if (!StrLib::iequal(tags[i], tag))
            continue;
        std::memmove(tags[i], tags[i + 1],
                     sizeof tags[0] * static_cast<std::size_t>(--num_tag - i));
        return;
    }
}

int ResrcFile::open(const char* path) {
    close();
    String full;
    FileTool::addUserPath(StrLib::valid(path) ? path : default_name, full);
    if (FileTool::isDir(full.get()))
        chooseInFolder(String(full).get(), full);
    is_open = File::open(full.get(), 0) != 0;
    return is_open;
}

int ResrcFile::close() {
    is_open = false;
    return File::close();
}

/// Goes on to the next branch of the innermost block: it is live when `taken` says so and none was
/// before.
void ResrcFile::turn(const char* directive, bool taken) {
    if (depth == 0) {
        Orv::outWarning("ResrcFile::get: %s without an if\n", directive);
        return;
    }
    if (depth > static_cast<int>(std::size(cond)))
        return;
    char& state = cond[depth - 1];
    if (state != open_state)
        state = taken_before;
    else if (taken)
        state = live;
}

/// Obeys a directive. Returns false when the line goes on as a pair.
bool ResrcFile::obey(const char* word, const char* tag, int words) {
    const int room = static_cast<int>(std::size(cond));
    char cut[sizeof tags[0]];
    StrLib::copy(cut, sizeof cut, tag);
    if (StrLib::iequal(word, "DEF") && words > 1) {
        setTag(cut);
        return false;
    }
    if (StrLib::iequal(word, "UNDEF") && words > 1) {
        removeTag(cut);
        return false;
    }
    if (StrLib::iequal(word, "IF") && words > 1) {
        if (depth < room)
            cond[depth] = isTag(cut) || StrLib::iequal(cut, builtin_tag) ? live : open_state;
        depth++;
    } else if (StrLib::iequal(word, "ELIF") && words > 1)
        turn("elif", isTag(cut));
    else if (StrLib::iequal(word, "ELSE"))
        turn("else", true);
    else if (StrLib::iequal(word, "END")) {
        if (depth == 0)
            Orv::outWarning("ResrcFile::get: end without an if\n");
        else
            depth--;
    } else
        return false;
    active =
        depth <= room && std::all_of(cond, cond + depth, [](char state) { return state == live; });
    return true;
}

int ResrcFile::get(String& key, String& value) {
    char line[max_line];
    while (getLine(line, sizeof line) > 0) {
        char word[max_key] = "";
        char text[max_value] = "";
        if (*line == '#')
            continue;
        int text_at = 0;
        const int words = Scan::text(line, "%49s %n%249s", word, &text_at, text);
        if (words < 1 || obey(word, text, words) || words < 2 || !active)
            continue;
        if (*text == '"')
            scanQuoted(line + text_at + 1, text);
        key.copy(word);
        key.lowCase();
        if (key.getChar(-1) == ':')
            key.chop();
        value.copy(text);
        return 1;
    }
    return -1;
}

int ResrcFile::getValid(String& resource, String& value) {
    String key;
    while (get(key, value) == 1)
        if (valid(key.get()))
            return parseName(key.get(), resource);
    return -1;
}

bool ResrcFile::compare(const char* resource, const char* key) const {
    if (!resource || !key)
        return false;
    char target[max_target];
    if (*name == '+')
        std::snprintf(target, sizeof target, "%s.%s.%s", prog, name + 1, resource);
    else
        std::snprintf(target, sizeof target, "%s.%s", *name ? name : prog, resource);
    return match(key, target);
}

bool ResrcFile::valid(const char* key) const {
    String resource;
    return parseName(key, resource) && compare(resource.get(), key);
}

int ResrcFile::parseName(const char* key, String& resource) {
    if (!key)
        return 0;
    const int at = std::max(StrLib::lastIndex(key, '.'), StrLib::lastIndex(key, '*'));
    return resource.copy(key + at + 1);
}

} // namespace ORV
