#include "ORV/MapPlot.h"

#include "ORV/Date.h"
#include "ORV/Domain.h"
#include "ORV/DomainTool.h"
#include "ORV/EarthPoints.h"
#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/MapFile.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/PlotAttr.h"
#include "ORV/Rect.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace ORV {
namespace {

constexpr int under = 1, over = 2;     // bits of the layers
constexpr int map_flag = 2;            // of the parts of a plot
constexpr float label_height = 0.015f; // of the height of the domain
constexpr float mark_height = 0.018f;
constexpr float default_spacing = 5; // degrees
constexpr float any_size = 1000;     // limit of a condition without one
constexpr int most_lines = 10000;    // of a grid; more would be a solid fill, after a long wait
constexpr float box_step = 12;       // degrees between the places at which a wide box is tested
constexpr float box_margin = 0.05f;  // of its size, for the bulge of edges up to so long
constexpr const char* latlon_color = "magenta:st=4";

/// States of the conditional items.
enum Condition { TAKEN = -1, NOT_YET = 0, OPEN = 1, HERE = 2 };

bool begins(const char* text, const char* start) {
    return StrLib::iequal(text, start, StrLib::length(start));
}

bool endsWith(const char* text, const char* end) {
    return StrLib::length(text) >= StrLib::length(end) &&
           StrLib::iequal(text, end, -StrLib::length(end));
}

/// Takes a size prefix off the item, when it begins with the mark. Returns whether the height
/// passes.
bool passPrefix(const char*& item, const char* mark, char second, float vert) {
    if (!StrLib::equal(item, mark, StrLib::length(mark)))
        return true;
    const int end = StrLib::index(item, ':');
    float first;
    const char* number = item + StrLib::length(mark);
    const int passed = Scan::number(number, first);
    if (end < 0 || passed == 0)
        return true;
    const bool above = mark[0] == '>' || mark[1] == '+';
    bool passes = above ? vert > first : vert <= first;
    float limit;
    if (second && number[passed] == second && Scan::number(number + passed + 1, limit) > 0)
        passes = passes && (above ? vert <= limit : vert >= limit);
    item += end + 1;
    return passes;
}

/// Takes all size prefixes off the item. Returns whether the height passes every one.
bool passPrefixes(const char*& item, float vert) {
    struct Prefix {
        const char* mark;
        char second;
    };
    constexpr Prefix prefixes[] = {{"s+", 0},  {">", '<'}, {"s-", 0},
                                   {"<", '>'}, {"s+", 0},  {">", 0}};
    for (const Prefix& prefix : prefixes)
        if (!passPrefix(item, prefix.mark, prefix.second, vert))
            return false;
    return true;
}

/// Latitude and longitude spacings of a text such as "5:10". Returns the characters passed.
int scanSpacings(const char* text, float& lat, float& lon) {
    lat = default_spacing;
    int at = Scan::number(text, lat);
    lon = lat;
    if (text[at] == ':')
        if (const int passed = Scan::number(text + at + 1, lon))
            at += 1 + passed;
    return at;
}

/// The latitudes and longitudes that a domain's window holds at most: most segments of a world map
/// are told to lie outside of it without a projection.
class EarthBox {
public:
    explicit EarthBox(const Domain& domain) {
        const Rect& window = domain.limits;
        EarthPoint rows[2][samples + 1]; // the last row and this one
        float lat_step = 0, lon_step = 0;
        for (int i = 0; i <= samples; i++) {
            for (int j = 0; j <= samples; j++) {
                EarthPoint& place = rows[i % 2][j];
                const Point point(window.xmin + (window.xmax - window.xmin) * j / samples,
                                  window.ymin + (window.ymax - window.ymin) * i / samples);
                if (!domain.tran(point, place) || std::fabs(place.lat) > last_lat)
                    return;
                if (i + j == 0)
                    middle = place.lon;
                place.lon = std::remainder(place.lon - middle, 360.0f);
                for (const EarthPoint* last : {j > 0 ? &rows[i % 2][j - 1] : nullptr,
                                               i > 0 ? &rows[(i + 1) % 2][j] : nullptr})
                    if (last) {
                        lat_step = std::max(lat_step, std::fabs(place.lat - last->lat));
                        lon_step = std::max(lon_step, std::fabs(place.lon - last->lon));
                    }
                south = std::min(south, place.lat);
                north = std::max(north, place.lat);
                west = std::min(west, place.lon);
                east = std::max(east, place.lon);
            }
        }
        // A jump in longitude, or one from row to row, is the date line or a pole in the window.
        known = east - west < widest && lon_step < widest / samples && lat_step < widest / samples;
        south -= lat_step;
        north += lat_step;
        west -= lon_step;
        east += lon_step;
    }

