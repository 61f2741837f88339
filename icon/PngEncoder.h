#pragma once

#include "icon/RgbaPicture.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace icon {

// The picture as an RGBA PNG (8 bits a channel, straight alpha); the pixels of a picture that
// inverts its background are written clear there. Nothing when the encoder fails.
std::optional<std::vector<std::uint8_t>> encodePng(const RgbaPicture& picture);

} // namespace icon
