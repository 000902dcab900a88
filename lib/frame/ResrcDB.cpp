#include "ORV/ResrcDB.h"

#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/ResrcCL.h"
#include "ORV/ResrcDBList.h"
#include "ORV/ResrcEnv.h"
#include "ORV/ResrcFile.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Strings.h"

namespace ORV {
namespace {
enum Origin { IDENTITY = 1, RESRC_FILE, ENVIRONMENT, COMMAND_LINE };

constexpr const char* search_path =
    ".:/home/orv/etc:/usr/local/etc/orv:/usr/local/orv/etc:/etc/orv";
constexpr int max_tag = 30;
constexpr int dump_level = 5; // debug level that lists the settings

/// Calls `visit` for each keyed, then each positional setting.
template <class Visit>
void forEach(ResrcDBList& keyed, ResrcDBList& positional, Visit visit) {
    for (const ResrcDBItem* item = keyed.first(); item; item = item->next)
        visit(*item);
    for (const ResrcDBItem* item = positional.first(); item; item = item->next)
        visit(*item);
}

void setIdentity(const char* path) {
    String name;
    ResrcDB::decodeProgramName(path, name);
    Orv::addResrc("prog", name.get(), IDENTITY);
    Orv::addResrc("name", name.get(), IDENTITY);
    Orv::setProgramName(name.get());
}

/// Calls `take` for each keyed option of the command line, `pass` for each positional argument.
template <class Take, class Pass>
void readCommandLine(const Strings& args, Take take, Pass pass) {
    ResrcCL line(args);
    String key, value;
    for (int kind; (kind = line.getKeyed(key, value)) >= 0;) {
        if (kind == 1) {
            take(key.get(), value.get());
        } else {
            const int position = line.getPosition(value);
            pass(position, value.get());
        }
    }
}

bool isPathOption(const char* key) {
    return StrLib::iequal(key, "default") || StrLib::iequal(key, "df");
}

/// The options that say which resource files are read, and for whom.
void setSteering(const Strings& args) {
    readCommandLine(
        args,
        [](const char* key, const char* value) {
            if (ResrcCL::compare(key, "name", "na"))
                Orv::addResrc("name", value, COMMAND_LINE);
            else if (isPathOption(key))
                Orv::addResrc("default", value, COMMAND_LINE);
        },
        [](int, const char*) {});
}

/// Whether setSteering has dealt with an option, or with one so like it that it can't be another.
bool isSteering(const char* key) {
    return StrLib::iequal(key, "name", StrLib::length(key)) || StrLib::iequal(key, "default", 7) ||
           StrLib::iequal(key, "df", 2);
}

void readFile(ResrcFile& file, ResrcDBList& keyed, ResrcDBList& positional) {
    String key, value, name;
    while (file.get(key, value) == 1) {
        bool known = false;
        forEach(keyed, positional, [&](const ResrcDBItem& item) {
            if (!file.compare(item.name, key.get()))
                return;
            known = true;
            Orv::addResrc(item.name, value.get(), RESRC_FILE);
        });
        if (!known && file.valid(key.get()) && ResrcFile::parseName(key.get(), name))
            Orv::addResrc(name.get(), value.get(), RESRC_FILE);
    }
}

void readFiles(ResrcDBList& keyed, ResrcDBList& positional) {
    // A copy: a file may set `default` while the path is walked.
    const String path(Orv::getResrc("default", search_path));
    if (!path.valid())
        return;
    ResrcFile file(Orv::resrc);
    char tag[max_tag] = "";
    String element;
    for (int i = 0; FileTool::getPath(path.get(), i, element); i++) {
        if (element.getChar(0) == '+') {
            StrLib::copy(tag, sizeof tag, element.get(1));
        } else if (file.open(element.get())) {
            if (*tag)
                file.setTag(tag);
            readFile(file, keyed, positional);
            file.close();
        }
    }
}

void readEnvironment(ResrcDBList& keyed, ResrcDBList& positional) {
    forEach(keyed, positional, [](const ResrcDBItem& item) {
        String value;
        if (ResrcEnv::get(Orv::resrc, item.name, item.env, value))
            Orv::addResrc(item.name, value.get(), ENVIRONMENT);
    });
}

/// The setting that a keyed option means; an unknown one means the resource of its own name.
const char* findName(ResrcDBList& keyed, const char* key) {
    for (const ResrcDBItem* item = keyed.first(); item; item = item->next)
        if (StrLib::equal(item->cmdln, key))
            return item->name;
    for (const ResrcDBItem* item = keyed.first(); item; item = item->next)
        if (StrLib::equal(item->name, key, StrLib::length(key)))
            return item->name;
    return key;
}

void addPositional(const ResrcDBList& positional, int position, const char* value) {
    const ResrcDBItem* item = positional.get(position);
    if (!item)
        item = positional.last;
    if (!item)
        return;
    if (Orv::getResrcType(item->name) == COMMAND_LINE)
        Orv::appendResrc(item->name, value);
    else
        Orv::addResrc(item->name, value, COMMAND_LINE);
}

void setOptions(const Strings& args, ResrcDBList& keyed, const ResrcDBList& positional) {
    readCommandLine(
        args,
        [&keyed](const char* key, const char* value) {
            if (!isSteering(key))
                Orv::addResrc(findName(keyed, key), value, COMMAND_LINE);
        },
        [&positional](int position, const char* value) {
            addPositional(positional, position, value);
        });
}
} // namespace

int ResrcDB::create(Strings& args, ResrcDBList& keyed, ResrcDBList& positional) {
    setIdentity(args.getString(0));
    String path;
    if (ResrcEnv::get(Orv::resrc, "default", nullptr, path))
        Orv::addResrc("default", path.get(), ENVIRONMENT);
    setSteering(args);
    readFiles(keyed, positional);
    readEnvironment(keyed, positional);
    setOptions(args, keyed, positional);

    Orv::setMessageLevel(Orv::getResrc("message"));
    if (const char* database = Orv::getResrc("file_path"))
        Orv::setDatabasePath(database);
    if (Orv::isDebug(dump_level))
        Orv::printAllResrc();
    return 1;
}

int ResrcDB::decodeProgramName(const char* path, String& name) {
    name.copy(path ? path + StrLib::lastIndex(path, '/') + 1 : nullptr);
    return path != nullptr;
}

int ResrcDB::printHelp(const char* prog, ResrcDBList& keyed, ResrcDBList& positional) {
    const char* name = prog ? prog : "";
    Orv::outMessage("%s syntax (version:%s)\n", name, Orv::getVersion());
    Orv::outMessage("   %s [options...]\n", name);
    Orv::outMessage("Keyed options...\n");
    Orv::outMessage(" -df file...  Resource/defaults file name\n");
    Orv::outMessage(" -na name     Program name\n");
    const auto print_items = [](const ResrcDBList& list) {
        for (const ResrcDBItem* item = list.first(); item; item = item->next)
            Orv::outMessage(" %s\n", item->help ? item->help : "");
    };
    print_items(keyed);
    Orv::outMessage("Positional options...\n");
    print_items(positional);
    return 1;
}

} // namespace ORV
