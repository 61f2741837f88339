#pragma once

#include "icon/RgbaPicture.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace icon {

// An icon file made from pictures of several sizes, each a 32-bit image with its alpha.
inline constexpr int kMaxAuthoredSide = 256;          // an icon entry is 1..256 a side
inline constexpr std::size_t kMaxAuthoredImages = 64; // images in one made icon file

// How an entry is stored: a 32-bit bitmap with its AND mask, which every reader knows, or a PNG
// image, much smaller for the large sizes.
enum class EntryFormat { Bmp, Png };

// PNG for the images whose larger side is 256, bitmaps for the others.
EntryFormat defaultEntryFormat(int width, int height);

struct AuthoredImage {
    RgbaPicture picture;
    EntryFormat format = EntryFormat::Bmp;
};

// Why a PNG file is refused as a picture of an icon.
enum class PngRefusal { None, NotPng, TooLarge, Undecodable };

struct PngPicture {
    std::optional<RgbaPicture> picture; // straight alpha, at the PNG's own size
    PngRefusal refusal = PngRefusal::None;
    int width = 0; // what the header says, for the message of a picture too large
    int height = 0;
};

// The picture of a PNG file for an icon entry. The header is read first: a picture larger than
// 256 a side is refused before anything is decoded.
PngPicture pictureFromPng(std::span<const std::uint8_t> bytes);

// The bytes of an ICO file holding the images in the given order: directory header, one entry
// per image, then each image: a bitmap (header with the height doubled, BGRA rows from the bottom,
// transparent pixels black, then the AND mask rows, set where alpha is 0, each padded to four
// bytes) or a PNG image. Nothing when there is no image or more than kMaxAuthoredImages, a side
// is outside 1..256, or a PNG cannot be encoded.
std::optional<std::vector<std::uint8_t>>
encodeMultiSizeIco(const std::vector<AuthoredImage>& images);

} // namespace icon
