// Two unit names in the first two lines, and the file of conversions behind them.
#include "ORV/Unit.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& input) {
    std::string text = input, names[2];
    for (std::string& name : names) {
        const std::size_t end = text.find('\n');
        name = text.substr(0, end);
        text.erase(0, end == std::string::npos ? end : end + 1);
    }
    makeDatabase("units.lup", text);

    Unit unit;
    const float once = unit.convert(3, names[0].c_str(), names[1].c_str());
    expect(unit.convert(3, names[0].c_str(), names[1].c_str()) == once);
    unit.valid(names[1].c_str(), names[0].c_str());
    String out;
    Unit::scale(names[0].c_str(), 0.01f, names[1].c_str(), out);
    Unit::simplify(out);
    Unit::change(out, names[1].c_str());
}
