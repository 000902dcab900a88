#include "ORV/StatPrior.h"

#include "ORV/StrLib.h"

#include <cstdio>

namespace ORV {
namespace {
/// Heights of the plotted area, in units of 100 km; above row i the limit is i.
constexpr float heights[] = {100, 50, 25, 12.5, 6.5, 3.2, 1.6};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
} // namespace

int StatPrior::set() {
    fixed = false;
    prior = 0;
    for (const float height : heights)
        if (!(size > height))
            prior++;

    if (param[0] == '+' && isDigit(param[1]))
        prior += param[1] - '0';
    else if (param[0] == '-' && isDigit(param[1]))
        prior -= param[1] - '0';
    else if (isDigit(param[0])) {
        prior = param[0] - '0';
        fixed = true;
    }
    return 1;
}

int StatPrior::set(int limit) {
    prior = limit;
    fixed = true;
    return 1;
}

int StatPrior::setSize(float height) {
    size = height;
    return set();
}

int StatPrior::setParam(const char* text) {
    return set(size, text);
}

int StatPrior::set(float height, const char* text) {
    size = height;
    if (!text)
        return 0;
    StrLib::copy(param, sizeof param, text);
    return set();
}

int StatPrior::print() const {
    std::printf("Prior: %s %.1f = %d\n", param, size, prior);
    return 1;
}

} // namespace ORV
