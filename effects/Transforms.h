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

// The half-reflections: one half of the block mirrored onto the other. The halves are W \ 2
// and H \ 2; a side that cannot be halved gives the block back unchanged.
icon::IconBitmap reflectLeftOntoRight(const icon::IconBitmap& block);
icon::IconBitmap reflectRightOntoLeft(const icon::IconBitmap& block);
icon::IconBitmap reflectTopOntoBottom(const icon::IconBitmap& block);
icon::IconBitmap reflectBottomOntoTop(const icon::IconBitmap& block);

// Whether a block of this size has two halves to mirror: across (left/right) needs an even
// width, down (top/bottom) an even height.
bool halvesAcross(int width);
bool halvesDown(int height);

} // namespace effects
