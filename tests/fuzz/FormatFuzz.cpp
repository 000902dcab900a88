// A format of a user.
#include "ORV/Format.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& format) {
    char text[16];
    String grown;
    Format::print(text, sizeof text, format.c_str(), 1013.25f);
    Format::print(text, sizeof text, format.c_str(), "text", 7);
    Format::print(grown, format.c_str());
    Format::print(grown, format.c_str(), "text");
    Format::print(grown, format.c_str(), 42L);
}
