#pragma once

#include "ORV/Const.h"
#include "ORV/Drawing.h"
#include "ORV/EarthPoint.h"
#include "ORV/EarthPoints.h"
#include "ORV/Points.h"
#include "ORV/String.h"

namespace ORV {

class MapFileHeader;

/// The drawing of everything but the data: map files as lines or filled, latitude and longitude
/// lines, grids, markers and backgrounds, all of them items of a list in a small language of its
/// own. A data drawing holds two, one under and one over its data.
///
/// An item is an optional "+" (over layer) or "-" (under layer), size prefixes such as "s-30:" or
/// ">10<60:" that test the height of the domain, and "file", "file[attributes]", "lalo:5:10[attr]",
/// "grid:domain:attr", "mk:lat:lon:attr", "bg[attr]" or the name of a list file (".mpl").
/// "[lat,lat, lon,lon,size]" and "[]" choose the items that follow by the place of the domain, as
/// if and else. Images, metafiles and raw data files aren't drawn yet: such an item warns as for a
/// file that can't be read.
class MapPlot : public Drawing {
public:
    int def = 1;                 ///< draw unmarked items: 1 yes, 0 no, 2 yes, forced
    int type = 0;                ///< 0 plain, 1 under the data, 2 over them
    int cond = 1;                ///< state of the conditional items; it lives on from draw to draw
    int fill_cont = 0;           ///< drawn with filled contours: colors come from color_fmap
    int fill = 0;                ///< fill segments
    int outline = 0;             ///< stroke filled segments as well
    int map_in = 0;              ///< draw segments whatever their boxes say
    int index = 0;               ///< color and number each segment
    float lat_inc = Const::MISS; ///< degrees between the lines of a final grid, missing for none
    float lon_inc = Const::MISS;
    String color_table;
    String color;        ///< attributes that override the default map color
    String color_latlon; ///< of latitude and longitude lines
    String color_line;   ///< of segment outlines
    String map_files;    ///< the item list; else the resource map_file, else "orv.map"

    MapPlot() { init(); }
    explicit MapPlot(const char* param) : MapPlot() { setParam(param); }

    int init() override;
    int getDomain(Domain& domain) override;
    int setFile() override { return 1; }
    int setInput(const char*) override { return 1; }
    int setNameConv(const char*) override { return 1; }
    int setFilename() override { return 1; }
    int setFilename(const char* text) override { return setMapFiles(text); }
    int setFilename(Date&) override { return 1; }
    int setFilename(Date&, const char*) override { return 1; }
    int setForeTime(const char*) override { return 1; }
    /// Takes ct=, co=, coll=, coln=, mf=, fill, fill_cont, fc, map_in, index, lalo=, default,
    /// nodefault, over and under from a comma-separated text; other entries are for others.
    int setParam(const char* text) override;
    int getDate(Date&) override { return 1; }
    int getLoopType() override { return 0; }
    int getInitDate(Date& date) override;
    int getDateOffset() override { return 0; }
    int getNumFrames() override { return 1; }
    int getSync() override { return 0; }

    /// Draws the whole list. Returns 0 when the plot draws no maps.
    int draw(Plot& plot) override;
    int print() override;

    int setMapFiles(const char* text) { return map_files.set(text); }
    int setColorTable(const char* text) { return color_table.set(text); }
    int setColor(const char* text) { return color.set(text); }
    int setColorLine(const char* text) { return color_line.set(text); }
    int setColorLatLon(const char* text) { return color_latlon.set(text); }

    /// Draws one item. The mask has bit 1 for the under layer and bit 2 for the over layer. Returns
    /// 0 when its marks, prefixes or the condition before it leave it out.
    int process(Plot& plot, const char* item, int mask);

    /// Draws one map file with the attributes in force. Returns 0 when it can't be read.
    int draw(Plot& plot, const char* file);

    /// Draws and labels latitude and longitude lines, with the spacings in degrees. Returns 0 on
    /// domains that aren't of the earth, or for a spacing that isn't above 0.
    int drawLatLon(Plot& plot, float lat_step, float lon_step);

    /// Draws one run of points, as a line or filled, and empties the list.
    int drawSegment(Plot& plot, Points& points);

private:
    int processListItem(Plot& plot, const char* item);
    int processList(Plot& plot, const char* name);
    int decide(const Plot& plot, const char* item);
    int processMarker(Plot& plot, const char* text);
    int processGrid(Plot& plot, const char* text);
    int processLatLon(Plot& plot, const char* text);
    int processBackground(Plot& plot, const char* attributes);
    int processMapFile(Plot& plot, const char* text);
    void drawGridLines(Plot& plot, const char* attributes, float lat_step, float lon_step);
    void drawRun(Plot& plot, Points& run, EarthPoints& ring);
    static bool isOutside(const Domain& domain, const MapFileHeader& header);
    void drawPlace(Plot& plot, const MapFileHeader& header, const Point& point);
    const char* setIndexColor(Plot& plot, const MapFileHeader& header);
    void drawIndex(Plot& plot, const MapFileHeader& header, const char* color_name,
                   const EarthPoint& place, const Point& point);
};

} // namespace ORV
