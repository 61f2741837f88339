#pragma once

#include "icon/Colour.h"
#include "icon/Frame.h"
#include "icon/IconBitmap.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace browser {

// A cell's picture at the screen's own pixel size, as the desktop draws icons: colours with
// alpha (premultiplied, 0xAARRGGBB), blended over the background when shown. Old icons whose AND
// mask is white under a coloured pixel invert the background there: those pixels are kept in
// `invert` (0x00RRGGBB, XORed onto the blended result), which is empty for every other icon.
struct CellPicture {
    int side = 0;
    std::vector<std::uint32_t> pixels;
    std::vector<std::uint32_t> invert;

    bool isEmpty() const { return side == 0; }
    std::size_t bytes() const {
        return (pixels.capacity() + invert.capacity()) * sizeof(std::uint32_t);
    }
    bool operator==(const CellPicture&) const = default;
};

// An image with its AND mask as a picture: opaque where the mask is black, clear where white.
// Its size is kept; it must be square.
CellPicture fromBitmap(const icon::IconBitmap& bitmap);

// Brought to side×side by averaging the source pixels each target pixel covers, so that a larger
// image shrinks without losing its thin lines and a smaller one grows without jagged edges.
// Pictures that invert their background are brought by dropping or repeating pixels instead.
CellPicture scaled(const CellPicture& picture, int side);

// What the picture shows over a plain background.
icon::Frame blendOver(const CellPicture& picture, icon::Colour background);

// The best image of an ICO or CUR file for a cell of `side` screen pixels, with its alpha: the
// image of that size with the deepest colours, or else the smallest larger one (shrinking keeps
// the picture sharp), or else the largest smaller one; brought to side×side. Nothing when no
// image decodes.
std::optional<CellPicture> decodeCellPicture(std::span<const std::uint8_t> bytes, int side);

} // namespace browser
