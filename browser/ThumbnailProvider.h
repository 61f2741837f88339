#pragma once

#include "browser/CellPicture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace browser {

// Turns the bytes of an icon file into the picture a grid cell shows, side×side screen pixels.
class ThumbnailProvider {
public:
    virtual ~ThumbnailProvider() = default;
    // Nothing when the bytes are not a picture this provider can show.
    virtual std::optional<CellPicture> decode(std::span<const std::uint8_t> bytes,
                                              int side) const = 0;
};

// The program's own ICO reader: the best image for the cell's size, with its alpha.
class IcoThumbnailProvider : public ThumbnailProvider {
public:
    std::optional<CellPicture> decode(std::span<const std::uint8_t> bytes, int side) const override;
};

} // namespace browser
