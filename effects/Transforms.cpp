#include "effects/Transforms.h"

namespace effects {

using icon::Frame;
using icon::IconBitmap;

namespace {

// Builds a block of the given size where pixel (x, y) takes source pixel from(x, y).
template <typename Map>
IconBitmap remap(const IconBitmap& source, int width, int height, Map from) {
    IconBitmap out{Frame(width, height), Frame(width, height)};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const auto [sx, sy] = from(x, y);
            out.image.set(x, y, source.image.at(sx, sy));
            out.mask.set(x, y, source.mask.at(sx, sy));
        }
    return out;
}

struct Point {
    int x;
    int y;
};

} // namespace

IconBitmap flipHorizontal(const IconBitmap& block) {
    const int w = block.width();
    return remap(block, w, block.height(), [w](int x, int y) { return Point{w - 1 - x, y}; });
}

IconBitmap flipVertical(const IconBitmap& block) {
    const int h = block.height();
    return remap(block, block.width(), h, [h](int x, int y) { return Point{x, h - 1 - y}; });
}

IconBitmap turnLeft(const IconBitmap& block) {
    // new(y, W−1−x) = old(x, y), read backwards: new(X, Y) = old(W−1−Y, X).
    const int w = block.width();
    return remap(block, block.height(), w, [w](int x, int y) { return Point{w - 1 - y, x}; });
}

IconBitmap turnRight(const IconBitmap& block) {
    // new(H−1−y, x) = old(x, y), read backwards: new(X, Y) = old(Y, H−1−X).
    const int h = block.height();
    return remap(block, h, block.width(), [h](int x, int y) { return Point{y, h - 1 - x}; });
}

bool halvesAcross(int width) {
    return width % 2 == 0;
}

bool halvesDown(int height) {
    return height % 2 == 0;
}

// An odd side has no two halves to mirror; the pad never offers it, and a block is never read
// outside its bounds because of it.
IconBitmap reflectLeftOntoRight(const IconBitmap& block) {
    const int w = block.width(), half = w / 2;
    if (!halvesAcross(w))
        return block;
    return remap(block, w, block.height(), [=](int x, int y) {
        return x >= half ? Point{2 * half - 1 - x, y} : Point{x, y};
    });
}

IconBitmap reflectRightOntoLeft(const IconBitmap& block) {
    const int w = block.width(), half = w / 2;
    if (!halvesAcross(w))
        return block;
    return remap(block, w, block.height(), [=](int x, int y) {
        return x < half ? Point{w - 1 - x, y} : Point{x, y};
    });
}

IconBitmap reflectTopOntoBottom(const IconBitmap& block) {
    const int h = block.height(), half = h / 2;
    if (!halvesDown(h))
        return block;
    return remap(block, block.width(), h, [=](int x, int y) {
        return y >= half ? Point{x, 2 * half - 1 - y} : Point{x, y};
    });
}

IconBitmap reflectBottomOntoTop(const IconBitmap& block) {
    const int h = block.height(), half = h / 2;
    if (!halvesDown(h))
        return block;
    return remap(block, block.width(), h, [=](int x, int y) {
        return y < half ? Point{x, h - 1 - y} : Point{x, y};
    });
}

} // namespace effects
