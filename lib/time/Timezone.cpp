#include "ORV/Timezone.h"

#include "ORV/Scan.h"
#include "ORV/StrLib.h"

#include <cmath>

namespace ORV {
namespace {
constexpr int max_name = 4;
constexpr float max_hours = 1000; // beyond any zone
} // namespace

int Timezone::set(const char* text) {
    *this = Timezone();
    if (!StrLib::valid(text))
        return 0;
    if (*text == '-' || *text == '+')
        pm = *text++ == '-' ? -1 : 1;

    const int length = StrLib::index(text, ':');
    float hours = Const::MISS;
    const char* number = text + length + 1;
    if (length < 1 || length > max_name || !Scan::number(number, hours) ||
        std::abs(hours) > max_hours) {
        *this = Timezone();
        return 0;
    }
    StrLib::copy(name, length + 1, text);
    offset = static_cast<int>(3600 * hours);
    return 1;
}

} // namespace ORV
