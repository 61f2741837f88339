#pragma once

#include "icon/IconBitmap.h"
#include "icon/IconPlanes.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace icon {

// Limits of what the reader accepts before it allocates anything.
inline constexpr int kMaxBmpSide = 256;  // BMP images: up to 256×256
inline constexpr int kMaxPngSide = 1024; // PNG images: up to 1024×1024
inline constexpr int kMaxPaletteSize = 256;

enum class ImageFormat { Bmp, Png };

// One image of an ICO or CUR file. Sizes and depth come from the image's own header; the
// directory's values (which often lie) are kept apart and used only where the header says 0.
struct IcoImageInfo {
    int width = 0;
    int height = 0;
    int bitDepth = 0; // bits per pixel of the image (PNG: channels × bits per channel)
    ImageFormat format = ImageFormat::Bmp;
    std::uint32_t offset = 0; // of the image data in the file
    std::uint32_t size = 0;   // bytes of the image data
    int directoryWidth = 0;   // as the directory says (0 there means 256)
    int directoryHeight = 0;
    int directoryBitCount = 0; // cursors keep their hotspot there instead: 0
    // A cursor's hotspot, the pixel that points, from the directory's planes and bit count
    // fields; 0,0 for an icon.
    int hotspotX = 0;
    int hotspotY = 0;
    // The image's own header was read and is within the limits, its colour data all there.
    bool usable = false;
};

// The directory of an ICO (type 1) or CUR (type 2) file.
struct IcoDirectory {
    int type = 1;
    std::vector<IcoImageInfo> images; // in file order
};

// Parses the 6-byte header and the directory entries and reads each image's own header.
// Nothing when the bytes are not an ICO or CUR file (or hold no image at all).
std::optional<IcoDirectory> readIcoDirectory(std::span<const std::uint8_t> bytes);

// What the header of one image says, its data being `image` (the directory's values as given,
// 0 meaning 256), without reading the pixels: how a listing describes an image in place.
IcoImageInfo describeImage(std::span<const std::uint8_t> image, int directoryWidth,
                           int directoryHeight, int directoryBitCount);

// Decodes one image of the file at its own size, or brought to outputWidth×outputHeight by
// dropping or repeating pixels. Nothing when its data is unusable.
std::optional<IconBitmap> decodeImage(std::span<const std::uint8_t> bytes, const IcoImageInfo& info,
                                      int outputWidth = 0, int outputHeight = 0);

// Which image the editor takes for a side of `size` pixels: an image of exactly size×size with the
// deepest colour format; with none, the image nearest in size (the smallest sum of the width and
// height differences; on a tie the larger image, then the deeper one, then the first in the file).
// Only usable images count. -1 when there is none.
int chooseImage(const IcoDirectory& directory, int size);
// Every usable image, the one chooseImage gives first, then the others in the same order of
// preference (what decodeIcon falls back on when an image turns out undecodable).
std::vector<int> rankImages(const IcoDirectory& directory, int size);

// The image taken for `size`, decoded and brought to size×size: the first in the order of
// rankImages that decodes (only the first few distinct images are tried). Nothing when none does.
struct ChosenImage {
    int index = -1;
    IconBitmap bitmap;
};
std::optional<ChosenImage> decodeChosenImage(std::span<const std::uint8_t> bytes,
                                             const IcoDirectory& directory, int size);

// The first icon of an ICO or CUR file, chosen for `size` and brought to size×size by dropping or
// repeating pixels. Nothing when the file cannot be decoded.
std::optional<IconBitmap> decodeIcon(std::span<const std::uint8_t> bytes, int size);
// The editor's planes of an icon file (size 32).
std::optional<IconPlanes> decodeIconPlanes(std::span<const std::uint8_t> bytes);

// The image count of the 6-byte header as a signed 16-bit value; MultiImageFile is count >= 2
// (a count with bit 15 set reads negative, hence false). Nothing when there are not 6 bytes.
std::optional<int> readHeaderCount(std::span<const std::uint8_t> bytes);

// Whether the bytes are a picture: an icon this reader decodes, a PNG image it decodes, or a
// file that starts as a BMP, JPEG or GIF picture does (those are not decoded here).
bool isLoadablePicture(std::span<const std::uint8_t> bytes);

} // namespace icon
