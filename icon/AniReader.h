#pragma once

#include "icon/IconResource.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace icon {

// The frames of an animated cursor (RIFF "ACON"): each "icon" chunk of its "LIST fram" is an
// ICO or CUR file. Other chunks ("seq ", "rate", "LIST INFO") may come in any order, and RIFF
// and LIST sizes that disagree with the file are tolerated. An empty list when there is no
// frame; nothing when the bytes are not an animated cursor or have no "anih" header. Frames past
// kMaxIconsInFile are not kept; the second form says how many were left out.
std::optional<std::vector<IconResource>> readAniIcons(std::span<const std::uint8_t> bytes);
std::optional<std::vector<IconResource>> readAniIcons(std::span<const std::uint8_t> bytes,
                                                      std::size_t& leftOut);

} // namespace icon
