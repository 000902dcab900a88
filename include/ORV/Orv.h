#pragma once

#include "ORV/Const.h"
#include "ORV/Convert.h"
#include "ORV/OwnedArray.h"
#include "ORV/Resrc.h"

namespace ORV {

/// What the whole program shares: its settings, messages, name, database path and exit.
/// Operations that return int return 1 unless told otherwise.
///
/// Message levels run from 1 to 20: 1 "print", 2 "error", 3 "warn", 4 "mess", 5 to 12 "out1" to
/// "out8", 13 to 20 "debug1" to "debug8"; level n is bit n - 1 of the mask.
class Orv : public Const, public Convert {
public:
    Orv() = delete;

    /// Error codes, which are the exit status of the process.
    enum Error {
        NOERR,
        NORUN,
        MISC,
        NOMEMORY,
        NOGRAPH,
        NOINIT,
        NOFILE,
        NODBASE,
        NOWRITE,
        NOINPUT,
        NODATA,
        BADPARAM,
    };

    static Resrc resrc;       ///< the settings
    static char progname[20]; ///< empty until set
    static OwnedArray<char>
        datapath;            ///< the database path, a list separated by ":"; null until set
    static int message_mask; ///< levels 1 to 6 at first
    static int init_time;    ///< a fixed current time, s since 1970, or missing
    static int error;        ///< the last code given to setError

    /// Print to standard output when the level, 1 without one, is in the mask.
    [[gnu::format(printf, 1, 2)]] static int outMessage(const char* fmt, ...);
    [[gnu::format(printf, 2, 3)]] static int outMessage(int level, const char* fmt, ...);
    /// Warnings at level 3, and errors always, go to standard error, or to standard output when the
    /// environment variable "orverrtoout" exists.
    [[gnu::format(printf, 1, 2)]] static int outWarning(const char* fmt, ...);
    [[gnu::format(printf, 1, 2)]] static int outError(const char* fmt, ...);
    /// Print to standard output at level 13, or n + 12.
    [[gnu::format(printf, 1, 2)]] static int outDebug(const char* fmt, ...);
    [[gnu::format(printf, 2, 3)]] static int outDebug(int n, const char* fmt, ...);
    /// Prints the text as it stands, always.
    static int print(const char* text);

    static bool checkMessage(int level);
    /// Any debug level, or debug level n.
    static bool isDebug() { return (message_mask & 0xFF000) != 0; }
    static bool isDebug(int n) { return checkMessage(n + 12); }
    /// Sets the mask to this level and all below.
    static int setMessageLevel(int level);
    /// Takes keywords at commas: a plain one sets the ceiling, "+" adds its level, "-" flips it. An
    /// unknown keyword is passed over; null changes nothing.
    static int setMessageLevel(const char* text);

    static int setProgramName(const char* name);
    /// "ORV" while no name is set.
    static const char* getProgramName() { return *progname ? progname : "ORV"; }
    static int setDatabasePath(const char* path);
    /// Empty while no path is set.
    static const char* getDatabasePath() { return datapath ? datapath : ""; }
    static int setInitTime(int seconds);
    static int getInitTime() { return init_time; }
    static int setError(int code);
    static bool getError() { return error != NOERR; }
    static const char* getVersion();

    /// Ends the process with this status, through the normal exit path.
    [[noreturn]] static void exit(Error code);
    /// Wall-clock seconds since 1970, with microseconds as the fraction.
    static double getTime();
    static int sleep(float seconds);
    /// Reads one character from standard input.
    static int pause();
    /// The virtual size of the process, bytes; 0 when the system doesn't tell.
    static long getVirtMem();
    /// The host name, at most 40 bytes, in a static buffer.
    static const char* getComputerName();

    /// Shortcuts to the operations of resrc.
    static const char* getResrc(const char* name) { return resrc.get(name); }
    static const char* getResrc(const char* name, const char* other) {
        return resrc.get(name, other);
    }
    static float getResrc(const char* name, float other) { return resrc.get(name, other); }
    static int getResrc(const char* name, int other) { return resrc.get(name, other); }
    static bool getResrcBool(const char* name) { return resrc.getBool(name); }
    static int addResrc(const char* name, const char* value, int type) {
        return resrc.add(name, value, type);
    }
    static int putResrc(const char* name, const char* value) { return resrc.put(name, value); }
    static int setResrc(const char* name, const char* value) { return resrc.set(name, value); }
    static int appendResrc(const char* name, const char* value) {
        return resrc.append(name, value);
    }
    static int getResrcType(const char* name) { return resrc.getType(name); }
    static int printAllResrc() { return resrc.printAll(); }
    static int rewindResrc() { return resrc.rewind(); }
    static const char* nextResrc() { return resrc.getNext(); }
};

} // namespace ORV