    bool isApart(const MapFileHeader& header) const {
        const float height = header.max_lat - header.min_lat;
        const float width = header.max_lon - header.min_lon;
        if (!known || !(width >= 0 && width < widest && height >= 0))
            return false;
        const float margin = box_margin * std::max(width, height);
        if (header.max_lat + margin < south || header.min_lat - margin > north)
            return true;
        const float reach = width / 2 + margin;
        const float center = std::remainder(header.min_lon + width / 2 - middle, 360.0f);
        for (const float turn : {-360.0f, 0.0f, 360.0f})
            if (center + turn + reach >= west && center + turn - reach <= east)
                return false;
        return true;
    }

private:
    static constexpr int samples = 8;     // of the window in each direction
    static constexpr float last_lat = 80; // degrees; meridians are too close beyond
    static constexpr float widest = 160;  // degrees
    bool known = false;
    float middle = 0; // longitude that west and east count from
    float south = 90, north = -90, west = 360, east = -360;
};

/// Stretches of a side of a box that are short enough to be nearly straight on any map.
int stepsOf(float low, float high) {
    const float extent = high - low;
    return extent > box_step && extent <= 720 ? static_cast<int>(std::ceil(extent / box_step)) : 1;
}

} // namespace

int MapPlot::init() {
    def = cond = 1;
    type = fill_cont = fill = outline = map_in = index = 0;
    lat_inc = lon_inc = Const::MISS;
    struct Setting {
        const char* resource;
        String MapPlot::*field;
    };
    constexpr Setting settings[] = {{"color_table", &MapPlot::color_table},
                                    {"color_map", &MapPlot::color},
                                    {"color_latlon", &MapPlot::color_latlon}};
    color_line.clear();
    map_files.clear();
    for (const Setting& setting : settings)
        (this->*setting.field).set(Orv::getResrc(setting.resource));
    if (const char* parameter = Orv::getResrc("parameter"))
        setParam(parameter);
    return 1;
}

int MapPlot::getDomain(Domain& domain) {
    DomainTool::decode(domain, "globe");
    return 0;
}

int MapPlot::getInitDate(Date& date) {
    date.init();
    return 1;
}

