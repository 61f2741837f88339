#include "browser/ThumbnailProvider.h"

#include "icon/IcoReader.h"

namespace browser {

std::optional<icon::IconBitmap> IcoThumbnailProvider::decode(std::span<const std::uint8_t> bytes,
                                                             int size) const {
    return icon::decodeIcon(bytes, size);
}

} // namespace browser
