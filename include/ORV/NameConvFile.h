#pragma once

#include "ORV/Date.h"

namespace ORV {

/// The file that a name convention gives for a date.
class NameConvFile {
public:
    char type[20] = "";      ///< file type of the convention
    char filename[160] = ""; ///< the setter keeps 119 characters
    char header[160] = "";   ///< name of a separate header file; the setter keeps 119 characters
    Date date;
    char param[50] = ""; ///< the setter keeps 19 characters
    int offset = 0;      ///< seconds between files

    int init();

    int setType(const char* text);
    int setFilename(const char* text);
    int setHeader(const char* text);
    int setDate(const Date& value);
    int setParam(const char* text);
    int setOffset(int value);

    const char* getType() const { return type; }
    const char* getFilename() const { return filename; }
    const char* getHeader() const { return header; }
    int getDate(Date& value) const;
    const char* getParam() const { return param; }
    int getOffset() const { return offset; }
};

} // namespace ORV
