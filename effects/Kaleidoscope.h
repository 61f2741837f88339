#pragma once

#include "effects/UniformGenerator.h"
#include "icon/Colour.h"
#include "icon/Frame.h"

namespace effects {

// The eight-fold symmetrical pattern of dots of the kaleidoscope background, drawn on a 32×32
// preview whose coordinates run from −16 (left) to +16 (right) and from +16 (top) to −16
// (bottom): point (X, Y) lands on column 16 + X and row 16 − Y.
class Kaleidoscope {
public:
    static constexpr int kDefaultDensity = 250;
    static constexpr int kMinimumDensity = 10;
    static constexpr int kMaximumDensity = 500;
    static constexpr int kDensityStep = 10;

    // The preview pixel of a point, or false when the point falls outside the preview
    // (X = 16 or Y = −16).
    static bool pixelOf(int px, int py, int& column, int& row) {
        column = 16 + px;
        row = 16 - py;
        return column >= 0 && column < 32 && row >= 0 && row < 32;
    }

    // A plain preview of the background colour, then `density` passes; each pass draws x, y
    // and then the colour from the generator and sets its eight mirrored points.
    static icon::Frame generate(int density, icon::Colour background, UniformGenerator& random);
};

} // namespace effects
