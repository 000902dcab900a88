#include "ORV/File.h"

#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"

#include "HttpTransfer.h"
#include <sys/stat.h>

#include <algorithm>
#include <climits>
#include <cstdarg>
#include <cstring>

namespace ORV {
namespace {
enum FileType { PLAIN = 0, PIPE = 1, REMOTE = 7 };

constexpr int stream_size = 1 << 16; // buffer of a stream, bytes
constexpr int remote_size = 1 << 16; // most that is fetched ahead for one read, bytes
constexpr int first_step = 1 << 20;  // of a read into a buffer, bytes
constexpr float remote_wait = 0.1F;  // seconds a round
constexpr const char* modes[] = {"r", "w", "a"};

bool isDirectory(FILE* stream) {
    struct stat info {};
    return fstat(fileno(stream), &info) == 0 && S_ISDIR(info.st_mode);
}
} // namespace

File::File() = default;

File::File(const char* name, const char* mode) {
    open(name, mode);
}

File::File(const String& name, const char* mode) {
    open(name, mode);
}

File::File(const char* name, int mode) {
    open(name, mode);
}

File::~File() {
    close();
}

int File::init() {
    close();
    access = 0;
    return 1;
}

int File::open(const char* name, const char* mode) {
    init();
    if (!StrLib::valid(name) || !StrLib::valid(mode))
        return 0;
    const bool pipe = *mode == 'p';
    if (pipe)
        mode++;
    access = *mode == 'r' ? 0 : 1;
    if (FileTool::isRemote(name))
        return openRemote(name);
    if (FileTool::isStdio(name)) {
        stype = 1;
        return openStream(access == 0 ? stdin : stdout);
    }
    if (pipe)
        return openPipe(name, mode);
    if (*name == '|')
        return openPipe(name + 1, mode);
    return openPlain(name, mode);
}

int File::open(const String& name, const char* mode) {
    return open(name.get(), mode);
}

int File::open(const char* name, int mode) {
    return open(name, mode >= 0 && mode <= 2 ? modes[mode] : "");
}

int File::openStream(FILE* stream) {
    fp = stream;
    opened = fp != nullptr;
    if (!opened)
        return 0;
    fd = fileno(fp);
    if (stype == 0) {
        stream_buf.reset(new char[stream_size]);
        std::setvbuf(fp, stream_buf.get(), _IOFBF, stream_size);
    }
    return 1;
}

int File::openPipe(const char* command, const char* mode) {
    type = PIPE;
    if (access == 1)
        std::fflush(stdout); // what was printed before comes before what the command prints
    return openStream(popen(command, mode));
}

int File::openPlain(const char* name, const char* mode) {
    String path;
    FileTool::addUserPath(name, path);
    if (access == 1)
        FileTool::makeDir(path.get());
    std::unique_ptr<FILE, int (*)(FILE*)> stream(std::fopen(path.get(), mode), std::fclose);
    if (!stream || isDirectory(stream.get()))
        return 0;
    return openStream(stream.release());
}

int File::openRemote(const char* name) {
    type = REMOTE;
    if (access != 0) // nothing can be written there
        return 0;
    buf.clear();
    transfer = std::make_unique<HttpTransfer>(name, &buf);
    easy = transfer->easy;
    multi = transfer->multi;
    opened = transfer->isRunning() || transfer->isComplete();
    return opened;
}

int File::close() {
    int result = 1;
    if (fp && stype == 1)
        result = access == 0 || std::fflush(fp) == 0;
    else if (fp && type == PIPE)
        result = pclose(fp) == 0;
    else if (fp)
        result = std::fclose(fp) == 0;
    transfer.reset();
    stream_buf.reset();
    buf.clear();
    fp = nullptr;
    easy = multi = nullptr;
    fd = -1;
    type = stype = 0;
    opened = false;
    return result;
}

int File::setShare(int value) {
    shared = value;
    return 1;
}

int File::getLine(char* line, int size) {
    if (!line || size < 1)
        return 0;
    *line = 0;
    if (isRemote())
        return getRemoteLine(line, size);
    if (!isPlain() || !std::fgets(line, size, fp) || size < 2)
        return 0;
    return std::max(StrLib::length(line), 1);
}

int File::getLine(String& line) {
    const int result = getLine(line.get(), line.maxLength());
    line.len = StrLib::length(line.get());
    line.ptr = line.get();
    return result;
}

int File::getRemoteLine(char* line, int size) {
    const int most = size - 1;
    int searched = 0;
    const void* end = nullptr;
    while (!end && searched < most) {
        if (searched >= buf.getAvail() && !curl_fill_buffer(searched + 1))
            break;
        const int known = std::min(buf.getAvail(), most);
        end = std::memchr(buf.get() + buf.ind + searched, '\n', known - searched);
        searched = known;
    }
    const int length = buf.readLine(line, std::min(searched, most));
    line[length] = 0;
    if (length < 2 || line[length - 1] != '\n')
        return length;
    line[length - 1] = 0;
    return length - 1;
}

int File::curl_fill_buffer(int n) {
    while (transfer->isRunning() && buf.getAvail() < n)
        transfer->wait(remote_wait);
    return buf.getAvail() >= n;
}

int File::skipLine() {
    if (isRemote()) {
        while (!buf.skipLine())
            if (!curl_fill_buffer(1))
                return 0;
        return 1;
    }
    int c = EOF;
    while (isPlain() && (c = std::getc(fp)) != EOF && c != '\n')
        continue;
    return c == '\n';
}

int File::rewind() {
    if (!isPlain() || stype == 1)
        return 0;
    std::rewind(fp);
    return 1;
}

int File::endFile() {
    return seek(0, SEEK_END);
}

int File::printf(const char* format, ...) {
    if (!opened || type == REMOTE)
        return -1;
    std::va_list args;
    va_start(args, format);
    const int result = std::vfprintf(fp, format, args);
    va_end(args);
    return result;
}

int File::scanf(const char* format, ...) {
    if (isRemote())
        Orv::outWarning("scanf not supported\n");
    if (!isPlain())
        return -1;
    std::va_list args;
    va_start(args, format);
    const int result = std::vfscanf(fp, format, args);
    va_end(args);
    return result;
}

int File::read(void* bytes, int n) {
    return read(bytes, 1, n);
}

int File::read(void* bytes, int size, int n) {
    if (!isPlain() && !isRemote())
        return -1;
    if (size < 1 || n < 1)
        return 0;
    if (isPlain())
        return int(std::fread(bytes, size, n, fp));
    const long wanted = std::min(long(size) * n, long(INT_MAX));
    return readRemote(static_cast<unsigned char*>(bytes), int(wanted)) / size;
}

int File::readRemote(unsigned char* bytes, int n) {
    int count = 0;
    while (count < n) {
        curl_fill_buffer(std::min(n - count, remote_size));
        const int got = buf.read(bytes + count, n - count);
        if (got == 0)
            break;
        count += got;
    }
    return count;
}

int File::read(Buffer& out, int n) {
    if (!isPlain() && !isRemote())
        return -1;
    // In growing steps: a length that comes from a damaged file shouldn't fill the memory.
    for (int rest = n; rest > 0;) {
        const int step = std::min(rest, std::max(out.size, first_step));
        if (step > INT_MAX - out.size || !out.check(out.size + step))
            break;
        const int count = read(out.get() + out.size, step);
        out.size += count;
        rest = count == step ? rest - step : 0;
    }
    return out.size;
}

int File::read(Buffer& out) {
    const int room = out.max - out.size;
    const int count = read(room > 0 ? out.get() + out.size : nullptr, room);
    if (count > 0)
        out.size += count;
    return count == 0 && room > 0 && isPlain() ? -1 : count;
}

int File::write(const void* bytes, int n) {
    return write(bytes, 1, n);
}

int File::write(const void* bytes, int size, int n) {
    if (!opened || type == REMOTE)
        return -1;
    return size < 1 || n < 1 ? 0 : int(std::fwrite(bytes, size, n, fp));
}

int File::seek(long offset, int whence) {
    return isPlain() && std::fseek(fp, offset, whence) == 0;
}

int File::seek(long offset) {
    return seek(offset, SEEK_SET);
}

long File::tell() const {
    return isPlain() ? std::ftell(fp) : -1;
}

} // namespace ORV
