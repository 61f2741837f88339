#pragma once

#include "icon/IconBitmap.h"

#include <cstdint>
#include <optional>
#include <span>

namespace browser {

// Turns the bytes of an icon file into the picture a grid cell shows at size×size.
class ThumbnailProvider {
public:
    virtual ~ThumbnailProvider() = default;
    // Nothing when the bytes are not a picture this provider can show.
    virtual std::optional<icon::IconBitmap> decode(std::span<const std::uint8_t> bytes,
                                                   int size) const = 0;
};

// The program's own ICO reader: the image nearest the cell's size.
class IcoThumbnailProvider : public ThumbnailProvider {
public:
    std::optional<icon::IconBitmap> decode(std::span<const std::uint8_t> bytes,
                                           int size) const override;
};

} // namespace browser
