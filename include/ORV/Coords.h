#pragma once

#include "ORV/Const.h"

namespace ORV {

/// Two corners of an area with their differences, x2 - x1 and y2 - y1. Const::MISS until set.
class Coords {
public:
    float x1 = Const::MISS;
    float y1 = Const::MISS;
    float x2 = Const::MISS;
    float y2 = Const::MISS;
    float dx = Const::MISS;
    float dy = Const::MISS;

    Coords() = default;
    Coords(float px1, float py1, float px2, float py2) { set(px1, py1, px2, py2); }

    int init() {
        *this = Coords();
        return 1;
    }
    int set(float px1, float py1, float px2, float py2) {
        x1 = px1;
        y1 = py1;
        x2 = px2;
        y2 = py2;
        dx = x2 - x1;
        dy = y2 - y1;
        return 1;
    }
};

} // namespace ORV
