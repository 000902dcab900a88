#pragma once

namespace ORV {

/// Receiver of events. It is the only way that events travel: from a device through Graph to Plot
/// and Figure, and to the drawings that answer queries.
class Listener {
public:
    virtual ~Listener() = default;

    /// Takes one event. type names it ("KeyPress", "Redraw", "Idle", "QueryLoc"), data is its text
    /// ("z-Alt:412:300", "640:512", "40.5,-105.2") and may be null, client is what the subscriber
    /// gave when it subscribed.
    virtual void callback(const char* type, const char* data, const void* client) = 0;
};

} // namespace ORV
