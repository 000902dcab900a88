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

} // namespace
