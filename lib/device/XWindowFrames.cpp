#include "ORV/XWindow.h"

#include "XLibrary.h"

#include <algorithm>
#include <cstdio>

namespace ORV {
namespace {
constexpr int no_frame = -9; // for a number that names none

// The slower end of the speeds goes by whole seconds, the faster one by tenths.
constexpr float fine_step = 0.1f;
constexpr float coarse_step = 1;
constexpr float fastest = 0.05f;
constexpr float slowest = 10;
} // namespace

int XWindow::getFrameIndex(int n) const {
    if (n == LAST_FRAME)
        n = num_frames - 1;
    else if (n == SHOWN_FRAME)
        n = frame;
    return n >= 0 && n < num_frames ? n : no_frame;
}

XWindow::XID XWindow::getFramePixmap(int n) const {
    if (n == MAIN_PIXMAP)
        return pixmap;
    const int i = getFrameIndex(n);
    return i == no_frame ? 0 : frames[i].pixmap;
}

void XWindow::setFrameDelays() {
    for (int i = 0; i < num_frames; i++)
        frames[i].delay = i == num_frames - 1 ? dwell : delay;
}

int XWindow::newFrame() {
    const int before = num_frames;
    newFrame(-1);
    return before;
}

int XWindow::newFrame(int n) {
    if (n == -1)
        n = num_frames;
    if (!open_flag || n < 0 || n > num_frames || n >= max_frames)
        return 0;
    if (!frames[n].pixmap)
        frames[n].pixmap = makePixmap();
    if (n == num_frames)
        num_frames++;
    setFrameDelays();
    return clearFrame(n);
}

int XWindow::clearFrame(int n) {
    const XID drawable = open_flag ? getFramePixmap(n) : 0;
    if (!drawable)
        return 0;
    fill(drawable);
    return 1;
}

int XWindow::copyFrame(int to, int from) {
    const XID source = open_flag ? getFramePixmap(from) : 0;
    const XID drawable = open_flag ? getFramePixmap(to) : 0;
    if (!source || !drawable)
        return 0;
    XLibrary::get().copyArea(display, source, drawable, frame_gc, 0, 0, unsigned(width),
                             unsigned(height), 0, 0);
    return 1;
}

int XWindow::setFrame(int n) {
    const XID drawable = open_flag && num_frames > 0 ? getFramePixmap(n) : 0;
    if (!drawable)
        return 0;
    target = drawable;
    return 1;
}

int XWindow::displayFrame(int n) {
    const int i = getFrameIndex(n);
    if (!open_flag || i == no_frame)
        return 0;
    copyFrame(MAIN_PIXMAP, i);
    if (show_num && mode == 1) {
        char text[sizeof title + 20];
        std::snprintf(text, sizeof text, "%s [%d]", title, i);
        showTitle(text);
    }
    update();
    frame = i;
    return 1;
}

int XWindow::incFrame(int step) {
    if (!open_flag || num_frames == 0)
        return -1;
    int next = frame == -1 ? 0 : frame + (step == 0 ? 1 : step);
    if (next >= num_frames)
        next = 0;
    else if (next < 0)
        next = num_frames - 1;
    return displayFrame(next);
}

int XWindow::deleteFrame(int n) {
    if (!open_flag || n < 0 || n >= num_frames)
        return 0;
    if (target == frames[n].pixmap)
        target = pixmap;
    XLibrary::get().freePixmap(display, frames[n].pixmap);
    std::move(frames + n + 1, frames + num_frames, frames + n);
    frames[--num_frames] = Frame();
    setFrameDelays();

    const bool was_shown = frame == n;
    if (frame == num_frames) // the last one
        frame--;
    if (num_frames == 0) {
        clear();
        return update();
    }
    return was_shown ? displayFrame(std::max(frame, 0)) : 1;
}

int XWindow::toggleLoop() {
    looping = !looping;
    constexpr int standing = 4, running = 3;
    setCursor(looping ? running : standing);
    return 1;
}

int XWindow::loopRate(int step) {
    if (step > 0)
        delay = std::max(delay - (delay >= 1.6f ? coarse_step : fine_step), fastest);
    else if (delay <= 0.051f)
        delay = 0.1f;
    else
        delay = std::min(delay + (delay < 1.01f ? fine_step : coarse_step), slowest);
    setFrameDelays();
    return 1;
}

} // namespace ORV
