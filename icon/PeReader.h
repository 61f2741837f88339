#pragma once

#include "icon/IconResource.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace icon {

// The icon groups (RT_GROUP_ICON) of a PE32 or PE32+ file (.exe, .dll, 32-bit .icl), in the
// order of the resource directory: named groups first, then numbered ones by number; of each,
// its first language. An empty list for a file without icon groups; nothing for bytes that are
// not a PE file this reader can follow.
std::optional<std::vector<IconResource>> readPeIcons(std::span<const std::uint8_t> bytes);

} // namespace icon
