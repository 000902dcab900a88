#pragma once

#include "ORV/Device.h"
#include "ORV/Listener.h"
#include "ORV/OwnedArray.h"
#include "ORV/XCallback.h"

#include <functional>
#include <memory>
#include <vector>

struct _XDisplay;
struct _XGC;

namespace ORV {

class Timer;

/// The window on the screen, on an X display. It draws into pixmaps of the server, up to 128 of
/// them as frames of a loop, so that a step of a loop is one copy; the window itself is only
/// touched by update(). Coordinates are pixels, y downward.
///
/// Events go to listeners as texts. The name of the X event is the type ("KeyPress",
/// "ButtonPress", "Expose", "Configure" and so on); its data is
///
///   KeyPress       key, modifiers, pointer     "z-Alt:412:300", "Z-Alt-Shft:412:300", "Ret:3:4"
///   ButtonPress    "B1-P", modifiers, pointer  "B1-P-Cntrl:412:300"
///   ButtonRelease  "B1-R", modifiers
///   Configure      width and height            "640:512"
///
/// and empty for all others. Two more are made here: "Redraw", with the new size, when the window
/// has changed its size and its contents are lost, and "Idle", without data, once a round of the
/// loop. Keys and buttons of the window itself: Alt-d deletes the frame shown, Alt-l or button 2
/// starts and stops the loop, Alt-[ or button 1 and Alt-] or button 3 step back and forth, or make
/// a running loop slower and faster.
///
/// A window that the window manager closes counts as the Return key pressed in it; so does one that
/// another program destroys. A connection that breaks, since the server was killed or the window
/// manager cut it, ends the process with "X11 Disconnected" on standard error and the status
/// Orv::NOGRAPH: Xlib can't go on from there.
///
/// Open windows, the display and the subscriptions are shared by all windows of the process. libX11
/// is loaded by the first open(). While the window isn't open, all that draws returns 0.
class XWindow : public Device, public Listener {
public:
    using Display = _XDisplay;
    using GC = _XGC*;
    using Pixel = unsigned long;
    using XID = unsigned long; ///< a window, pixmap, cursor or colormap of the server

    static constexpr int max_windows = 10;
    static constexpr int frame_room = 128;

    /// Types of the events that are made here, beside the codes of X events.
    enum Event { ANY_EVENT = 0, REDRAW = 50, IDLE = 999 };

    /// Frames by special numbers, for setFrame, copyFrame, clearFrame and displayFrame.
    enum FrameNumber { LAST_FRAME = -1, SHOWN_FRAME = -2, MAIN_PIXMAP = -3 };

    /// As an XRectangle.
    class Clip {
    public:
        short x = 0, y = 0;
        unsigned short width = 0, height = 0;
    };

    /// One frame of a loop.
    class Frame {
    public:
        XID pixmap = 0;
        float delay = 0; ///< seconds
    };

    static Display* display;
    static int managed;     ///< 1 while an event loop runs, and isn't to end
    static int error;       ///< code of the last X error
    static int error_print; ///< 1: X errors are told on standard error
    static int num_errors;
    static int num_windows;
    static XWindow* windows[max_windows]; ///< the open ones; null in free places
    static std::unique_ptr<XCallback> callbackroot;

