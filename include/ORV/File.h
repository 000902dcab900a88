#pragma once

#include "ORV/Buffer.h"
#include "ORV/FileAttr.h"
#include "ORV/String.h"

#include <cstdio>
#include <memory>

namespace ORV {

class HttpTransfer;

/// One open file, whatever its name means: a plain file, "-" or "std" for standard input or output,
/// "|command" for a shell pipe, or "http://..." for a remote file, which is read while it arrives.
/// No operation prints a message; isOpen tells whether the open went well. A remote file is open
/// once its transfer runs: a refusal by the server then shows as an empty file.
class File : public FileAttr {
public:
    int type = 0;  ///< 0 plain stream, 1 pipe, 7 remote
    int stype = 0; ///< 1 for standard input or output, which close leaves open
    FILE* fp = nullptr;
    void* easy = nullptr;  ///< handle of a remote transfer
    void* multi = nullptr; ///< and the handle that drives it
    int fd = -1;           ///< descriptor of the stream, -1 without one
    void* ptr = nullptr;
    bool opened = false;
    int access = 0; ///< 0 reading, 1 writing
    int shared = 1;
    Buffer buf; ///< bytes of a remote file received and not read yet

    File();
    File(const char* name, const char* mode);
    File(const String& name, const char* mode);
    File(const char* name, int mode);
    ~File();
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    /// Opens for "r" reading, "w" writing or "a" appending; a "p" in front makes the name a shell
    /// command. A leading "~" is a home directory. Writing makes the directories that are missing.
    /// Returns 1 when open.
    int open(const char* name, const char* mode);
    int open(const String& name, const char* mode);
    /// The same with mode 0 reading, 1 writing, 2 appending.
    int open(const char* name, int mode);
    bool isOpen() const { return opened; }
    int close();
    FILE* getFP() const { return fp; }
    int setShare(int value);

    /// Reads a line of at most size - 1 characters, with its newline, and terminates it. Returns
    /// its length, 0 at the end. A longer line comes in pieces. A remote line comes without its
    /// newline and the length is one less, except that an empty one keeps it, since 0 is the end.
    /// A line that begins with a zero byte is an empty text of length 1. A pipe gives 0.
    int getLine(char* line, int size);
    /// The same, as long as the string has room.
    int getLine(String& line);
    /// Skips the rest of the line; returns 0 at the end.
    int skipLine();
    /// Back to the start; no effect, and 0, on pipes, remote files and standard streams.
    int rewind();
    /// To the end of a plain file.
    int endFile();

    /// Writes to a plain file or pipe; returns the number of characters, -1 on others.
    [[gnu::format(printf, 2, 3)]] int printf(const char* format, ...);
    /// Reads from a plain file; returns the number of fields, -1 on others.
    [[gnu::format(scanf, 2, 3)]] int scanf(const char* format, ...);

    /// Read n bytes, or n items of a size, from a plain or remote file. Return the bytes or items
    /// read, -1 on others.
    int read(void* bytes, int n);
    int read(void* bytes, int size, int n);
    /// Appends n bytes to a buffer, which grows; returns its size.
    int read(Buffer& out, int n);
    /// Fills the room that a buffer has left. Returns the number of bytes, -1 at the end.
    int read(Buffer& out);
    /// Write to a plain file or pipe. Return the bytes or items written, -1 on others.
    int write(const void* bytes, int n);
    int write(const void* bytes, int size, int n);

    /// Move in a plain file, by bytes; whence is SEEK_SET, SEEK_CUR or SEEK_END. Return 0 on
    /// others.
    int seek(long offset, int whence);
    int seek(long offset);
    /// Returns the position in a plain file, -1 on others.
    long tell() const;

private:
    int init();
    int openPipe(const char* command, const char* mode);
    int openRemote(const char* name);
    int openPlain(const char* name, const char* mode);
    int openStream(FILE* stream);
    bool isPlain() const { return opened && type == 0; }
    bool isRemote() const { return opened && type == 7; }
    int curl_fill_buffer(int n);
    int getRemoteLine(char* line, int size);
    int readRemote(unsigned char* bytes, int n);

    std::unique_ptr<HttpTransfer> transfer; // owner of easy and multi
    std::unique_ptr<char[]> stream_buf;     // of fp
};

} // namespace ORV
