#pragma once

#include "ORV/String.h"

namespace ORV {

/// Questions about names and paths: plain files, standard streams, and remote names ("http://").
/// A path list separates its elements by ":"; the one behind "http", and the one before the port of
/// a remote element, belong to the element.
class FileTool {
public:
    FileTool() = delete;

    /// "-", or "std" or "stdn" in any case.
    static bool isStdio(const char* name);
    /// Begins with "http://", ".", "/" or "~".
    static bool isFullPath(const char* name);
    static bool isRemote(const char* name);

    /// Expands a leading "~" or "~user" to the home directory; an unknown user stays as it is.
    /// Returns 0 for a null name.
    static int addUserPath(const char* name, String& out);
    /// Returns the number of elements of a path list, at least 1.
    static int numPath(const char* list);
    /// Delivers element i, from 0; returns 0 when there is none.
    static int getPath(const char* list, int i, String& out);
    /// Appends "/" unless the text is empty or ends in one.
    static int addPathDelim(String& path);

    /// Finds a file for reading along a path list: the first element + "/" + name that exists, or
    /// the last one tried. A standard name, a full path and a name with an empty list stay as they
    /// are. Returns whether the result exists.
    static int addPath(const char* list, const char* name, String& out);
    static int checkPath(const char* list, const char* name);
    /// Places a file for writing: in the first directory of the list that exists, else in the last
    /// one. An empty, standard or full name stays as it is. Returns whether the directory exists.
    static int addOutPath(const char* list, const char* name, String& out);

    static bool exist(const char* name);
    /// Returns the size in bytes, -1 when absent. Of a remote file that is what the server says.
    static long getSize(const char* name);
    static bool isDir(const char* name);
    static bool isFile(const char* name);
    static bool isFifo(const char* name);
    static bool isDevice(const char* name);
    /// Returns the time of the last change, seconds since 1970, -1 when absent.
    static long getModTime(const char* name);
    static int remove(const char* name);
    /// Makes the directories of a path that are missing, up to the last "/", with mode 0755.
    /// "\\" counts as "/". At most 199 characters.
    static int makeDir(const char* path, int mode = 0755);
};

} // namespace ORV
