#include "ORV/VarSpec.h"

#include "ORV/DateTool.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include "TextOut.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

namespace ORV {

namespace {

constexpr int parameter = 1;
constexpr int map_or_panel = 6;
constexpr int plot_map = 5;
constexpr int plot_panel = 6;
constexpr int accumulation = 4;
constexpr int label_size = 90;
constexpr int piece_length = 39; // of each part between colons

class FormatWord {
public:
    const char* text;
    int plot;
};

constexpr FormatWord format_words[] = {
    {"plot", 1}, {"cplot", 1}, {"data", 2}, {"value", 2},  {"cf", 3},   {"ln", 3},
    {"lcf", 3},  {"dln", 3},   {"ndln", 3}, {"gvalue", 3}, {"vect", 4}, {"strm", 4},
};

constexpr FormatWord drawing_names[] = {{"map", plot_map}, {"panel", plot_panel}};

// Names whose first bracket is part of the variable.
constexpr const char* bracket_names[] = {"perc", "prob", "ensprob", "ensmean", "ensdev", "ens"};

int findDrawing(const char* abbr) {
    for (const FormatWord& row : drawing_names)
        if (StrLib::equal(abbr, row.text))
            return row.plot;
    return 0;
}

bool ownsBracket(std::string_view spec) {
    if (!spec.empty() && spec.front() == '+')
        spec.remove_prefix(1);
    return std::find(std::begin(bracket_names), std::end(bracket_names), spec) !=
           std::end(bracket_names);
}

// The end of the bracket that opens at `start`, or npos.
std::size_t findClosing(std::string_view text, std::size_t start) {
    int depth = 0;
    for (std::size_t i = start; i < text.size(); ++i) {
        if (text[i] == '[')
            ++depth;
        else if (text[i] == ']' && --depth == 0)
            return i;
    }
    return std::string_view::npos;
}

// A text without white space, cut in front of its bracket of units and options.
class Halves {
public:
    std::string spec;
    std::string attributes;

