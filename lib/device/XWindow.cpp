#include "ORV/XWindow.h"

#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include "XLibrary.h"
#include <X11/cursorfont.h>
#include <poll.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace ORV {
namespace {
constexpr long wanted_events = KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                               EnterWindowMask | LeaveWindowMask | ButtonMotionMask | ExposureMask |
                               StructureNotifyMask | FocusChangeMask;
constexpr int border_width = 5;
constexpr int min_size = 10;
constexpr int max_size = 32767;   // of a window, as X coordinates go
constexpr int map_wait_ms = 5000; // for a window manager to show the window
constexpr int icon_wait_ms = 500; // an icon may stay one without a word

// A station mark, half covered, with its wind.
constexpr int icon_size = 48;
constexpr unsigned char icon_bits[icon_size * icon_size / 8] = {
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x80, 0x01, 0x00, 0x00, 0x00, 0x00,
    0xc0, 0x07, 0x00, 0x00, 0x00, 0x00, 0x60, 0x0e, 0x00, 0x00, 0x00, 0x00, 0x30, 0x1c, 0x00, 0x00,
    0x00, 0x00, 0x18, 0x38, 0x00, 0x00, 0x00, 0x00, 0x3c, 0x70, 0x00, 0x00, 0x00, 0x00, 0x76, 0xe0,
    0x00, 0x00, 0x00, 0x00, 0xe3, 0xc0, 0x00, 0x00, 0x00, 0x80, 0xc1, 0x01, 0x00, 0x00, 0x00, 0xc0,
    0x81, 0x07, 0x00, 0x00, 0x00, 0x60, 0x07, 0x0e, 0x00, 0x00, 0x00, 0x30, 0x0e, 0x1c, 0x00, 0x00,
    0x00, 0x18, 0x1c, 0x18, 0x00, 0xe0, 0x3f, 0x0c, 0x18, 0x00, 0x00, 0xf0, 0x7b, 0x06, 0x00, 0x00,
    0x00, 0xfc, 0xc3, 0x03, 0x00, 0x00, 0x00, 0xfc, 0x83, 0x01, 0x00, 0x00, 0x00, 0xfe, 0x03, 0x03,
    0x00, 0x00, 0x00, 0xff, 0x03, 0x06, 0x00, 0x00, 0x00, 0xff, 0x03, 0x06, 0x00, 0x00, 0x00, 0xff,
    0x03, 0x06, 0x00, 0x00, 0x00, 0xff, 0x03, 0x04, 0x00, 0x00, 0x00, 0xff, 0x03, 0x04, 0x00, 0x00,
    0x00, 0xff, 0x03, 0x04, 0x00, 0x00, 0x00, 0xff, 0x03, 0x06, 0x00, 0x00, 0x00, 0xff, 0x03, 0x06,
    0x00, 0x00, 0x00, 0xff, 0x03, 0x06, 0x00, 0x00, 0x00, 0xfe, 0x03, 0x03, 0x00, 0x00, 0x00, 0xfc,
    0x83, 0x01, 0x00, 0x00, 0x00, 0xfc, 0xc3, 0x01, 0x00, 0x00, 0x00, 0xf0, 0x7b, 0x00, 0x00, 0x00,
    0x00, 0xe0, 0x3f, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
};

constexpr int stipple_size = 8;
constexpr unsigned char fill_bits[][stipple_size] = {
    {0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff},
    {0xaa, 0x55, 0xaa, 0x55, 0xaa, 0x55, 0xaa, 0x55},
    {0x55, 0x00, 0x55, 0x00, 0x55, 0x00, 0x55, 0x00},
    {0x24, 0x11, 0x82, 0x48, 0x42, 0x11, 0x28, 0x84},
    {0x33, 0x33, 0x00, 0x00, 0xcc, 0xcc, 0x00, 0x00},
    {0x33, 0x33, 0x33, 0x33, 0x33, 0x33, 0x33, 0x33},
    {0x03, 0x06, 0x0c, 0x18, 0x30, 0x60, 0xc0, 0x81},
    {0x81, 0xc0, 0x60, 0x30, 0x18, 0x0c, 0x06, 0x03},
    {0xff, 0xff, 0x00, 0x00, 0xff, 0xff, 0x00, 0x00},
    {0xc3, 0x66, 0x3c, 0x18, 0x3c, 0x66, 0xc3, 0x81},
    {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00},
    {0x40, 0x10, 0x20, 0x01, 0x00, 0x04, 0x08, 0x02},
    {0x08, 0xa0, 0x44, 0x11, 0x22, 0x10, 0x81, 0x44},
    {0x45, 0x28, 0x94, 0x43, 0x50, 0x09, 0x52, 0xa8},
    {0x19, 0xca, 0x34, 0x1a, 0xe1, 0x32, 0xa5, 0xcc},
    {0x55, 0xdc, 0x3b, 0xe2, 0x97, 0xaa, 0x65, 0x3e},
    {0x7a, 0xe5, 0x5f, 0xab, 0xf5, 0xeb, 0x5e, 0xb5},
    {0xfe, 0xbb, 0xf5, 0x6f, 0xfe, 0xd7, 0xbd, 0xeb},
    {0xfd, 0xff, 0xef, 0x7f, 0xdf, 0xfe, 0xf7, 0xaf},
    {0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff},
};

constexpr unsigned cursor_shapes[] = {
    XC_X_cursor, XC_left_ptr, XC_fleur, XC_exchange, XC_dot,
    XC_pencil,   XC_tcross,   XC_xterm, XC_watch,
};

int toSize(float v) {
    return std::clamp(Scan::toInt(v), 1, max_size);
}
} // namespace

