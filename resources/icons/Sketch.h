#pragma once

#include "icon/Colour.h"
#include "icon/IconBitmap.h"

#include <functional>
#include <vector>

namespace iconlib {

// Icons are drawn in a square of 32 units whatever their size in pixels: x to the right,
// y downwards, (0, 0) the top-left corner.
using Shape = std::function<bool(double x, double y)>;
using Paint = std::function<icon::Colour(double x, double y)>;

// A canvas for one image of one icon. Every pixel is sampled 4×4 times: a pixel is opaque
// when at least half its samples are covered, and takes their mean colour, so that shapes meet
// smoothly inside the icon while its edge stays crisp against the AND mask.
class Sketch {
public:
    explicit Sketch(int pixels);

    int pixels() const { return m_pixels; }
    // One icon unit in pixels at this size (0.5 at 16×16, 1.5 at 48×48).
    double pixelUnits() const { return 32.0 / m_pixels; }

    void fill(const Shape& shape, const Paint& paint);
    void fill(const Shape& shape, icon::Colour colour);
    // Clears what the shape covers back to transparency.
    void erase(const Shape& shape);

    // The finished image: opaque pixels on the icon's outer edge are darkened into an outline.
    icon::IconBitmap finish(bool outline = true) const;

private:
    static constexpr int kSamples = 4;
    int m_pixels;
    int m_side; // samples per row
    std::vector<icon::Colour> m_colour;
    std::vector<bool> m_covered;
};

} // namespace iconlib