int MapPlot::setParam(const char* text) {
    struct Keyword {
        const char* name;
        int length; // characters that count; 0 for the whole entry
        void (*set)(MapPlot& map, const char* value);
    };
    static constexpr Keyword keywords[] = {
        {"ct=", 2, [](MapPlot& m, const char* v) { m.setColorTable(v); }},
        {"co=", 3, [](MapPlot& m, const char* v) { m.setColor(v); }},
        {"coll=", 4, [](MapPlot& m, const char* v) { m.setColorLatLon(v); }},
        {"coln=", 4, [](MapPlot& m, const char* v) { m.setColorLine(v); }},
        {"mf=", 2, [](MapPlot& m, const char* v) { m.setMapFiles(v); }},
        {"fill", 0, [](MapPlot& m, const char*) { m.fill = 1; }},
        {"fill_cont", 0, [](MapPlot& m, const char*) { m.fill_cont = 1; }},
        {"fc", 0, [](MapPlot& m, const char*) { m.fill_cont = 1; }},
        {"map_in", 0, [](MapPlot& m, const char*) { m.map_in = 1; }},
        {"index", 0, [](MapPlot& m, const char*) { m.index = 1; }},
        {"lalo=", 4,
         [](MapPlot& m, const char* v) { scanSpacings(v ? v : "", m.lat_inc, m.lon_inc); }},
        {"default", 0, [](MapPlot& m, const char*) { m.def = 2; }},
        {"nodefault", 0, [](MapPlot& m, const char*) { m.def = m.type == 0; }},
        {"over", 0,
         [](MapPlot& m, const char*) {
             m.def = m.def == 2 ? 2 : 0;
             m.type = over;
         }},
        {"under", 0,
         [](MapPlot& m, const char*) {
             m.def = m.def == 2 ? 2 : 0;
             m.type = under;
         }},
    };
    const Strings entries(text, ',');
    for (int i = 0; i < entries.getNum(); i++)
        for (const Keyword& keyword : keywords)
            if (keyword.length > 0 ? entries.equal(i, keyword.name, keyword.length)
                                   : entries.equal(i, keyword.name)) {
                const char* value = entries.getStringAfter(i, '=');
                keyword.set(*this, value ? value : entries.getString(i, keyword.length + 1));
                break;
            }
    return 1;
}

int MapPlot::print() {
    Orv::outMessage("MapPlot");
    Orv::outMessage("Def: %d\n", def);
    Orv::outMessage("Type: %d\n", type);
    Orv::outMessage("Fill cont: %d\n", fill_cont);
    Orv::outMessage("Fill: %d\n", fill);
    Orv::outMessage("Index: %d\n", index);
    return Orv::outMessage("LaLo: %.0f, %.0f\n", lat_inc, lon_inc);
}

int MapPlot::draw(Plot& plot) {
    if (!plot.isDrawing(map_flag))
        return 0;
    plot.graph.setDropShadow(0);
    const char* list = map_files.valid() ? map_files.get() : Orv::getResrc("map_file", "");
    if (!StrLib::valid(list))
        list = "orv.map";
    const Strings items(list, ',', -1, "\"[");
    for (int i = 0; i < items.getNum(); i++)
        if (items.valid(i))
            processListItem(plot, items.getString(i));
    if (lat_inc != Const::MISS)
        drawGridLines(plot, "", lat_inc, lon_inc);
    return 1;
}

int MapPlot::processListItem(Plot& plot, const char* item) {
    const int needed = item[0] == '+' ? over : item[0] == '-' ? under : 0;
    const char* bare = needed ? item + 1 : item;
    const bool is_list = begins(bare, "fi:");
    if (!is_list && !endsWith(item, "mpl"))
        return process(plot, item, type);
    if (needed && !(type & needed))
        return 0;
    return processList(plot, is_list ? bare + 3 : bare);
}

int MapPlot::processList(Plot& plot, const char* name) {
    String path;
    FileTool::addPath(Orv::getDatabasePath(), name, path);
    File file(path, "r");
    if (!file.isOpen()) {
        Orv::outWarning("MapPlot_draw: Unable to open map list file: %s\n", path.get());
        return 0;
    }
    std::string text;
    char line[500];
    while (const int length = file.getLine(line, sizeof line))
        text.append(line, length);
    const Strings words(text.c_str());
    char word[80];
    for (int i = 0; i < words.getNum(); i++) {
        StrLib::copy(word, sizeof word, words.getString(i));
        process(plot, word, type);
    }
    return 1;
}

/// Takes a conditional item: the first box of a list that holds the domain is the one that counts.
int MapPlot::decide(const Plot& plot, const char* item) {
    if (cond == HERE) {
        cond = TAKEN;
        return 0;
    }
    float box[4];
    float limit = any_size;
    const int count =
        Scan::text(item + 1, "%f,%f,%f,%f,%f", box, box + 1, box + 2, box + 3, &limit);
    const auto [south, north] = std::minmax(box[0], box[1]);
    const auto [west, east] = std::minmax(box[2], box[3]);
    const float lat = plot.getDomCLat();
    const float lon = plot.getDomCLon();
    if (count < 4 ||
        (lat >= south && lat <= north && lon >= west && lon <= east && plot.getDomVert() <= limit))
        cond = HERE;
    else if (cond == OPEN)
        cond = NOT_YET;
    return 0;
}

