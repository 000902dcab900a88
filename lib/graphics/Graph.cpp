#include "ORV/Graph.h"

#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Postscript.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"
#include "ORV/XWindow.h"

#include <cstdarg>
#include <cstdio>

namespace ORV {
namespace {
class DeviceKind {
public:
    const char* name;
    int type;
    std::unique_ptr<Device> (*make)();
};

template <class Kind>
std::unique_ptr<Device> makeDevice() {
    return std::make_unique<Kind>();
}

constexpr DeviceKind window_kind = {"display", 1, makeDevice<XWindow>};
constexpr DeviceKind file_kinds[] = {
    {"postscript", 2, makeDevice<Postscript>},
    {"hpgl", 3, nullptr}, // not in this build
    {"meta", 4, nullptr},
};
} // namespace

Graph::Graph() {
    init();
}

Graph::~Graph() {
    close();
}

int Graph::init() {
    open_flag = false;
    cur_tran = 0;
    font_type = 1;
    StrLib::copy(font_name, sizeof font_name, "modern.fnt");
    StrLib::copy(symbol_file, sizeof symbol_file, "wx.smb");
    font_spec[0] = '\0';
    managed = false;
    line_color = fill_color = text_color = mark_color = drop_color = 1;
    line_width = -1;
    line_style = 1;
    fill_style = text_halign = text_valign = text_box_color = drop_shadow = drop_width = 0;
    text_weight = text_expansion = mark_weight = 1;
    text_height = mark_size = 0.01f;
    text_spacing = 0.25f;
    char_width = 0;
    dir_x = 0;
    dir_y = 1;
    mark_type = 1;
    return 1;
}

int Graph::setDevice(std::unique_ptr<Device> ready, int type) {
    close();
    device = std::move(ready);
    device_type = device ? type : 0;
    return device != nullptr;
}

int Graph::setDevice(const char* name, const char* param) {
    const DeviceKind* chosen = &window_kind;
    for (const auto& kind : file_kinds)
        if (StrLib::equal(name, kind.name))
            chosen = &kind;
    if (!setDevice(chosen->make ? chosen->make() : nullptr, chosen->type))
        return 0;
    hfont = Strings(param, ',').find("hfont") >= 0;
    device->setParam(param ? param : "");
    return 1;
}

int Graph::open() {
    init();
    if (!device && !setDevice("display", ""))
        return 0;
    device->setFixed(fixed);
    if (!device->open()) {
        device.reset();
        return 0;
    }
    open_flag = true;
    for (auto& transform : tran)
        transform.set(device->getCoords());

    font_specs.clear();
    fonts.clear();
    symbols.clear();
    if (const GFont* modern = loadFont("modern.fnt"))
        font = *modern;
    String path;
    FileTool::addPath(Orv::getDatabasePath(), symbol_file, path);
    symbol.read(path.get());
    device->addCallback("AnyEvent", this, nullptr);
    return 1;
}

int Graph::close() {
    if (!device)
        return 0;
    if (open_flag)
        device->close();
    open_flag = false;
    // A window is closed by a key, from inside its own event loop: it must outlive that.
    if (managing > 0)
        closing.push_back(std::move(device));
    device.reset();
    return 1;
}

int Graph::manage() {
    if (!device)
        return 0;
    Device* const current = device.get();
    managing++;
    current->update();
    current->manage();
    if (--managing == 0)
        closing.clear();
    managed = device.get() == current;
    return 1;
}

int Graph::unmanage() {
    if (!device)
        return 0;
    device->unmanage();
    managed = false;
    return 1;
}

int Graph::addCallback(const char* type, Listener* listener, const void* client) {
    return device && !managed ? device->addCallback(type, listener, client) : 0;
}

int Graph::doCallback(const char* type, const char* data) {
    return device ? device->doCallback(type, data) : 1;
}

void Graph::callback(const char* type, const char*, const void*) {
    if (!device || !StrLib::equal(type, "Redraw"))
        return;
    for (auto& transform : tran)
        transform.resize(device->getCoords());
    activateTran();
}

int Graph::getDevice(String& name) {
    return device ? device->getDevice(name) : 0;
}

int Graph::update() {
    return device ? device->update() : 0;
}

int Graph::clear() {
    return device ? device->clear() : 0;
}

int Graph::clearRect(const Rect& area) {
    if (!device)
        return 0;
    Rect device_area;
    device_area.setu(cur().windowToDeviceX(area.xmin), cur().windowToDeviceY(area.ymax),
                     cur().windowToDeviceX(area.xmax), cur().windowToDeviceY(area.ymin));
    return device->clearRect(device_area);
}

int Graph::newFrame() {
    if (!device)
        return 0;
    device->displayFrame(-1);
    device->newFrame(-1);
    return device->setFrame(-1);
}

bool Graph::isLooping() {
    return device && device->isLooping();
}

int Graph::getFrame() {
    return device ? device->getFrame() : 0;
}

int Graph::setFrame(int frame) {
    return device ? device->setFrame(frame) : 0;
}

int Graph::deleteFrame(int frame) {
    return device ? device->deleteFrame(frame) : 0;
}

int Graph::getNumFrames() {
    return device ? device->getNumFrames() : 0;
}

int Graph::bell() {
    return device ? device->bell(0) : 0;
}

int Graph::setCursor(int cursor) {
    return device ? device->setCursor(cursor) : 0;
}

int Graph::message(const char* format, ...) {
    if (!device)
        return 0;
    char text[101];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    return device->message(text);
}

int Graph::setSize(float width, float height) {
    return device ? device->setSize(width, height) : 0;
}

int Graph::setOffset(float x, float y) {
    return device ? device->setOffset(x, y) : 0;
}

int Graph::setInverse(bool inverse) {
    return device ? device->setInverse(inverse) : 0;
}

bool Graph::getInverse() {
    return device && device->getInverse();
}

int Graph::setBackground(const char* color) {
    return device ? device->setBackground(color) : 0;
}

int Graph::setIcon(bool icon) {
    return device ? device->setIcon(icon) : 0;
}

int Graph::setTitle(const char* title) {
    return device ? device->setTitle(title) : 0;
}

int Graph::setFixed(bool keep) {
    fixed = keep;
    return 1;
}

int Graph::allocColor(float red, float grn, float blu) {
    return device ? device->allocColor(red, grn, blu) : 0;
}

int Graph::allocColor(const RGB& color) {
    return allocColor(color.red, color.grn, color.blu);
}

} // namespace ORV
