#include "ORV/Figure.h"

#include "ORV/Drawing.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <algorithm>
#include <string>

namespace ORV {
namespace {

constexpr int max_series = 1000; // forecast times of one series
constexpr int max_minutes = 60 * 24 * 366;

class Keyword {
public:
    const char* text;
    int length; // characters that decide; of a whole word its terminator too
    void (*set)(Figure& figure, const Strings& items, int i);
};

// The whole number from a position on, 0 when there is none.
int numberAt(const Strings& items, int i, int pos) {
    const char* text = items.getString(i, pos);
    int value = 0;
    if (text)
        Scan::integer(text, value);
    return value;
}

constexpr Keyword keywords[] = {
    {"fi", 2, [](Figure& f, const Strings& s, int i) { f.file.copy(s.getStringAfter(i, '=')); }},
    {"ref", 3,
     [](Figure& f, const Strings& s, int i) {
         const char* period = s.getStringAfter(i, '=');
         f.refresh = period ? StrLib::toInt(period, 0) : 1;
     }},
    {"norefresh", 10, [](Figure& f, const Strings&, int) { f.refresh = 0; }},
    {"nf", 2, [](Figure& f, const Strings& s, int i) { f.num_frames = numberAt(s, i, 3); }},
    {"nobord", 7, [](Figure& f, const Strings&, int) { f.border = 0; }},
    {"linc", 4,
     [](Figure& f, const Strings& s, int i) {
         f.date_inc = std::clamp(numberAt(s, i, 5), -max_minutes, max_minutes) * 60;
     }},
};

} // namespace

Figure::Figure(const char* param) {
    init();
    setParam(param);
    open(param);
}

int Figure::init() {
    file.clear();
    fore_time.clear();
    date.init();
    last_date.init();
    domain.init();
    state = -1;
    num_frames = -1;
    num_loop = 0;
    loop_type = 1;
    date_inc = -1;
    border = 1;
    refresh = 0;
    if (const char* time = Orv::getResrc("time"))
        setForeTime(time);
    return setParam(Orv::getResrc("parameter"));
}

int Figure::setParam(const char* param) {
    const Strings items(param, ',');
    for (int i = 0; i < items.getNum(); i++)
        for (const Keyword& keyword : keywords)
            if (items.equal(i, keyword.text, keyword.length)) {
                keyword.set(*this, items, i);
                break;
            }
    return 1;
}

int Figure::open() {
    state = -1;
    return open("");
}

int Figure::open(const char* param) {
    plot.graph.setFixed(false);
    setParam(param);
    const int opened = plot.open(param);
    plot.addCallback("AnyEvent", this, "Figure");
    return opened;
}

int Figure::close() {
    plot.close();
    state = -1;
    return clearQueue();
}

int Figure::setForeTime(const char* text) {
    int first, last, step;
    if (!text || Scan::text(text, "%d-%d/%d", &first, &last, &step) != 3 || step < 1)
        return fore_time.copy(text);
    int num = 0;
    for (long long time = first; time <= last && num < max_series; time += step, num++) {
        if (fore_time.valid())
            fore_time.append(',');
        fore_time.append(std::to_string(time).c_str());
    }
    return 1;
}

int Figure::setDate(const Date& base) {
    date = base;
    state = 0;
    num_frames = 1;
    return 1;
}

int Figure::setDate(const Date& base, int inc, int frames) {
    date = base;
    date_inc = inc;
    num_frames = frames;
    state = 0;
    if (inc < 0) {
        date.set(base.getSeconds() + static_cast<long>(frames) * inc);
        date_inc = -std::max(inc, -max_minutes * 60);
    }
    return 1;
}

int Figure::setLoopType(int type) {
    loop_type = type;
    return 1;
}

int Figure::setDomain(const Domain& dom) {
    domain = dom;
    return plot.setDomain(dom);
}

int Figure::startPlot(const Domain& dom) {
    domain = dom;
    return plot.setPanel(dom);
}

int Figure::startPlot(const Rect& rect, const Domain& dom) {
    domain = dom;
    return plot.setPanel(rect, dom);
}

int Figure::addItem(std::unique_ptr<FigureItem> item) {
    std::unique_ptr<FigureItem>* end = &queue;
    while (*end)
        end = &(*end)->next;
    *end = std::move(item);
    return 1;
}

int Figure::addDrawing(Drawing& drawing) {
    auto item = std::make_unique<FigureItem>();
    item->drawing = &drawing;
    return addItem(std::move(item));
}

int Figure::addPanel(const char* text) {
    auto item = std::make_unique<FigureItem>();
    item->type = 1;
    item->panel = StrLib::own(text ? text : "");
    return addItem(std::move(item));
}

int Figure::clearQueue() {
    // One by one: freed from the head, a long queue would go down the stack.
    while (queue)
        queue = std::move(queue->next);
    return 1;
}

int Figure::manage() {
    last_refresh = std::time(nullptr);
    return plot.manage();
}

} // namespace ORV
