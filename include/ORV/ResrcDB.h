#pragma once

namespace ORV {

class ResrcDBList;
class String;
class Strings;

/// Fills the settings of the program, and tells about them.
class ResrcDB {
public:
    ResrcDB() = delete;

    /// Fills Orv::resrc from the program's identity, the resource files, the environment and the
    /// command line (args, the program's path first), each overriding the one before; then sets the
    /// message mask and the database path by the `message` and `file_path` resources. Keyed and
    /// positional are the settings that the program knows; an option that it doesn't know sets a
    /// resource of that name.
    static int create(Strings& args, ResrcDBList& keyed, ResrcDBList& positional);
    /// The text behind the last "/" of the path; returns 0 for a null path.
    static int decodeProgramName(const char* path, String& name);
    /// Prints the help lines of the settings, at message level 1.
    static int printHelp(const char* prog, ResrcDBList& keyed, ResrcDBList& positional);
};

} // namespace ORV
