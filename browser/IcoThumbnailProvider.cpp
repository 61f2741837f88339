#include "browser/ThumbnailProvider.h"

namespace browser {

std::optional<CellPicture> IcoThumbnailProvider::decode(std::span<const std::uint8_t> bytes,
                                                        int side) const {
    return decodeCellPicture(bytes, side);
}

} // namespace browser
