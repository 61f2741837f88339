#include "effects/ColourTransforms.h"

#include "effects/Rounding.h"

namespace effects {

using icon::Colour;

Colour greyOf(Colour c) {
    const int sum = 222 * icon::redOf(c) + 707 * icon::greenOf(c) + 71 * icon::blueOf(c);
    const int level = roundHalfEven(sum / 1000.0);
    return icon::rgb(level, level, level);
}

Colour negativeOf(Colour c) {
    return icon::rgb(255 - icon::redOf(c), 255 - icon::greenOf(c), 255 - icon::blueOf(c));
}

namespace {

template <typename Change>
icon::IconBitmap onOpaquePixels(icon::IconBitmap block, Change change) {
    for (int y = 0; y < block.height(); ++y)
        for (int x = 0; x < block.width(); ++x)
            if (!icon::isTransparentMask(block.mask.at(x, y)))
                block.image.set(x, y, change(block.image.at(x, y)));
    return block;
}

} // namespace

icon::IconBitmap greyLevels(const icon::IconBitmap& block) {
    return onOpaquePixels(block, greyOf);
}

icon::IconBitmap negative(const icon::IconBitmap& block) {
    return onOpaquePixels(block, negativeOf);
}

} // namespace effects
