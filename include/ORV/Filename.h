#pragma once

#include "ORV/NameConv.h"
#include "ORV/Strings.h"

namespace ORV {

/// The data files of a drawing: what the user typed, a literal name, a date, the latest file or a
/// list, and the current file of a loop over time that comes of it. A file that doesn't exist is no
/// error here; the reader reports it.
class Filename {
public:
    bool is_set = false; ///< a selection was made
    bool fixed = false;  ///< the name is a literal; stepping in time has no effect
    char type[30] = "";  ///< file type of the convention
    String name;         ///< current file
    String hdr;          ///< and its header file
    char param[50] = "";
    Date date;                  ///< date of the current file
    Date base_date;             ///< date that frames count from, without gaps except in the hour
    NameConv conv;              ///< the convention
    Strings files;              ///< file list as given by the user
    int num_file = 1;           ///< number of frames
    int num_off = 0;            ///< seconds added to the time of each frame
    int num_type = 0;           ///< 0 frames by time, 2 frames from files
    int num_dir = 1;            ///< 1 frames go forward from the base date, -1 they end at it
    int file_off = Const::MISS; ///< seconds between frames

    Filename() = default;
    explicit Filename(const char* text);
    Filename(const char* conv, const char* text);
    Filename(const char* conv, const Date& value);

    /// Clears the selection.
    int init();

    /// Takes a literal name.
    int set(const char* text);
    /// Takes the file of a convention that the text asks for, as in NameConv::setLatest; without a
    /// convention the text is the name. Returns whether the file exists.
    int set(const char* conv, const char* text);
    /// Takes the file of a convention for a date. Returns 1.
    int set(const char* conv, const Date& value);
    int setNameConv(const char* text);
    int setPath(const char* text);

    int setFixDate(const char* text);
    int setFixDate(const DateVal& vals);
    int setForeTime(int n);
    int getForeTime() const { return conv.getForeTime(); }
    int setKey(char letter, const char* text);
    const char* getKey(char letter) const { return conv.getKey(letter); }
    const char* getExt() const { return conv.getExt(); }
    int setOutput(bool value);
    int setLateLimit(int n);
    int setLateDate(const Date& value);

    bool isSet() const { return is_set; }
    bool isFixed() const { return fixed; }
    int setDate(const Date& value);
    int getDate(Date& value) const;
    DateVal getDateval() const { return date; }
    int getOffset() const { return file_off; }
    int setType(const char* text);
    const char* getType() const { return type; }
    int setName(const char* text);
    const char* getName() const { return name.get(); }
    /// Returns the current file for 0, entry i of the list for others, null when there is none.
    const char* getName(int i) const;
    int setHeader(const char* text);
    const char* getHeader() const { return hdr.get(); }
    bool validHeader() const { return hdr.valid(); }
    int setBaseDate(const Date& value);
    bool exist() const;

    /// Sets the number of frames; a negative one makes them end at the base date.
    int setNumFiles(int n);
    /// Reads "H:M-H2:M2,S": frames that cover H hours and M minutes, backward with a leading "-",
    /// from H2:M2 behind the base date, in steps of S. Returns 0 for a null text.
    int setNumFiles(const char* text);
    int getNumFiles() const { return num_file; }
    int getNumType() const { return num_type; }

    /// Takes one input text: "exit" ends the program; "@file" is a literal name; "-" or "std"
    /// standard input; "#date", "cu=6" (six hours ago), "la" and the like a file of the
    /// convention; a name that fits the convention the file of that date; all others are literal.
    int checkFile(const char* text);

    /// Selects from the resources filename and current. The file name "list" prints the files
    /// there are and ends the program. Returns whether the file exists.
    int setFile();
    /// Selects from a text, its second entry a further file or "nh=" and the number of hours;
    /// without a text from the resources. Returns whether the file exists.
    int setFile(const char* text);
    /// Selects the file of a date. Returns whether it exists.
    int setFile(const Date& value);
    /// The same for one frame of a loop; the text isn't used. The date given decides, whatever
    /// fixed current time the program runs at.
    int setFile(const Date& value, const char* text);
    /// Makes frame i current, from 0. Returns 0 when there is no such frame.
    int setFile(int frame);

    /// Puts file and header into the first directory of a path list that exists.
    int addOutPath(const char* path);
    /// Prints the files of the convention by the shell's listing command.
    int listFile();

private:
    int take(const NameConvFile& result);
    int setLiteral(const char* text);
    int setLatest(const char* text);
    int setList(const char* text, char delim);
    int setFrames();
    int setDecoded(const char* text);
};

} // namespace ORV
