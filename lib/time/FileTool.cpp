#include "ORV/FileTool.h"

#include "ORV/StrLib.h"

#include "HttpTransfer.h"
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

namespace ORV {
namespace {
constexpr std::string_view remote_start = "http://";
constexpr int max_user = 19;        // characters of a user name
constexpr int max_path = 200;       // of a path whose directories are made
constexpr float question_wait = 10; // seconds a round
constexpr mode_t any_mode = 0777;

using FileStat = struct stat;

bool getStat(const char* name, FileStat& info) {
    String path;
    return FileTool::addUserPath(name, path) && stat(path.get(), &info) == 0;
}

bool hasMode(const char* name, mode_t mode) {
    FileStat info{};
    return getStat(name, info) && (info.st_mode & S_IFMT) == mode;
}

/// Asks a server for a file until its size is known. Returns the size, or -1 when absent.
long askServer(const char* name) {
    HttpTransfer transfer(name, nullptr);
    while (transfer.isRunning() && transfer.getSize() == HttpTransfer::unknown)
        transfer.wait(question_wait);
    const bool failed = !transfer.isRunning() && !transfer.isComplete();
    return failed ? HttpTransfer::refused : transfer.getSize();
}

bool beginsWith(const char* text, std::string_view start) {
    return std::string_view(text).substr(0, start.size()) == start;
}

/// Whether the ":" at p stands before a port number, as in "http://host:8080/path".
bool isPort(const char* p) {
    const char* end = p + 1;
    while (std::isdigit(static_cast<unsigned char>(*end)))
        end++;
    return end > p + 1 && (*end == '/' || *end == ':' || *end == 0);
}

/// Returns the end of the path list element that starts at p.
const char* findEnd(const char* start) {
    const bool remote = beginsWith(start, remote_start);
    const char* host_end = nullptr;
    for (const char* p = start; *p; p++) {
        const int n = int(p - start);
        if (*p == ':' && n >= 4 && StrLib::equal(p - 4, 4, "http"))
            continue;
        const bool in_host = remote && !host_end;
        if (*p == ':' && in_host && isPort(p))
            host_end = p;
        else if (*p == ':')
            return p;
        else if (*p == '/' && in_host && n >= int(remote_start.size()))
            host_end = p;
    }
    return start + StrLib::length(start);
}

void join(const char* directory, const char* name, String& out) {
    out.set(directory);
    FileTool::addPathDelim(out);
    out.append(name);
}

const passwd* findUser(const std::string& user) {
    if (user.empty())
        return getpwuid(getuid());
    return user.size() <= max_user ? getpwnam(user.c_str()) : nullptr;
}
} // namespace

bool FileTool::isStdio(const char* name) {
    return StrLib::equal(name, "-") || StrLib::iequal(name, "std") || StrLib::iequal(name, "stdn");
}

bool FileTool::isFullPath(const char* name) {
    return StrLib::valid(name) && (isRemote(name) || *name == '.' || *name == '/' || *name == '~');
}

bool FileTool::isRemote(const char* name) {
    return name && beginsWith(name, remote_start);
}

int FileTool::addUserPath(const char* name, String& out) {
    const std::string path = name ? name : "";
    if (path.empty() || path[0] != '~') {
        out.set(path.c_str());
        return name != nullptr;
    }
    const std::size_t slash = std::min(path.find('/'), path.size());
    const passwd* user = findUser(path.substr(1, slash - 1));
    out.set(user ? (user->pw_dir + path.substr(slash)).c_str() : path.c_str());
    return 1;
}

int FileTool::numPath(const char* list) {
    int count = 1;
    for (const char* p = list ? list : ""; *(p = findEnd(p)); p++)
        count++;
    return count;
}

int FileTool::getPath(const char* list, int i, String& out) {
    out.clear();
    if (!StrLib::valid(list) || i < 0)
        return 0;
    const char* end = findEnd(list);
    for (; i > 0 && *end; i--) {
        list = end + 1;
        end = findEnd(list);
    }
    if (i > 0)
        return 0;
    out.set(std::string(list, end).c_str());
    return 1;
}

int FileTool::addPathDelim(String& path) {
    if (path.valid() && path.getChar(path.length() - 1) != '/')
        path.append('/');
    return 1;
}

int FileTool::addPath(const char* list, const char* name, String& out) {
    const String wanted(name); // the name may lie in the output
    if (!StrLib::valid(list) || isStdio(name) || isFullPath(name)) {
        out.set(wanted);
        return exist(out.get());
    }
    String directory;
    for (int i = 0; getPath(list, i, directory); i++) {
        join(directory.get(), wanted.get(), out);
        if (exist(out.get()))
            return 1;
    }
    return 0;
}

int FileTool::checkPath(const char* list, const char* name) {
    String path;
    return addPath(list, name, path);
}

int FileTool::addOutPath(const char* list, const char* name, String& out) {
    const String wanted(name);
    if (!StrLib::valid(list) || !wanted.valid() || isStdio(name) || isFullPath(name)) {
        out.set(wanted);
        return 1;
    }
    String directory;
    for (int i = 0; getPath(list, i, directory); i++) {
        join(directory.get(), wanted.get(), out);
        if (isDir(directory.get()))
            return 1;
    }
    return 0;
}

bool FileTool::exist(const char* name) {
    if (isRemote(name))
        return askServer(name) != HttpTransfer::refused;
    FileStat info{};
    return isStdio(name) || getStat(name, info);
}

long FileTool::getSize(const char* name) {
    if (isRemote(name))
        return askServer(name);
    FileStat info{};
    return getStat(name, info) ? long(info.st_size) : -1;
}

bool FileTool::isDir(const char* name) {
    return hasMode(name, S_IFDIR);
}

bool FileTool::isFile(const char* name) {
    return hasMode(name, S_IFREG);
}

bool FileTool::isFifo(const char* name) {
    return hasMode(name, S_IFIFO);
}

bool FileTool::isDevice(const char* name) {
    return hasMode(name, S_IFCHR) || hasMode(name, S_IFBLK);
}

long FileTool::getModTime(const char* name) {
    FileStat info{};
    return getStat(name, info) ? long(info.st_mtime) : -1;
}

int FileTool::remove(const char* name) {
    String path;
    return addUserPath(name, path) && unlink(path.get()) == 0;
}

int FileTool::makeDir(const char* path, int mode) {
    char part[max_path];
    StrLib::copy(part, sizeof part, path);
    StrLib::replace(part, '\\', '/');
    for (char* p = part; *p; p++)
        if (*p == '/' && p > part) {
            *p = 0;
            mkdir(part, mode & any_mode);
            *p = '/';
        }
    return 1;
}

} // namespace ORV
