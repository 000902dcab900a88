#pragma once

#include "ORV/File.h"
#include "ORV/ShapeData.h"
#include "ORV/Swap.h"

namespace ORV {

/// Reads the lines, polygons and single points of a shapefile (ESRI Shapefile Technical
/// Description, July 1998): shape types 1, 3, 5, 13 and 15. The x of a point is taken as longitude
/// and its y as latitude, in degrees. The file is read from start to end, without its index.
class ShapeFile : public File {
public:
    static constexpr int max_parts = 5000;

    Swap swap{1};
    int mode = 0;
    bool open_flag = false;
    int rec_len = 0; ///< content of the record, in 2-byte words
    int parts = -1;  ///< of the record
    int part = -1;   ///< the next one
    int points = 0;  ///< of the record
    int starts[max_parts];
    int rec_num = 0;

    /// Whether the file begins as a shapefile; -1 when it can't be opened.
    static int checkType(const char* name);
    /// The same for the first 3 bytes of a file.
    static bool isShape(const void* start);

    /// Opens for reading (mode 0); other modes fail. Returns 1 on success.
    int open(const char* name, int mode = 0);
    bool isOpen() const { return open_flag; }
    int close();

    /// The next part. Returns 0 at the end, and at a record that isn't one of the types above or
    /// that contradicts itself: its counts, which may be 5000 parts at most, must fit its length.
    int read(ShapeData& data);

private:
    int readRecord(ShapeData& data);
    int readParts();
    int readPoints(int count, ShapeData& data);
    int skipRest();
    bool readBytes(void* bytes, int n);
    bool readOrdered(const Swap& order, int& value);

    Swap little{2};
    int shape = 0; // type of the record
    EarthRange range;
};

} // namespace ORV
