#pragma once

#include "ORV/File.h"
#include "ORV/String.h"

namespace ORV {

class Resrc;

/// Reads a resource file: lines of a key and a value, with conditional blocks.
///
/// A line is `key value`, `key: value` or `key "value with blanks"`; "#" in the first column opens
/// a comment. The lines DEF tag, UNDEF tag, IF tag, ELIF tag, ELSE and END, in any case, choose
/// which lines count. A key names its program or a pattern of it: "obschart.title", "*.title". Tags
/// and open blocks live on into the next file that is opened.
class ResrcFile : public File {
public:
    char prog[30] = "";     ///< the program against which keys are matched
    char name[30] = "";     ///< its name; "+x" stands for the program with "x" behind it
    char tags[10][20] = {}; ///< the defined tags, which compare ignoring case
    int num_tag = 0;
    /// The state of each open block: 1 live, 0 not taken yet, 99 a branch was taken before. Blocks
    /// deeper than 12 are counted by depth and are never live.
    char cond[12] = {};
    int depth = 0;
    bool active = true; ///< every open block is live
    bool is_open = false;

    /// Takes prog and name from the store.
    explicit ResrcFile(const Resrc& store);

    int set(const char* prog_text, const char* name_text);
    /// Defines a tag, if it isn't yet; returns 0 when 10 others are.
    int setTag(const char* tag);
    /// Opens a file; of a folder the first that exists of orv.cfg, .orvdef and Orv.res; orv.cfg for
    /// an empty path.
    int open(const char* path);
    bool isOpen() const { return is_open; }
    int close();

    /// The next pair of a live line, the key in lower case and without its ":". Returns 1, or -1 at
    /// the end of the file.
    int get(String& key, String& value);
    /// The next pair whose key is valid, the key reduced to the resource name; results as get.
    int getValid(String& resource, String& value);

    /// Whether a key of a file means this resource of this program. A "*" in it stands for any text
    /// up to the first place of what follows; a key that ends in "*" means nothing.
    bool compare(const char* resource, const char* key) const;
    /// Whether a key is one for this program, whatever the resource.
    bool valid(const char* key) const;
    /// The resource name in a key: the text behind its last "." or "*".
    static int parseName(const char* key, String& resource);

private:
    bool isTag(const char* tag) const;
    void removeTag(const char* tag);
    bool obey(const char* word, const char* tag, int words);
    void turn(const char* directive, bool taken);
};

} // namespace ORV
