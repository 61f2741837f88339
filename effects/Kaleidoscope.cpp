#include "effects/Kaleidoscope.h"

#include "effects/Rounding.h"

namespace effects {

icon::Frame Kaleidoscope::generate(int density, icon::Colour background, UniformGenerator& random) {
    icon::Frame preview(32, 32, background);
    for (int i = 0; i < density; ++i) {
        const int x = roundHalfEven(random.next() * 16.0f);
        const int y = roundHalfEven(random.next() * 16.0f);
        const auto colour = static_cast<icon::Colour>(
            roundHalfEven(static_cast<double>(random.next()) * 16777215.0));
        const int points[8][2] = {{x, y}, {-x, y}, {x, -y}, {-x, -y},
                                  {y, x}, {-y, x}, {y, -x}, {-y, -x}};
        for (const auto& p : points) {
            int column = 0, row = 0;
            if (pixelOf(p[0], p[1], column, row))
                preview.set(column, row, colour);
        }
    }
    return preview;
}

} // namespace effects
