#pragma once

#include "icon/IconResource.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace icon {

// The most bytes one assembled icon file may take. Groups can name the same large image many
// times; past this the remaining images are left out rather than filling memory.
inline constexpr std::size_t kMaxAssembledIcoBytes = 64u * 1024u * 1024u;

// How many of a group's images its assembled ICO file holds: those that fit under the limit.
std::size_t keptImages(const std::vector<GroupImage>& images);
// The bytes assembleIco gives for `icon`, worked out without assembling anything (0 when it
// would give nothing).
std::size_t assembledSize(std::span<const std::uint8_t> file, const IconResource& icon);

// The complete ICO file of an icon found in `file`. A group gives its directory (the group's
// entries with the images' sizes and their new offsets) followed by the images in group order;
// an embedded ICO file is copied as it is, and an embedded CUR file becomes an ICO file (type 1,
// planes and bit depths in place of the hot spots).
std::vector<std::uint8_t> assembleIco(std::span<const std::uint8_t> file, const IconResource& icon);

// An ICO or CUR file as an ICO file: a CUR file is rewritten as above, anything else is
// returned unchanged.
std::vector<std::uint8_t> cursorAsIcon(std::span<const std::uint8_t> bytes);

} // namespace icon
