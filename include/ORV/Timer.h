#pragma once

namespace ORV {

/// Measures the time since init on a clock that never steps back, and waits.
class Timer {
public:
    double start = 0.0; ///< the clock at init, s
    double last = 0.0;  ///< the latest reading of it, s
    float slept = 0.0f; ///< time spent in sleep since init, s

    Timer() { init(); }

    int init();
    /// Seconds since init.
    float elapsed();
    /// Waits when the argument is positive and returns the seconds slept since init; else 0.
    float sleep(float seconds);
};

} // namespace ORV