XWindow::Display* XWindow::display = nullptr;
int XWindow::managed = 0;
int XWindow::error = 0;
int XWindow::error_print = 1;
int XWindow::num_errors = 0;
int XWindow::num_windows = 0;
XWindow* XWindow::windows[max_windows] = {};
std::unique_ptr<XCallback> XWindow::callbackroot;

XWindow::~XWindow() {
    close();
}

int XWindow::init() {
    close();
    mode = 1;
    inverse = 0;
    width = 640;
    height = 512;
    off_x = off_y = 100;
    fixed = true;
    mapped = icon = open_flag = placed = gone = false;
    StrLib::copy(name, sizeof name, "ORV");
    StrLib::copy(title, sizeof title, "ORV");
    display_name[0] = background[0] = '\0';
    index = -1;
    show_num = 0;
    text_h = text_v = 2;
    image_h = 1;
    image_v = 3;
    max_frames = frame_room;
    num_frames = 0;
    frame = -1;
    looping = 0;
    delay = 0.5f;
    dwell = 1;
    frames = OwnedArray<Frame>(max_frames);
    return 1;
}

int XWindow::initStatic() {
    display = nullptr;
    managed = error = num_errors = num_windows = 0;
    error_print = 1;
    std::fill(std::begin(windows), std::end(windows), nullptr);
    callbackroot.reset();
    return 1;
}

bool XWindow::setTarget(const char* text) {
    int own = 0, pix = 0, w = 0, h = 0, map = 0;
    unsigned hex = 0;
    bool complete;
    if (*text == '+') {
        complete = Scan::text(text + 1, "%d:%d:%dx%d:%d", &own, &pix, &w, &h, &map) >= 4;
    } else if (StrLib::equal(text, "0x", 2)) {
        complete = Scan::text(text + 2, "%x:%dx%d:%d", &hex, &w, &h, &map) >= 3;
        pix = static_cast<int>(hex);
    } else {
        complete = Scan::text(text, "%d:%dx%d:%d", &pix, &w, &h, &map) >= 3;
    }
    if (!complete || w < 1 || h < 1)
        return false;
    mode = 2;
    target = pixmap = static_cast<unsigned>(pix);
    window = own ? static_cast<unsigned>(own) : pixmap;
    width = std::min(w, max_size);
    height = std::min(h, max_size);
    colormap = static_cast<unsigned>(map);
    return true;
}

