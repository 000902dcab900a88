#pragma once

namespace ORV {

class Date;
class Domain;
class Plot;

/// One layer of a picture: station plots, contours, vectors, a map. A Figure keeps a queue of them,
/// asks them which frames the picture has, selects the data of each frame and lets them draw.
/// Operations return 1 for success or yes, 0 otherwise, unless told differently. A drawing that
/// listens to events derives from Listener as well.
class Drawing {
public:
    virtual ~Drawing() = default;

    /// Resets to the defaults, which come from the resources.
    virtual int init() = 0;
    /// Tells the natural domain of this drawing.
    virtual int getDomain(Domain& domain) = 0;
    /// Reads the resources that select files: hour, input, in_file, num_hour.
    virtual int setFile() = 0;
    virtual int setInput(const char* input) = 0;
    virtual int setNameConv(const char* conv) = 0;
    /// Selects the file from the settings alone.
    virtual int setFilename() = 0;
    /// Selects the file by a text: a path, a date, "la" for the latest.
    virtual int setFilename(const char* text) = 0;
    virtual int setFilename(Date& date) = 0;
    /// Selects the file of exactly this date; the text tells a forecast and may be empty. The
    /// result is non-zero when the file exists.
    virtual int setFilename(Date& date, const char* fore) = 0;
    /// Selects a forecast time. A drawing without forecasts ignores it and returns 1.
    virtual int setForeTime(const char* fore) = 0;
    /// Takes what it knows from a comma-separated text of parameters, and passes over the rest.
    virtual int setParam(const char* param) = 0;
    /// Tells the date of the selected data.
    virtual int getDate(Date& date) = 0;
    /// 0: the drawing does not vary with time; 1: it varies by date.
    virtual int getLoopType() = 0;
    /// Tells the first date. Without a selected file, the latest one is selected first.
    virtual int getInitDate(Date& date) = 0;
    /// Returns the time between frames, in seconds.
    virtual int getDateOffset() = 0;
    /// Returns the number of frames that the drawing wants.
    virtual int getNumFrames() = 0;
    /// Whether this drawing sets the time base for all the others.
    virtual int getSync() = 0;
    /// Draws one frame.
    virtual int draw(Plot& plot) = 0;
    /// Prints the settings on standard output.
    virtual int print() = 0;
};

} // namespace ORV
