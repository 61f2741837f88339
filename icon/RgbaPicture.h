#pragma once

#include "icon/IcoReader.h"
#include "icon/IconBitmap.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace icon {

// One image of an icon with its 8-bit alpha, as the desktop shows icons: 0xAARRGGBB per pixel,
// straight or premultiplied as `premultiplied` says. Old icons whose AND mask is white under a
// coloured pixel invert the background there: those pixels are kept in `invert` (0x00RRGGBB,
// their own pixel clear), which is empty for every other icon.
struct RgbaPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
    std::vector<std::uint32_t> invert;
    bool premultiplied = false;

    bool isEmpty() const { return width < 1 || height < 1; }
};

// An image with its AND mask: opaque where the mask is black, clear where white.
RgbaPicture rgbaFromBitmap(const IconBitmap& bitmap);

// Image `info` of an ICO or CUR file with its alpha, straight: a PNG image's own alpha, a 32-bit
// bitmap's alpha channel (unless all of it is zero), else the AND mask. Nothing when it does not
// decode.
std::optional<RgbaPicture> decodeRgbaImage(std::span<const std::uint8_t> bytes,
                                           const IcoImageInfo& info);

// The order to try the images in for a picture of `side` pixels: the image of that size with the
// deepest colours, then the larger ones from the nearest up (shrinking keeps the picture sharp),
// then the smaller ones from the nearest down.
std::vector<int> rankImagesForSide(const IcoDirectory& directory, int side);

// The first image in that order that decodes (a few tried at most), straight and at its own
// size. Nothing when none does or `side` is outside 1..1024.
std::optional<RgbaPicture> decodeBestRgba(std::span<const std::uint8_t> bytes, int side);

RgbaPicture premultiplied(RgbaPicture picture);
RgbaPicture unpremultiplied(RgbaPicture picture);

// Brought to width×height, premultiplied, by averaging the source pixels each target pixel
// covers, so that a larger image shrinks without losing its thin lines and a smaller one grows
// without jagged edges. Pictures that invert their background are brought by dropping or
// repeating pixels instead.
RgbaPicture resized(const RgbaPicture& picture, int width, int height);

} // namespace icon
