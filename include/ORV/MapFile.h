#pragma once

#include "ORV/EarthPoint.h"
#include "ORV/KmlData.h"
#include "ORV/KmlFile.h"
#include "ORV/MapFileHeader.h"
#include "ORV/MapOrvFile.h"
#include "ORV/ShapeData.h"
#include "ORV/ShapeFile.h"

#include <memory>

namespace ORV {

/// A file of map segments, whatever its format: native (binary or text), KML or shapefile. Segments
/// are read one by one, each a header and then its points, in degrees.
class MapFile {
public:
    enum Type { FIND = 0, NATIVE = 1, KML = 2, SHAPE = 3 };

    MapOrvFile native;
    KmlFile kml;
    KmlData kml_data;
    std::unique_ptr<ShapeFile> shape; ///< null unless a shapefile is open: it holds large tables
    ShapeData shape_data;
    int read = 0; ///< points read of the current segment,
    int num = 0;  ///< of so many
    int mode = 0; ///< 0 reading, 1 writing
    int type = NATIVE;
    bool open_flag = false;

    MapFile() = default;
    explicit MapFile(const char* name) { open(name); }
    ~MapFile() { close(); }

    /// The format of a file by its first 100 bytes; NATIVE when they tell nothing, -1 when it can't
    /// be opened.
    static int checkType(const char* name);

    /// Opens for reading (mode 0), in the format that is found for a type of FIND, or creates a
    /// native binary file (mode 1). Returns 1 on success.
    int open(const char* name, int mode = 0, int type = FIND);
    bool isOpen() const { return open_flag; }
    int close();

    /// Act on a native file.
    int rewind() { return native.rewind(); }
    int seek(int position) { return native.seek(position); }
    int skipData() { return native.skipData(); }
    int writeHeader(const MapFileHeader& header) { return native.writeHeader(header); }
    int writeData(const EarthPoint& point) { return native.writeData(point); }

    /// The next segment. Returns 0 when there is none.
    int readHeader(MapFileHeader& header);
    /// The next point of the segment. Returns 0 when there is none.
    int readData(EarthPoint& point);

private:
    int readKmlHeader(MapFileHeader& header);
    int readShapeHeader(MapFileHeader& header);
};

} // namespace ORV