int MapPlot::process(Plot& plot, const char* item, int mask) {
    if (!StrLib::valid(item))
        return 0;
    const int needed = item[0] == '-' ? under : item[0] == '+' ? over : 0;
    if (needed ? !(mask & needed) : def == 0)
        return 0;
    if (needed)
        item++;
    if (item[0] == '[')
        return decide(plot, item);
    if (cond < OPEN || !passPrefixes(item, plot.getDomVert()))
        return 0;

    struct Unread {
        const char* mark;
        const char* part;
        const char* warning;
    };
    constexpr Unread unread[] = {
        {"if:", nullptr, "image"},    {"im:", ".gif", "image"},   {"im:", ".png", "image"},
        {"mf:", ".meta", "metafile"}, {"rf:", ".raw", "rawfile"},
    };
    for (const Unread& row : unread)
        if (begins(item, row.mark) || (row.part && StrLib::contains(item, row.part))) {
            String name(begins(item, row.mark) ? item + 3 : item);
            if (const int end = name.index(':'); end >= 0)
                name.trunc(end);
            plot.message("Map-%s: %s", row.warning, name.get());
            Orv::outWarning("Map %s not found: %s\n", row.warning, name.get());
            return 1;
        }

    struct Kind {
        const char* mark;
        int (MapPlot::*process)(Plot& plot, const char* text);
    };
    constexpr Kind kinds[] = {
        {"mk:", &MapPlot::processMarker},     {"grid", &MapPlot::processGrid},
        {"lalo:", &MapPlot::processLatLon},   {"bg:", &MapPlot::processBackground},
        {"bg[", &MapPlot::processBackground},
    };
    for (const Kind& kind : kinds)
        if (begins(item, kind.mark))
            return (this->*kind.process)(plot, item + StrLib::length(kind.mark));
    return processMapFile(plot, item);
}

int MapPlot::processMarker(Plot& plot, const char* text) {
    EarthPoint place;
    char attributes[41] = "";
    if (Scan::text(text, "%f:%f:%40s", &place.lat, &place.lon, attributes) < 2)
        return 1;
    const float height = mark_height * plot.getVert();
    plot.setMark();
    plot.setMarkColor("white");
    plot.setMarkType(2);
    plot.setMarkSize(height);
    PlotAttr attr(attributes);
    plot.setMark(attr, height);
    plot.drawMark(place);
    return 1;
}

int MapPlot::processGrid(Plot& plot, const char* text) {
    Domain domain = plot.getDomain();
    char name[200] = "";
    char attributes[200] = "";
    Scan::text(text[0] ? text + 1 : text, "%199[^:]:%199s", name, attributes);
    plot.setLine();
    plot.setLineColor("white");
    if (name[0]) {
        plot.message("Map-grid: %s", name);
        if (!DomainTool::decode(domain, name))
            return 1;
    }
    if (attributes[0]) {
        PlotAttr attr(attributes);
        plot.setLine(attr);
    }
    const auto drawLine = [&](const GridPoint& a, const GridPoint& b) {
        EarthPoint from, to;
        domain.tran(a, from);
        domain.tran(b, to);
        plot.drawLine(from, to);
    };
    if (domain.nx > most_lines || domain.ny > most_lines)
        return 1;
    for (int i = 0; i < domain.nx; i++)
        drawLine(GridPoint(i, 0), GridPoint(i, domain.ny - 1));
    for (int j = 0; j < domain.ny; j++)
        drawLine(GridPoint(0, j), GridPoint(domain.nx - 1, j));
    return 1;
}

