#pragma once

#include "ORV/Point.h"
#include "ORV/Points.h"
#include "ORV/Rect.h"
#include "ORV/String.h"

namespace ORV {

class Image;
class Listener;

/// An output device: a window, or a file in some page language. Graph owns one and is the only
/// caller of it, apart from the events that come back through Listener.
///
/// All coordinates are device coordinates, in the units of getCoords(); widths are in device units
/// too. A context says what an attribute or a stroke belongs to:
///
///   1 line   2 mark   3 fill   4 text
///
/// Results are 1 for success and 0 for failure or nothing done, unless told otherwise. A device
/// that keeps no frames and has no events (a file) takes those calls without effect.
class Device {
public:
    virtual ~Device() = default;

    /// Sets the defaults.
    virtual int init() = 0;
    /// Takes the comma-separated device text; each device tells its items.
    virtual int setParam(const char* param) = 0;
    /// Creates the window or the file; 0 when that fails.
    virtual int open() = 0;
    /// Tells the name of the device: a display name, empty for a file.
    virtual int getDevice(String& name) = 0;
    /// Adapts to a new size; non-zero means that the contents are lost.
    virtual int resize(float width, float height) = 0;
    /// Hands control over: a window runs its event loop here.
    virtual int manage() = 0;
    /// Leaves the event loop.
    virtual int unmanage() = 0;
    /// Subscribes a listener, not owned, to the events of a type ("AnyEvent" for all).
    virtual int addCallback(const char* type, Listener* listener, const void* client) = 0;
    /// Delivers an event to all its subscribers.
    virtual int doCallback(const char* type, const char* data) = 0;
    virtual void callback(const char* type, const char* data, const void* client) = 0;
    /// Finishes the output.
    virtual int close() = 0;
    /// Makes visible what was drawn.
    virtual int update() = 0;
    /// Clears the frame.
    virtual int clear() = 0;
    virtual int clearRect(Rect& area) = 0;
    virtual int setTitle(const char* title) = 0;
    /// True starts the window as an icon.
    virtual int setIcon(bool icon) = 0;
    /// True keeps the size fixed.
    virtual int setFixed(bool fixed) = 0;
    /// True swaps the roles of background and foreground.
    virtual int setInverse(bool inverse) = 0;
    virtual bool getInverse() = 0;
    virtual int setBackground(const char* color) = 0;
    virtual int setSize(float width, float height) = 0;
    virtual int getSize(float& width, float& height) = 0;
    virtual float getWidth() = 0;
    virtual float getHeight() = 0;
    virtual int setOffset(float x, float y) = 0;
    virtual int getOffset(float& x, float& y) = 0;
    /// The rectangle of the whole surface. On a device whose y runs upward ymin is the height and
    /// ymax is 0, so it need not be sorted: ymin is always the upper edge.
    virtual int getCoords(Rect& coords) = 0;
    virtual Rect getCoords() = 0;
    /// Returns the color value for components of 0 to 1.
    virtual int allocColor(float red, float grn, float blu) = 0;
    virtual int setColor(int context, int color) = 0;
    virtual int setLineWidth(int context, float width) = 0;
    /// Line styles: 1 solid, 2 dashed, 3 long-short dashed, 4 long-long-short dashed, 5 dotted.
    virtual int setLineStyle(int context, int style) = 0;
    /// Fill styles: 0 solid, other values stipple patterns.
    virtual int setFillStyle(int context, int style) = 0;
    virtual int drawLine(int context, float x1, float y1, float x2, float y2) = 0;
    /// Draws a polyline.
    virtual int drawLine(int context, Points& points) = 0;
    /// Fills a polygon.
    virtual int drawFill(int context, Points& points) = 0;
    /// Alignment of images: horizontal 1 left, 2 centre, 3 right; vertical 1 lower, 2 middle,
    /// 3 upper.
    virtual int setImageAlign(int halign, int valign) = 0;
    virtual int drawImage(Image& image, float x, float y) = 0;
    virtual int drawImage(Image& image, int mode, float x, float y) = 0;
    /// Reads the frame back as an image.
    virtual int getImage(Image& image) = 0;
    /// Chooses a font of the device by name; 0 when it has none of that name.
    virtual int setFont(const char* name) = 0;
    /// Alignment of device text: horizontal 1 left, 2 centre, 3 right; vertical 1 upper, 2 middle,
    /// 3 lower.
    virtual int setTextAlign(int halign, int valign) = 0;
    virtual int drawText(Point& point, const char* text) = 0;
    virtual Rect getClip() = 0;
    virtual int setClip(float x1, float y1, float x2, float y2) = 0;
    virtual int setClip(Rect area) = 0;
    /// Chooses cursor 0 to 8; returns the one before.
    virtual int setCursor(int cursor) = 0;
    virtual int copyFrame(int from, int to) = 0;
    /// -1 means the current frame.
    virtual int displayFrame(int frame) = 0;
    virtual int clearFrame(int frame) = 0;
    /// -1 appends a frame.
    virtual int newFrame(int frame) = 0;
    virtual int newFrame() = 0;
    virtual bool isLooping() = 0;
    virtual int getFrame() = 0;
    /// -1 means the last frame.
    virtual int setFrame(int frame) = 0;
    /// Steps the displayed frame by +1 or -1.
    virtual int incFrame(int step) = 0;
    virtual int deleteFrame(int frame) = 0;
    virtual int getNumFrames() = 0;
    /// A comment in a file, a status text in a window.
    virtual int message(const char* text) = 0;
    virtual int bell(int volume) = 0;
};

} // namespace ORV
