// A font file, and every character of it drawn.
#include "ORV/GFont.h"

#include "Fuzz.h"

#include <memory>

using namespace ORV;

void fuzz(const std::string& bytes) {
    static const auto font = std::make_unique<GFont>(nullptr);
    font->read(makeFile(bytes));
    for (int c = 0; c < 256; c++) {
        Point point;
        int count = 0;
        if (font->setChar(static_cast<char>(c)))
            while (font->get(point))
                count++;
        expect(count < GFont::max_points);
    }
    font->read(("#" + bytes).c_str());
}