int XWindow::setParam(const char* param) {
    const Strings items(param, ',');
    int bare = 0;
    for (int i = 0; i < items.getNum(); i++) {
        if (items.equal(i, "show_num"))
            show_num = 1;
        else if (items.equal(i, "co=", 3))
            StrLib::copy(display_name, sizeof display_name, items.getString(i) + 3);
        else if (items.equal(i, "wp=", 3))
            setTarget(items.getString(i) + 3);
        else if (items.valid(i) && items.index(i, '=') < 0 && !items.equal(i, "hfont")) {
            if (bare == 0)
                StrLib::copy(display_name, sizeof display_name, items.getString(i));
            else if (bare == 1)
                setTarget(items.getString(i));
            bare++;
        }
    }
    return 1;
}

int XWindow::getDevice(String& text) {
    char line[120];
    const char* server = *display_name ? display_name : display ? DisplayString(display) : "";
    std::snprintf(line, sizeof line, "d,%s,+%lu:%lu:%dx%d\n", server, window, target, width,
                  height);
    return text.copy(line);
}

bool XWindow::connect() {
    const XLibrary& x = XLibrary::get();
    if (x.isLoaded() && !display) {
        x.setErrorHandler(
            [](Display* where, XErrorEvent* event) { return errorHandler(where, event); });
        x.setIOErrorHandler(errorIOHandler);
        display = x.openDisplay(*display_name ? display_name : nullptr);
    }
    if (!display) {
        Orv::outError("XWindow: unable to connect to display\n");
        return false;
    }
    screen = DefaultScreen(display);
    depth = DefaultDepth(display, screen);
    visual = DefaultVisual(display, screen);
    if (mode == 1 || !colormap)
        colormap = DefaultColormap(display, screen);
    bg = BlackPixel(display, screen);
    fg = WhitePixel(display, screen);
    if (inverse)
        std::swap(fg, bg);
    return true;
}

void XWindow::disconnect() {
    if (display && num_windows == 0) {
        XLibrary::get().closeDisplay(display);
        display = nullptr;
    }
}

bool XWindow::enlist() {
    XWindow** const place = std::find(std::begin(windows), std::end(windows), nullptr);
    if (place == std::end(windows))
        return false;
    *place = this;
    index = static_cast<int>(place - windows);
    num_windows++;
    return true;
}

int XWindow::open() {
    if (open_flag)
        return 1;
    if (!connect())
        return 0;
    gone = mapped = false;
    if (num_windows == max_windows || !(mode == 2 ? joinWindow() : makeWindow()) || !enlist()) {
        Orv::outError("Window open: unable to open window\n");
        disconnect();
        return 0;
    }
    open_flag = true;
    setBackPixel();
    makeContexts();
    fill(pixmap);
    setClip(0, 0, static_cast<float>(width - 1), static_cast<float>(height - 1));
    if (!useFont("fixed"))
        Orv::outWarning("read_font: unable to load font: fixed\n");
    if (mode == 1) {
        makeCursors();
        addCallback("AnyEvent", this, nullptr);
    }
    return 1;
}

void XWindow::setHints() {
    XSizeHints hints = {};
    hints.flags = PSize | PMinSize | (placed ? USPosition : PPosition);
    hints.x = off_x;
    hints.y = off_y;
    hints.width = width;
    hints.height = height;
    hints.min_width = hints.min_height = min_size;
    if (fixed) {
        hints.flags |= PMaxSize;
        hints.min_width = hints.max_width = width;
        hints.min_height = hints.max_height = height;
    }
    XLibrary::get().setStandardProperties(display, window, title, title, icon_bitmap, nullptr, 0,
                                          &hints);
}