    explicit Halves(const char* text) {
        std::copy_if(text, text + std::strlen(text), std::back_inserter(spec),
                     [](char c) { return !std::isspace(static_cast<unsigned char>(c)); });
        std::size_t start = spec.find('[');
        if (start != std::string::npos && ownsBracket(std::string_view(spec).substr(0, start))) {
            const std::size_t closing = findClosing(spec, start);
            start = spec.find('[', closing == std::string::npos ? start + 1 : closing);
        }
        if (start == std::string::npos)
            return;
        const std::size_t end = findClosing(spec, start);
        if (end == std::string::npos)
            Orv::outWarning("VarSpec: missing ]\n");
        attributes = spec.substr(start + 1, end == std::string::npos ? end : end - start - 1);
        spec.erase(start);
    }
};

std::string cut(const char* piece) {
    return std::string(piece).substr(0, piece_length);
}

// The time `length` before another; missing when either is.
float before(float time, float length) {
    return time == Const::MISS || length == Const::MISS ? Const::MISS : time - length;
}

float whole(float hours) {
    return hours == Const::MISS ? hours : Scan::toInt(hours);
}

// A statistic asked for, with or without its length, applies to the end of the time there is.
void applyAccumulation(const ForeTime& src, ForeTime& time) {
    time.type = accumulation;
    const float length = whole(src.type_off);
    if (time.tim2 == Const::MISS && time.tim1 != Const::MISS)
        time.tim2 = time.tim1;
    if (time.tim2 != Const::MISS)
        time.tim1 = before(time.tim2, length);
    time.type_off = length;
}

void applyOffset(const ForeTime& src, ForeTime& time) {
    const float offset = whole(src.off);
    if (src.type != accumulation) {
        time.off = offset;
        time.tim2 = Const::MISS;
        return;
    }
    const float length = whole(src.type_off);
    time.type = accumulation;
    time.type_off = src.type_off;
    const float end = time.tim2 != Const::MISS ? time.tim2 : time.tim1;
    if (end == Const::MISS) {
        time.off = offset;
        return;
    }
    time.tim2 = before(end, offset);
    time.tim1 = before(time.tim2, length);
}

// A period known only by its length ends at the time there is.
void applyLength(const ForeTime& src, ForeTime& time) {
    const ForeTime old = time;
    time = src;
    if (old.tim1 == Const::MISS || src.type < 1 || src.type > 8)
        return;
    const float base = old.tim2 != Const::MISS ? old.tim2 : old.tim1;
    const float offset = src.off == Const::MISS ? 0 : src.off;
    time.tim1 = std::max(0.0f, base - src.tim2 - offset);
    time.tim2 = base - offset;
}

void updateTime(const ForeTime& src, ForeTime& time) {
    if (src.tim1 != Const::MISS)
        time = src;
    else if (src.tim2 != Const::MISS)
        applyLength(src, time);
    else if (src.off != Const::MISS)
        applyOffset(src, time);
    else if (src.type == accumulation)
        applyAccumulation(src, time);
    else if (src.type != Const::MISS)
        time.type = src.type;
}

void appendLabel(const String& label, String& out) {
    if (out.valid() && label.valid())
        out.append(' ');
    out.append(label);
}

char letterOf(int i, std::string_view letters) {
    return i >= 1 && i <= static_cast<int>(letters.size())
               ? letters[static_cast<std::size_t>(i - 1)]
               : '-';
}

} // namespace

int VarSpec::init() {
    VarSpec fresh;
    fresh.vname = vname; // what was looked up stays true
    *this = fresh;
    return 1;
}

int VarSpec::decode(const char* text) {
    init();
    type = parameter;
    if (!StrLib::valid(text))
        return 0;
    const Halves halves(text);
    const Strings pieces(halves.spec.c_str(), ':', -1, "");
    const int num = std::max(pieces.getNum(), 1);
    if (num > 4) {
        Orv::outWarning("VarSpec: invalid, wrong number of colons\n");
        return 0;
    }
    const auto piece = [&pieces](int i) {
        return pieces.valid(i) ? cut(pieces.getString(i)) : std::string();
    };
    const int place = num == 1 ? 0 : num == 2 ? 1 : 2;
    if (num >= 3)
        fore.set(piece(0).c_str());
    if (num >= 2)
        level.set(piece(place - 1).c_str());
    const std::string name = piece(place);
    abs = !name.empty() && name.front() == '+';
    var.decode(name.c_str() + (abs ? 1 : 0));
    vname.get(var);
    if (num == 4)
        setUnits(piece(3).c_str());

    if (findDrawing(var.abbr)) {
        type = map_or_panel;
        return setFormat(halves.attributes.c_str());
    }
    const std::size_t comma = halves.attributes.find(',');
    if (const std::string first = halves.attributes.substr(0, comma); !first.empty())
        setUnits(first.c_str());
    return comma == std::string::npos ? 1 : setFormat(halves.attributes.c_str() + comma + 1);
}

int VarSpec::set(const VarSpec& other) {
    if (other.fore.tim1 != Const::MISS || other.fore.tim2 != Const::MISS)
        fore = other.fore;
    if (other.level.l1.lev != Const::MISS)
        level = other.level;
    return 1;
}

int VarSpec::set(const Variable& variable) {
    var = variable;
    return 1;
}

int VarSpec::set(const Level& lev) {
    level = lev;
    return 1;
}

int VarSpec::set(const ForeTime& time) {
    fore = time;
    return 1;
}

int VarSpec::get(Variable& variable) const {
    variable = var;
    return 1;
}

int VarSpec::get(Level& lev) const {
    lev = level;
    return 1;
}

int VarSpec::get(ForeTime& time) const {
    time = fore;
    return 1;
}

int VarSpec::setFore(const char* text) {
    return fore.set(text);
}

int VarSpec::setLevel(const char* text) {
    return level.set(text);
}

int VarSpec::setVar(const char* text) {
    const bool by_index = text && std::isdigit(static_cast<unsigned char>(*text));
    const Variable old = var;
    const int found = by_index ? vname.get(StrLib::toInt(text, 0), var) : vname.get(text, var);
    if (by_index)
        var.setUnits(old.units);
    if (found)
        return 1;
    var.setAbbr(text);
    var.setName(text);
    var.ind = Const::MISS;
    var.setUnits("");
    return 0;
}

int VarSpec::setVar(const char* text, const char* units) {
    const int found = setVar(text);
    setUnits(units);
    return found;
}

int VarSpec::setVar(int ind, const char* units) {
    const int found = vname.get(ind, var);
    if (!found)
        var.type = ind;
    setUnits(units);
    return found;
}

int VarSpec::setUnits(const char* text) {
    return var.setUnits(text);
}

int VarSpec::setFormat(const char* text) {
    StrLib::copy(format, sizeof format, text);
    if (const int drawing = findDrawing(var.abbr))
        plot = drawing;
    const Strings tokens(format, ',');
    for (int i = 0; i < tokens.getNum(); ++i)
        for (const FormatWord& word : format_words)
            if (tokens.equal(i, word.text))
                plot = word.plot;
    return 1;
}

int VarSpec::setType(int kind) {
    type = kind;
    return 1;
}

int VarSpec::setPlot(int kind) {
    plot = kind;
    return 1;
}

int VarSpec::toString(String& out) const {
    String time;
    String lev;
    String variable;
    fore.toString(time);
    level.toString(lev);
    var.toString(variable);
    return setText(out, "%s:%s:%s", time.get(), lev.get(), variable.get());
}

int VarSpec::toForeLabel(String& out) const {
    return fore.toTimeLabel(out);
}

int VarSpec::toLevelLabel(String& out) const {
    return level.toLabel(out);
}

int VarSpec::toVarLabel(String& out) const {
    return var.toLabel(out);
}

int VarSpec::toVarAbbr(String& out) const {
    return var.toAbbrCode(out);
}

int VarSpec::toInfoLabel(String& out) const {
    String time;
    String lev;
    String variable;
    fore.toVarLabel(time);
    level.toLabel(lev);
    var.toLabel(variable);
    out.set(time);
    appendLabel(lev, out);
    appendLabel(variable, out);
    return out.trunc(label_size - 1);
}

int VarSpec::toDateLabel(const Date& date, const Timezone& zone, const char* text,
                         String& out) const {
    const float hours = fore.isSet() ? whole(fore.getFore()) : Const::MISS;
    return DateTool::createLabel(date, zone, text, hours, out);
}

int VarSpec::update(const VarSpec& src, int mask) {
    if (src.type != Const::MISS)
        type = src.type;
    source = src.source;
    abs = src.abs;
    if (src.plot != 1)
        plot = src.plot;
    if (mask & FORE)
        updateTime(src.fore, fore);
    if ((mask & LEVEL) && src.level.l1.lev != Const::MISS)
        level = src.level;
    if (mask & VAR)
        var = src.var;
    if (mask & FORMAT)
        StrLib::copy(format, sizeof format, src.format);
    return 1;
}

int VarSpec::update(const ForeTime& time, const Level& lev) {
    const bool open = !fore.isSet() || fore.tim1 == Const::MISS;
    if (open && (time.tim1 != Const::MISS || time.tim2 != Const::MISS))
        fore = time;
    return update(lev);
}

int VarSpec::update(const Level& lev) {
    if (!level.isSet() && lev.l1.lev != Const::MISS)
        level = lev;
    return 1;
}

int VarSpec::update(const ForeTime& time) {
    const bool empty = time.tim1 == Const::MISS && time.tim2 == Const::MISS;
    if (fore.isSet() || empty)
        return 1;
    const float base = fore.tim1;
    fore = time;
    if (time.tim1 != Const::MISS || base == Const::MISS || time.type <= 0)
        return 1;
    const float offset = time.off == Const::MISS ? 0 : time.off;
    fore.tim1 = base - time.tim2 - offset;
    fore.tim2 = base - offset;
    fore.off = 0;
    return 1;
}

int VarSpec::print() const {
    String text;
    toString(text);
    return Orv::outMessage("VarSpec: %c%c%c %s [%s]\n", letterOf(type, "PVGFWM"),
                           letterOf(plot, "pdcvMP"), abs ? 'A' : '-', text.get(), format);
}

} // namespace ORV
