#pragma once

namespace ORV {

/// A color as red, green and blue, each 0 to 1. All three -1 means that the color is off.
class RGB {
public:
    float red = 0;
    float grn = 0;
    float blu = 0;

    int set(float r, float g, float b) {
        red = r;
        grn = g;
        blu = b;
        return 1;
    }
    float getRed() const { return red; }
    float getGrn() const { return grn; }
    float getBlu() const { return blu; }
    bool isOff() const { return red == -1 && grn == -1 && blu == -1; }
    bool isWhite() const { return red == 1 && grn == 1 && blu == 1; }
    bool isBlack() const { return red == 0 && grn == 0 && blu == 0; }
    void print() const;
};

} // namespace ORV