bool XWindow::makeWindow() {
    const XLibrary& x = XLibrary::get();
    if (off_x < 0)
        off_x += DisplayWidth(display, screen) - width;
    if (off_y < 0)
        off_y += DisplayHeight(display, screen) - height;

    XSetWindowAttributes wanted = {};
    wanted.background_pixel = bg;
    wanted.border_pixel = fg;
    wanted.event_mask = wanted_events;
    wanted.backing_store = Always;
    wanted.colormap = colormap;
    const int print = std::exchange(error_print, 0);
    error = 0;
    window = x.createWindow(
        display, RootWindow(display, screen), off_x, off_y, unsigned(width), unsigned(height),
        border_width, depth, InputOutput, static_cast<Visual*>(visual),
        CWBackPixel | CWBorderPixel | CWEventMask | CWBackingStore | CWColormap, &wanted);
    x.sync(display, False);
    error_print = print;
    if (error || !window)
        return false;

    StrLib::replace(title, '_', ' ');
    icon_bitmap = x.createBitmap(display, window, reinterpret_cast<const char*>(icon_bits),
                                 icon_size, icon_size);
    setHints();
    XWMHints manager = {};
    manager.flags = InputHint | StateHint | IconPixmapHint;
    manager.input = True;
    manager.initial_state = icon ? IconicState : NormalState;
    manager.icon_pixmap = icon_bitmap;
    x.setWMHints(display, window, &manager);
    char class_name[] = "Orv";
    XClassHint names = {name, class_name};
    x.setClassHint(display, window, &names);
    close_words = x.internAtom(display, "WM_DELETE_WINDOW", False);
    x.setWMProtocols(display, window, &close_words, 1);

    x.mapWindow(display, window);
    waitMapped();
    readSize(width, height); // a window manager may have its own idea of it
    pixmap = target = makePixmap();
    x.clearWindow(display, window);
    return true;
}

// Waits for the first sign that the window is there, but not for ever: there may be none.
void XWindow::waitMapped() {
    const XLibrary& x = XLibrary::get();
    XEvent event;
    int left = icon ? icon_wait_ms : map_wait_ms;
    constexpr int step = 50;
    while (!x.checkWindowEvent(display, window, ExposureMask | StructureNotifyMask, &event)) {
        if (left <= 0)
            return;
        pollfd input = {ConnectionNumber(display), POLLIN, 0};
        poll(&input, 1, step);
        left -= step;
    }
    mapped = event.type == MapNotify || event.type == Expose;
}

bool XWindow::joinWindow() {
    const XLibrary& x = XLibrary::get();
    const int print = std::exchange(error_print, 0);
    ::Window root;
    int left, top;
    unsigned w, h, border, bits;
    const bool exists =
        x.getGeometry(display, pixmap, &root, &left, &top, &w, &h, &border, &bits) != 0;
    if (exists) {
        depth = static_cast<int>(bits);
        char* text = nullptr;
        if (x.fetchName(display, window, &text) && text) {
            StrLib::copy(title, sizeof title, text);
            if (const int end = StrLib::where(title, " ["); end >= 0)
                title[end] = '\0';
            x.free(text);
        }
    }
    error_print = print;
    return exists;
}

void XWindow::readSize(int& w, int& h) const {
    ::Window root;
    int left, top;
    unsigned real_w, real_h, border, bits;
    if (XLibrary::get().getGeometry(display, window, &root, &left, &top, &real_w, &real_h, &border,
                                    &bits)) {
        w = static_cast<int>(real_w);
        h = static_cast<int>(real_h);
    }
}

void XWindow::setBackPixel() {
    const XLibrary& x = XLibrary::get();
    back_pixel = bg;
    XColor color;
    if (*background && !StrLib::equal(background, "def") &&
        x.parseColor(display, colormap, background, &color) &&
        x.allocColor(display, colormap, &color))
        back_pixel = color.pixel;
}

