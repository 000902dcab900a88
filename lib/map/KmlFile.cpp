#include "ORV/KmlFile.h"

#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"

#include <dlfcn.h>
#include <libxml/parser.h>

#include <algorithm>
#include <cstring>

namespace ORV {
namespace {

constexpr unsigned char gzip_magic[] = {0x1f, 0x8b};
constexpr int parse_options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;

/// libxml2, loaded on demand: a run that reads no KML doesn't pay for loading it.
class Xml {
public:
    static const Xml& get() {
        static const Xml xml;
        return xml;
    }
    bool isLoaded() const { return loaded; }

    decltype(&xmlReadFile) readFile = nullptr;
    decltype(&xmlDocGetRootElement) getRoot = nullptr;
    decltype(&xmlNodeGetContent) getContent = nullptr;
    decltype(&xmlFreeDoc) freeDoc = nullptr;
    xmlFreeFunc* freeText = nullptr;

private:
    Xml() : library(dlopen("libxml2.so.2", RTLD_NOW | RTLD_LOCAL)) {
        loaded = library && load(readFile, "xmlReadFile") &&
                 load(getRoot, "xmlDocGetRootElement") && load(getContent, "xmlNodeGetContent") &&
                 load(freeDoc, "xmlFreeDoc") && load(freeText, "xmlFree");
    }
    template <class Symbol>
    bool load(Symbol& symbol, const char* name) {
        symbol = reinterpret_cast<Symbol>(dlsym(library, name));
        return symbol != nullptr;
    }

    void* library; // stays for the life of the process, as libxml2's own state does
    bool loaded = false;
};

bool isNamed(const xmlNode* node, const char* name) {
    return std::strcmp(reinterpret_cast<const char*>(node->name), name) == 0;
}

using Content = std::unique_ptr<xmlChar, xmlFreeFunc>;

Content contentOf(xmlNode* node) {
    return Content(Xml::get().getContent(node), *Xml::get().freeText);
}

const char* textOf(const Content& content) {
    return content ? reinterpret_cast<const char*>(content.get()) : "";
}

/// Reads "lon,lat" or "lon,lat,height", and returns the characters passed.
int scanPoint(const char* text, EarthPoint& point) {
    int at = Scan::number(text, point.lon);
    if (at == 0 || text[at] != ',')
        return 0;
    at++;
    int passed = Scan::number(text + at, point.lat);
    if (passed == 0)
        return 0;
    at += passed;
    float height;
    if (text[at] == ',' && (passed = Scan::number(text + at + 1, height)) > 0)
        at += 1 + passed;
    return at;
}

void scanPoints(const char* text, EarthPoints& points) {
    points.clear();
    points.expand(static_cast<int>(std::count(text, text + std::strlen(text), ',')));
    EarthPoint point;
    while (const int passed = scanPoint(text, point)) {
        points.add(point);
        text += passed;
    }
}

} // namespace

int KmlFile::checkType(const char* name) {
    File probe(name, "r");
    if (!probe.isOpen())
        return -1;
    char start[100] = "";
    const int got = probe.read(start, sizeof start - 1);
    start[got > 0 ? got : 0] = 0;
    char word[20] = "";
    Scan::text(start, "%19s", word);
    return std::memcmp(start, gzip_magic, sizeof gzip_magic) == 0 ||
           StrLib::equal(word, "<?xml", 5);
}

int KmlFile::open(const char* file_name) {
    close();
    const Xml& xml = Xml::get();
    if (!xml.isLoaded())
        return 0;
    String path;
    FileTool::addUserPath(file_name, path);
    doc.reset(xml.readFile(path.get(), nullptr, parse_options), [](void* opened) {
        if (opened)
            Xml::get().freeDoc(static_cast<xmlDoc*>(opened));
    });
    node = doc ? xml.getRoot(static_cast<xmlDoc*>(doc.get())) : nullptr;
    if (!node || !isNamed(node, "kml"))
        return close(), 0;
    open_flag = true;
    return 1;
}

int KmlFile::close() {
    open_flag = false;
    level = line = 0;
    name[0] = 0;
    node = nullptr;
    doc.reset();
    return 1;
}

/// Goes to the next node of the document, depth first.
void KmlFile::advance() {
    if (node->children && node->type == XML_ELEMENT_NODE) {
        node = node->children;
        level++;
        return;
    }
    while (!node->next) {
        node = level > 0 ? node->parent : nullptr;
        level--;
        if (!node)
            return;
    }
    node = level > 0 ? node->next : nullptr;
}

void KmlFile::enter(KmlData& data, bool& found) {
    if (node->type != XML_ELEMENT_NODE)
        return;
    if (isNamed(node, "Placemark")) {
        name[0] = 0;
        line = 0;
    } else if (isNamed(node, "name")) {
        StrLib::copy(name, sizeof name, textOf(contentOf(node)));
    } else if (isNamed(node, "LineString")) {
        line = 1;
    } else if (isNamed(node, "coordinates")) {
        scanPoints(textOf(contentOf(node)), data.points);
        StrLib::copy(data.name, sizeof data.name, name);
        data.type = line;
        found = true;
    }
}

int KmlFile::read(KmlData& data) {
    bool found = false;
    while (open_flag && node && !found) {
        enter(data, found);
        advance();
    }
    return found;
}

} // namespace ORV
