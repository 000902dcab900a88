#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

/// A file that lives in memory, for readers that take a path.
class MemoryFile {
public:
    explicit MemoryFile(const char* name)
        : fd(memfd_create(name, 0)), path("/proc/self/fd/" + std::to_string(fd)) {}
    ~MemoryFile() { close(fd); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    /// Makes the bytes the content; returns the path of the file.
    const char* fill(const std::uint8_t* bytes, std::size_t size) {
        const bool ok =
            ftruncate(fd, 0) == 0 && pwrite(fd, bytes, size, 0) == static_cast<ssize_t>(size);
        return ok ? path.c_str() : "/dev/null";
    }

private:
    int fd;
    std::string path;
};
