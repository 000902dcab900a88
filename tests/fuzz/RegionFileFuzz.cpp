// A region file.
#include "ORV/DomainTool.h"
#include "ORV/DomainVal.h"
#include "ORV/Region.h"
#include "ORV/String.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& bytes) {
    Orv::putResrc("city_file", "none");
    makeDatabase("orv.reg", bytes);
    String text;
    Region::get(nullptr, nullptr, text);
    Region::get(nullptr, "us", text);
    expect(text.length() <= 79);
    DomainVal val;
    DomainTool::decode(val, "orv.reg:a");
}
