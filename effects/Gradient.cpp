#include "effects/Gradient.h"

#include "effects/Rounding.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace effects {

using icon::Colour;
using icon::Frame;

std::string Gradient::label(int value) {
    char text[16];
    std::snprintf(text, sizeof text, "%03d", value);
    return text;
}

int Gradient::stepCount(int angle) {
    return angle % 90 == 0 ? 32 : 64;
}

Colour Gradient::colourOf(int i, Colour start, Colour end, int stepCount) {
    auto channel = [i, stepCount](int s, int e) {
        const double step = std::abs(e - s) / static_cast<double>(stepCount);
        return roundHalfEven(s <= e ? s + i * step : s - i * step);
    };
    return icon::rgb(channel(icon::redOf(start), icon::redOf(end)),
                     channel(icon::greenOf(start), icon::greenOf(end)),
                     channel(icon::blueOf(start), icon::blueOf(end)));
}

Frame Gradient::render(Colour start, Colour end, int angle) {
    const int n = stepCount(angle);
    // Steps 0..63 cover every position of both kinds of gradient.
    std::array<Colour, 64> colours{};
    for (int i = 0; i < 64; ++i)
        colours[static_cast<std::size_t>(i)] = colourOf(i, start, end, n);
    Frame out(32, 32);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            int i = 0;
            switch (angle) {
            case 0:
            case 360:
                i = x;
                break;
            case 90:
                i = y;
                break;
            case 180:
                i = 31 - x;
                break;
            case 270:
                i = 31 - y;
                break;
            default: {
                // The diagonal pattern starts at the top-left; the other corners mirror it.
                const int dx = (angle == 135 || angle == 225) ? 31 - x : x;
                const int dy = (angle == 225 || angle == 315) ? 31 - y : y;
                // The first diagonal line is never drawn: the corner copies its neighbour.
                i = (dx == 0 && dy == 0) ? 1 : dx + dy;
                break;
            }
            }
            out.set(x, y, colours[static_cast<std::size_t>(i)]);
        }
    return out;
}

} // namespace effects
