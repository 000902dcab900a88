#pragma once

#include <dlfcn.h>

namespace ORV {

/// A shared library that is loaded when it is first needed, so that runs that don't need it don't
/// pay for it. Derived from, by a class that has a pointer for each operation:
///
///   decltype(&deflate) deflate_all = find("deflate");
///
/// It is never unloaded: such libraries keep threads and exit handlers of their own.
class SharedLibrary {
public:
    /// The address of an operation or object, as the type that it is assigned to.
    class Address {
    public:
        void* address;
        template <class T>
        operator T*() const {
            return reinterpret_cast<T*>(address);
        }
    };

    /// Whether the library, and all that was looked for in it, is there.
    bool isLoaded() const { return complete; }

protected:
    explicit SharedLibrary(const char* name)
        : handle(dlopen(name, RTLD_NOW | RTLD_LOCAL)), complete(handle) {}

    Address find(const char* name) {
        Address found = findOptional(name);
        complete = complete && found.address;
        return found;
    }
    Address findOptional(const char* name) const {
        return {handle ? dlsym(handle, name) : nullptr};
    }

private:
    void* handle;
    bool complete;
};

} // namespace ORV
