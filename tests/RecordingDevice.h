#pragma once

#include "ORV/FileDevice.h"

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace ORV {

/// A device for tests: it draws nothing and lists its calls as text, one a line, coordinates with
/// one decimal.
///
///   color 1 255          setColor(context, value); likewise width, style, fillstyle
///   line 1 0.0,0.0 5.0,5.0    both forms of drawLine
///   fill 3 ...           text 10.0,20.0 words     clip 0.0 0.0 100.0 100.0
///
/// Its surface is 1000 by 500 with y downward, or upward when asked for. It has the fonts whose
/// names don't begin with "no".
class RecordingDevice : public FileDevice {
public:
    std::vector<std::string> calls;
    float width = 1000;
    float height = 500;
    bool up = false; ///< y runs upward, as on a page
    bool can_open = true;
    bool inverse = false;
    Rect clip;
    std::string param;
    std::vector<std::pair<Listener*, const void*>> listeners;

    /// The calls as one text, and forgets them.
    std::string take() {
        std::string all;
        for (const auto& call : calls)
            all += call + "\n";
        calls.clear();
        return all;
    }
    /// How many calls begin with a text.
    int count(const std::string& start) const {
        int n = 0;
        for (const auto& call : calls)
            n += call.rfind(start, 0) == 0;
        return n;
    }

    int init() override { return 1; }
    int setParam(const char* text) override {
        param = text;
        return 1;
    }
    int open() override { return can_open; }
    int close() override { return note("close"); }
    int resize(float w, float h) override {
        width = w;
        height = h;
        return 1;
    }
    int manage() override { return note("manage"); }
    int unmanage() override { return note("unmanage"); }
    int addCallback(const char*, Listener* listener, const void* client) override {
        listeners.emplace_back(listener, client);
        return 1;
    }
    int doCallback(const char* type, const char* data) override {
        for (const auto& [listener, client] : listeners)
            listener->callback(type, data, client);
        return 1;
    }
    int update() override { return note("update"); }
    int clear() override { return note("clear"); }
    int clearRect(Rect& r) override {
        return note("clearrect" + number(r.xmin) + number(r.ymin) + number(r.xmax) +
                    number(r.ymax));
    }
    int setTitle(const char* title) override { return note(std::string("title ") + title); }
    int setInverse(bool on) override {
        inverse = on;
        return 1;
    }
    bool getInverse() override { return inverse; }
    int setBackground(const char* color) override {
        return note(std::string("background ") + color);
    }
    int setSize(float w, float h) override { return resize(w, h); }
    int getSize(float& w, float& h) override {
        w = width;
        h = height;
        return 1;
    }
    float getWidth() override { return width; }
    float getHeight() override { return height; }
    int setOffset(float x, float y) override { return note("offset" + number(x) + number(y)); }
    int getOffset(float& x, float& y) override {
        x = y = 0;
        return 1;
    }
    int getCoords(Rect& coords) override {
        return up ? coords.setu(0, height, width, 0) : coords.setu(0, 0, width, height);
    }
    Rect getCoords() override {
        Rect coords;
        getCoords(coords);
        return coords;
    }
    int allocColor(float red, float grn, float blu) override {
        return (byte(red) << 16) + (byte(grn) << 8) + byte(blu);
    }
    int setColor(int context, int color) override {
        return note("color " + std::to_string(context) + " " + std::to_string(color));
    }
    int setLineWidth(int context, float w) override {
        return note("width " + std::to_string(context) + number(w));
    }
    int setLineStyle(int context, int style) override {
        return note("style " + std::to_string(context) + " " + std::to_string(style));
    }
    int setFillStyle(int context, int style) override {
        return note("fillstyle " + std::to_string(context) + " " + std::to_string(style));
    }
    int drawLine(int context, float x1, float y1, float x2, float y2) override {
        return note("line " + std::to_string(context) + at(x1, y1) + at(x2, y2));
    }
    int drawLine(int context, Points& points) override {
        return note("line " + std::to_string(context) + all(points));
    }
    int drawFill(int context, Points& points) override {
        return note("fill " + std::to_string(context) + all(points));
    }
    int setFont(const char* name) override {
        note(std::string("font ") + name);
        return std::string(name).rfind("no", 0) != 0;
    }
    int setTextAlign(int h, int v) override {
        return note("textalign " + std::to_string(h) + " " + std::to_string(v));
    }
    int setImageAlign(int h, int v) override {
        return note("imagealign " + std::to_string(h) + " " + std::to_string(v));
    }
    int drawImage(Image&, float x, float y) override { return note("image" + at(x, y)); }
    int drawText(Point& point, const char* text) override {
        return note("text" + at(point.x, point.y) + " " + text);
    }
    Rect getClip() override { return clip; }
    using FileDevice::setClip;
    int setClip(float x1, float y1, float x2, float y2) override {
        clip.setu(x1, y1, x2, y2);
        return note("clip" + number(x1) + number(y1) + number(x2) + number(y2));
    }
    int setCursor(int cursor) override {
        note("cursor " + std::to_string(cursor));
        return std::exchange(shown_cursor, cursor);
    }
    int message(const char* text) override { return note(std::string("message ") + text); }

    // Frames, so that loops can be followed.
    int displayFrame(int frame) override { return note("displayframe " + std::to_string(frame)); }
    int clearFrame(int frame) override { return note("clearframe " + std::to_string(frame)); }
    int newFrame(int frame) override {
        frames++;
        return note("newframe " + std::to_string(frame));
    }
    int newFrame() override { return newFrame(-1); }
    int getFrame() override { return shown_frame; }
    int setFrame(int frame) override {
        shown_frame = frame < 0 ? frames - 1 : frame;
        return note("setframe " + std::to_string(frame));
    }
    int deleteFrame(int frame) override {
        frames -= frames > 0;
        return note("deleteframe " + std::to_string(frame));
    }
    int getNumFrames() override { return frames; }
    int bell(int) override { return note("bell"); }

private:
    int note(const std::string& call) {
        calls.push_back(call);
        return 1;
    }
    static std::string number(float v) {
        char text[60];
        std::snprintf(text, sizeof text, " %.1f", v == 0 ? 0.0f : v); // no "-0.0"
        return text;
    }
    static std::string at(float x, float y) { return number(x) + "," + number(y).substr(1); }
    static std::string all(const Points& points) {
        std::string text;
        for (int i = 0; i < points.num; i++)
            text += at(points.getX1(i), points.getY1(i));
        return text;
    }
    static int byte(float component) { return static_cast<int>(component * 255); }

    int frames = 0;
    int shown_frame = 0;
    int shown_cursor = 0;
};

} // namespace ORV
