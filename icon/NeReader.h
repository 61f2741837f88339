#pragma once

#include "icon/IconResource.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace icon {

// The icon groups of an NE file (16-bit .icl, .exe, .dll) in the order of its resource table,
// numbered and named alike. An empty list for a file without a Windows resource table or
// without icon groups; nothing for bytes that are not an NE file this reader can follow.
std::optional<std::vector<IconResource>> readNeIcons(std::span<const std::uint8_t> bytes);

// Resource types of an NE resource table (numbered types have the high bit set).
inline constexpr std::uint16_t kNeIcon = 0x8003;
inline constexpr std::uint16_t kNeGroupIcon = 0x800E;
// Alignment shifts beyond this put resources past any file an NE header can describe.
inline constexpr int kMaxNeAlignmentShift = 15;

} // namespace icon
