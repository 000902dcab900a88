#include "ORV/ColorFile.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/Prog.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <cctype>
#include <string>

namespace ORV {
namespace {

/// The kinds of output that a device text can ask for by its first letter; a letter that isn't
/// here means the first. Graph::setDevice makes the device by its name, and says whether this
/// build has it.
class DeviceKind {
public:
    char letter;
    const char* name;
    const char* label;
};
constexpr DeviceKind device_kinds[] = {
    {'w', "display", "window"},
    {'p', "postscript", "PostScript page"},
    {'h', "hpgl", "HPGL plotter"},
    {'m', "meta", "metafile"},
};

const DeviceKind& findKind(char letter) {
    const int lower = std::tolower(static_cast<unsigned char>(letter));
    for (const DeviceKind& kind : device_kinds)
        if (kind.letter == lower)
            return kind;
    return device_kinds[0];
}

constexpr int color_capacity = 512;

// The text behind the key of the last item that begins with it ("de=", "ge=", "ct="), or null.
const char* findItem(const Strings& items, const char* key) {
    for (int i = items.getNum() - 1; i >= 0; i--)
        if (items.equal(i, key, 3))
            return items.getString(i) + 3;
    return nullptr;
}

// The device's part of a text that serves the plot as well: all but the item that chose the
// device, so that in "de=p,page.ps" the device finds its file name first.
std::string withoutChoice(const Strings& items) {
    std::string text;
    bool first = true;
    for (int i = 0; i < items.getNum(); i++) {
        if (items.equal(i, "de=", 3))
            continue;
        // What comes first is a name to the devices, and a "key=value" isn't meant as one.
        if (!first || items.index(i, '=') >= 0)
            text += ',';
        first = false;
        if (items.getString(i))
            text += items.getString(i);
    }
    return text;
}

bool isPicture(const char* output) {
    for (const char* type : {"gif", "png"})
        if (StrLib::equal(output, type, 3) || StrLib::equal(output, type, -3))
            return true;
    return false;
}

} // namespace

int Plot::setDevice(char letter, const char* param) {
    const DeviceKind& kind = findKind(letter);
    if (graph.setDevice(kind.name, param))
        return 1;
    Orv::outError("%s: this program has no %s device; draw to a file with -de p,file.ps\n",
                  Orv::getProgramName(), kind.label);
    Orv::exit(Orv::NOGRAPH);
}

int Plot::setDevice(const char* param) {
    const Strings items(param, ',');
    const char* item = findItem(items, "de=");
    const char* text = item ? item : Orv::getResrc("device");
    if (StrLib::valid(text)) {
        const int comma = StrLib::index(text, ',');
        return comma >= 0 ? setDevice(*text, text + comma + 1)
                          : setDevice(*text, item ? withoutChoice(items).c_str() : param);
    }
    if (!Orv::getResrc("inter"))
        return setDevice(device_kinds[0].letter, nullptr);
    String answer;
    Prog::prompt("Display (D) or Postscript (P): ", answer);
    return setDevice(answer.getChar(0), nullptr);
}

int Plot::setGeometry(const char* text) {
    GeomBox box;
    const int what = decodeGeometryStr(text, box);
    if (what == 1 || what == 2)
        graph.setSize(box.width, box.height);
    if (what == 2 || what == 3)
        graph.setOffset(box.x, box.y);
    return what;
}

int Plot::setDeviceResrc() {
    if (Orv::getResrcBool("inverse"))
        graph.setInverse(true);
    if (StrLib::valid(Orv::getResrc("background")))
        graph.setBackground(Orv::getResrc("background"));
    if (Orv::getResrcBool("icon"))
        graph.setIcon(true);

    const char* name = Orv::getResrc("title");
    if (!StrLib::valid(name)) {
        name = Orv::getResrc("name", Orv::getProgramName());
        if (*name == '+')
            name++;
    }
    StrLib::copy(title, sizeof title, name);
    return *title ? graph.setTitle(title) : 1;
}

int Plot::open(const char* param) {
    init();
    const Strings items(param, ',');
    // A device that the graph was given ready stays; the others are chosen here.
    if (!graph.device)
        setDevice(param);
    const char* geometry = findItem(items, "ge=");
    setGeometry(geometry ? geometry : Orv::getResrc("geometry"));
    setDeviceResrc();
    image_output = isPicture(Orv::getResrc("output"));

    if (const char* logos = Orv::getResrc("logo"))
        logo.copy(logos);
    if (const char* draw = Orv::getResrc("draw"))
        setDrawing(draw);
    if (const char* zone = Orv::getResrc("timezone"))
        timezone.set(zone);
    setParam(Orv::getResrc("parameter"));
    setParam(param);

    if (!graph.open())
        return 0;
    const char* table = findItem(items, "ct=");
    colors.init(color_capacity);
    ColorFile::read(table ? table : Orv::getResrc("color_table", "orv.clr"), colors);
    for (int i = 0; i < colors.getNum(); i++)
        allocColor(i);

    graph.addCallback("AnyEvent", this, nullptr);
    return initPanel();
}

int Plot::decodeGeometryStr(const char* text, GeomBox& box) {
    constexpr float unset = Const::MISS;
    float width = unset, height = unset, x = unset, y = unset;
    char xsign[2] = "", ysign[2] = "";
    const int num =
        Scan::text(text, "%fx%f%1[-+]%f%1[-+]%f", &width, &height, xsign, &x, ysign, &y);
    int what = 0;
    if (num == 6)
        what = 2;
    else if (num == 2)
        what = 1;
    else if (Scan::text(text, "%1[-+]%f%1[-+]%f", xsign, &x, ysign, &y) == 4) {
        what = 3;
        width = height = unset;
    }
    if (what == 0)
        return 0;
    if (what != 1) {
        x = *xsign == '-' ? -x : x;
        y = *ysign == '-' ? -y : y;
    }
    return box.set(x, y, width, height) ? what : 0;
}

} // namespace ORV
