#include "ORV/Timer.h"

#include <chrono>
#include <thread>

namespace ORV {
namespace {
double readClock() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}
} // namespace

int Timer::init() {
    start = last = readClock();
    slept = 0.0f;
    return 1;
}

float Timer::elapsed() {
    last = readClock();
    return static_cast<float>(last - start);
}

float Timer::sleep(float seconds) {
    if (!(seconds > 0))
        return 0.0f;
    slept += seconds;
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    return slept;
}

} // namespace ORV
