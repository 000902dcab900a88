#include "ORV/Const.h"
#include "ORV/Graph.h"

#include <cmath>

namespace ORV {
namespace {
enum Context { line = 1, mark = 2, fill = 3 };

// One polyline of a mark shape, in half sizes around the point; count of points, then x, y.
class MarkStroke {
public:
    int type;
    int num;
    float at[13][2];
};

constexpr float half = 0.5f, high = 0.866f; // of a circle by steps of 30 degrees
constexpr MarkStroke mark_strokes[] = {
    {1, 5, {{0, 0}, {0.2f, 0}, {0.2f, 0.2f}, {0, 0.2f}, {0, 0}}},
    {2, 2, {{-1, 0}, {1, 0}}},
    {2, 2, {{0, -1}, {0, 1}}},
    {3, 2, {{-1, 0}, {1, 0}}},
    {3, 2, {{-1, -1}, {1, 1}}},
    {3, 2, {{0, 1}, {0, -1}}},
    {3, 2, {{1, -1}, {-1, 1}}},
    {4,
     13,
     {{-1, 0},
      {-high, half},
      {-half, high},
      {0, 1},
      {half, high},
      {high, half},
      {1, 0},
      {high, -half},
      {half, -high},
      {0, -1},
      {-half, -high},
      {-high, -half},
      {-1, 0}}},
    {5, 2, {{-1, -1}, {1, 1}}},
    {5, 2, {{1, -1}, {-1, 1}}},
    {6, 5, {{-1, 1}, {1, 1}, {1, -1}, {-1, -1}, {-1, 1}}},
    {7, 4, {{-1, -1}, {1, -1}, {0, 1}, {-1, -1}}},
    {8, 2, {{0, 0}, {0.1f, 0.1f}}},
    {9, 4, {{-1, 1}, {1, 1}, {0, -1}, {-1, 1}}},
    {10, 4, {{0, 1}, {0.5f, 0}, {-0.5f, 0}, {0, -1}}},
};
} // namespace

int Graph::drawLine(float x1, float y1, float x2, float y2) {
    if (!device)
        return 0;
    return device->drawLine(line, cur().windowToDeviceX(x1), cur().windowToDeviceY(y1),
                            cur().windowToDeviceX(x2), cur().windowToDeviceY(y2));
}

// Draws the line in work drop_shadow times, each one device unit further.
void Graph::drawShadow() {
    device->setColor(line, drop_color);
    device->setLineWidth(line, static_cast<float>(drop_width));
    for (int i = 0; i < drop_shadow; i++) {
        work.offset(1, 1);
        device->drawLine(line, work);
    }
    device->setLineWidth(line, line_width);
    device->setColor(line, line_color);
    work.offset(static_cast<float>(-drop_shadow), static_cast<float>(-drop_shadow));
}

int Graph::drawLine(const Points& points) {
    if (!device || points.num < 2 || !cur().isPointsInWindow(points))
        return 0;
    cur().windowToDevice(points, work);
    if (drop_shadow > 0)
        drawShadow();
    return device->drawLine(line, work);
}

int Graph::drawRect(const Rect& r) {
    return drawRect(r.xmin, r.ymin, r.xmax, r.ymax);
}

int Graph::drawRect(float x1, float y1, float x2, float y2) {
    if (!device)
        return 0;
    Points corners(5);
    corners.add(x1, y1);
    corners.add(x2, y1);
    corners.add(x2, y2);
    corners.add(x1, y2);
    corners.add(x1, y1);
    cur().windowToDevice(corners, work);
    return device->drawLine(line, work);
}

int Graph::drawCircle(float x, float y, float radius) {
    if (!device)
        return 0;
    work.clear();
    for (int degree = 0; degree <= 360; degree += 5) {
        const double angle = degree * Const::DRC;
        work.add(cur().windowToDeviceX(static_cast<float>(x + radius * std::sin(angle))),
                 cur().windowToDeviceY(static_cast<float>(y + radius * std::cos(angle))));
    }
    return device->drawLine(line, work);
}

int Graph::drawFill(const Points& points) {
    if (!device || points.num < 2 || !cur().isPointsInWindow(points))
        return 0;
    cur().windowToDevice(points, work);
    return device->drawFill(fill, work);
}

int Graph::drawFill(const Rect& r) {
    Points corners(5);
    corners.add(r.xmin, r.ymin);
    corners.add(r.xmin, r.ymax);
    corners.add(r.xmax, r.ymax);
    corners.add(r.xmax, r.ymin);
    corners.add(r.xmin, r.ymin);
    return drawFill(corners);
}

int Graph::drawMarkLine(float x, float y, float size) {
    if (!device)
        return 0;
    const float h = size / 2;
    for (const auto& stroke : mark_strokes) {
        if (stroke.type != mark_type)
            continue;
        work.clear();
        for (int i = 0; i < stroke.num; i++)
            work.add(cur().windowToDeviceX(x + stroke.at[i][0] * h),
                     cur().windowToDeviceY(y + stroke.at[i][1] * h));
        device->drawLine(mark, work);
    }
    return 1;
}

// One device unit in window units; negative where the axes run against each other.
Point Graph::pixelSize() const {
    return Point(1 / (cur().scale.x * cur().plot_scale.x),
                 -1 / (cur().scale.y * cur().plot_scale.y));
}

int Graph::drawMark(float x, float y) {
    if (!device)
        return 0;
    if (drop_shadow > 0) {
        const Point pixel = pixelSize();
        device->setColor(mark, drop_color);
        for (int i = 0; i < drop_shadow; i++)
            drawMarkLine(x + i * pixel.x, y + i * pixel.y, mark_size);
        device->setColor(mark, mark_color);
    }
    return drawMarkLine(x, y, mark_size);
}

int Graph::drawSymbol(float x, float y, const char* name, float size) {
    if (!device || !symbol.setSymb(name))
        return 0;
    if (text_halign == 2 || text_halign == 3)
        x -= text_halign == 3 ? size : size / 2;
    if (text_valign >= 1 && text_valign <= 3)
        y -= text_valign == 3 ? size / 2 : size;

    Points stroke;
    Point point;
    for (int step = symbol.get(point); step != 0; step = symbol.get(point)) {
        if (step == 1) {
            stroke.add(size * point.x + x, size * point.y + y);
            continue;
        }
        if (step == 2)
            drawLine(stroke);
        else
            drawFill(stroke);
        stroke.clear();
    }
    return 1;
}

int Graph::drawImage(Image& image, float x, float y) {
    return device ? device->drawImage(image, cur().windowToDeviceX(x), cur().windowToDeviceY(y))
                  : 0;
}

int Graph::drawImage(Image& image, int mode, float x, float y) {
    return device
               ? device->drawImage(image, mode, cur().windowToDeviceX(x), cur().windowToDeviceY(y))
               : 0;
}

int Graph::getImage(Image& image) {
    return device ? device->getImage(image) : 0;
}

} // namespace ORV