    int mode = 1;    ///< 1 own window, 2 a window or pixmap of another program
    int inverse = 0; ///< 0 white on black, 1 black on white
    int width = 640;
    int height = 512;
    int off_x = 100; ///< negative: from the far edge of the screen
    int off_y = 100;
    bool fixed = true;   ///< true: the user can't resize the window
    bool mapped = false; ///< the window is visible
    bool icon = false;   ///< start as an icon
    bool open_flag = false;
    char name[30] = "ORV"; ///< resource name
    char display_name[40] = "";
    char title[60] = "ORV";
    int index = -1;   ///< place in windows
    int show_num = 0; ///< 1: the title tells the number of the frame
    int screen = 0;
    XID colormap = 0;
    XID window = 0;
    XID pixmap = 0; ///< the picture shown
    XID target = 0; ///< where drawing goes: pixmap, or that of a frame
    void* visual = nullptr;
    int depth = 0;
    XID icon_bitmap = 0;
    XID cursors[9] = {};
    int cur_cursor = 0;
    Pixel fg = 0;
    Pixel bg = 0;
    char background[40] = ""; ///< name of the background color; empty or "def" for bg
    Pixel back_pixel = 0;
    Clip clip;
    GC copy_gc = nullptr;
    GC gc[5] = {}; ///< 0 others, 1 line, 2 text, 3 fill, 4 mark
    XID fill_bitmaps[20] = {};
    int text_h = 2; ///< 0, 1 left, 2 centre, 3 right
    int text_v = 2; ///< 0 baseline, 1 upper, 2 middle, 3 lower
    void* font = nullptr;
    int image_h = 1;
    int image_v = 3;
    int max_frames = frame_room;
    int num_frames = 0;
    int frame = -1; ///< the frame shown, -1 before the first
    int looping = 0;
    float delay = 0.5f;       ///< seconds a frame is shown
    float dwell = 1.0f;       ///< seconds the last one is
    OwnedArray<Frame> frames; ///< room for max_frames

    XWindow() { init(); }
    ~XWindow() override;
    XWindow(const XWindow&) = delete;
    XWindow& operator=(const XWindow&) = delete;

    int init() override;
    /// Forgets display, windows and subscriptions, for a process that starts over.
    static int initStatic();
    /// Comma-separated: "co=display" or first a bare display name, then "wp=" or as second a bare
    /// text that names another program's window to draw into: "+W:P:WxH:C" (window, pixmap, size,
    /// colormap; the colormap may be missing), "0xP:WxH:C" (the pixmap in hexadecimal), "P:WxH:C".
    /// "show_num" shows the frame's number in the title.
    int setParam(const char* param) override;
    /// Gives "d,display,+window:pixmap:widthxheight" and a line end: the device text with which
    /// another program draws into this window.
    int getDevice(String& text) override;
    /// Opens the window; 0, with a message, when there is no display, or it can't make the window,
    /// or the window or pixmap to draw into doesn't exist.
    int open() override;
    int close() override;
    /// With a width above 0 the window takes that size. Otherwise its real size is read; the result
    /// is 0 when that hasn't changed. A width of -1 keeps what was drawn.
    int resize(float w, float h) override;

    /// Runs the event loop, until unmanage or until the window closes. A window of another program
    /// has that program's loop: there the last frame is shown and the result comes at once.
    int manage() override;
    int unmanage() override;
    /// Types "AnyEvent", "Expose" and "ButtonPress"; others are refused.
    int addCallback(const char* type, Listener* listener, const void* client) override;
    /// Removes all subscriptions of one window.
    static int deleteCallbacks(unsigned long window);
    int doCallback(const char* type, const char* data) override;
    /// Calls the subscribers of a window in the order of their coming, those of any event and those
    /// of this code, and stops when one of them has closed the window.
    static int procCallback(unsigned long window, int code, const char* type, const char* data);
    void callback(const char* type, const char* data, const void* client) override;
    int mainloop();
    /// Handles all events that wait.
    int checkEvent();
    /// Waits for an event, then handles all that wait.
    int waitEvent();

    int update() override;
    int clear() override;
    int clearRect(Rect& area) override;
    int setTitle(const char* text) override;
    int setIcon(bool on) override;
    int setFixed(bool on) override;
    int setInverse(bool on) override;
    bool getInverse() override { return inverse; }
    int setBackground(const char* color) override;
    int setSize(float w, float h) override;
    int getSize(float& w, float& h) override;
    float getWidth() override { return static_cast<float>(width); }
    float getHeight() override { return static_cast<float>(height); }
    int setOffset(float x, float y) override;
    int getOffset(float& x, float& y) override;
    int getCoords(Rect& coords) override;
    Rect getCoords() override;

