#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/Plot.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include "LogoText.h"

namespace ORV {
namespace {

class Alignment {
public:
    const char* name;
    int halign;
    int valign;
};
constexpr Alignment alignments[] = {
    {"ul", 1, 3}, {"uc", 2, 3}, {"ur", 3, 3}, {"cl", 1, 2}, {"cc", 2, 2},
    {"cr", 3, 2}, {"ll", 1, 1}, {"lc", 2, 1}, {"lr", 3, 1},
};

constexpr int default_halign = 1; // of images
constexpr int default_valign = 3;

// The ends of a picture's name that tell its type.
class PictureType {
public:
    const char* end;
    const char* type;
};
constexpr PictureType picture_types[] = {{"gif", "GIF"}, {"png", "PNG"}};

const PictureType* findType(const char* name) {
    for (const PictureType& picture : picture_types)
        if (StrLib::equal(name, picture.end, -3))
            return &picture;
    return nullptr;
}

} // namespace

// No reader of pictures is part of the program yet; to the caller that is a file it can't read.
int Plot::drawImage(const char*, float, float) {
    return 0;
}

int Plot::drawImage(const char* file, float x, float y, const char* align) {
    for (const Alignment& alignment : alignments)
        if (StrLib::equal(align, alignment.name))
            setImageAlign(alignment.halign, alignment.valign);
    return drawImage(file, x, y);
}

int Plot::saveImage(const char* name, const char* type) {
    Orv::outWarning("Unable to save %s file: %s\n", type, name);
    return 0;
}

int Plot::saveImage(const char* name) {
    const PictureType* picture = findType(name);
    return picture ? saveImage(name, picture->type) : 0;
}

// "gif:name" and "png:name", or a name that ends so.
int Plot::saveOutput(const char* output) {
    for (const PictureType& picture : picture_types) {
        if (StrLib::equal(output, picture.end, 3) && StrLib::length(output) > 4)
            return saveImage(output + 4, picture.type);
        if (StrLib::equal(output, picture.end, -3))
            return saveImage(output, picture.type);
    }
    return 0;
}

int Plot::drawLogo(const char* item) {
    LogoText text;
    if (!text.set(item))
        return 0;
    String path;
    FileTool::addPath(Orv::getResrc("image_path"), text.name.c_str(), path);
    message("Logo: %s", path.get());

    graph.activateTran(text.tran);
    const Point at = text.getAnchor(graph.getWindow());
    setImageAlign(text.halign, text.valign);
    if (drawImage(path.get(), at.x, at.y))
        return 1;
    Orv::outWarning("Logo not found: %s\n", path.get());
    return 0;
}

int Plot::drawLogos() {
    if (!logo.valid())
        return 1;
    const int former = graph.getTran();
    const Strings items(logo.get(), ',');
    for (int i = 0; i < items.getNum(); i++)
        drawLogo(items.getString(i));
    setImageAlign(default_halign, default_valign);
    return graph.activateTran(former);
}

} // namespace ORV
