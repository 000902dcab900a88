#include "ORV/DatumPlot.h"

#include "ORV/CloudPlot.h"
#include "ORV/ColorFile.h"
#include "ORV/Domain.h"
#include "ORV/Format.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/PlotAttr.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"
#include "ORV/WindPlot.h"

#include <cmath>
#include <cstring>

namespace ORV {
namespace {

/// Sizes as fractions of the scaled plot height.
constexpr float text_size = 0.018f;
constexpr float cloud_size = 0.01f;
constexpr float barb_length = 0.05f;
constexpr float arrow_length = 0.05f;
constexpr float track_size = 0.1f;
constexpr float symbol_size = 0.03f;

constexpr float knots_to_kmh = 1.852f;
constexpr float km_per_unit = 100; // of plot coordinates
constexpr int default_hours = 2;   // of a track
constexpr unsigned max_parsed = 64;

/// How the three kinds of barbs mark the station: a calm circle, the start of the staff, and a dot.
struct BarbStyle {
    int kind;
    float calm, start, dot;
};
constexpr BarbStyle barb_styles[] = {
    {Datum::WBARB, 0.003f, 0, 0},
    {Datum::CBARB, 0.013f, 0.01f, 0},
    {Datum::DBARB, 0.006f, 0.003f, 0.003f},
};

float pick(float own, float dflt) {
    return own == Const::MISS ? dflt : own;
}
int pick(int own, int dflt) {
    return own == Const::MISS ? dflt : own;
}
const char* pick(const char* own, const char* dflt) {
    return StrLib::valid(own) ? own : dflt;
}

/// Whether a number was rounded to "-0" or "-0.0", which reads better without its sign.
bool isNegativeZero(const char* text) {
    return text[0] == '-' && text[1] == '0' && !std::strpbrk(text, "123456789");
}

void setColor(Plot& plot, const char* name) {
    const int ind = plot.getColorMap().getInd(name);
    plot.setTextColor(ind);
    plot.setLineColor(ind);
    plot.setMarkColor(ind);
    plot.setFillColor(ind);
}

bool isOnPlot(const Point& point) {
    return point.x != Const::MISS && point.y != Const::MISS;
}

} // namespace

struct DatumPlot::Element {
    const Datum& datum;
    const DatumAttr& own; // the element's own attributes
    Point pt;             // the station,
    Point at;             // and where the element stands beside it
    float size;           // plot height times the size factors
    float expan;
    int marker;
};

int DatumPlot::init() {
    color_table.clear();
    color_fill.clear();
    format[0] = 0;
    def_type = Datum::DATA;
    use_fill = 0;
    fill.init();
    base = 0;
    intrvl = Const::MISS;
    ppt = Point();
    scale = 1;
    post_line = 0;
    first = 1;

    attr.init();
    attr.scale = attr.height = attr.weight = attr.expan = 1;
    attr.dx = attr.dy = attr.width = 0;
    attr.halign = 2;
    attr.valign = 3;
    attr.shadow = attr.skip = 0;
    attr.setColor("green");
    attr.setFont("modern.fnt");
    attr.setSymbol("wx.smb");

    struct Setting {
        const char* resource;
        void (*set)(DatumPlot& plot, const char* value);
    };
    static constexpr Setting settings[] = {
        {"plot_scale", [](DatumPlot& p, const char* v) { p.setScale(StrLib::getFloat(v)); }},
        {"plot_type", [](DatumPlot& p, const char* v) { p.setType(v); }},
        {"color_table", [](DatumPlot& p, const char* v) { p.setColorTable(v); }},
        {"color_fill", [](DatumPlot& p, const char* v) { p.setColorFill(v); }},
        {"con_interval", [](DatumPlot& p, const char* v) { p.setInterval(StrLib::getFloat(v)); }},
        {"con_base", [](DatumPlot& p, const char* v) { p.setBase(StrLib::getFloat(v)); }},
        {"color_data", [](DatumPlot& p, const char* v) { p.setAttr(v); }},
        {"format", [](DatumPlot& p, const char* v) { p.setFormat(v); }},
        {"parameter", [](DatumPlot& p, const char* v) { p.setParam(v); }},
    };
    for (const Setting& setting : settings)
        if (const char* value = Orv::getResrc(setting.resource))
            setting.set(*this, value);
    return 1;
}

int DatumPlot::setParam(const char* text) {
    struct Keyword {
        const char* name;
        void (*set)(DatumPlot& plot, const char* value);
    };
    static constexpr Keyword keywords[] = {
        {"sc", [](DatumPlot& p, const char* v) { p.setScale(StrLib::getFloat(v)); }},
        {"ty", [](DatumPlot& p, const char* v) { p.setType(v); }},
        {"ct", [](DatumPlot& p, const char* v) { p.setColorTable(v); }},
        {"cof", [](DatumPlot& p, const char* v) { p.setColorFill(v); }},
        {"co=", [](DatumPlot& p, const char* v) { p.setColor(v); }},
        {"fm", [](DatumPlot& p, const char* v) { p.setFormat(v); }},
    };
    const Strings entries(text, ',');
    for (int i = 0; i < entries.getNum(); i++)
        for (const Keyword& keyword : keywords)
            if (entries.equal(i, keyword.name, StrLib::length(keyword.name))) {
                if (const char* value = entries.getStringAfter(i, '='))
                    keyword.set(*this, value);
                break;
            }
    return 1;
}

int DatumPlot::setType(const char* text) {
    struct Named {
        const char* name;
        int type;
    };
    static constexpr Named types[] = {
        {"text", Datum::TEXT}, {"mark", Datum::MARK}, {"data", Datum::DATA}};
    for (const Named& row : types)
        if (StrLib::equal(text, row.name)) {
            def_type = row.type;
            return 1;
        }
    return 0;
}

int DatumPlot::setColorTable(const char* file) {
    return color_table.set(file);
}

int DatumPlot::setColorFill(const char* text) {
    return color_fill.set(text);
}

int DatumPlot::setInterval(float interval) {
    intrvl = interval;
    return 1;
}

int DatumPlot::setBase(float value) {
    base = value;
    return 1;
}

int DatumPlot::setAttr(const char* text) {
    return attr.set(text);
}

int DatumPlot::setAttr(const PlotAttr& attributes) {
    return attr.set(attributes);
}

int DatumPlot::setColor(const char* name) {
    return attr.setColor(name);
}

int DatumPlot::setFormat(const char* text) {
    return StrLib::copy(format, sizeof format, text);
}

int DatumPlot::setScale(float factor) {
    scale = factor == Const::MISS ? 1 : factor;
    return 1;
}

int DatumPlot::setMarker(const char* name) {
    return attr.setMarker(name);
}

const DatumAttr& DatumPlot::parse(const char* text) {
    for (const Parsed& known : parsed)
        if (known.text == text)
            return known.attr;
    if (parsed.size() >= max_parsed)
        parsed.clear();
    parsed.push_back({text, DatumAttr()});
    parsed.back().attr.set(text);
    return parsed.back().attr;
}

int DatumPlot::draw(Plot& plot, const Datum& datum) {
    Point pt;
    plot.getDomain().tran(datum.ept, pt);
    if (post_line && isOnPlot(pt) && isOnPlot(ppt))
        plot.drawLine(pt, ppt);
    post_line = 0;
    if (!isOnPlot(pt)) {
        ppt = pt;
        return 0;
    }

    const DatumAttr& own = parse(datum.format);
    const DatumAttr& place = own.dx == Const::MISS ? attr : own;
    const float size = pick(own.scale, attr.scale) * scale * plot.getVert();
    const Point at(pt.x + size * place.dx, pt.y + size * place.dy);
    Element element{
        datum, own, pt, at, size, pick(own.expan, attr.expan), pick(own.marker, attr.marker)};
    setAttributes(plot, element);
    if (first)
        setUp(plot);
    ORV::setColor(plot, pick(own.color, attr.color));
    if (StrLib::valid(own.symbol))
        plot.graph.setSymbol(own.symbol);
    drawKind(plot, element);
    ppt = pt;
    return 1;
}

void DatumPlot::setAttributes(Plot& plot, const Element& element) {
    const DatumAttr& own = element.own;
    if (element.marker != Const::MISS)
        plot.setMarkType(element.marker);
    plot.setTextAlign(pick(own.halign, attr.halign), pick(own.valign, attr.valign));
    plot.setFont(pick(own.font, attr.font));
    plot.graph.setDropShadow(pick(own.shadow, attr.shadow));
    plot.setTextExpansion(element.expan);
    const float height = element.size * pick(own.height, attr.height) * text_size;
    plot.setTextHeight(height);
    plot.setMarkSize(height);
    const float weight = pick(own.weight, attr.weight);
    plot.setTextWeight(weight);
    plot.setMarkWeight(weight);
    plot.setLineWidth(pick(own.width, attr.width));
}

void DatumPlot::setUp(Plot& plot) {
    if (color_table.valid()) {
        ColorMap table;
        ColorFile::read(color_table.get(), table);
        plot.setColorMap(table);
    }
    ColorMap& colors = plot.getColorMap();
    if (color_fill.valid())
        use_fill = fill.set(colors, color_fill.get()) ? 1 : use_fill;
    else
        fill.set(colors, nullptr);
    if (intrvl != Const::MISS) {
        fill.setInterval(intrvl);
        fill.setBase(base);
        use_fill = 1;
    }
    first = 0;
}

void DatumPlot::colorByValue(Plot& plot, const Element& element, bool text_only) {
    if (!use_fill || StrLib::valid(element.own.color))
        return;
    const PlotAttr shade = fill.get(element.datum.value[0]);
    if (text_only)
        plot.setTextColor(shade.color);
    else
        ORV::setColor(plot, shade.color);
}

void DatumPlot::drawNumber(Plot& plot, const Element& element, const char* dflt) {
    const float value = element.datum.value[0];
    const char* form = pick(format, pick(element.own.form, pick(attr.form, dflt)));
    char text[100];
    if (value != Const::MISS && StrLib::valid(form) &&
        Format::print(text, sizeof text, form, value))
        plot.drawText(element.at, text + isNegativeZero(text));
}

void DatumPlot::drawData(Plot& plot, const Element& element) {
    colorByValue(plot, element, false);
    const bool plain =
        !StrLib::valid(format) && !StrLib::valid(element.own.form) && !StrLib::valid(attr.form);
    if (element.marker != Const::MISS)
        plot.drawMark(element.at);
    else if (plain && element.datum.value[0] == Const::MISS)
        plot.drawText(element.at, element.datum.data);
    else
        drawNumber(plot, element, "%1.0f");
}

void DatumPlot::drawText(Plot& plot, const Element& element) {
    if (element.datum.value[0] != Const::MISS)
        colorByValue(plot, element, true);
    plot.drawText(element.at, element.datum.data);
}

void DatumPlot::drawBarb(Plot& plot, const Element& element, int kind) {
    const float speed = element.datum.value[1];
    const BarbStyle* style = barb_styles;
    while (style->kind != kind)
        style++;
    if (style->dot > 0)
        CloudPlot::draw(plot, element.at, element.size * style->dot, '0');
    if (speed == 0) {
        CloudPlot::draw(plot, element.at, element.size * style->calm, '0');
        return;
    }
    if (element.datum.value[0] < 0)
        return;
    const bool mirrored = element.datum.ept.lat < 0 && speed != Const::MISS;
    Wind wind(element.datum.value[0], mirrored ? -speed : speed);
    WindPlot::drawBarbMap(plot, element.at, wind, element.size * barb_length,
                          element.size * style->start);
}

void DatumPlot::drawArrow(Plot& plot, const Element& element, int kind) {
    const float speed = element.datum.value[1];
    if (kind == Datum::AVECT && speed == 0)
        CloudPlot::draw(plot, element.at, element.size * 0.006f, '0');
    if (speed <= 0)
        return;
    const bool fixed = kind == Datum::AVECT;
    Wind wind(element.datum.value[0], fixed ? speed : speed * knots_to_kmh / 100);
    WindPlot::drawVectMap(plot, element.at, wind,
                          element.size * arrow_length * (fixed ? knots_to_kmh : 1),
                          fixed ? -element.expan : element.expan);
}

void DatumPlot::drawTrack(Plot& plot, const Element& element) {
    const float dir = element.datum.value[0];
    const float speed = element.datum.value[1];
    if (dir == Const::MISS || speed == Const::MISS)
        return;
    const float limit = element.own.max;
    const int hours = limit == Const::MISS || !(std::fabs(limit) < 1000) ? default_hours
                                                                         : static_cast<int>(limit);
    const Domain& domain = plot.getDomain();
    const Wind wind(domain.adjustDir(dir, element.datum.ept),
                    speed * knots_to_kmh * domain.getMapFactor(element.datum.ept) * hours /
                        km_per_unit);
    WindPlot::drawTrack(plot, element.at, wind, element.size * track_size, element.expan, hours, 1);
}

void DatumPlot::drawLine(Plot& plot, const Element& element) {
    const Datum& datum = element.datum;
    if (StrLib::equal(datum.data, "pre")) {
        if (isOnPlot(ppt))
            plot.drawLine(element.pt, ppt);
        return;
    }
    if (StrLib::equal(datum.data, "post")) {
        post_line = 1;
        return;
    }
    Point end = element.at;
    if (datum.value[0] != Const::MISS && datum.value[1] != Const::MISS)
        plot.getDomain().tran(EarthPoint(datum.value[0], datum.value[1]), end);
    if (isOnPlot(end))
        plot.drawLine(element.pt, end);
}

void DatumPlot::drawKind(Plot& plot, Element& element) {
    const Datum& datum = element.datum;
    int kind = pick(element.own.type, pick(datum.type, def_type));
    switch (kind) {
    case Const::MISS:
    case Datum::DATA:
        return drawData(plot, element);
    case Datum::VALUE:
        colorByValue(plot, element, false);
        return drawNumber(plot, element, "%1.0f");
    case Datum::TEXT:
        return drawText(plot, element);
    case Datum::MARK:
        plot.setMarkType(PlotAttr::parseMarker(datum.data));
        plot.drawMark(element.at);
        return;
    case Datum::CLOUD: {
        const char cover = StrLib::equal(datum.data, "OBX") ? 'X' : datum.data[0];
        CloudPlot::draw(plot, element.at, element.size * cloud_size, cover);
        return;
    }
    case Datum::WBARB:
    case Datum::CBARB:
    case Datum::DBARB:
        return drawBarb(plot, element, kind);
    case Datum::VECT:
    case Datum::AVECT:
        return drawArrow(plot, element, kind);
    case Datum::TRACK:
        return drawTrack(plot, element);
    case Datum::SYMB:
        plot.graph.drawSymbol(element.at.x, element.at.y, datum.data, element.size * symbol_size);
        return;
    case Datum::LINE:
        return drawLine(plot, element);
    }
}

int DatumPlot::draw(Plot& plot, const EarthPoint& point, int type, const char* text,
                    const char* attributes) {
    Datum datum;
    datum.set(point, type, text, attributes);
    return draw(plot, datum);
}

int DatumPlot::draw(Plot& plot, const EarthPoint& point, int type, float value,
                    const char* attributes) {
    Datum datum;
    datum.set(point, type, value, attributes);
    return draw(plot, datum);
}

int DatumPlot::draw(Plot& plot, float lat, float lon, int type, const char* text,
                    const char* attributes) {
    return draw(plot, EarthPoint(lat, lon), type, text, attributes);
}

int DatumPlot::draw(Plot& plot, float lat, float lon, int type, float value,
                    const char* attributes) {
    return draw(plot, EarthPoint(lat, lon), type, value, attributes);
}

} // namespace ORV
