#pragma once

#include "ORV/File.h"

#include <memory>
#include <string>

namespace ORV {

class GzipStream;

/// The lines of a text, plain or packed by gzip, of any name that File opens. A line ends in a
/// newline, a return, or both. Lines beyond max_line bytes come cut.
class LineInput {
public:
    static constexpr int max_line = 1 << 16; ///< bytes of a line that are kept

    LineInput();
    ~LineInput();
    LineInput(const LineInput&) = delete;
    LineInput& operator=(const LineInput&) = delete;

    /// Opens for reading; returns 1 when open.
    int open(const char* name);
    /// The next line without its line end: 1, or 0 at the end of the text, where a packed text that
    /// is damaged or cut ends too. The line lasts until the next call, and holds any bytes.
    int read(const char*& text, int& length);

    /// Number of the last line read, from 1.
    long getNumber() const { return number; }
    /// Whether the last line read had a line end.
    bool hasLineEnd() const { return line_end; }
    /// Whether the last line read was longer than max_line.
    bool isCut() const { return cut; }
    /// Whether a packed text can't be unpacked to its end.
    bool isDamaged() const { return damaged; }

private:
    bool fill();
    int readBytes(char* bytes, int n);
    void skipLine();
    int findLineEnd(int from) const;

    File file;
    std::unique_ptr<GzipStream> gzip; // null for a plain text
    std::string buffer;               // bytes read, of which those before start are used
    int start = 0;
    bool after_return = false; // a newline that comes now belongs to the line before
    long number = 0;
    bool line_end = true;
    bool cut = false;
    bool damaged = false;
};

} // namespace ORV