int MapPlot::processLatLon(Plot& plot, const char* text) {
    float lat_step, lon_step;
    text += scanSpacings(text, lat_step, lon_step);
    plot.message("Map-lalo: %.1f,%.1f", lat_step, lon_step);
    String attributes(text[0] == ':' || text[0] == '[' ? text + 1 : "");
    if (text[0] == '[')
        attributes.chop();
    drawGridLines(plot, attributes.get(), lat_step, lon_step);
    return 1;
}

void MapPlot::drawGridLines(Plot& plot, const char* attributes, float lat_step, float lon_step) {
    const char* text = StrLib::valid(attributes) ? attributes
                       : color_latlon.valid()    ? color_latlon.get()
                                                 : latlon_color;
    const float height = label_height * plot.getVert();
    PlotAttr attr(text);
    plot.setLine();
    plot.setLine(attr);
    plot.setText();
    plot.setTextHeight(height);
    plot.setText(attr, height);
    drawLatLon(plot, lat_step, lon_step);
}

int MapPlot::processBackground(Plot& plot, const char* text) {
    String attributes(text);
    if (attributes.length() > 0 && attributes.getChar(-1) == ']')
        attributes.chop();
    if (!attributes.valid())
        return 1;
    PlotAttr attr(attributes.get());
    plot.setFill();
    plot.setFill(attr);
    Rect window;
    plot.graph.getWindow(window);
    plot.drawFill(window);
    return 1;
}

int MapPlot::processMapFile(Plot& plot, const char* text) {
    const bool remote = begins(text, "http:") || begins(text, "ftp:");
    const int scheme = remote ? StrLib::index(text, ':') + 1 : 0;
    const int bracket = StrLib::index(text, '[');
    const int colon = StrLib::index(text + scheme, ':');
    const int end = bracket >= 0 ? bracket : colon >= 0 ? scheme + colon : StrLib::length(text);

    String name;
    name.copy(text, end);
    String attributes(text[end] ? text + end + 1 : "");
    if (bracket >= 0)
        attributes.chop();

    const int saved_fill = fill;
    outline = 0;
    String line_color;
    if (!attributes.valid()) {
        attributes.set(color.valid() ? color.get()
                       : fill_cont   ? Orv::getResrc("color_fmap", "black")
                                     : Orv::getResrc("color_map", "red"));
    } else {
        const Strings entries(attributes.get(), attributes.index(':') >= 0 ? ':' : ',');
        for (int i = 0; i < entries.getNum(); i++)
            if (entries.equal(i, "fill"))
                fill = 1;
            else if (entries.equal(i, "coln", 4))
                line_color.set(entries.getStringAfter(i, '='));
    }
    PlotAttr attr(attributes.get());
    if (attr.validColor()) {
        plot.setLine();
        plot.setFill();
        plot.setLine(attr);
        plot.setFill(attr);
        plot.setText(attr);
        if (attr.validFillPat())
            fill = 1;
        for (const String* stroke : {&color_line, &line_color})
            if (stroke->valid()) {
                plot.setLine(stroke->get());
                outline = 1;
            }
        plot.message("Map: %s", name.get());
        String path;
        FileTool::addPath(Orv::getResrc("file_path"), name.get(), path);
        draw(plot, path.get());
    }
    fill = saved_fill;
    return 1;
}

/// Whether a segment's box lies on one side outside the domain, corner by corner. The edges of a
/// box are arcs on many maps: a wide box counts by places between its corners, too, and what bulges
/// between those by a margin.
bool MapPlot::isOutside(const Domain& domain, const MapFileHeader& header) {
    const int rows = stepsOf(header.min_lat, header.max_lat);
    const int columns = stepsOf(header.min_lon, header.max_lon);
    Rect box;
    for (int i = 0; i <= rows; i++)
        for (int j = 0; j <= columns; j++) {
            const EarthPoint at(header.min_lat + (header.max_lat - header.min_lat) * i / rows,
                                header.min_lon + (header.max_lon - header.min_lon) * j / columns);
            Point point;
            domain.tran(at, point);
            if (point.x == Const::MISS)
                return false;
            if (i + j == 0)
                box.setu(point.x, point.y, point.x, point.y);
            box.xmin = std::min(box.xmin, point.x);
            box.xmax = std::max(box.xmax, point.x);
            box.ymin = std::min(box.ymin, point.y);
            box.ymax = std::max(box.ymax, point.y);
        }
    const float margin = box_margin * std::max(box.xmax - box.xmin, box.ymax - box.ymin);
    const Rect& window = domain.limits;
    return box.xmax < window.xmin - margin || box.xmin > window.xmax + margin ||
           box.ymax < window.ymin - margin || box.ymin > window.ymax + margin;
}

