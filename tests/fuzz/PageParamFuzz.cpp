// The device text of a page.
#include "ORV/Postscript.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& text) {
    Postscript page;
    page.setParam(text.c_str());
    page.setTitle(text.c_str());
    expect(page.width > 0 && page.height > 0 && page.scale > 0 && page.lwidth > 0);
}
