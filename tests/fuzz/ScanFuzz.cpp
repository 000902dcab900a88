// Numbers and records of a text.
#include "ORV/Scan.h"

#include "Fuzz.h"

#include <cmath>

using namespace ORV;

void fuzz(const std::string& text) {
    const char* p = text.c_str();
    int whole = 0, used = 0;
    short narrow = 0;
    unsigned hex = 0;
    long wide = 0;
    float real = 0;
    double number = 0;
    char word[9], set[9], chars[3];
    Scan::text(p, "%8s %8[^]a-f] %3c%n", word, set, chars, &used);
    Scan::text(p, "%2d%2hd%f-%lf/%ld", &whole, &narrow, &real, &number, &wide);
    Scan::text(p, "#%x %*s %d%%%n", &hex, &whole, &used);
    const int passed = Scan::number(p, number);
    expect(passed >= 0 && passed <= static_cast<int>(text.size()) && std::isfinite(number));
    Scan::integer(p, whole, 3);
    Scan::toInt(number);
}
