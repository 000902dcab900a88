#pragma once

#include "ORV/File.h"
#include "ORV/StrLib.h"

namespace ORV {

/// Walks the lines of a table file, each without the white space around it. A line keeps its first
/// Size - 1 characters; the rest of it is passed over, not taken for a further line.
template <int Size>
class LineReader {
public:
    explicit LineReader(File& source) : file(source) {}

    /// Goes to the next line; false at the end.
    bool next() {
        const int length = file.getLine(line, Size);
        if (length <= 0)
            return false;
        if (length == Size - 1 && line[length - 1] != '\n')
            file.skipLine();
        StrLib::trimWS(line);
        return true;
    }
    const char* text() const {
        const char* at = line;
        while (*at == ' ' || *at == '\t')
            at++;
        return at;
    }

private:
    File& file;
    char line[Size] = "";
};

} // namespace ORV
