#pragma once

#include "ORV/Strings.h"

namespace ORV {

class String;

/// Reads a command line, the program's path being argument 0.
class ResrcCL : public Strings {
public:
    int ind = 1; ///< the next argument
    int pos = 0; ///< positional arguments delivered so far

    explicit ResrcCL(const Strings& args) : Strings(args) {}

    int rewind();
    /// Returns 1 with the key and value of a keyed option ("-key value", "-key=value",
    /// "--key=value" or "-key"), 0 when the next argument is positional and stays, -1 behind the
    /// last argument. The argument "--" gives an empty key. A next argument that looks like an
    /// option is no value;
    /// "-5" is one.
    int getKeyed(String& key, String& value);
    /// Takes the next argument; returns the count of those taken before, or -1 behind the last.
    int getPosition(String& value);
    /// 2 when the key equals cmdln, 1 when it is a leading part of name, else 0.
    static int compare(const char* key, const char* name, const char* cmdln);
};

} // namespace ORV
