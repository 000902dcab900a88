// A symbol file, and every symbol of it walked.
#include "ORV/Orv.h"
#include "ORV/Symbol.h"

#include "MemoryFile.h"

#include <cstdlib>
#include <memory>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static MemoryFile file("symbols");
    static const auto symbol = std::make_unique<Symbol>();
    Orv::setMessageLevel(0);
    symbol->read(file.fill(bytes, size));
    for (int i = 0; i < symbol->num; i++) {
        Point point;
        int count = 0;
        if (!symbol->setSymb(symbol->names[i]))
            std::abort(); // its own name must find it, or one before it
        while (symbol->get(point))
            count++;
        if (count >= Symbol::max_points)
            std::abort();
    }
    return 0;
}
