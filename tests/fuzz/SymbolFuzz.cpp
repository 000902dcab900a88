// A symbol file, and every symbol of it walked.
#include "ORV/Symbol.h"

#include "Fuzz.h"

#include <memory>

using namespace ORV;

void fuzz(const std::string& bytes) {
    static const auto symbol = std::make_unique<Symbol>();
    symbol->read(makeFile(bytes));
    for (int i = 0; i < symbol->num; i++) {
        Point point;
        int count = 0;
        expect(symbol->setSymb(symbol->names[i])); // its own name finds it, or one before it
        while (symbol->get(point))
            count++;
        expect(count < Symbol::max_points);
    }
}
