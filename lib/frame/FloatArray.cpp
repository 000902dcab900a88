#include "ORV/FloatArray.h"

#include "ORV/Scan.h"
#include "ORV/Strings.h"

namespace ORV {
namespace {
constexpr int max_values = 100000; // of an array that series fill

void addSeries(FloatArray& list, float first, float end, float step) {
    const auto passes_end = [=](float value) { return step < 0 ? value < end : value > end; };
    for (int k = 0; list.num < max_values; k++) {
        // From the start each time: a sum of float steps would lose the end of "0-1/0.1".
        const auto value = static_cast<float>(first + k * static_cast<double>(step));
        if (passes_end(value))
            return;
        list.add(value);
        if (step == 0)
            return;
    }
}
} // namespace

int FloatArray::set(const char* text) {
    const Strings tokens(text, ',');
    for (int i = 0; i < tokens.getNum(); i++) {
        float first, end, step;
        if (Scan::text(tokens.getString(i), "%f-%f/%f", &first, &end, &step) == 3)
            addSeries(*this, first, end, step);
        else
            add(tokens.getFloat(i));
    }
    return tokens.getNum() > 0;
}

int FloatArray::offset(int i, float d) {
    const int at = place(i);
    if (at >= 0 && vals[at] != Const::MISS)
        vals[at] += d;
    return at >= 0;
}

} // namespace ORV
