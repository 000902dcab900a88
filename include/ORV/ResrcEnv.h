#pragma once

namespace ORV {

class Resrc;
class String;

/// Settings in the environment.
class ResrcEnv {
public:
    ResrcEnv() = delete;

    /// The first that exists of: a variable composed from the identity in the store and the
    /// resource name ("orv_obschart_title"; "orv_obschart_night_title" for the program name
    /// "+night"); the variable env, when not null; "orv" directly followed by the resource name.
    /// Returns 1 when found.
    static int get(const Resrc& store, const char* name, const char* env, String& value);
};

} // namespace ORV
