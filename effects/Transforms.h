#pragma once

#include "icon/IconBitmap.h"

namespace effects {

// The geometric transforms of a block: the whole icon (32×32) or the selection buffers of any
// size. Colour and mask travel together; no colour is ever read or invented.

// new(x, y) = old(W−1−x, y)
icon::IconBitmap flipHorizontal(const icon::IconBitmap& block);
// new(x, y) = old(x, H−1−y)
icon::IconBitmap flipVertical(const icon::IconBitmap& block);
// Counter-clockwise, W×H to H×W: new(y, W−1−x) = old(x, y).
icon::IconBitmap turnLeft(const icon::IconBitmap& block);
// Clockwise, W×H to H×W: new(H−1−y, x) = old(x, y).
icon::IconBitmap turnRight(const icon::IconBitmap& block);

// The half-reflections, by their index on the reflection pad:
// 0 left half onto the right, 1 right onto the left, 2 top onto the bottom, 3 bottom onto the top.
// The halves are W \ 2 and H \ 2; any other index, or a side that cannot be halved, gives the
// block back unchanged.
icon::IconBitmap halfReflect(const icon::IconBitmap& block, int index);

// Whether a reflection entry can be chosen for a block of this size: the left/right pair needs
// an even width, the top/bottom pair an even height.
bool reflectionAllowed(int index, int width, int height);

} // namespace effects
