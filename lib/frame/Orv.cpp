#include "ORV/Orv.h"

#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

namespace ORV {
namespace {
constexpr char version[] = "6.76-LINUX-X11";

constexpr int print_level = 1;
constexpr int warning_level = 3;
constexpr int debug_base = 12; // debug level n is message level n + 12
constexpr int default_mask = 63;
constexpr int max_level = 30;

/// The keywords by level.
constexpr const char* keywords[] = {
    "none",   "print",  "error",  "warn",   "mess",   "out1",   "out2",
    "out3",   "out4",   "out5",   "out6",   "out7",   "out8",   "debug1",
    "debug2", "debug3", "debug4", "debug5", "debug6", "debug7", "debug8",
};
constexpr int all_debug = 20;

int findLevel(const char* keyword) {
    if (StrLib::iequal(keyword, "debug"))
        return all_debug;
    for (int level = 0; level <= all_debug; level++)
        if (StrLib::iequal(keyword, keywords[level]))
            return level;
    return -1;
}

int getBit(int level) {
    return level > 0 && level <= max_level ? 1 << (level - 1) : 0;
}

FILE* getErrorStream() {
    return std::getenv("orverrtoout") ? stdout : stderr;
}

/// Prints to the stream when it isn't null.
[[gnu::format(printf, 2, 0)]] int send(FILE* stream, const char* format, va_list args) {
    if (stream && format)
        std::vfprintf(stream, format, args);
    return 1;
}

FILE* getStream(int level) {
    return Orv::checkMessage(level) ? stdout : nullptr;
}
} // namespace

Resrc Orv::resrc;
char Orv::progname[20] = "";
OwnedArray<char> Orv::datapath;
int Orv::message_mask = default_mask;
int Orv::init_time = Const::MISS;
int Orv::error = Orv::NOERR;

int Orv::outMessage(const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    const int result = send(getStream(print_level), fmt, args);
    va_end(args);
    return result;
}

int Orv::outMessage(int level, const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    const int result = send(getStream(level), fmt, args);
    va_end(args);
    return result;
}

int Orv::outWarning(const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    const int result = send(checkMessage(warning_level) ? getErrorStream() : nullptr, fmt, args);
    va_end(args);
    return result;
}

int Orv::outError(const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    const int result = send(getErrorStream(), fmt, args);
    va_end(args);
    return result;
}

int Orv::outDebug(const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    const int result = send(getStream(debug_base + 1), fmt, args);
    va_end(args);
    return result;
}

int Orv::outDebug(int n, const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    const int result = send(isDebug(n) ? stdout : nullptr, fmt, args);
    va_end(args);
    return result;
}

int Orv::print(const char* text) {
    if (text)
        std::fputs(text, stdout);
    return 1;
}

bool Orv::checkMessage(int level) {
    return (message_mask & getBit(level)) != 0;
}

int Orv::setMessageLevel(int level) {
    message_mask = (1 << std::clamp(level, 0, max_level)) - 1;
    return 1;
}

int Orv::setMessageLevel(const char* text) {
    const Strings tokens(text, ',');
    for (int i = 0; i < tokens.getNum(); i++) {
        const char sign = tokens.getChar(i, 0);
        const bool has_sign = sign == '+' || sign == '-';
        const int level = findLevel(tokens.getString(i) + (has_sign ? 1 : 0));
        if (level < 0)
            continue;
        if (sign == '+')
            message_mask |= getBit(level);
        else if (sign == '-')
            message_mask ^= getBit(level);
        else
            setMessageLevel(level);
    }
    return 1;
}

int Orv::setProgramName(const char* name) {
    StrLib::copy(progname, sizeof progname, name);
    return 1;
}

int Orv::setDatabasePath(const char* path) {
    datapath = StrLib::own(path);
    return 1;
}

int Orv::setInitTime(int seconds) {
    init_time = seconds;
    return 1;
}

int Orv::setError(int code) {
    error = code;
    return 1;
}

const char* Orv::getVersion() {
    return version;
}

void Orv::exit(Error code) {
    std::exit(code);
}

double Orv::getTime() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto micros = std::chrono::duration_cast<std::chrono::microseconds>(now);
    return static_cast<double>(micros.count()) / 1e6;
}

int Orv::sleep(float seconds) {
    if (seconds > 0)
        std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    return 1;
}

int Orv::pause() {
    std::getchar();
    return 1;
}

long Orv::getVirtMem() {
    constexpr int fields_behind_name = 20; // the size is field 23, the name in brackets field 2
    char line[1024];
    std::snprintf(line, sizeof line, "/proc/%d/stat", static_cast<int>(getpid()));
    FILE* stat = std::fopen(line, "r");
    if (!stat)
        return 0;
    const bool read = std::fgets(line, sizeof line, stat) != nullptr;
    std::fclose(stat);
    // The name may hold blanks and brackets of its own.
    const char* name_end = read ? std::strrchr(line, ')') : nullptr;
    const char* size = name_end ? StrLib::getField(name_end + 1, ' ', fields_behind_name) : nullptr;
    return size ? std::max(StrLib::getLong(size), 0L) : 0;
}

const char* Orv::getComputerName() {
    static char name[41];
    if (gethostname(name, sizeof name) != 0)
        *name = '\0';
    name[sizeof name - 1] = '\0';
    return name;
}

} // namespace ORV
