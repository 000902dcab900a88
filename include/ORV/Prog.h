#pragma once

namespace ORV {

class ResrcDBList;
class String;

/// What a program says and asks at its start: banner, help, prompt.
class Prog {
public:
    Prog() = delete;

    /// Sets the `file_path` resource, with the lowest rank, to the database directory that belongs
    /// to this program, so that it runs without set-up: share/orv beside the folder of the running
    /// program, else the data folder of its source tree; and with the same rank the settings of an
    /// orv.cfg in it. Call it before ResrcDB::create. Returns 0 when neither exists.
    static int findDatabase();

    /// Asks for the next bytes of the heap in large pages, which saves a short run most of its page
    /// faults. A hint that changes nothing else; call it once, at the start. Returns 0 where the
    /// system knows no such thing.
    static int reserveHeap(int bytes);

    /// Prints the banner, a title with the version, at level 4 or the one given.
    static int printProg(const char* title) { return printProg(4, title); }
    static int printProg(int level, const char* title);
    /// Prints the help text when the `help` resource is set; returns 0 when it isn't.
    static int printHelp(ResrcDBList& keyed, ResrcDBList& positional, const char* purpose);

    /// Asks on standard output, reads a line of at most size - 2 characters from standard input,
    /// and asks again as long as setCommand consumes it. The prompt may hold "%%" for a percent
    /// sign. Returns 1, or 0 at the end of the input, when the answer is empty.
    static int prompt(const char* text, char* buffer, int size);
    static int prompt(const char* text, String& answer);
    static String prompt(const char* text);
    /// The commands of every prompt: "set key=value" sets a resource, "set" alone lists them,
    /// "exit" ends the process. Returns 1 when the line was one of them.
    static int setCommand(const char* line);

    /// Reads resource files into the settings after start-up, as set at run time: the files of
    /// path, else of the environment variable "orvdefault", else of the common folders, for the
    /// given program, its name and a tag that may be null. Then applies `message`, `file_path` and
    /// `cur_time`.
    static int readResrcFile(const char* prog, const char* name, const char* tag, const char* path);
    static int readResrcFile(const char* prog, const char* tag, const char* path) {
        return readResrcFile(prog, prog, tag, path);
    }
    static int readResrcFile(const char* tag, const char* path) {
        return readResrcFile("orv", tag, path);
    }
};

} // namespace ORV
