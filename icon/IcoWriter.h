#pragma once

#include "icon/IconPlanes.h"
#include "icon/SafeSave.h"

#include <QString>

#include <array>
#include <cstdint>
#include <string_view>

namespace icon {

// Every icon the editor saves has this one layout: one 32×32 image at 24 bits with its AND mask.
inline constexpr std::size_t kIconFileBytes = 3262;
inline constexpr std::size_t kColourDataOffset = 62;
inline constexpr std::size_t kMaskOffset = 3134;

using IconFileBytes = std::array<std::uint8_t, kIconFileBytes>;

// Eight characters "0"/"1" to one byte, the first character in the high bit.
std::uint8_t packMaskByte(std::string_view bits);

// The 3262 bytes of the icon: directory header, directory entry, bitmap header, colour rows
// from the bottom in blue-green-red order (transparent pixels black), then the AND mask.
IconFileBytes encodeIconFile(const IconPlanes& icon);

// Writes the icon to `path`. A longer existing file keeps its bytes beyond the 3262 written.
SaveResult writeIconFile(const std::filesystem::path& path, const IconPlanes& icon);
SaveResult writeIconFile(const QString& path, const IconPlanes& icon);

} // namespace icon
