#pragma once

#include "ORV/Date.h"
#include "ORV/File.h"
#include "ORV/SfcData.h"
#include "ORV/SfcOrvFile.h"

namespace ORV {

/// A file of surface reports, whatever its format. Reports are read or written one at a time.
/// Nothing here gives a message: the caller words it.
class SfcFile {
public:
    /// Formats. The NetCDF and XML formats are told apart but not read or written yet: opening one
    /// fails.
    enum Type {
        UNKNOWN = 0,
        ORV = 1,   ///< our own text format, "ORVSFC"
        CDF = 2,   ///< NetCDF
        XML = 3,   ///< XML
        XMLC = 4,  ///< XML, compressed
        PLAIN = 5, ///< any file: opens, but has no reports
    };

    int type = UNKNOWN; ///< format in use
    int mode = 0;       ///< 0 reading, 1 writing, 2 appending
    SfcOrvFile orv;     ///< the file, when its format is ORV
    File file;          ///< the file, when its format is PLAIN
    Date date;          ///< as last set by setDate
    bool opened = false;

    SfcFile() = default;
    explicit SfcFile(const char* name) { open(name); }
    SfcFile(const char* name, int new_mode, int new_type) { open(name, new_mode, new_type); }
    ~SfcFile() { close(); }
    SfcFile(const SfcFile&) = delete;
    SfcFile& operator=(const SfcFile&) = delete;

    /// The format of a file by its first bytes; 0 for an unknown one, -1 if it can't be opened or
    /// is empty.
    static int checkType(const char* name);
    /// The format of a name, "orv", "cdf", "xml" or "xmlc" in any case; 0 for another.
    static int getType(const char* text);

    /// Opens for reading, in the format that the file is found to have.
    int open(const char* name) { return open(name, 0, UNKNOWN); }
    /// Opens for reading (mode 0), writing (1) or appending (2); closes what was open before. With
    /// a type of 0 a file that exists is opened in its format, and a new one, mode 1, in our own.
    /// Standard input is taken to be in our own. Returns 1 on success.
    int open(const char* name, int new_mode, int new_type);
    int open(const char* name, int new_mode, const char* type_name) {
        return open(name, new_mode, getType(type_name));
    }
    bool isOpen() const { return opened; }
    /// Returns 0 when something written didn't reach the file.
    int close();
    /// Back to the first report, in our own format; does nothing in others.
    int rewind();

    /// Sets the date of the file; before or after open, but before the first report is written.
    int setDate(const Date& value);
    int getDate(Date& out) const;
    /// Date text of the header in our own format; empty in others.
    const char* getDatim() const;

    /// The next report: 1, or 0 at the end or if not open.
    int read(SfcData& data);
    /// True when nothing is left to read, or if not open.
    bool atEnd();
    /// Appends a report; 0 when it can't be written.
    int write(const SfcData& data);
};

} // namespace ORV
