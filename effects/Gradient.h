#pragma once

#include "icon/Colour.h"
#include "icon/Frame.h"

#include <string>

namespace effects {

// The linear gradient of the gradient background, drawn on a 32×32 preview.
class Gradient {
public:
    // The direction bar runs 0..8; the angle is the value times 45 degrees.
    static constexpr int kMaxDirection = 8;
    static int angleOf(int direction) { return direction * 45; }
    // A channel bar's label: three digits with leading zeros.
    static std::string label(int value);

    // Steps are 1/32 of the way for straight angles (0, 90, 180, 270, 360) and 1/64 for
    // diagonal ones.
    static int stepCount(int angle);
    // The colour of step i: per channel s ± i·|e − s| / n, rounded halves to even.
    static icon::Colour colourOf(int i, icon::Colour start, icon::Colour end, int stepCount);

    // The preview at an angle: 0/360 start at the left edge, 90 at the top, 180 at the right,
    // 270 at the bottom; 45 starts in the top-left corner (pixel (x, y) = colour(x + y), except
    // pixel (0, 0) = colour(1)), 135 top-right, 225 bottom-right, 315 bottom-left.
    static icon::Frame render(icon::Colour start, icon::Colour end, int angle);
};

} // namespace effects
