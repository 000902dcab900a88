#include "ORV/KmlFile.h"

#include "ORV/File.h"
#include "ORV/FileTool.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"

#include "../frame/SharedLibrary.h"
#include <libxml/parser.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace ORV {
namespace {

// With the method of compression behind it, which no map file in the native form has there.
constexpr const char* gzip_magic = "\x1f\x8b\x08";
constexpr const char* utf8_mark = "\xef\xbb\xbf";
constexpr int parse_options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;

/// libxml2, loaded on demand: a run that reads no KML doesn't pay for loading it.
class Xml : public SharedLibrary {
public:
    static const Xml& get() {
        static const Xml xml;
        return xml;
    }

    decltype(&xmlReadFile) readFile = find("xmlReadFile");
    decltype(&xmlDocGetRootElement) getRoot = find("xmlDocGetRootElement");
    decltype(&xmlReadIO) readIO = find("xmlReadIO");
    decltype(&xmlFreeDoc) freeDoc = find("xmlFreeDoc");

private:
    Xml() : SharedLibrary("libxml2.so.2") {}
};

bool isNamed(const xmlNode* node, const char* name) {
    return std::strcmp(reinterpret_cast<const char*>(node->name), name) == 0;
}

/// The text right inside an element. Entities that a document defines aren't followed: nested ones
/// could grow beyond all bounds.
std::string contentOf(const xmlNode* node) {
    std::string text;
    for (const xmlNode* child = node->children; child; child = child->next)
        if ((child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) &&
            child->content)
            text += reinterpret_cast<const char*>(child->content);
    return text;
}

/// Reads a document that libxml2 can't open by itself, such as a remote one.
xmlDoc* readThrough(const char* path) {
    File file(path, "r");
    return file.isOpen()
               ? Xml::get().readIO([](void* source, char* bytes,
                                      int n) { return static_cast<File*>(source)->read(bytes, n); },
                                   nullptr, &file, path, nullptr, parse_options)
               : nullptr;
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
    probe.read(start, sizeof start - 1);
    return isKml(start);
}

bool KmlFile::isKml(const char* start) {
    if (std::strncmp(start, gzip_magic, std::strlen(gzip_magic)) == 0)
        return true;
    if (std::strncmp(start, utf8_mark, std::strlen(utf8_mark)) == 0)
        start += std::strlen(utf8_mark);
    char word[20] = "";
    Scan::text(start, "%19s", word);
    return StrLib::equal(word, "<?xml", 5) || StrLib::equal(word, "<kml", 4);
}

int KmlFile::open(const char* file_name) {
    close();
    const Xml& xml = Xml::get();
    if (!xml.isLoaded())
        return 0;
    String path;
    FileTool::addUserPath(file_name, path);
    const bool plain = FileTool::isFile(path.get());
    doc.reset(plain ? xml.readFile(path.get(), nullptr, parse_options) : readThrough(path.get()),
              [](void* opened) {
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
        StrLib::copy(name, sizeof name, contentOf(node).c_str());
    } else if (isNamed(node, "LineString")) {
        line = 1;
    } else if (isNamed(node, "coordinates")) {
        scanPoints(contentOf(node).c_str(), data.points);
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
