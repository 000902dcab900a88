#include "ORV/Spline.h"

#include "ORV/Const.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ORV;

namespace {

// By hand: the natural spline through (0,0), (1,1), (2,0) has the second derivative -3 at 1, so
// at 0.5 it is 0.5 + 3 * (0.5 - 0.125) / 6.
TEST(Spline, NaturalCubicOfX) {
    Points points;
    points.add(0, 0);
    points.add(1, 1);
    points.add(1, 1);
    points.add(2, 0);
    const Spline spline(points, 1);
    EXPECT_EQ(spline.num, 3) << "a repeated point is one";
    EXPECT_FLOAT_EQ(spline.getValue(0.5f), 0.6875f);
    EXPECT_FLOAT_EQ(spline.getValue(1), 1);
}

TEST(Spline, ClosedCurveIsSmoothThroughItsStart) {
    Points ring;
    for (int i = 0; i <= 8; i++)
        ring.add(std::cos(i % 8 * 0.785398f), std::sin(i % 8 * 0.785398f));
    const Spline spline(ring, 2);
    const float length = spline.getDist(), step = length / 1000;
    const float start = (spline.getPoint(step).x - 1) / step;
    const float end = (1 - spline.getPoint(length - step).x) / step;
    EXPECT_NEAR(start, end, 0.1); // radians; a curve that ends there has a kink of 0.8
    for (float s = 0; s < length; s += step)
        EXPECT_NEAR(std::hypot(spline.getPoint(s).x, spline.getPoint(s).y), 1, 0.02);
}

} // namespace