const char* MapPlot::setIndexColor(Plot& plot, const MapFileHeader& header) {
    constexpr const char* names[] = {"lmagenta", "lblue", "lgreen", "yellow", "orange", "lred"};
    const char* name = names[std::abs(header.id % 6)];
    plot.setLineColor(name);
    plot.setTextColor(name);
    plot.setTextHeight(label_height * plot.getDomVert());
    return name;
}

/// Numbers a segment at its first point, and tells about it.
void MapPlot::drawIndex(Plot& plot, const MapFileHeader& header, const char* color_name,
                        const EarthPoint& place, const Point& point) {
    char number[20] = "";
    StrLib::aprintf(number, sizeof number, "%d", header.id);
    plot.drawText(point, number);
    Orv::outMessage("%d %s %d %.4f %.4f\n", header.id, color_name, header.num, place.lat,
                    place.lon);
}

void MapPlot::drawPlace(Plot& plot, const MapFileHeader& header, const Point& point) {
    plot.setTextHeight(label_height * plot.getDomVert());
    plot.setTextAlign(2, 3);
    plot.drawText(point, header.name[0] ? header.name : "+");
}

int MapPlot::draw(Plot& plot, const char* name) {
    const int proj = plot.getProj();
    if (!plot.isDrawing(map_flag) || !((proj >= 1 && proj <= 10) || proj == 21))
        return 0;
    MapFile file(name);
    if (!file.isOpen())
        return 0;
    if (index)
        Orv::outMessage("Mapfile: %s\n", name);

    const Domain& domain = plot.getDomain();
    const EarthBox window(domain);
    // In the views of a disc a polygon is more than its points in sight.
    const bool whole = fill && (proj == 5 || proj == 8 || proj == 10);
    MapFileHeader header;
    Points run(1000);
    EarthPoints ring;
    EarthPoint place;
    Point point;
    while (file.readHeader(header)) {
        if (!map_in && header.hasBox() && (window.isApart(header) || isOutside(domain, header))) {
            file.skipData();
            continue;
        }
        const char* color_name = index ? setIndexColor(plot, header) : "";
        run.clear();
        ring.clear();
        for (bool is_first = true; file.readData(place); is_first = false) {
            const EarthPoint& earth = place;
            domain.tran(earth, point);
            if (is_first && index && plot.withinDomain(point))
                drawIndex(plot, header, color_name, place, point);
            if (whole && place.lat != Const::MISS)
                ring.add(place);
            else if (point.x != Const::MISS)
                run.add(point);
            else
                drawRun(plot, run, ring);
        }
        if (header.num == 1 && point.x != Const::MISS && run.getNum() + ring.getNum() == 1)
            drawPlace(plot, header, point);
        drawRun(plot, run, ring);
    }
    return 1;
}

/// Draws what was gathered of a segment, in plot coordinates or, as a whole, in those of the earth.
void MapPlot::drawRun(Plot& plot, Points& run, EarthPoints& ring) {
    if (ring.getNum() > 1) {
        plot.drawFill(ring);
        if (outline)
            plot.drawLine(ring);
    }
    ring.clear();
    drawSegment(plot, run);
}

int MapPlot::drawSegment(Plot& plot, Points& points) {
    if (points.getNum() > 1) {
        if (fill)
            plot.drawFill(points);
        if (!fill || outline)
            plot.drawLine(points);
    }
    return points.clear();
}

} // namespace ORV
