#include "ORV/Orv.h"
#include "ORV/StrLib.h"
#include "ORV/Timer.h"
#include "ORV/XWindow.h"

#include "XLibrary.h"
#include <X11/keysym.h>
#include <poll.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace ORV {
namespace {
constexpr double round_secs = 0.2; // the longest wait without a look at events and idle work
constexpr int max_key_text = 80;
constexpr int key_length = 5; // "d-Alt"; what follows are other modifiers and the position

constexpr const char* event_names[] = {
    "KeyPress",         "KeyRelease",       "ButtonPress",    "ButtonRelease",    "MotionNotify",
    "EnterNotify",      "LeaveNotify",      "FocusIn",        "FocusOut",         "KeymapNotify",
    "Expose",           "GraphicsExpose",   "NoExpose",       "VisibilityNotify", "CreateNotify",
    "DestroyNotify",    "UnmapNotify",      "MapNotify",      "MapRequest",       "ReparentNotify",
    "Configure",        "ConfigureRequest", "GravityNotify",  "ResizeRequest",    "CirculateNotify",
    "CirculateRequest", "PropertyNotify",   "SelectionClear", "SelectionRequest", "SelectionNotify",
    "ColormapNotify",   "ClientMessage",    "MappingNotify",
};

const char* nameEvent(int type) {
    const std::size_t i = static_cast<std::size_t>(type - KeyPress);
    return type >= KeyPress && i < std::size(event_names) ? event_names[i] : "Unknown";
}

constexpr struct {
    const char* type;
    int code;
} subscriptions[] = {
    {"AnyEvent", XWindow::ANY_EVENT},
    {"Expose", Expose},
    {"ButtonPress", ButtonPress},
};

constexpr struct {
    unsigned mask;
    const char* text;
} modifiers[] = {
    {Mod1Mask, "-Alt"},
    {ShiftMask, "-Shft"},
    {ControlMask, "-Cntrl"},
};

std::string withModifiers(std::string text, unsigned state) {
    for (const auto& modifier : modifiers)
        if (state & modifier.mask)
            text += modifier.text;
    return text;
}

std::string position(int x, int y) {
    return ":" + std::to_string(x) + ":" + std::to_string(y);
}

/// What the window itself does, by the first characters of a key or button.
constexpr struct {
    const char* key;
    const char* button;
    void (*act)(XWindow& window);
} actions[] = {
    {"d-Alt", nullptr, [](XWindow& w) { w.deleteFrame(w.frame); }},
    {"l-Alt", "B2-P", [](XWindow& w) { w.toggleLoop(); }},
    {"[-Alt", "B1-P", [](XWindow& w) { w.looping ? w.loopRate(-1) : w.incFrame(-1); }},
    {"]-Alt", "B3-P", [](XWindow& w) { w.looping ? w.loopRate(1) : w.incFrame(1); }},
};
} // namespace

int XWindow::addCallback(const char* type, Listener* listener, const void* client) {
    if (!open_flag || mode == 2 || !listener)
        return 0;
    for (const auto& subscription : subscriptions)
        if (StrLib::equal(type, subscription.type)) {
            auto entry = std::make_unique<XCallback>();
            entry->type = subscription.code;
            entry->window = window;
            entry->listener = listener;
            entry->client = client;
            std::unique_ptr<XCallback>* end = &callbackroot;
            while (*end)
                end = &(*end)->next;
            *end = std::move(entry);
            return 1;
        }
    return 0;
}

int XWindow::deleteCallbacks(unsigned long window) {
    int removed = 0;
    for (std::unique_ptr<XCallback>* entry = &callbackroot; *entry;)
        if ((*entry)->window == window) {
            *entry = std::move((*entry)->next);
            removed++;
        } else {
            entry = &(*entry)->next;
        }
    return removed;
}

XWindow* XWindow::find(unsigned long window) {
    for (XWindow* candidate : windows)
        if (candidate && candidate->window == window && candidate->mode == 1)
            return candidate;
    return nullptr;
}

int XWindow::doCallback(const char* type, const char* data) {
    const XID own = window;
    for (const XCallback* entry = callbackroot.get(); entry && find(own);)
        if (entry->window == own) {
            entry->listener->callback(type, data, entry->client);
            if (!find(own)) // the entry may be gone with its window
                return 1;
            entry = entry->next.get();
        } else {
            entry = entry->next.get();
        }
    return 1;
}

int XWindow::procCallback(unsigned long window, int code, const char* type, const char* data) {
    for (const XCallback* entry = callbackroot.get(); entry; entry = entry->next.get()) {
        if (entry->window != window || (entry->type != ANY_EVENT && entry->type != code))
            continue;
        entry->listener->callback(type, data, entry->client);
        if (!find(window))
            return 0;
    }
    return 1;
}

void XWindow::callback(const char* type, const char* data, const void*) {
    if (StrLib::equal(type, "Expose")) {
        update();
    } else if (StrLib::equal(type, "MapNotify")) {
        mapped = true;
    } else if (StrLib::equal(type, "UnmapNotify")) {
        mapped = false;
    } else if (StrLib::equal(type, "Configure")) {
        if (resize(-1, -1))
            procCallback(window, REDRAW, "Redraw", data);
        update();
    } else if (StrLib::equal(type, "ButtonPress")) {
        for (const auto& action : actions)
            if (action.button && StrLib::equal(data, action.button, StrLib::length(action.button)))
                return action.act(*this);
    } else if (StrLib::equal(type, "KeyPress")) {
        for (const auto& action : actions)
            if (StrLib::equal(data, action.key, key_length))
                return action.act(*this);
    }
}

