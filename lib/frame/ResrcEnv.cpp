#include "ORV/ResrcEnv.h"

#include "ORV/Resrc.h"
#include "ORV/String.h"

#include <cstdio>
#include <cstdlib>

namespace ORV {
namespace {
constexpr int max_name = 44; // characters of a composed variable name

bool lookUp(const char* variable, String& value) {
    const char* text = std::getenv(variable);
    return text && value.copy(text);
}
} // namespace

int ResrcEnv::get(const Resrc& store, const char* name, const char* env, String& value) {
    if (!name)
        return 0;
    const char* prog = store.get("prog", "");
    const char* own_name = store.get("name", "");
    char variable[max_name + 1];
    if (*own_name == '+')
        std::snprintf(variable, sizeof variable, "orv_%s_%s_%s", prog, own_name + 1, name);
    else
        std::snprintf(variable, sizeof variable, "orv_%s_%s", *own_name ? own_name : prog, name);
    if (lookUp(variable, value) || (env && lookUp(env, value)))
        return 1;
    std::snprintf(variable, sizeof variable, "orv%s", name);
    return lookUp(variable, value);
}

} // namespace ORV
