#include "ORV/Prog.h"

#include "ORV/DateTool.h"
#include "ORV/FileTool.h"
#include "ORV/Format.h"
#include "ORV/Orv.h"
#include "ORV/ResrcDB.h"
#include "ORV/ResrcFile.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace ORV {
namespace {
constexpr const char* search_path = ".:/home/orv/etc:/usr/local/orv/etc";
constexpr int answer_size = 160;
constexpr int identity = 1; // type of a resource that every other source overrides

/// Reads a line of at most size - 2 characters; the rest of a longer one is dropped. Returns 0 at
/// the end of the input.
int readLine(char* buffer, int size) {
    if (!std::fgets(buffer, size - 1, stdin)) {
        *buffer = '\0';
        return 0;
    }
    if (!std::strchr(buffer, '\n'))
        for (int c = std::getchar(); c != '\n' && c != EOF;)
            c = std::getchar();
    return StrLib::trimWS(buffer);
}

/// The resource named behind "set" on a line, and its value; 0 when there is none.
int parseSetting(const char* rest, char* key, int size, const char*& value) {
    rest += std::strspn(rest, " \t");
    const std::size_t length = std::strcspn(rest, "= \t");
    value = rest + length + std::strspn(rest + length, "= \t");
    StrLib::copy(key, std::min(size, static_cast<int>(length) + 1), rest);
    return length > 0;
}

bool isFolder(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

/// Takes the settings that a database brings with it, below all that a user sets.
void addDefaults(const char* folder) {
    ResrcFile file(Orv::resrc);
    file.set("orv", "orv");
    file.open(folder);
    String name, value;
    while (file.isOpen() && file.getValid(name, value) == 1)
        Orv::addResrc(name.get(), value.get(), identity);
}
} // namespace

int Prog::findDatabase() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto installed = program.parent_path().parent_path() / ORV_DATABASE_FOLDER;
    for (const auto& folder : {installed, std::filesystem::path(ORV_SOURCE_DATABASE)})
        if (isFolder(folder)) {
            Orv::addResrc("file_path", folder.c_str(), identity);
            addDefaults(folder.c_str());
            return 1;
        }
    return 0;
}

int Prog::reserveHeap(int bytes) {
#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)
    constexpr std::uintptr_t large_page = 2 << 20;
    constexpr int keep = 1 << 30; // bytes: nothing goes back to the system before the end
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, keep);
    mallopt(M_TOP_PAD, bytes);
    const auto begin = reinterpret_cast<std::uintptr_t>(sbrk(0));
    void* volatile block = std::malloc(large_page); // more than is left, so that the heap grows
    std::free(block);
    const auto end = reinterpret_cast<std::uintptr_t>(sbrk(0));
    const auto first = (begin + large_page - 1) / large_page * large_page;
    return end > first && madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE) == 0;
#else
    return bytes < 0;
#endif
}

int Prog::printProg(int level, const char* title) {
    return Orv::outMessage(level, "      %s (Ver %s)\n\n", title ? title : "", Orv::getVersion());
}

int Prog::printHelp(ResrcDBList& keyed, ResrcDBList& positional, const char* purpose) {
    if (!Orv::getResrc("help"))
        return 0;
    const char* prog = Orv::getResrc("prog", "");
    Orv::outMessage("%s: %s\n", prog, purpose ? purpose : "");
    return ResrcDB::printHelp(prog, keyed, positional);
}

int Prog::prompt(const char* text, char* buffer, int size) {
    constexpr int min_size = 3; // a character, its newline and the terminator
    if (!buffer || size < min_size)
        return 0;
    int found = 0;
    do {
        String question;
        if (!Format::print(question, text))
            question.copy(text);
        Orv::print(question.get());
        std::fflush(stdout);
        found = readLine(buffer, size);
    } while (setCommand(buffer));
    return found;
}

int Prog::prompt(const char* text, String& answer) {
    char buffer[answer_size];
    const int found = prompt(text, buffer, sizeof buffer);
    answer.copy(buffer);
    return found;
}

String Prog::prompt(const char* text) {
    String answer;
    prompt(text, answer);
    return answer;
}

int Prog::setCommand(const char* line) {
    char word[20] = "";
    int used = 0;
    if (Scan::text(line, "%19s%n", word, &used) < 1)
        return 0;
    if (StrLib::equal(word, "set")) {
        char key[20];
        const char* value;
        if (parseSetting(line + used, key, sizeof key, value)) {
            Orv::putResrc(key, value);
            return 1;
        }
        Orv::print("Set resources\n");
        Orv::printAllResrc();
        return Orv::print("\n");
    }
    if (StrLib::equal(line, "exit"))
        Orv::exit(Orv::NOERR);
    return 0;
}

int Prog::readResrcFile(const char* prog, const char* name, const char* tag, const char* path) {
    const char* variable = std::getenv("orvdefault");
    const String list(path ? path : variable ? variable : search_path);
    ResrcFile file(Orv::resrc);
    file.set(prog, name);
    if (StrLib::valid(tag))
        file.setTag(tag);
    String element, key, value;
    for (int i = 0; list.valid() && FileTool::getPath(list.get(), i, element); i++) {
        if (!file.open(element.get()))
            continue;
        while (file.getValid(key, value) == 1)
            Orv::putResrc(key.get(), value.get());
        file.close();
    }
    Orv::setMessageLevel(Orv::getResrc("message"));
    if (const char* database = Orv::getResrc("file_path"))
        Orv::setDatabasePath(database);
    if (const char* now = Orv::getResrc("cur_time"))
        Orv::setInitTime(Scan::toInt(static_cast<double>(DateTool::getSeconds(now))));
    return 1;
}

} // namespace ORV