void XWindow::processKey(void* event) {
    const XLibrary& x = XLibrary::get();
    XKeyEvent& key = *static_cast<XKeyEvent*>(event);
    char text[max_key_text + 1] = "";
    KeySym symbol = NoSymbol;
    const int length = x.lookupString(&key, text, max_key_text, &symbol, nullptr);
    text[std::clamp(length, 0, max_key_text)] = '\0';
    const bool is_return = symbol == XK_Return || symbol == XK_KP_Enter;

    ::Window root, child;
    int root_x, root_y, px = key.x, py = key.y;
    unsigned state;
    x.queryPointer(display, window, &root, &child, &root_x, &root_y, &px, &py, &state);
    const std::string data = withModifiers(is_return ? "Ret" : text, key.state) + position(px, py);
    procCallback(window, KeyPress, nameEvent(KeyPress), data.c_str());
}

void XWindow::processButton(void* event) {
    const XButtonEvent& button = *static_cast<XButtonEvent*>(event);
    const bool press = button.type == ButtonPress;
    std::string data;
    if (button.button >= Button1 && button.button <= Button3) {
        data = withModifiers("B" + std::to_string(button.button) + (press ? "-P" : "-R"),
                             button.state);
        if (press)
            data += position(button.x, button.y);
    }
    procCallback(window, button.type, nameEvent(button.type), data.c_str());
}

// Another hand has closed the window. Those who listen know the Return key.
void XWindow::closeWindow() {
    const XID own = window;
    procCallback(own, KeyPress, nameEvent(KeyPress), "Ret");
    if (find(own) == this) {
        unmanage();
        close();
    }
}

void XWindow::processEvent(void* pending) {
    const XLibrary& x = XLibrary::get();
    XEvent& event = *static_cast<XEvent*>(pending);
    if (event.type == MappingNotify)
        x.refreshKeyboardMapping(&event.xmapping);
    XWindow* const owner = find(event.xany.window);
    if (!owner)
        return;

    std::string data;
    switch (event.type) {
    case KeyPress:
        return owner->processKey(&event.xkey);
    case ButtonPress:
    case ButtonRelease:
        return owner->processButton(&event.xbutton);
    case Expose:
    case ConfigureNotify: // only the last of a storm counts
        while (x.checkTypedWindowEvent(display, owner->window, event.type, &event)) {
        }
        if (event.type == ConfigureNotify)
            data = std::to_string(event.xconfigure.width) + ":" +
                   std::to_string(event.xconfigure.height);
        break;
    case DestroyNotify:
        owner->gone = true;
        break;
    default:
        break;
    }

    const bool asked = event.type == ClientMessage && event.xclient.format == 32 &&
                       static_cast<unsigned long>(event.xclient.data.l[0]) == owner->close_words;
    const XID own = owner->window;
    procCallback(own, event.type, nameEvent(event.type), data.c_str());
    if ((asked || event.type == DestroyNotify) && find(own) == owner)
        owner->closeWindow();
}

int XWindow::checkEvent() {
    const XLibrary& x = XLibrary::get();
    int handled = 0;
    while (display && x.pending(display) > 0) {
        XEvent event;
        x.nextEvent(display, &event);
        processEvent(&event);
        handled++;
    }
    return handled;
}

int XWindow::waitEvent() {
    if (!open_flag)
        return 0;
    XEvent event;
    XLibrary::get().nextEvent(display, &event);
    processEvent(&event);
    return 1 + checkEvent();
}

// Waits for events at most this long; they are handled by checkEvent.
void XWindow::waitInput(double seconds) {
    if (!display || XLibrary::get().pending(display) > 0)
        return;
    pollfd input = {ConnectionNumber(display), POLLIN, 0};
    poll(&input, 1, static_cast<int>(seconds * 1000) + 1);
}

int XWindow::manage() {
    if (!open_flag)
        return 0;
    if (mode == 2)
        return num_frames > 0 ? displayFrame(LAST_FRAME) : update();
    managed = 1;
    return mainloop();
}

int XWindow::unmanage() {
    managed = 0;
    return 1;
}

void XWindow::stepLoop(Timer& timer) {
    while (managed && open_flag && looping && num_frames >= 2) {
        const double left = double(frame == num_frames - 1 ? dwell : delay) - timer.elapsed();
        if (left <= 0)
            break;
        waitInput(std::min(left, round_secs));
        checkEvent();
    }
    if (managed && open_flag && looping && mapped)
        incFrame(0);
    timer.init();
}

int XWindow::mainloop() {
    constexpr int waiting = 6, running = 3, standing = 4;
    if (num_frames >= 2)
        looping = 1;
    Timer timer;
    while (managed && num_windows > 0) {
        if (num_frames >= 2 && looping) {
            setCursor(running);
            stepLoop(timer);
        } else {
            setCursor(num_frames < 2 ? waiting : standing);
            waitInput(round_secs);
        }
        checkEvent();
        if (open_flag)
            procCallback(window, IDLE, "Idle", nullptr);
    }
    return 1;
}

} // namespace ORV