    /// A red of -1 gives the background.
    int allocColor(float red, float grn, float blu) override;
    int setColor(int context, int color) override;
    int setLineWidth(int context, float w) override;
    int setLineStyle(int context, int style) override;
    /// 0 solid, 1 to 19 the stipples.
    int setFillStyle(int context, int style) override;
    int drawLine(int context, float x1, float y1, float x2, float y2) override;
    int drawLine(int context, Points& points) override;
    /// Fills the polygon and draws its edge, so that neighbours leave no gap.
    int drawFill(int context, Points& points) override;
    int setImageAlign(int halign, int valign) override;
    int drawImage(Image& image, float x, float y) override;
    int drawImage(Image& image, int mode, float x, float y) override;
    int getImage(Image& image) override;
    /// Draws a raster of nx by ny color values, row 0 on top, its upper left corner at (x, y); a
    /// value below 0 leaves the pixel as it is.
    int drawPixels(int nx, int ny, const std::function<long(int, int)>& pixel, int x, int y);
    /// Reads the color values of the frame that is drawn into, row 0 on top.
    int readPixels(std::vector<Pixel>& pixels);
    /// An X logical font name; its pixel size is matched to the nearest one that the server has.
    int setFont(const char* spec) override;
    int setTextAlign(int halign, int valign) override;
    int drawText(Point& point, const char* text) override;
    Rect getClip() override;
    int setClip(float x1, float y1, float x2, float y2) override;
    int setClip(Rect area) override { return setClip(area.xmin, area.ymin, area.xmax, area.ymax); }

    /// 0 cross, 1 arrow, 2 fleur, 3 a loop runs, 4 a loop stands, 5 pencil, 6 waiting for input,
    /// 7 text, 8 drawing.
    int setCursor(int cursor) override;
    int message(const char* text) override;
    /// Volume -100 to 100; 0 means 50.
    int bell(int volume) override;

    int copyFrame(int to, int from) override;
    int displayFrame(int n) override;
    int clearFrame(int n) override;
    int newFrame(int n) override;
    /// Appends a frame; returns the number of frames before it.
    int newFrame() override;
    bool isLooping() override { return looping != 0; }
    int getFrame() override { return frame; }
    int setFrame(int n) override;
    /// Shows the frame `step` further on, the next one for 0, going round; -1 without frames.
    int incFrame(int step) override;
    int deleteFrame(int n) override;
    int getNumFrames() override { return num_frames; }
    int toggleLoop();
    /// Makes the loop faster (1) or slower (-1): by 0.1 s, above about one second by a whole one,
    /// within 0.05 and 10 s a frame.
    int loopRate(int step);

private:
    bool setTarget(const char* text);
    bool connect();
    bool makeWindow();
    bool joinWindow();
    void setHints();
    void waitMapped();
    void readSize(int& w, int& h) const;
    void setBackPixel();
    void makeContexts();
    void makeCursors();
    bool enlist();
    void freeResources();
    static void disconnect();
    void replacePixmap(int old_width, int old_height);
    XID makePixmap() const;
    void fill(XID drawable) const;
    void showTitle(const char* text) const;

    int getFrameIndex(int n) const;
    XID getFramePixmap(int n) const;
    void setFrameDelays();

    static void processEvent(void* event);
    void processKey(void* event);
    void processButton(void* event);
    void closeWindow();
    static void waitInput(double seconds);
    void stepLoop(Timer& timer);

    GC getContext(int context) const;
    bool useFont(const char* name);
    void resetClip(GC context);

    static XWindow* find(unsigned long window);
    static int errorHandler(Display* where, void* event);
    static int errorIOHandler(Display* where);

    bool placed = false;           // the user has said where the window goes
    bool gone = false;             // the window was destroyed by others
    GC frame_gc = nullptr;         // for whole pictures, whatever the clip area
    unsigned long close_words = 0; // the window manager's word for closing a window
};

} // namespace ORV