void XWindow::makeContexts() {
    const XLibrary& x = XLibrary::get();
    XGCValues values = {};
    values.foreground = fg;
    values.background = bg;
    values.graphics_exposures = False; // else each copy comes back as an event
    const auto make = [&] {
        return x.createGC(display, pixmap, GCForeground | GCBackground | GCGraphicsExposures,
                          &values);
    };
    copy_gc = make();
    frame_gc = make();
    for (GC& context : gc)
        context = make();
    XGCValues strokes = {};
    strokes.line_width = 1;
    strokes.line_style = LineSolid;
    strokes.cap_style = CapProjecting;
    strokes.join_style = JoinBevel;
    x.changeGC(display, gc[2], GCLineWidth | GCLineStyle | GCCapStyle | GCJoinStyle, &strokes);

    static_assert(std::size(fill_bits) == std::size(decltype(fill_bitmaps){}));
    for (std::size_t i = 0; i < std::size(fill_bits); i++)
        fill_bitmaps[i] =
            x.createBitmap(display, pixmap, reinterpret_cast<const char*>(fill_bits[i]),
                           stipple_size, stipple_size);
}

void XWindow::makeCursors() {
    const XLibrary& x = XLibrary::get();
    for (std::size_t i = 0; i < std::size(cursor_shapes); i++)
        cursors[i] = x.createFontCursor(display, cursor_shapes[i]);
}

int XWindow::close() {
    if (!open_flag)
        return 0;
    open_flag = mapped = false;
    if (mode == 1)
        deleteCallbacks(window);
    freeResources();
    windows[index] = nullptr;
    index = -1;
    num_windows--;
    XLibrary::get().flush(display);
    disconnect();
    return 1;
}

void XWindow::freeResources() {
    const XLibrary& x = XLibrary::get();
    for (int i = 0; i < max_frames; i++)
        if (const XID freed = std::exchange(frames[i].pixmap, 0))
            x.freePixmap(display, freed);
    num_frames = 0;
    frame = -1;
    for (XID& bitmap : fill_bitmaps)
        if (bitmap)
            x.freePixmap(display, std::exchange(bitmap, 0));
    for (XID& cursor : cursors)
        if (cursor)
            x.freeCursor(display, std::exchange(cursor, 0));
    for (GC& context : gc)
        x.freeGC(display, std::exchange(context, nullptr));
    x.freeGC(display, std::exchange(copy_gc, nullptr));
    x.freeGC(display, std::exchange(frame_gc, nullptr));
    if (font)
        x.freeFont(display, static_cast<XFontStruct*>(std::exchange(font, nullptr)));
    if (mode == 2) // what belongs to another program stays
        return;
    x.freePixmap(display, std::exchange(pixmap, 0));
    x.freePixmap(display, std::exchange(icon_bitmap, 0));
    if (!gone)
        x.destroyWindow(display, window);
    window = target = 0;
}

int XWindow::resize(float w, float h) {
    if (!open_flag || mode == 2)
        return 0;
    const XLibrary& x = XLibrary::get();
    const int old_width = width, old_height = height;
    if (w > 0) {
        width = toSize(w);
        height = toSize(h);
        setHints();
        x.resizeWindow(display, window, unsigned(width), unsigned(height));
        replacePixmap(old_width, old_height);
        return 1;
    }
    readSize(width, height);
    if (width == old_width && height == old_height)
        return 0;
    x.clearWindow(display, window);
    if (w == -1)
        replacePixmap(old_width, old_height);
    return 1;
}

XWindow::XID XWindow::makePixmap() const {
    return XLibrary::get().createPixmap(display, window, unsigned(width), unsigned(height),
                                        unsigned(depth));
}

