#pragma once

namespace ORV {

/// The vertices of a polygon that repeats its first one at the end, in two arrays of num floats
/// that it doesn't own. What the lists of points have in common about them.
class Polygon {
public:
    const float* x;
    const float* y;
    int num;

    /// Whether (px, py) lies inside. An edge is crossed for 0 < t <= 1 along its way, so that the
    /// vertex between two edges counts once.
    bool within(float px, float py) const;

    /// A point inside: the middle of the first stretch, along the middle line across the narrower
    /// way of the bounding box, that lies inside. False for fewer than three vertices.
    bool getCenter(float& cx, float& cy) const;

    /// The mean of the vertices without those that repeat the first; (0,0) without any.
    void getCentroid(float& cx, float& cy) const;
};

} // namespace ORV
