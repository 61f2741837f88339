#pragma once

#include "icon/IconBitmap.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace icon {

// What the IHDR chunk of a PNG image says.
struct PngHeader {
    int width = 0;
    int height = 0;
    int bitDepth = 0; // bits per pixel: channels × bits per channel
};

// True when the bytes start with the PNG signature.
bool isPng(std::span<const std::uint8_t> bytes);

// The header of a PNG image; nothing when it is not a PNG or its size is outside 1..1024.
std::optional<PngHeader> readPngHeader(std::span<const std::uint8_t> bytes);

// Decodes a PNG image of an icon (libspng): alpha below 128 is transparent (black
// under a white mask), other pixels keep their own colour. Nothing when it cannot be decoded.
// With an output size, pixels are dropped or repeated to that size, as resample() does.
std::optional<IconBitmap> decodePngImage(std::span<const std::uint8_t> bytes, int outputWidth = 0,
                                         int outputHeight = 0);

// A PNG image's pixels as stored, 8 bits a channel, red, green, blue, alpha (straight) in that
// order, row after row; nothing when it cannot be decoded.
struct PngPixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;
};
std::optional<PngPixels> decodePngRgba(std::span<const std::uint8_t> bytes);

} // namespace icon
