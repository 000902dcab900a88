#include "Polygon.h"

#include <algorithm>

namespace ORV {
namespace {
// Where the edge from vertex i - 1 to i crosses the line y = level. A level edge has no crossing,
// since its t is infinite or no number.
bool crosses(const Polygon& p, int i, float level, float& crossing) {
    const float t = (level - p.y[i - 1]) / (p.y[i] - p.y[i - 1]);
    crossing = t * (p.x[i] - p.x[i - 1]) + p.x[i - 1];
    return t > 0 && t <= 1;
}

float middle(float a, float b) {
    return (a + b) * 0.5f;
}

// The middle of a stretch of y = level inside of the polygon; left and right come in as the ends of
// the bounding box. turned tells that x and y of the polygon are exchanged.
float centerOn(const Polygon& p, bool turned, float level, float left, float right) {
    int num_crossing = 0;
    for (int i = 1; i < p.num; i++) {
        float crossing;
        if (!crosses(p, i, level, crossing))
            continue;
        num_crossing++;
        if (num_crossing == 1) {
            left = crossing;
            continue;
        }
        right = crossing;
        const float mid = middle(left, right);
        if (turned ? Polygon{p.y, p.x, p.num}.within(level, mid) : p.within(mid, level))
            return mid;
        left = right;
    }
    if (num_crossing == 1) {
        // The chain is open: its other crossing is with the edge that would close it.
        const int last = p.num - 1;
        const float t = (level - p.y[last]) / (p.y[0] - p.y[last]);
        right = t * (p.x[0] - p.x[last]) + p.x[last];
    }
    return middle(left, right);
}
} // namespace

bool Polygon::within(float px, float py) const {
    int num_left = 0, num_right = 0;
    for (int i = 1; i < num; i++) {
        float crossing;
        if (!crosses(*this, i, py, crossing))
            continue;
        if (px > crossing)
            num_left++;
        else
            num_right++;
    }
    return num_left % 2 == 1 && num_right > 0;
}

bool Polygon::getCenter(float& cx, float& cy) const {
    if (num < 3)
        return false;
    const auto [xmin, xmax] = std::minmax_element(x, x + num);
    const auto [ymin, ymax] = std::minmax_element(y, y + num);
    if (*xmax - *xmin <= *ymax - *ymin) {
        cy = middle(*ymin, *ymax);
        cx = centerOn(*this, false, cy, *xmin, *xmax);
    } else {
        cx = middle(*xmin, *xmax);
        cy = centerOn({y, x, num}, true, cx, *ymin, *ymax);
    }
    return true;
}

void Polygon::getCentroid(float& cx, float& cy) const {
    double sum_x = 0, sum_y = 0;
    int count = 0;
    for (int i = 0; i < num; i++) {
        if (i > 0 && x[i] == x[0] && y[i] == y[0])
            continue;
        sum_x += x[i];
        sum_y += y[i];
        count++;
    }
    cx = count > 0 ? static_cast<float>(sum_x / count) : 0;
    cy = count > 0 ? static_cast<float>(sum_y / count) : 0;
}

} // namespace ORV
