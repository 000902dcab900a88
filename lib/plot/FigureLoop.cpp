#include "ORV/Drawing.h"
#include "ORV/Figure.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <algorithm>

namespace ORV {
namespace {

constexpr int default_inc = 3600; // seconds between frames
constexpr int drawing_cursor = 8;
constexpr int waiting_cursor = 6;
constexpr int progress_level = 6;
constexpr int max_frames = 10000; // more than a year of hours
constexpr int date_length = 8;    // a text this long is a date, a shorter one an age

// Reads an age: days, hours and minutes as "1d06:30", "06:30" or "6". What can't be read is none.
long ageSeconds(const char* text) {
    int days = 0, hours = 0, minutes = 0;
    if (Scan::text(text, "%dd%d:%d", &days, &hours, &minutes) < 2) {
        days = hours = minutes = 0;
        Scan::text(text, "%d:%d", &hours, &minutes);
    }
    return (days * 24L + hours) * 3600 + minutes * 60L;
}

} // namespace

// The resource "current", unless it asks for the latest data, which the drawings know.
int Figure::setCurrent(const char* text) {
    if (!text || StrLib::contains(text, "la"))
        return 0;
    if (*text == '#' || StrLib::length(text) >= date_length)
        return date.set(text);
    Date now;
    now.setCurrent();
    return date.set(now.getSeconds() - ageSeconds(text));
}

// Selects the data of a drawing, and takes from it what hasn't been chosen yet.
int Figure::settle(Drawing& drawing) {
    if (file.valid())
        drawing.setFilename(file.get());
    else
        drawing.setFilename();
    if (num_frames == -1) {
        num_frames = drawing.getNumFrames();
        loop_type = drawing.getLoopType();
    }
    if (date_inc == -1)
        date_inc = drawing.getDateOffset();
    if (!date.isSet())
        drawing.getInitDate(date);
    if (!plot.date.isSet())
        plot.date = date;
    return 1;
}

// The first drawing that varies with time, and sets the time base when that is asked for.
Drawing* Figure::findLoopDrawing(bool sync) const {
    for (const FigureItem* item = queue.get(); item; item = item->next.get())
        if (item->drawing && item->drawing->getLoopType() && (!sync || item->drawing->getSync()))
            return item->drawing;
    return nullptr;
}

bool Figure::hasSync() const {
    for (const FigureItem* item = queue.get(); item; item = item->next.get())
        if (item->drawing && item->drawing->getSync())
            return true;
    return false;
}

int Figure::endPlot() {
    setCurrent(Orv::getResrc("current"));
    num_loop = 0;
    bool sync = false;
    for (const FigureItem* item = queue.get(); item; item = item->next.get()) {
        if (!item->drawing)
            continue;
        if (item->drawing->getLoopType())
            num_loop++;
        if (item->drawing->getSync()) {
            settle(*item->drawing);
            sync = true;
            Orv::outDebug(4, "Found sync: %d %d %d ", num_frames, loop_type, date_inc);
        }
    }

    if (state == -1) {
        if (fore_time.valid()) {
            num_frames = fore_time.occurs(',') + 1;
            loop_type = 2;
        }
        Drawing* drawing = sync ? nullptr : findLoopDrawing(false);
        if (drawing)
            settle(*drawing);
        if (queue && num_frames == -1)
            num_frames = 1;
    }
    return drawPlot();
}

bool Figure::isDrawn(const Date& file_date) const {
    return (loop_type == 1 || num_loop == 1) && file_date.isSet() &&
           file_date.getSeconds() == last_date.getSeconds();
}

// Whether a date has data of its own, other than those drawn last.
bool Figure::findData(const Date& frame_date, bool sync) {
    Drawing* drawing = findLoopDrawing(sync);
    if (!drawing)
        return false;
    Date wanted = frame_date;
    Date file_date;
    const int found = drawing->setFilename(wanted, "");
    drawing->getDate(file_date);
    return found && !isDrawn(file_date);
}

int Figure::drawPlot() {
    if (date_inc == -1)
        date_inc = default_inc;
    if (refresh == 1)
        refresh = date_inc;
    if (!date.isSet())
        date.setCurrent();

    Date frame_date = date;
    const auto moveDate = [&](long frames) {
        frame_date.set(frame_date.getSeconds() + frames * date_inc);
    };
    if (loop_type == 1 && num_frames >= 2)
        moveDate(1 - std::min(num_frames, max_frames));
    const Strings times(loop_type == 2 ? fore_time.get() : nullptr, ',');
    state = 0;
    last_date.init(); // a redraw shows again what was drawn last
    const bool sync = hasSync();

    // Without a drawing that varies with time there is nothing to loop over.
    const bool can_loop = num_frames < 2 || findLoopDrawing(sync);
    const int frames = can_loop ? std::min(num_frames, max_frames) : 0;
    for (int i = 0; i < frames; i++) {
        if (num_frames >= 2) {
            if (!findData(frame_date, sync)) {
                moveDate(1);
                continue;
            }
            plot.newFrame();
        }
        if (queue) {
            plot.setCursor(drawing_cursor);
            if (loop_type == 1)
                drawFrame(frame_date);
            else
                drawFrame(times.getString(i));
        }
        plot.setCursor(waiting_cursor);
        if (loop_type == 1 && num_frames >= 2)
            moveDate(1);
        plot.update();
        state = 1;
    }
    return 1;
}

template <class Select>
int Figure::drawItems(Select select) {
    for (const FigureItem* item = queue.get(); item; item = item->next.get())
        if (item->drawing) {
            select(*item->drawing);
            item->drawing->draw(plot);
        } else {
            plot.newPanel(item->panel);
        }
    if (border)
        plot.drawBorder();
    return plot.drawLabels();
}

int Figure::drawFrame(Date& frame_date) {
    String text;
    frame_date.toText(text);
    Orv::outMessage(progress_level, "Plotting for time: %s\n", text.get());
    return drawItems([&](Drawing& drawing) {
        drawing.setFilename(frame_date, "");
        drawing.getDate(last_date);
    });
}

int Figure::drawFrame(const char* fore) {
    Orv::outMessage(progress_level, "Plotting for fcst: %s\n", fore ? fore : "");
    return drawItems([&](Drawing& drawing) { drawing.setForeTime(fore); });
}

int Figure::draw(Drawing& drawing) {
    return drawing.draw(plot);
}

int Figure::draw() {
    plot.deleteAllFrames();
    plot.clear();
    // Drawings that listen have subscribed when they were drawn first.
    plot.callbacks_ok = 0;
    plot.setPanel(0);
    const int drawn = drawPlot();
    plot.callbacks_ok = 1;
    return drawn;
}

int Figure::updateLoop(const Date& frame_date) {
    if (num_frames > 1) {
        plot.deleteFrame(0);
        plot.newFrame();
    }
    plot.clearFrame();
    Date wanted = frame_date;
    drawFrame(wanted);
    plot.update();
    date = frame_date;
    return 1;
}

} // namespace ORV
