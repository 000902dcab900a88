#pragma once

#include "ORV/Date.h"
#include "ORV/File.h"
#include "ORV/SfcData.h"

namespace ORV {

/// An hour file of surface reports in the system's own text format, one report a line.
///
/// Line 1 is "ORVSFC", line 2 the date of the file ("18Z 12 JAN 07"), each further line a report of
/// at most 199 bytes, its line end among them. A line holds nine tokens (id, temperature and
/// dewpoint in tenths of a degree Fahrenheit, wind, altimeter, sea-level pressure, visibility,
/// clouds, weather), then groups that each begin with a letter, and ends in " $". See
/// docs/hour-file.md.
///
/// Two groups of ours stand behind all others but the remarks, so that a reader that doesn't know
/// them loses the remarks at most: "v" the speed in knots of a wind without a direction, "w" the
/// wave period in seconds.
///
/// A token or a group that is no number leaves its value missing; more than five cloud layers are
/// dropped; so is the part of a line behind its 199th byte. When writing, remarks are cut so that
/// the line stays within that length; a blank inside a token is written as '_'.
///
/// Nothing here gives a message.
class SfcOrvFile {
public:
    SfcOrvFile() = default;
    explicit SfcOrvFile(const char* name) { open(name, 0); }
    SfcOrvFile(const char* name, int new_mode) { open(name, new_mode); }
    ~SfcOrvFile() { close(); }
    SfcOrvFile(const SfcOrvFile&) = delete;
    SfcOrvFile& operator=(const SfcOrvFile&) = delete;

    bool opened = false;
    int mode = 0; ///< 0 reading, 1 writing, 2 appending
    File file;
    Date date;           ///< date of the file
    char datim[30] = ""; ///< date text of the header
    int num = -1;        ///< reports written; -1 until the header stands in the file
    bool failed = false; ///< a write didn't get through

    /// 1 for a file of this format, 0 for another, -1 for one that is empty or can't be opened.
    static int checkType(const char* name);

    /// Opens for reading (mode 0), writing (1) or appending (2); closes what was open before. An
    /// empty file opens, and has no reports. Returns 1 on success.
    int open(const char* name, int new_mode);
    bool isOpen() const { return opened; }
    /// Returns 0 when something written didn't reach the file.
    int close();
    /// Back to the first report. 0 unless reading.
    int rewind();

    /// The date must be set before the first report is written.
    int setDate(const Date& value);
    int getDate(Date& out) const;
    const char* getDatim() const { return datim; }

    /// The next report: 1, or 0 at the end of the file or at a blank line. The fields that a line
    /// doesn't mention are missing; the date is that of the file, with the report's own time.
    int read(SfcData& data);
    /// True when reading and nothing is left: tells the end of the file from a blank line.
    bool atEnd();
    /// Appends a report. 0 when not open for it, or when it can't be written.
    int write(const SfcData& data);

private:
    int readHeader();
    int writeHeader();
};

} // namespace ORV
