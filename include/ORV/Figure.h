#pragma once

#include "ORV/Date.h"
#include "ORV/Domain.h"
#include "ORV/FigureItem.h"
#include "ORV/Listener.h"
#include "ORV/Plot.h"
#include "ORV/Rect.h"
#include "ORV/String.h"

#include <ctime>
#include <memory>

namespace ORV {

class Drawing;

/// The main loop of a program that plots: it owns a plot, keeps a queue of drawings and panels,
/// settles how many frames there are and for which dates or forecast times, draws them, and then
/// answers the window: resize, zoom, pan, redraw, and new data while idle.
///
/// It is used once, in this order: open, startPlot, addDrawing and addPanel, endPlot, manage.
/// Drawings are not owned; they outlive the figure's use of them.
class Figure : public Listener {
public:
    Plot plot;
    std::unique_ptr<FigureItem> queue; ///< Head of the queue, in the order of insertion.
    String file;                       ///< From "fi=": what the drawings are to read.
    String fore_time;                  ///< Forecast times, separated by commas.
    Date date;                         ///< Base date: that of the last frame of a loop over dates.
    Date last_date;                    ///< What the drawings last said while drawing a frame.
    Domain domain;                     ///< The domain of startPlot, which the unzoom key restores.
    int state = -1; ///< -1 nothing chosen, 0 a date is given or frames begin, 1 a frame is drawn.
    int num_frames = -1; ///< -1 not chosen.
    int num_loop = 0;    ///< Drawings in the queue that vary with time.
    int loop_type = 1;   ///< 0 none, 1 over dates, 2 over forecast times.
    int date_inc = -1;   ///< Seconds between frames; -1 not chosen.
    int border = 1;      ///< Whether the plot's border is drawn.
    int refresh = 0;     ///< Seconds between looks for new data; 0 off, 1 the time between frames.
    time_t last_refresh = 0;

    Figure() { init(); }
    /// init, setParam and open with the same text.
    explicit Figure(const char* param);
    ~Figure() override { close(); }
    Figure(const Figure&) = delete;
    Figure& operator=(const Figure&) = delete;

    /// Defaults, the resource time as forecast times, and the resource parameter.
    int init();
    /// Comma-separated: "fi=file", "ref=seconds" or "ref", "norefresh", "nf=frames", "nobord",
    /// "linc=minutes" between frames. Items for other layers pass by.
    int setParam(const char* param);
    /// Opens the plot's device; 0 when that fails.
    int open(const char* param);
    int open();
    int close();

    /// A series "first-last/step" with a positive step is appended item by item; any other text is
    /// taken as it stands.
    int setForeTime(const char* text);
    /// One frame of this date.
    int setDate(const Date& base);
    /// A run of frames, inc seconds apart. A negative inc moves the date back to the run's start.
    int setDate(const Date& base, int inc, int frames);
    int setLoopType(int type);
    int setDomain(const Domain& dom);
    int setDrawing(const char* text) { return plot.setDrawing(text); }
    int isDrawing(int part) { return plot.isDrawing(part); }

    int startPlot(const Domain& dom);
    int startPlot(const Rect& rect, const Domain& dom);
    int startPlot(const Rect& rect, float aspect) { return plot.setPanel(rect, aspect); }
    int startPlot(const Rect& rect) { return plot.setPanel(rect); }
    int startPlot() { return plot.setPanel(); }
    int addDrawing(Drawing& drawing);
    /// A change of panel before the drawings that follow; the text is that of Plot::newPanel.
    int addPanel(const char* text);
    int clearQueue();
    /// Settles dates and frames with the drawings, and draws.
    int endPlot();
    /// Hands control to the device; returns when its window is closed, at once for a file.
    int manage();

    /// Draws all frames as they are settled.
    int drawPlot();
    int drawFrame(Date& frame_date);
    int drawFrame(const char* fore);
    /// Draws one drawing into the plot, outside the queue.
    int draw(Drawing& drawing);
    /// Deletes all frames and draws them anew.
    int draw();
    /// Drops the oldest frame of a loop, and draws this date as the newest.
    int updateLoop(const Date& frame_date);

    void callback(const char* type, const char* data, const void* client) override;

private:
    int addItem(std::unique_ptr<FigureItem> item);
    int setCurrent(const char* text);
    int settle(Drawing& drawing);
    Drawing* findLoopDrawing(bool sync) const;
    bool hasSync() const;
    bool isDrawn(const Date& file_date) const;
    bool findData(const Date& frame_date, bool sync);
    template <class Select>
    int drawItems(Select select);
    int moveDomain(const char* data, int pos, float factor);
    int lookForData();
};

} // namespace ORV
