#pragma once

#include <memory>

namespace ORV {

class Listener;

/// One subscription to the events of a window. The windows of a process share one list.
class XCallback {
public:
    int type = 0;                 ///< X event code; 50 "Redraw", 999 "Idle", 0 any event
    unsigned long window = 0;     ///< the X window whose events are wanted
    Listener* listener = nullptr; ///< not owned
    const void* client = nullptr; ///< what the subscriber gave
    std::unique_ptr<XCallback> next;
};

} // namespace ORV
