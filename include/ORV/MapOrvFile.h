#pragma once

#include "ORV/EarthPoint.h"
#include "ORV/EarthPoints.h"
#include "ORV/File.h"
#include "ORV/MapFileHeader.h"
#include "ORV/Swap.h"

#include <memory>
#include <string_view>

namespace ORV {

/// A map file in the native format: segments of a header and earth points, in degrees, as text or
/// as big-endian binary values. A binary file has a companion, with ".mdb" for its last four
/// characters, whose lines name the segments; without it names are empty.
///
/// A cut or damaged segment ends early, and the file with it. Coordinates that are no numbers are
/// passed over.
class MapOrvFile {
public:
    enum Type { FIND = 0, BINARY = 1, TEXT = 2 };

    File file;
    File db;      ///< the companion
    int read = 0; ///< points read or written of the current segment,
    int num = 0;  ///< of so many
    int mode = 0; ///< 0 reading, 1 writing
    int type = BINARY;
    bool open_flag = false;
    Swap swap; ///< big-endian

    MapOrvFile() = default;
    MapOrvFile(const MapOrvFile&) = delete;
    MapOrvFile& operator=(const MapOrvFile&) = delete;
    ~MapOrvFile() { close(); }

    /// The form of a file: TEXT when it begins with the six numbers of a header, else BINARY; -1
    /// when it can't be opened.
    static int checkType(const char* name);
    /// Whether a text begins with the six numbers of a header.
    static bool isText(const char* start);

    /// Opens for reading (mode 0) or writing (mode 1). A type of FIND finds the form, and writes
    /// binary. Returns 1 on success.
    int open(const char* name, int mode = 0, int type = FIND);
    bool isOpen() const { return open_flag; }
    int rewind();
    /// Goes to a byte of the file being read, where a header must begin.
    int seek(int position);
    int close();

    /// The next segment; what is left of the one before is passed over. Returns 0 at the end.
    int readHeader(MapFileHeader& header);
    /// The next point, or all the rest, of the segment. Returns 0 when there is none.
    int readData(EarthPoint& point);
    int readData(EarthPoints& points);
    int skipData();

    /// Writes a header, and then its points one by one. A binary segment has at most 65534 points.
    int writeHeader(const MapFileHeader& header);
    int writeData(const EarthPoint& point);

    int print() const;

private:
    /// A window on the bytes of a file, and a cursor in it.
    class Content {
    public:
        std::unique_ptr<char[]> bytes;
        int size = 0; // of the bytes that are there
        int at = 0;

        void set(File& from);
        void clear();
        bool ensure(int n);
        void ensureAll();
        void skip(long long n);
        int seek(long position);
        std::string_view takeLine();

    private:
        File* file = nullptr;
        int room = 0;
    };

    int openRead(const char* name);
    int openWrite(const char* name);
    void openNames(const char* name);
    int readBinaryHeader(MapFileHeader& header);
    int readTextHeader(MapFileHeader& header);
    int readBinaryPoint(EarthPoint& point);
    int readTextPoint(EarthPoint& point);
    void readName(MapFileHeader& header);
    int seekTo(int position);
    unsigned int takeBytes(int n);
    float takeFloat();
    bool takeNumber(float& value);

    Content content; // of the file being read
    Content names;   // of the companion
};

} // namespace ORV
