#pragma once

#include "ORV/NameConvFile.h"

#include <sys/types.h>

namespace ORV {

/// A file name convention: a pattern such as "%D/%Y%m%d%h.%e" that turns a date into a file name
/// and back, and the search along it for the file that a user asks for. Conventions are looked up
/// by a tag in the file name.cnv, described in data/README.md.
///
/// Directives of a pattern, with a number N as in "%3h" for times in steps of N: %Y %y %m %B %b %d
/// %h %n (minute) %j (day of the year); %e extension; %f forecast time of N digits; %C %D %F %G %I
/// %M %R %S %T %W and %{name}, a path; %% a percent; any other letter a user key.
class NameConv {
public:
    char file[80] = ""; ///< pattern of the file name
    char hdr[80] = "";  ///< pattern of the header file name
    String path;        ///< path list that overrides all path resources
    char ext[30] = "";  ///< value of %e
    char key[20] = {};  ///< user keys, each a letter
    char keyval[20][30] = {};
    int numkey = 0;
    off_t min_size = 1;         ///< smaller files don't count, bytes
    int min_time = Const::MISS; ///< minutes that a search looks back at least
    char type[20] = "";
    char param[50] = "";
    int off = Const::MISS; ///< seconds between files; missing for a pattern without time
    Date date;             ///< the date as the last name has it
    DateVal fix_date;      ///< fixed fields of the date; a negative hour or minute is a step
    Date late_date;        ///< time base of searches, when set
    int fore_time = 0;     ///< value of %f
    bool output = false;   ///< the file is to be written and needn't exist
    int limit = 500;       ///< most files that a search looks at
    int cpath = 0;         ///< current element of the path list
    int npath = 1;         ///< elements of the path list
    bool pexist = true;    ///< false when the directory of the last name doesn't exist

    NameConv() = default;
    explicit NameConv(const char* text) { set(text); }

    /// Resets the pattern; path, limit, output, fix_date and late_date stay.
    int init();

    /// Sets the convention from a text: a tag of name.cnv, with optional keys and fields,
    /// "tag:a=value,header pattern,type,min=N,size=N"; or "@pattern", a pattern itself; or "none".
    /// A tag that isn't found is a pattern. Returns 0 for an empty text, or, after a warning, when
    /// name.cnv can't be read.
    int set(const char* text);

    int setOutput(bool value);
    int setFixDate(const DateVal& vals);
    /// Reads the fixed date fields: "HH", "HH:MM", ":MM", "DDHH", "MMDDHH", "DDdHH:MM",
    /// "#YYYYMMDDHHMM"; "-6" rounds the hour down to a multiple of 6, "-:15" the minute.
    int setFixDate(const char* text);
    int getFixDate(DateVal& vals) const;
    int setLateLimit(int n);
    int setLateDate(const Date& value);
    int setForeTime(int n);
    int getForeTime() const { return fore_time; }
    int setOffset(int n);
    /// Returns the seconds between the files of a pattern, Const::MISS when it holds no time.
    static int setOffset(const char* pattern);
    int getOffset() const { return off; }
    int getMinSize() const { return int(min_size); }
    int getMinTime() const { return min_time; }
    const char* getType() const { return type; }
    const char* getFile() const { return file; }
    int setExt(const char* text);
    const char* getExt() const { return ext; }
    /// Appends a key, its value of at most 19 characters; returns 0 when there are 20.
    int setKey(char letter, const char* text);
    /// Returns the value of a key, or an empty text.
    const char* getKey(char letter) const;

    /// Sets the path list: a list, or "+name", "res=name", "res:name" for the value of a resource.
    /// Returns 0 when that isn't set.
    int setPath(const char* text);
    const char* getPath() const { return path.get(); }
    int getNumPath() const { return npath; }
    int setPathNum(int n);

    /// Writes the name of a date by the pattern of the file (which 0) or of the header (1), and
    /// notes the date that the name holds. Returns 0 and an empty name for an empty pattern.
    int encode(const Date& value, int which, String& out);
    int encodeFile(const Date& value, String& out);
    int encodeHdr(const Date& value, String& out);
    /// Reads a name by the pattern of the file. Returns 0 when it doesn't fit; otherwise date,
    /// ext, path and keys are taken from it.
    int decode(const char* text);

    /// Finds the file for a request: "la" the newest usable one, "6la" the newest that is at least
    /// six hours old, "la-1" the one an hour before the newest, "2" or "-2" two hours ago,
    /// "#20070112" a date, "+la" the first one from now on, "la#10" with at most 10 looks. Null
    /// means "la". A search without a hit gives the name for the last date tried.
    int setLatest(const char* text, NameConvFile& result);
    /// The same from a given time, whatever the current one is.
    int setLatest(const Date& base, const char* text, NameConvFile& result);
    /// Finds the file of a date, in the first path that has it.
    int setFile(const Date& value, NameConvFile& result);
    int getDate(Date& value) const;

private:
    int readLine(const char* line, const char* name);
    void setLimit(const char* text);
    Date findBaseDate() const;
    void applyFixDate(Date& base) const;
    bool isUsable(const char* name) const;
    bool findFile(const Date& wanted);
    bool findLatest(const Date& wanted, int direction, int looks);
    int countLooks(int asked) const;
    int complete(const Date& value, NameConvFile& result);
};

} // namespace ORV