void XWindow::replacePixmap(int old_width, int old_height) {
    const XLibrary& x = XLibrary::get();
    const XID old = std::exchange(pixmap, makePixmap());
    fill(pixmap);
    x.copyArea(display, old, pixmap, frame_gc, 0, 0, unsigned(std::min(width, old_width)),
               unsigned(std::min(height, old_height)), 0, 0);
    if (target == old)
        target = pixmap;
    x.freePixmap(display, old);
}

int XWindow::update() {
    if (!open_flag)
        return 0;
    const XLibrary& x = XLibrary::get();
    if (window != pixmap)
        x.copyArea(display, pixmap, window, frame_gc, 0, 0, unsigned(width), unsigned(height), 0,
                   0);
    x.sync(display, False);
    return 1;
}

void XWindow::fill(XID drawable) const {
    const XLibrary& x = XLibrary::get();
    x.setForeground(display, frame_gc, back_pixel);
    x.fillRectangle(display, drawable, frame_gc, 0, 0, unsigned(width), unsigned(height));
}

int XWindow::clear() {
    if (!open_flag)
        return 0;
    fill(target);
    return 1;
}

int XWindow::setTitle(const char* text) {
    StrLib::copy(title, sizeof title, text);
    if (open_flag && mode == 1)
        showTitle(title);
    return 1;
}

void XWindow::showTitle(const char* text) const {
    const XLibrary& x = XLibrary::get();
    x.storeName(display, window, text);
    x.setIconName(display, window, text);
}

int XWindow::setIcon(bool on) {
    icon = on;
    return 1;
}

int XWindow::setFixed(bool on) {
    fixed = on;
    return 1;
}

int XWindow::setInverse(bool on) {
    inverse = on;
    return 1;
}

int XWindow::setBackground(const char* color) {
    return StrLib::copy(background, sizeof background, color);
}

int XWindow::setSize(float w, float h) {
    if (mode == 2 || !(w > 0) || !(h > 0))
        return 0;
    if (open_flag)
        return resize(w, h);
    width = toSize(w);
    height = toSize(h);
    return 1;
}

int XWindow::getSize(float& w, float& h) {
    w = getWidth();
    h = getHeight();
    return 1;
}

int XWindow::setOffset(float x, float y) {
    off_x = std::clamp(Scan::toInt(x), -max_size, max_size);
    off_y = std::clamp(Scan::toInt(y), -max_size, max_size);
    placed = true;
    return 1;
}

int XWindow::getOffset(float& x, float& y) {
    x = static_cast<float>(off_x);
    y = static_cast<float>(off_y);
    return 1;
}

int XWindow::getCoords(Rect& coords) {
    return coords.setu(0, 0, getWidth() - 1, getHeight() - 1);
}

Rect XWindow::getCoords() {
    Rect coords;
    getCoords(coords);
    return coords;
}

int XWindow::message(const char* text) {
    return Orv::outDebug("XWindow: %s\n", text ? text : "");
}

int XWindow::bell(int volume) {
    if (!open_flag)
        return 0;
    constexpr int usual = 50;
    XLibrary::get().bell(display, volume == 0 ? usual : std::clamp(volume, -100, 100));
    return 1;
}

int XWindow::errorHandler(Display* where, void* event) {
    const XLibrary& x = XLibrary::get();
    const auto* what = static_cast<const XErrorEvent*>(event);
    error = what->error_code;
    num_errors++;
    if (!error_print)
        return 0;
    char text[100] = "", code[20] = "", request[100] = "";
    x.getErrorText(where, what->error_code, text, sizeof text);
    std::snprintf(code, sizeof code, "%d", what->request_code);
    x.getErrorDatabaseText(where, "XRequest", code, code, request, sizeof request);
    Orv::outError("X11 error: %s in %s\n", text, request);
    return 0;
}

// Xlib ends the process when this returns; our way runs through the normal exit, with a status.
int XWindow::errorIOHandler(Display*) {
    managed = 0;
    Orv::outError("X11 Disconnected\n");
    Orv::exit(Orv::NOGRAPH);
}

} // namespace ORV
