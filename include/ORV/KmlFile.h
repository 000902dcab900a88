#pragma once

#include "ORV/KmlData.h"

#include <memory>

struct _xmlNode;

namespace ORV {

/// Reads the coordinates of a KML file (OGC 07-147r2), plain or gzipped, through libxml2, which is
/// loaded when the first file is opened. External entities aren't fetched, and libxml2's own limits
/// on depth hold. Entities that a document defines are left out of its texts.
class KmlFile {
public:
    int level = 0;       ///< depth of the walk below the root
    char name[100] = ""; ///< of the placemark that the walk is in
    int line = 0;        ///< set inside a LineString
    bool open_flag = false;

    KmlFile() = default;
    KmlFile(const KmlFile&) = delete;
    KmlFile& operator=(const KmlFile&) = delete;
    ~KmlFile() { close(); }

    /// Whether the file begins as XML, or is gzipped; -1 when it can't be opened.
    static int checkType(const char* name);
    /// The same for the first bytes of a file, ended by a zero byte.
    static bool isKml(const char* start);

    /// Reads the whole document. Returns 0 when it can't be parsed, when its root isn't "kml", or
    /// when libxml2 isn't installed.
    int open(const char* name);
    bool isOpen() const { return open_flag; }
    int close();

    /// The next "coordinates" element of the document. Returns 0 at the end.
    int read(KmlData& data);

private:
    void advance();
    void enter(KmlData& data, bool& found);

    std::shared_ptr<void> doc;
    _xmlNode* node = nullptr; // the next one of the walk
};

} // namespace ORV
