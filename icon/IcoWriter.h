#pragma once

#include "icon/IconBitmap.h"
#include "icon/IconPlanes.h"
#include "icon/SafeSave.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace icon {

// Every icon the editor saves has this one layout: one 32×32 image at 24 bits with its AND mask.
inline constexpr std::size_t kIconFileBytes = 3262;
inline constexpr std::size_t kColourDataOffset = 62;
inline constexpr std::size_t kMaskOffset = 3134;

using IconFileBytes = std::array<std::uint8_t, kIconFileBytes>;

// Eight characters "0"/"1" to one byte, the first character in the high bit.
std::uint8_t packMaskByte(std::string_view bits);

// An ICO file of the bitmaps, in the given order, each at 24 bits with its AND mask: directory
// header, one entry per image, then each image's bitmap header, colour rows from the bottom in
// blue-green-red order (transparent pixels black) and AND mask rows, every row padded to four
// bytes. The header's image size counts colour and mask rows, as the program has always written.
std::vector<std::uint8_t> encodeIcoFile(const std::vector<IconBitmap>& images);

// The 3262 bytes of the icon, the one-image file above: directory header, directory entry, bitmap header, colour rows
// from the bottom in blue-green-red order (transparent pixels black), then the AND mask.
IconFileBytes encodeIconFile(const IconPlanes& icon);

// Writes the icon to `path`. A longer existing file keeps its bytes beyond the 3262 written.
SaveResult writeIconFile(const std::filesystem::path& path, const IconPlanes& icon);

} // namespace icon
