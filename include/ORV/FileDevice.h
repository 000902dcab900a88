#pragma once

#include "ORV/Device.h"
#include "ORV/Listener.h"

namespace ORV {

/// What the devices that write a file have in common: they keep no frames, send no events, have no
/// window and read nothing back. Those operations return 1 where a caller goes on either way, and
/// 0 for questions (frames, loops) and for what a file cannot do (device text, an image).
class FileDevice : public Device, public Listener {
public:
    int getDevice(String& name) override { return name.clear(); }
    int resize(float, float) override { return 0; }
    int manage() override { return 1; }
    int unmanage() override { return 1; }
    int addCallback(const char*, Listener*, const void*) override { return 1; }
    int doCallback(const char*, const char*) override { return 1; }
    void callback(const char*, const char*, const void*) override {}
    int update() override { return 1; }
    int clear() override { return 1; }
    int clearRect(Rect&) override { return 1; }
    int setIcon(bool) override { return 1; }
    int setFixed(bool) override { return 1; }
    int setInverse(bool) override { return 1; }
    bool getInverse() override { return false; }
    int setBackground(const char*) override { return 1; }
    int setImageAlign(int, int) override { return 1; }
    int drawImage(Image&, float, float) override { return 0; }
    int drawImage(Image& image, int, float x, float y) override { return drawImage(image, x, y); }
    int getImage(Image&) override { return 0; }
    int setFont(const char*) override { return 0; }
    int setTextAlign(int, int) override { return 0; }
    int drawText(Point&, const char*) override { return 0; }
    using Device::setClip;
    int setClip(Rect area) override { return setClip(area.xmin, area.ymin, area.xmax, area.ymax); }
    int setCursor(int) override { return 0; }
    int copyFrame(int, int) override { return 1; }
    int displayFrame(int) override { return 1; }
    int clearFrame(int) override { return 1; }
    int newFrame(int) override { return 1; }
    int newFrame() override { return 1; }
    bool isLooping() override { return false; }
    int getFrame() override { return 0; }
    int setFrame(int) override { return 1; }
    int incFrame(int) override { return 1; }
    int deleteFrame(int) override { return 1; }
    int getNumFrames() override { return 0; }
    int bell(int) override { return 1; }
};

} // namespace ORV
