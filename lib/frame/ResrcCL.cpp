#include "ORV/ResrcCL.h"

#include "ORV/StrLib.h"
#include "ORV/String.h"

namespace ORV {
namespace {
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool beginsAsOption(const char* arg) {
    return arg[0] == '-' && isLetter(arg[1]);
}

/// The key of a keyed argument, behind its dashes; null for a positional one.
const char* findKey(const char* arg) {
    if (beginsAsOption(arg))
        return arg + 1;
    return *arg == '-' && beginsAsOption(arg + 1) ? arg + 2 : nullptr;
}
} // namespace

int ResrcCL::rewind() {
    ind = 1;
    pos = 0;
    return 1;
}

int ResrcCL::getKeyed(String& key, String& value) {
    key.clear();
    value.clear();
    if (ind >= num)
        return -1;
    const char* arg = getString(ind);
    if (StrLib::equal(arg, "--")) {
        ind++;
        return 1;
    }
    const char* option = arg ? findKey(arg) : nullptr;
    if (!option)
        return 0;
    ind++;
    const int equals = StrLib::index(option, '=');
    if (equals >= 0) {
        key.copy(option, equals);
        value.copy(option + equals + 1);
        return 1;
    }
    key.copy(option);
    const char* following = getString(ind);
    if (following && !beginsAsOption(following)) {
        value.copy(following);
        ind++;
    }
    return 1;
}

int ResrcCL::getPosition(String& value) {
    value.clear();
    if (ind >= num)
        return -1;
    value.copy(getString(ind++));
    return pos++;
}

int ResrcCL::compare(const char* key, const char* name, const char* cmdln) {
    if (!StrLib::valid(key))
        return 0;
    if (StrLib::equal(key, cmdln))
        return 2;
    return StrLib::equal(key, name, StrLib::length(key)) ? 1 : 0;
}

} // namespace ORV
